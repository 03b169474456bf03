// The sheet of a billing order, for the warehouse and the clerk to check before the
// note is generated: 77 columns on plain paper, one raw job, no page break.
#pragma once

#include <cstdint>
#include <string>
#include <string_view>

#include "gateway/sessao.h"
#include "gateway/xml_document.h"

namespace tarn {

class RawChannel;
struct Environment;

// The company that has a form for its sheets.
inline constexpr std::int32_t priceSheetCompany = 1361;
inline constexpr std::string_view orderSheetTitle = "ORDEM DE FATURAMENTO";

// What the paper is called that a company's sheets go on: plain, or company 1361's own form.
std::string orderFormName(std::int32_t company);

// The standard sheet. `document` is read as it prints: what raises ObjectVariable (no
// header row, a missing field of an ITEM or PARCELA) leaves the lines before it in the
// job, which stays open. Released at the end.
void ImprimeOrdemFaturamento(Environment& environment, XmlDocument& document);

// The sheet of company 1361, for a form that brings its title and headings: control
// number, net value of each item, room for observations.
void ImprimeOrdemFaturamentoPreco(Environment& environment, XmlDocument& document);
void printPriceSheet(RawChannel& channel, XmlDocument& document);

// The one of the two that the company uses.
void printOrder(Environment& environment, const Sessao& session, XmlDocument& document);

// From the selected order to its sheet on paper: fetches the order's document and prints
// it; every failure to have it is shown.
void printSelectedOrder(Environment& environment, const Sessao& session, const std::string& order);

}  // namespace tarn
