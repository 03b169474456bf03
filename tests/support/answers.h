// Answers of the server as the screens meet them.
#pragma once

#include <string>

namespace tarn::test::answers {

inline const std::string declaration = R"(<?xml version="1.0" encoding="UTF-8"?>)";

inline std::string status(const std::string& text, const std::string& inside = "") {
    return declaration + "<RESPOSTA cod=\"0\" status=\"" + text + "\">" + inside + "</RESPOSTA>";
}

inline std::string rowset(const std::string& rows) {
    return declaration +
           "<xml xmlns:rs='urn:schemas-microsoft-com:rowset' xmlns:z='#RowsetSchema'><rs:data>" +
           rows + "</rs:data></xml>";
}

inline std::string version(const std::string& status) {
    return declaration + "<VERSAO><LINHA status=\"" + status + "\" data=\"2009-01-07\"/></VERSAO>";
}

inline std::string logon(const std::string& company = "2041",
                         const std::string& establishment = "1") {
    return declaration + "<PRINCIPAL cod=\"0\" status=\"OK\"><CAB NCOMPANYCODE=\"" + company +
           "\" COMPANYNAME=\"Com. S.A.\" SERVERNAME=\"SRV1\" ID_ETB_TARN=\"" + establishment +
           "\" USERCODE=\"77\" DATA=\"9/5/2012\"/></PRINCIPAL>";
}

inline std::string branch(const std::string& name) {
    return rowset("<z:row NM_FIL=\"" + name + "\"/>");
}

inline std::string observation(const std::string& text) {
    return status("OK", "<OBS OBSERVACAO=\"" + text + "\"/>");
}

inline std::string generatedNote(const std::string& id, const std::string& series) {
    return status("OK", "<NF id=\"" + id + "\"/><SERIE cd=\"" + series + "\"/>");
}

}  // namespace tarn::test::answers
