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

    void sum(const Values& item) {
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

std::string_view fieldOf(const XmlNode& linha, std::string_view nome) {
    const XmlAttribute attribute = linha.attributes().getNamedItem(nome);
    if (!attribute) {
        throw RuntimeError(RuntimeErrorCode::ObjectVariable, nome);
    }
    return attribute.text();
}

double numberOf(const XmlNode& linha, std::string_view nome) {
    return readPoint(fieldOf(linha, nome));
}

// Every field is read, also those that the sheet doesn't print.
Item readItem(const XmlNode& linha) {
    Item item{.code = fieldOf(linha, "CD_PRO"),
              .description = fieldOf(linha, "DESCRICAO"),
              .quantity = numberOf(linha, "QTDE"),
              .unitPrice = numberOf(linha, "UNITARIO"),
              .values = {.discount = numberOf(linha, "VL_DSC"),
                         .ipi = numberOf(linha, "VL_IPI"),
                         .icmsWithheld = numberOf(linha, "VL_ICMS_RTD"),
                         .icmsDiscount = numberOf(linha, "VL_DSC_ICMS"),
                         .freight = numberOf(linha, "VL_FRT"),
                         .expenses = numberOf(linha, "VL_DSP_ACS"),
                         .insurance = numberOf(linha, "VL_SEG")}};
    item.values.gross = item.quantity * item.unitPrice;
    return item;
}

// One job, line by line. Nothing of a line goes out before sai().
class OrderSheet {
public:
    explicit OrderSheet(Environment& environment)
        : channel_(environment.spooler, environment.codePage) {
        channel_.open();
    }

    OrderSheet& texto(std::string_view fixedText) {
        linha_ += fixedText;
        return *this;
    }
    OrderSheet& blanks(int count) {
        linha_.append(static_cast<std::size_t>(count), ' ');
        return *this;
    }
    OrderSheet& field(std::string_view valor, int largura) {
        appendField(linha_, valor, largura, false);
        return *this;
    }
    OrderSheet& valor(double number, const NumberMask& mask, int largura) {
        return aDireita(formatNumber(number, mask), largura);
    }
    OrderSheet& inParentheses(double number, int largura) {
        return aDireita("(" + formatNumber(number, twoPlaces) + ")", largura);
    }
    void out() {
        channel_.ImprimeRaw(1, linha_, 1);
        linha_.clear();
    }

    void ruler(char stroke) {
        linha_.append(sheetWidth, stroke);
        out();
    }
    void isBlank() { blanks(sheetWidth).out(); }
    void close() { channel_.close(); }

private:
    OrderSheet& aDireita(std::string_view valor, int largura) {
        appendField(linha_, valor, largura, true);
        return *this;
    }

    RawChannel channel_;
    std::string linha_;
};

std::string header(const XmlDocument& documento, std::string_view nome) {
    return textAttribute(documento.selectSingleNode("PRINCIPAL"), 0, nome);
}

// Quantity, code, description; what follows differs.
OrderSheet& itemStart(OrderSheet& sheet, const Item& item) {
    return sheet.valor(item.quantity, threePlaces, 8)
        .blanks(1)
        .field(item.code, 7)
        .blanks(1)
        .field(item.description, 36)
        .blanks(1);
}

// Reads and prints the items in turn; returns their totals.
template <typename EndOfLine>
Values printItems(OrderSheet& sheet, const XmlDocument& documento, EndOfLine endOfLine) {
    Values totals;
    const XmlNodeList linhas = documento.selectNodes("//ITEM");
    for (std::size_t i = 0; i < linhas.length(); ++i) {
        const Item item = readItem(linhas.item(i));
        totals.sum(item.values);
        itemStart(sheet, item);
        endOfLine(item);
        sheet.out();
    }
    return totals;
}

// `titles` prints the two lines above the instalments, when there are any.
template <typename Titles>
void printParcels(OrderSheet& sheet, const XmlDocument& documento, Titles titles) {
    const XmlNodeList linhas = documento.selectNodes("//PARCELA");
    if (linhas.length() > 0) {
        titles();
    }
    for (std::size_t i = 0; i < linhas.length(); ++i) {
        const std::string_view due = fieldOf(linhas.item(i), "DT_PRL");
        const double valor = numberOf(linhas.item(i), "VL_PRL");
        sheet.blanks(28)
            .field(due, 10)
            .blanks(1)
            .valor(valor, twoPlaces, amountWidth)
            .blanks(1)
            .out();
    }
}

void label(OrderSheet& sheet, std::string_view texto) {
    sheet.blanks(totalsColumn - static_cast<int>(texto.size())).texto(texto);
}

void printTotals(OrderSheet& sheet, const Values& totals) {
    const auto total = [&sheet](std::string_view texto, double valor) {
        label(sheet, texto);
        sheet.valor(valor, twoPlaces, totalWidth).out();
    };
    // The closing bracket stands one column behind the digits of the other totals.
    const auto discount = [&sheet](std::string_view texto, double valor) {
        label(sheet, texto);
        sheet.inParentheses(valor, amountWidth).out();
    };
    discount("VALOR DE DESCONTO: ", totals.discount);
    total("VALOR DE IPI: ", totals.ipi);
    total("VALOR DE ICMS RETIDO: ", totals.icmsWithheld);
    discount("VALOR DE DESCONTO ICMS: ", totals.icmsDiscount);
    total("VALOR DE FRETE: ", totals.freight);
    total("VALOR DE SEGURO: ", totals.insurance);
    total("VALOR DE DESPESAS ACESSORIAS: ", totals.expenses);
    sheet.blanks(43).texto("----------------------------------").out();
    total("VALOR LIQUIDO: ", totals.orderNet());
}

void printPlainHeader(OrderSheet& sheet, const XmlDocument& documento) {
    sheet.out();
    sheet.texto("                            ORDEM DE FATURAMENTO                             ")
        .out();
    sheet.ruler('-');
    sheet.texto("Cliente:  ").field(header(documento, "RAZAO"), 50).blanks(1);
    sheet.texto("Data: ").field(header(documento, "DT_EMS_NF"), 10).out();
    sheet.texto("Vendedor: ").field(header(documento, "VENDEDOR"), 67).out();
    sheet.texto("                                  PRODUTOS                                   ")
        .out();
    sheet.ruler('-');
    sheet.texto("  QTDE    CODIGO         DESCRICAO DO PRODUTO          UNITARIO   VLR.BRUTO  ")
        .out();
    sheet.texto("-------- ------- ------------------------------------ ---------- ------------")
        .out();
}

void printPriceHeader(OrderSheet& sheet, const XmlDocument& documento) {
    sheet.out();
    const std::string control = header(documento, "NR_CTRL_INT");
    if (control != "0") {
        sheet.field(control, 40);
    }
    sheet.out();
    sheet.ruler('-');
    sheet.field(header(documento, "RAZAO"), 50).blanks(17);
    sheet.field(header(documento, "DT_EMS_NF"), 10).out();
    sheet.field(header(documento, "VENDEDOR"), 67).out();
    sheet.isBlank();
    sheet.ruler('-');
}

void printObservations(OrderSheet& sheet) {
    constexpr int linesToWrite = 4;
    sheet.isBlank();
    sheet.isBlank();
    sheet.texto("OBS:_________________________________________________________________________")
        .out();
    for (int i = 0; i < linesToWrite; ++i) {
        sheet.isBlank();
        sheet.ruler('_');
    }
}

}  // namespace

