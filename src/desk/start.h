// The start of the program as rules: version gate, date format, logon, rights,
// the establishment's name. The screens only call these.
#pragma once

#include <string>
#include <string_view>

#include "gateway/sessao.h"

namespace tarn {

struct Environment;

// Version gate: false when the program is out of date (the box has been shown)
// and must end. A server out of reach leaves the gate open. Errors are ignored.
bool VerVersao(Environment& environment, Sessao& session, std::string_view version);

// Imposes dd/MM/yyyy on the machine; false: refused, the box has been shown, the
// program must end.
bool imposeDateFormat(Environment& environment);

// Whether none of the three is empty; false: the user has been told.
bool canLogOn(Environment& environment, const std::string& company, const std::string& user,
              const std::string& password);

// One try at the logon with the three texts as typed. True: `session` is filled.
// False: the user has been told; the screen stays. Anything unexpected comes out as
// an exception, for the screen's handler.
bool logOn(Environment& environment, Sessao& session, const std::string& company,
           const std::string& user, const std::string& password);

// The server's month/day/year as dd/mm/yyyy; RuntimeError OutOfRange with
// fewer than three parts.
std::string dayMonthYear(std::string_view data);

// The rights check, sent at each opening; false: the user has been told.
bool VerificaDireitoAcesso(Environment& environment, const Sessao& session,
                           std::string_view transaction);

// NM_FIL of the session's establishment; RuntimeError when there is no row.
std::string branchName(Environment& environment, const Sessao& session);

}  // namespace tarn
