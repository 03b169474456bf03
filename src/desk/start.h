// The start of the program as rules: version gate, date format, logon, rights,
// the establishment's name. The screens only call these.
#pragma once

#include <string>
#include <string_view>

#include "gateway/sessao.h"

namespace tarn {

struct Environment;

inline constexpr std::string_view versaoPrograma = "07/01/2009";

// Version gate: false when the program is out of date (the box has been shown)
// and must end. A server out of reach leaves the gate open. Errors are ignored.
bool VerVersao(Environment& ambiente, Sessao& sessao, std::string_view versao);

// Imposes dd/MM/yyyy on the machine; false: refused, the box has been shown, the
// program must end.
bool impoeFormatoData(Environment& ambiente);

// One try at the logon with the three texts as typed. True: `sessao` is filled.
// False: the user has been told; the screen stays. Anything unexpected comes out as
// an exception, for the screen's handler.
bool entra(Environment& ambiente, Sessao& sessao, const std::string& empresa,
           const std::string& usuario, const std::string& senha);

// The server's month/day/year as dd/mm/yyyy; ErroExecucao ForaDoIntervalo with
// fewer than three parts.
std::string inverteData(std::string_view data);

// The rights check, sent at each opening; false: the user has been told.
bool VerificaDireitoAcesso(Environment& ambiente, const Sessao& sessao, std::string_view transacao);

// NM_FIL of the session's establishment; ErroExecucao when there is no row.
std::string nomeFilial(Environment& ambiente, const Sessao& sessao);

}  // namespace tarn
