#include "billing/order_sheet.h"

#include <string>
#include <string_view>

#include "common/acts.h"
#include "common/boxes.h"
#include "common/printed_line.h"
#include "gateway/answer.h"
#include "gateway/commands.h"
#include "gateway/failure_texts.h"
#include "gateway/pega_valor.h"
#include "platform/environment.h"
#include "runtime/mask.h"
#include "runtime/numbers.h"
#include "runtime/runtime_error.h"

namespace tarn {
namespace {

constexpr std::size_t sheetWidth = 77;
constexpr std::size_t totalsColumn = 65;  // where the labels of the totals end
constexpr int totalWidth = 11;
constexpr int amountWidth = 12;
constexpr NumberMask twoPlaces{"##,###0.00"};
constexpr NumberMask threePlaces{"##,###0.000"};

// The amounts of one item, or their totals.
struct Values {
    double gross = 0;
    double discount = 0;
    double ipi = 0;
    double icmsWithheld = 0;
    double icmsDiscount = 0;
    double freight = 0;
    double expenses = 0;
    double insurance = 0;

    void add(const Values& item) {
        gross += item.gross;
        discount += item.discount;
        ipi += item.ipi;
        icmsWithheld += item.icmsWithheld;
        icmsDiscount += item.icmsDiscount;
        freight += item.freight;
        expenses += item.expenses;
        insurance += item.insurance;
    }
    double upToFreight() const {
        return gross - discount + ipi + icmsWithheld - icmsDiscount + freight;
    }
    // An item adds its insurance before its expenses, the order the other way round;
    // the last cent may depend on it.
    // Two orders of adding, two roundings: decision D47.
    double itemNet() const { return upToFreight() + insurance + expenses; }
    double orderNet() const { return upToFreight() + expenses + insurance; }
};

struct Item {
    std::string_view code;
    std::string_view description;
    double quantity = 0;
    double unitPrice = 0;
    Values values;
};

std::string_view fieldOf(const XmlNode& line, std::string_view name) {
    const XmlAttribute attribute = line.attributes().getNamedItem(name);
    if (!attribute) {
        throw RuntimeError(RuntimeErrorCode::ObjectVariable, name);
    }
    return attribute.text();
}

double numberOf(const XmlNode& line, std::string_view name) {
    return readPoint(fieldOf(line, name));
}

// Every field is read, also those that the sheet doesn't print: a missing one stops the
// sheet here (decision D44).
Item readItem(const XmlNode& line) {
    Item item{.code = fieldOf(line, "CD_PRO"),
              .description = fieldOf(line, "DESCRICAO"),
              .quantity = numberOf(line, "QTDE"),
              .unitPrice = numberOf(line, "UNITARIO"),
              .values = {.discount = numberOf(line, "VL_DSC"),
                         .ipi = numberOf(line, "VL_IPI"),
                         .icmsWithheld = numberOf(line, "VL_ICMS_RTD"),
                         .icmsDiscount = numberOf(line, "VL_DSC_ICMS"),
                         .freight = numberOf(line, "VL_FRT"),
                         .expenses = numberOf(line, "VL_DSP_ACS"),
                         .insurance = numberOf(line, "VL_SEG")}};
    item.values.gross = item.quantity * item.unitPrice;
    return item;
}

void ruler(PrintedLine& sheet, char stroke) {
    sheet.text(std::string(sheetWidth, stroke)).out();
}

void blankLine(PrintedLine& sheet) {
    sheet.blanks(sheetWidth).out();
}

std::string header(const XmlDocument& document, std::string_view name) {
    return PegaValor(document.selectSingleNode("PRINCIPAL"), 0, name);
}

// Quantity, code, description; what follows differs.
PrintedLine& itemStart(PrintedLine& sheet, const Item& item) {
    return sheet.as("Qtde")
        .rightField(item.quantity, threePlaces, 8)
        .blanks(1)
        .as("Código")
        .field(item.code, 7)
        .blanks(1)
        .as("Descrição do produto")
        .field(item.description, 36)
        .blanks(1);
}

// Reads and prints the items in turn; returns their totals.
template <typename EndOfLine>
Values printItems(PrintedLine& sheet, const XmlDocument& document, EndOfLine endOfLine) {
    Values totals;
    const XmlNodeList lines = document.selectNodes("//ITEM");
    for (std::size_t i = 0; i < lines.length(); ++i) {
        const Item item = readItem(lines.item(i));
        totals.add(item.values);
        itemStart(sheet, item);
        endOfLine(item);
        sheet.out();
    }
    return totals;
}

// `titles` prints the two lines above the instalments, when there are any.
template <typename Titles>
void printParcels(PrintedLine& sheet, const XmlDocument& document, Titles titles) {
    const XmlNodeList lines = document.selectNodes("//PARCELA");
    if (lines.length() > 0) {
        titles();
    }
    for (std::size_t i = 0; i < lines.length(); ++i) {
        const std::string_view due = fieldOf(lines.item(i), "DT_PRL");
        const double value = numberOf(lines.item(i), "VL_PRL");
        sheet.blanks(28)
            .field(due, 10)
            .blanks(1)
            .rightField(value, twoPlaces, amountWidth)
            .blanks(1)
            .out();
    }
}

void label(PrintedLine& sheet, std::string_view text) {
    sheet.blanks(totalsColumn - text.size()).text(text);
}

void printTotals(PrintedLine& sheet, const Values& totals) {
    const auto total = [&sheet](std::string_view text, double value) {
        label(sheet, text);
        sheet.rightField(value, twoPlaces, totalWidth).out();
    };
    // The closing bracket prints one column behind the digits of the other totals (decision
    // D45).
    const auto discount = [&sheet](std::string_view text, double value) {
        label(sheet, text);
        sheet.rightField("(" + formatNumber(value, twoPlaces) + ")", amountWidth).out();
    };
    discount("VALOR DE DESCONTO: ", totals.discount);
    total("VALOR DE IPI: ", totals.ipi);
    total("VALOR DE ICMS RETIDO: ", totals.icmsWithheld);
    discount("VALOR DE DESCONTO ICMS: ", totals.icmsDiscount);
    total("VALOR DE FRETE: ", totals.freight);
    total("VALOR DE SEGURO: ", totals.insurance);
    total("VALOR DE DESPESAS ACESSORIAS: ", totals.expenses);
    sheet.blanks(43).text("----------------------------------").out();
    total("VALOR LIQUIDO: ", totals.orderNet());
}

void printPlainHeader(PrintedLine& sheet, const XmlDocument& document) {
    sheet.out();
    sheet.blanks(28).text(orderSheetTitle).blanks(29).out();
    ruler(sheet, '-');
    sheet.text("Cliente:  ").field(header(document, "RAZAO"), 50).blanks(1);
    sheet.text("Data: ").field(header(document, "DT_EMS_NF"), 10).out();
    sheet.text("Vendedor: ").field(header(document, "VENDEDOR"), 67).out();
    sheet.text("                                  PRODUTOS                                   ")
        .out();
    ruler(sheet, '-');
    sheet.text("  QTDE    CODIGO         DESCRICAO DO PRODUTO          UNITARIO   VLR.BRUTO  ")
        .out();
    sheet.text("-------- ------- ------------------------------------ ---------- ------------")
        .out();
}

void printPriceHeader(PrintedLine& sheet, const XmlDocument& document) {
    sheet.out();
    const std::string control = header(document, "NR_CTRL_INT");
    if (control != "0") {
        sheet.as("Controle").field(control, 40);
    }
    sheet.out();
    ruler(sheet, '-');
    sheet.as("Cliente").field(header(document, "RAZAO"), 50).blanks(17);
    sheet.as("Data").field(header(document, "DT_EMS_NF"), 10).out();
    sheet.as("Vendedor").field(header(document, "VENDEDOR"), 67).out();
    blankLine(sheet);
    ruler(sheet, '-');
}

void printObservations(PrintedLine& sheet) {
    constexpr int linesToWrite = 4;
    blankLine(sheet);
    blankLine(sheet);
    sheet.text("OBS:_________________________________________________________________________")
        .out();
    for (int i = 0; i < linesToWrite; ++i) {
        blankLine(sheet);
        ruler(sheet, '_');
    }
}

}  // namespace

std::string orderFormName(std::int32_t company) {
    constexpr std::string_view plain = "OrdemFaturamento";
    std::string name(plain);
    return company == priceSheetCompany ? name + "_" + std::to_string(priceSheetCompany) : name;
}

void ImprimeOrdemFaturamento(Environment& environment, XmlDocument& document) {
    RawChannel channel(environment.spooler, environment.codePage);
    channel.announce(
        {.document = JobDocument::OrderSheet, .form = orderFormName(0), .itemLines = {}});
    channel.open();
    PrintedLine sheet(channel);
    printPlainHeader(sheet, document);
    const Values totals = printItems(sheet, document, [&sheet](const Item& item) {
        sheet.rightField(item.unitPrice, twoPlaces, 10).blanks(1);
        sheet.rightField(item.values.gross, twoPlaces, totalWidth);
    });
    ruler(sheet, '-');
    printTotals(sheet, totals);
    printParcels(sheet, document, [&sheet] {
        sheet.text("                        VENCTO PREVISTO      VALOR                           ")
            .out();
        sheet.text("                      ------------------- -------------                      ")
            .out();
    });
    channel.close();
    document = XmlDocument();
}

void ImprimeOrdemFaturamentoPreco(Environment& environment, XmlDocument& document) {
    RawChannel channel(environment.spooler, environment.codePage);
    printPriceSheet(channel, document);
}

void printPriceSheet(RawChannel& channel, XmlDocument& document) {
    channel.announce({.document = JobDocument::OrderSheet,
                      .form = orderFormName(priceSheetCompany),
                      .itemLines = {}});
    channel.open();
    PrintedLine sheet(channel);
    printPriceHeader(sheet, document);
    const Values totals = printItems(sheet, document, [&sheet](const Item& item) {
        sheet.as("Unitário").rightField(item.unitPrice, threePlaces, 10).blanks(1);
        sheet.as("Vlr. líquido").rightField(item.values.itemNet(), twoPlaces, amountWidth);
    });
    ruler(sheet, '-');
    sheet.blanks(totalsColumn).rightField(totals.discount, twoPlaces, amountWidth).out();
    sheet.blanks(60).text("-----------------").out();
    sheet.blanks(totalsColumn);
    sheet.rightField(totals.orderNet(), twoPlaces, amountWidth).out();
    printParcels(sheet, document, [&sheet] {
        blankLine(sheet);
        sheet.text("                         ---------------- -------------                      ")
            .out();
    });
    printObservations(sheet);
    channel.close();
    document = XmlDocument();
}

void printOrder(Environment& environment, const Sessao& session, XmlDocument& document) {
    if (session.NCOMPANYCODE == priceSheetCompany) {
        ImprimeOrdemFaturamentoPreco(environment, document);
    } else {
        ImprimeOrdemFaturamento(environment, document);
    }
}

void printSelectedOrder(Environment& environment, const Sessao& session, const std::string& order) {
    const std::string problem =
        "Houve um problema na transferência dos dados da Ordem de Faturamento nº " + order + ".";
    XmlDocument document;
    if (!requestAnswer(environment, commands::sel_impr_ordem_fatu(session, order), document,
                       failure::Tarn0012)) {
        warn(environment, problem, box_title::notice);
        return;
    }
    if (answerAccepted(environment, document, problem + " ")) {
        printOrder(environment, session, document);
        tellPrinted(environment, {.sent = "Folha da ordem " + order + " enviada",
                                  .made = "Folha da ordem " + order + " lida do servidor",
                                  .remedy = "imprima de novo"});
    }
}

}  // namespace tarn
