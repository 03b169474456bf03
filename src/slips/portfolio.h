// The collection portfolio under which slips are printed.
#pragma once

#include <cstdint>
#include <optional>
#include <string>

#include "gateway/sessao.h"
#include "gateway/xml_document.h"

namespace tarn {

struct Environment;

// All as text, as the server has them; empty when it has none.
struct Portfolio {
    std::string ID_CRT_COB;
    std::string ID_PES_BAN;
    std::string NR_CRT_CNAB;  // wallet
    std::string CD_AGE_BAN_CNAB;
    std::string NR_CCOR_CNAB;

    bool isWallet57() const;
};

// With several rows the last one counts, each field on its own.
Portfolio portfolioOf(const XmlDocument& answer);

// By the item data of the list; nothing: the user has been told.
std::optional<Portfolio> loadPortfolio(Environment& environment, const Sessao& session,
                                       std::int32_t portfolioId);

}  // namespace tarn
