// The session as the logon leaves it.
#pragma once

#include "gateway/sessao.h"

namespace tarn::test {

inline Sessao sessionOf(std::int32_t company, std::int32_t establishment,
                        const std::string& user = "77", const std::string& server = "SRV1") {
    Sessao session;
    session.NCOMPANYCODE = company;
    session.ID_ETB_TARN = establishment;
    session.UserCode = user;
    session.SERVERNAME = server;
    return session;
}

}  // namespace tarn::test
