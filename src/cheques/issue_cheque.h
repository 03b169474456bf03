// Issuing one cheque: what is tested of it, the print and the control record on the
// server, in that order.
#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <vector>

#include "common/refusal.h"
#include "gateway/sessao.h"
#include "gateway/xml_document.h"

namespace tarn {

struct Environment;

// An account of the list. The first item of a list is none: 0 and empty texts.
struct BankAccount {
    std::string description;      // what the list shows
    std::int32_t ID_PES_BAN = 0;  // item data
    std::string CD_AGE_BAN = {};
    std::string NR_CCOR = {};
    std::string NR_OFI_BAN = {};
};

// The list's items, the first one without an account. Nothing: the request failed, the
// user has been told and the list stays as it was.
std::optional<std::vector<BankAccount>> loadAccounts(Environment& environment,
                                                     const Sessao& session);

// The screen's fields as they are.
struct ChequeFields {
    std::optional<BankAccount> account = std::nullopt;  // none: the first item, or no item at all
    std::string number = {};
    std::string series = {};
    std::string value = {};
    std::string payee = {};
    std::string depositDate = {};
    std::string observation = {};
};

enum class ChequeField { Account, Number, Series, Amount, Payee, DepositDate };
using ChequeRefusal = Refusal<ChequeField>;

// The first test that fails. The server isn't asked. An amount that is no number
// raises TypeMismatch.
std::optional<ChequeRefusal> fieldRefusal(const ChequeFields& fields);

// False: the server has a cheque of this account, number and series. A request that
// fails leaves it true.
bool ValidaCheque(Environment& environment, const Sessao& session, const ChequeFields& fields);

// ValidaCheque's refusal as the user reads it; nothing for a number that is free, or
// while number or series isn't filled in.
std::optional<ChequeRefusal> numberRefusal(Environment& environment, const Sessao& session,
                                           const ChequeFields& fields);

// Prints the cheque and records it. True: recorded. The user has been told how it went
// in any case; nothing is undone or sent twice. Errors before the print: no
// establishment in the answer (ObjectVariable), a bank code, amount or date that can't
// be read.
bool issueCheque(Environment& environment, const Sessao& session, const ChequeFields& fields);

// Whether the record's answer says that it was made; the user is told. ObjectVariable
// for an answer without a status.
bool chequeRecorded(Environment& environment, const XmlDocument& answer);

}  // namespace tarn
