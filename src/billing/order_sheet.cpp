#include "billing/order_sheet.h"

#include <string>
#include <string_view>

#include "common/raw_channel.h"
#include "gateway/pega_valor.h"
#include "platform/environment.h"
#include "runtime/mask.h"
#include "runtime/numbers.h"
#include "runtime/runtime_error.h"

namespace tarn {
namespace {

constexpr std::int32_t priceSheetCompany = 1361;
constexpr int sheetWidth = 77;
constexpr int totalsColumn = 65;  // where the labels of the totals end
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

// One job, line by line. Nothing of a line goes out before out().
class OrderSheet {
public:
    explicit OrderSheet(Environment& environment)
        : channel_(environment.spooler, environment.codePage) {
        channel_.open();
    }

    OrderSheet& text(std::string_view fixedText) {
        line_ += fixedText;
        return *this;
    }
    OrderSheet& blanks(int count) {
        line_.append(static_cast<std::size_t>(count), ' ');
        return *this;
    }
    OrderSheet& field(std::string_view value, int width) {
        appendField(line_, value, width, false);
        return *this;
    }
    OrderSheet& value(double number, const NumberMask& mask, int width) {
        return alignRight(formatNumber(number, mask), width);
    }
    OrderSheet& inParentheses(double number, int width) {
        return alignRight("(" + formatNumber(number, twoPlaces) + ")", width);
    }
    void out() {
        channel_.ImprimeRaw(1, line_, 1);
        line_.clear();
    }

    void ruler(char stroke) {
        line_.append(sheetWidth, stroke);
        out();
    }
    void blankLine() { blanks(sheetWidth).out(); }
    void close() { channel_.close(); }

private:
    OrderSheet& alignRight(std::string_view value, int width) {
        appendField(line_, value, width, true);
        return *this;
    }

    RawChannel channel_;
    std::string line_;
};

std::string header(const XmlDocument& document, std::string_view name) {
    return PegaValor(document.selectSingleNode("PRINCIPAL"), 0, name);
}

// Quantity, code, description; what follows differs.
OrderSheet& itemStart(OrderSheet& sheet, const Item& item) {
    return sheet.value(item.quantity, threePlaces, 8)
        .blanks(1)
        .field(item.code, 7)
        .blanks(1)
        .field(item.description, 36)
        .blanks(1);
}

// Reads and prints the items in turn; returns their totals.
template <typename EndOfLine>
Values printItems(OrderSheet& sheet, const XmlDocument& document, EndOfLine endOfLine) {
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
void printParcels(OrderSheet& sheet, const XmlDocument& document, Titles titles) {
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
            .value(value, twoPlaces, amountWidth)
            .blanks(1)
            .out();
    }
}

void label(OrderSheet& sheet, std::string_view text) {
    sheet.blanks(totalsColumn - static_cast<int>(text.size())).text(text);
}

void printTotals(OrderSheet& sheet, const Values& totals) {
    const auto total = [&sheet](std::string_view text, double value) {
        label(sheet, text);
        sheet.value(value, twoPlaces, totalWidth).out();
    };
    // The closing bracket prints one column behind the digits of the other totals (decision
    // D45).
    const auto discount = [&sheet](std::string_view text, double value) {
        label(sheet, text);
        sheet.inParentheses(value, amountWidth).out();
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

void printPlainHeader(OrderSheet& sheet, const XmlDocument& document) {
    sheet.out();
    sheet.text("                            ORDEM DE FATURAMENTO                             ")
        .out();
    sheet.ruler('-');
    sheet.text("Cliente:  ").field(header(document, "RAZAO"), 50).blanks(1);
    sheet.text("Data: ").field(header(document, "DT_EMS_NF"), 10).out();
    sheet.text("Vendedor: ").field(header(document, "VENDEDOR"), 67).out();
    sheet.text("                                  PRODUTOS                                   ")
        .out();
    sheet.ruler('-');
    sheet.text("  QTDE    CODIGO         DESCRICAO DO PRODUTO          UNITARIO   VLR.BRUTO  ")
        .out();
    sheet.text("-------- ------- ------------------------------------ ---------- ------------")
        .out();
}

void printPriceHeader(OrderSheet& sheet, const XmlDocument& document) {
    sheet.out();
    const std::string control = header(document, "NR_CTRL_INT");
    if (control != "0") {
        sheet.field(control, 40);
    }
    sheet.out();
    sheet.ruler('-');
    sheet.field(header(document, "RAZAO"), 50).blanks(17);
    sheet.field(header(document, "DT_EMS_NF"), 10).out();
    sheet.field(header(document, "VENDEDOR"), 67).out();
    sheet.blankLine();
    sheet.ruler('-');
}

void printObservations(OrderSheet& sheet) {
    constexpr int linesToWrite = 4;
    sheet.blankLine();
    sheet.blankLine();
    sheet.text("OBS:_________________________________________________________________________")
        .out();
    for (int i = 0; i < linesToWrite; ++i) {
        sheet.blankLine();
        sheet.ruler('_');
    }
}

}  // namespace

void ImprimeOrdemFaturamento(Environment& environment, XmlDocument& document) {
    OrderSheet sheet(environment);
    printPlainHeader(sheet, document);
    const Values totals = printItems(sheet, document, [&sheet](const Item& item) {
        sheet.value(item.unitPrice, twoPlaces, 10).blanks(1);
        sheet.value(item.values.gross, twoPlaces, totalWidth);
    });
    sheet.ruler('-');
    printTotals(sheet, totals);
    printParcels(sheet, document, [&sheet] {
        sheet.text("                        VENCTO PREVISTO      VALOR                           ")
            .out();
        sheet.text("                      ------------------- -------------                      ")
            .out();
    });
    sheet.close();
    document = XmlDocument();
}

void ImprimeOrdemFaturamentoPreco(Environment& environment, XmlDocument& document) {
    OrderSheet sheet(environment);
    printPriceHeader(sheet, document);
    const Values totals = printItems(sheet, document, [&sheet](const Item& item) {
        sheet.value(item.unitPrice, threePlaces, 10).blanks(1);
        sheet.value(item.values.itemNet(), twoPlaces, amountWidth);
    });
    sheet.ruler('-');
    sheet.blanks(totalsColumn).value(totals.discount, twoPlaces, amountWidth).out();
    sheet.blanks(60).text("-----------------").out();
    sheet.blanks(totalsColumn);
    sheet.value(totals.orderNet(), twoPlaces, amountWidth).out();
    printParcels(sheet, document, [&sheet] {
        sheet.blankLine();
        sheet.text("                         ---------------- -------------                      ")
            .out();
    });
    printObservations(sheet);
    sheet.close();
    document = XmlDocument();
}

void printOrder(Environment& environment, const Sessao& session, XmlDocument& document) {
    if (session.NCOMPANYCODE == priceSheetCompany) {
        ImprimeOrdemFaturamentoPreco(environment, document);
    } else {
        ImprimeOrdemFaturamento(environment, document);
    }
}

}  // namespace tarn