void ImprimeOrdemFaturamento(Environment& environment, XmlDocument& documento) {
    OrderSheet sheet(environment);
    printPlainHeader(sheet, documento);
    const Values totals = printItems(sheet, documento, [&sheet](const Item& item) {
        sheet.valor(item.unitPrice, twoPlaces, 10).blanks(1);
        sheet.valor(item.values.gross, twoPlaces, totalWidth);
    });
    sheet.ruler('-');
    printTotals(sheet, totals);
    printParcels(sheet, documento, [&sheet] {
        sheet.texto("                        VENCTO PREVISTO      VALOR                           ")
            .out();
        sheet.texto("                      ------------------- -------------                      ")
            .out();
    });
    sheet.close();
    documento = XmlDocument();
}

void ImprimeOrdemFaturamentoPreco(Environment& environment, XmlDocument& documento) {
    OrderSheet sheet(environment);
    printPriceHeader(sheet, documento);
    const Values totals = printItems(sheet, documento, [&sheet](const Item& item) {
        sheet.valor(item.unitPrice, threePlaces, 10).blanks(1);
        sheet.valor(item.values.itemNet(), twoPlaces, amountWidth);
    });
    sheet.ruler('-');
    sheet.blanks(totalsColumn).valor(totals.discount, twoPlaces, amountWidth).out();
    sheet.blanks(60).texto("-----------------").out();
    sheet.blanks(totalsColumn);
    sheet.valor(totals.orderNet(), twoPlaces, amountWidth).out();
    printParcels(sheet, documento, [&sheet] {
        sheet.isBlank();
        sheet.texto("                         ---------------- -------------                      ")
            .out();
    });
    printObservations(sheet);
    sheet.close();
    documento = XmlDocument();
}

void printOrder(Environment& environment, const Sessao& session, XmlDocument& documento) {
    if (session.NCOMPANYCODE == priceSheetCompany) {
        ImprimeOrdemFaturamentoPreco(environment, documento);
    } else {
        ImprimeOrdemFaturamento(environment, documento);
    }
}

}  // namespace tarn
