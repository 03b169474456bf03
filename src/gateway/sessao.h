// What the logon fills and every later request and document depends on. In
// memory only.
#pragma once

#include <cstdint>
#include <string>

namespace tarn {

struct Sessao {
    std::int32_t NCOMPANYCODE = 0;
    std::int32_t ID_ETB_TARN = 0;
    std::string COMPANYNAME;
    std::string UserCode;
    std::string SERVERNAME;
    std::string DATA;  // dd/mm/yyyy

    std::string VersaoServidor;    // server's date of the current version, or empty
    std::string TextoMensagem;     // what frmMensagemAlerta shows
    std::string ConfirmaMensagem;  // "S" or "N", what it answers
    std::string TipoEtiqueta;      // "C" clients, "F" suppliers
    std::string DirSistema;
    std::string PrefixoArquivo;  // stays empty; prefix of the optional copy of an answer
};

}  // namespace tarn
