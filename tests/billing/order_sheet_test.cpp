// The two order sheets, byte by byte. Lines are stated as they stand on the paper,
// behind the blank and before the line end that every one of them has.
#include "billing/order_sheet.h"

#include <gtest/gtest.h>

#include <map>

#include "runtime/runtime_error.h"
#include "tests/support/test_environment.h"

namespace tarn::test {
namespace {

using Lines = std::vector<std::string>;
using Fields = std::map<std::string, std::string>;

std::string b(std::size_t blanks) {
    return std::string(blanks, ' ');
}
const std::string rule(77, '-');
const std::string blankLine(77, ' ');

std::string element(const std::string& name, const Fields& fields) {
    std::string text = "<" + name;
    for (const auto& [field, value] : fields) {
        text.append(" ").append(field).append("=\"").append(value).append("\"");
    }
    return text + "/>";
}

Fields item(const Fields& own = {}) {
    Fields fields{{"QTDE", "1"},        {"CD_PRO", "P1"},  {"DESCRICAO", "PARAFUSO"},
                  {"UNITARIO", "1"},    {"VL_DSC", "0"},   {"VL_IPI", "0"},
                  {"VL_ICMS_RTD", "0"}, {"VL_FRT", "0"},   {"VL_DSC_ICMS", "0"},
                  {"VL_DSP_ACS", "0"},  {"VL_SEG", "0.00"}};
    for (const auto& [field, value] : own) {
        fields[field] = value;
    }
    return fields;
}

// 2,5 times 10,00; less 1,50 and 0,50; plus 2,00, 0,25, 3,00, 0,10 and 0,05: 28,40.
const Fields fullItem = item({{"QTDE", "2.5"},
                              {"UNITARIO", "10.00"},
                              {"VL_DSC", "1.5"},
                              {"VL_IPI", "2"},
                              {"VL_ICMS_RTD", "0.25"},
                              {"VL_DSC_ICMS", "0.5"},
                              {"VL_FRT", "3"},
                              {"VL_DSP_ACS", "0.1"},
                              {"VL_SEG", "0.05"}});
const Fields header{{"RAZAO", "JOSÉ &amp; FILHOS"},
                    {"DT_EMS_NF", "12/03/2012"},
                    {"VENDEDOR", "MARIA"},
                    {"NR_CTRL_INT", "CTRL-77"}};

const std::string declaration = "<?xml version=\"1.0\" encoding=\"UTF-8\"?>";
std::string documentOf(const std::string& inside) {
    return declaration + "<PRINCIPAL cod=\"0\" status=\"OK\">" + inside + "</PRINCIPAL>";
}
std::string order(const Fields& head, const std::string& rows) {
    return documentOf(element("CAB", head) + rows);
}
std::string parcel(const std::string& due, const std::string& amount) {
    return element("PARCELA", {{"DT_PRL", due}, {"VL_PRL", amount}});
}

class OrderSheetTest : public testing::Test {
protected:
    // The job's lines; each must have come in one write of its own.
    Lines standard(const std::string& xml) {
        Lines lines = printed(ImprimeOrdemFaturamento, xml, true);
        EXPECT_EQ(kind_.form, "OrdemFaturamento");
        return lines;
    }
    Lines withPrice(const std::string& xml) {
        Lines lines = printed(ImprimeOrdemFaturamentoPreco, xml, true);
        EXPECT_EQ(kind_.form, "OrdemFaturamento_1361");
        return lines;
    }
    // The lines that were out when the error came; the job is still open.
    Lines standardUpToError(const std::string& xml) {
        return printed(ImprimeOrdemFaturamento, xml, false);
    }
    Lines withPriceUpToError(const std::string& xml) {
        return printed(ImprimeOrdemFaturamentoPreco, xml, false);
    }

private:
    template <typename Sheet>
    Lines printed(Sheet sheet, const std::string& xml, bool ends) {
        TestEnvironment seams;
        XmlDocument document;
        EXPECT_TRUE(document.loadXML(xml)) << xml;
        if (ends) {
            sheet(seams.environment, document);
            EXPECT_TRUE(document.empty()) << "released at the end";
        } else {
            try {
                sheet(seams.environment, document);
                ADD_FAILURE() << "no error";
            } catch (const RuntimeError& error) {
                EXPECT_EQ(error.number(), RuntimeErrorCode::ObjectVariable);
            }
        }
        EXPECT_EQ(seams.spooler.opened, Lines{"Impressora de teste"});
        if (seams.spooler.jobs.size() != 1) {
            ADD_FAILURE() << seams.spooler.jobs.size() << " jobs";
            return {};
        }
        const RecordingSpooler::Job& job = seams.spooler.jobs[0];
        EXPECT_EQ(job.description.docName, std::nullopt);
        kind_ = job.description.kind;
        EXPECT_EQ(kind_.document, JobDocument::OrderSheet);
        EXPECT_EQ(job.pageEnded, ends);
        EXPECT_EQ(job.ended, ends);
        EXPECT_EQ(job.closed, ends);
        return bare(job.writes);
    }
    JobKind kind_;

    static Lines bare(const Lines& writes) {
        Lines lines;
        for (const std::string& write : writes) {
            const bool whole = write.size() >= 3 && write.front() == ' ' &&
                               write.substr(write.size() - 2) == "\r\n";
            EXPECT_TRUE(whole) << write;
            lines.push_back(whole ? write.substr(1, write.size() - 3) : write);
        }
        return lines;
    }
};

Lines joined(std::initializer_list<Lines> parts) {
    Lines all;
    for (const Lines& part : parts) {
        all.insert(all.end(), part.begin(), part.end());
    }
    return all;
}
Lines part(const Lines& lines, std::size_t first, std::size_t count) {
    Lines some;
    for (std::size_t i = first; i < first + count && i < lines.size(); ++i) {
        some.push_back(lines[i]);
    }
    return some;
}

// É is C9 on the printer's page.
const Lines standardHead{
    "",
    "                            ORDEM DE FATURAMENTO                             ",
    rule,
    "Cliente:  JOS\xC9 & FILHOS" + b(50 - 13) + " Data: 12/03/2012",
    "Vendedor: MARIA" + b(62),
    "                                  PRODUTOS                                   ",
    rule,
    "  QTDE    CODIGO         DESCRICAO DO PRODUTO          UNITARIO   VLR.BRUTO  ",
    "-------- ------- ------------------------------------ ---------- ------------"};
const Lines priceHead{"",
                      "CTRL-77" + b(33),
                      rule,
                      "JOS\xC9 & FILHOS" + b(50 - 13) + b(17) + "12/03/2012",
                      "MARIA" + b(62),
                      blankLine,
                      rule};
const Lines emptyTotals{b(46) + "VALOR DE DESCONTO:       (0,00)",
                        b(51) + "VALOR DE IPI:        0,00",
                        b(43) + "VALOR DE ICMS RETIDO:        0,00",
                        b(41) + "VALOR DE DESCONTO ICMS:       (0,00)",
                        b(49) + "VALOR DE FRETE:        0,00",
                        b(48) + "VALOR DE SEGURO:        0,00",
                        b(35) + "VALOR DE DESPESAS ACESSORIAS:        0,00",
                        b(43) + "----------------------------------",
                        b(50) + "VALOR LIQUIDO:        0,00"};
const std::string observationFrame =
    "OBS:_________________________________________________________________________";
const std::string writingLine(77, '_');
const Lines priceFoot{blankLine,   blankLine, observationFrame, blankLine, writingLine, blankLine,
                      writingLine, blankLine, writingLine,      blankLine, writingLine};

TEST_F(OrderSheetTest, StandardSheetWithoutInstalments) {
    const Lines body{"   2,500 P1      PARAFUSO" + b(28) + "      10,00       25,00",
                     rule,
                     b(46) + "VALOR DE DESCONTO:       (1,50)",
                     b(51) + "VALOR DE IPI:        2,00",
                     b(43) + "VALOR DE ICMS RETIDO:        0,25",
                     b(41) + "VALOR DE DESCONTO ICMS:       (0,50)",
                     b(49) + "VALOR DE FRETE:        3,00",
                     b(48) + "VALOR DE SEGURO:        0,05",
                     b(35) + "VALOR DE DESPESAS ACESSORIAS:        0,10",
                     b(43) + "----------------------------------",
                     b(50) + "VALOR LIQUIDO:       28,40"};
    EXPECT_EQ(standard(order(header, element("ITEM", fullItem))), joined({standardHead, body}));
}

TEST_F(OrderSheetTest, StandardSheetWithInstalments) {
    const Lines lines =
        standard(order(header, element("ITEM", item()) + parcel("12/04/2012", "14.2") +
                                   parcel("A VISTA", "1234567.895")));
    const std::size_t head = standardHead.size() + 11;  // item, rule, nine totals
    EXPECT_EQ(
        part(lines, head, 9),
        (Lines{"                        VENCTO PREVISTO      VALOR                           ",
               "                      ------------------- -------------                      ",
               b(28) + "12/04/2012" + b(8) + "14,20 ", b(28) + "A VISTA   " + " 1.234.567,90 "}));
}

TEST_F(OrderSheetTest, AnOrderWithoutItemsHasItsTotals) {
    EXPECT_EQ(standard(order(header, "")), joined({standardHead, {rule}, emptyTotals}));
}

TEST_F(OrderSheetTest, ItemsAndInstalmentsAreFoundAnywhereInTheDocument) {
    const Lines lines = standard(
        documentOf(element("CAB", header) + "<A>" + element("ITEM", item()) + "<B>" +
                   parcel("1", "2") + "</B></A>" + element("ITEM", item({{"CD_PRO", "P2"}}))));
    EXPECT_EQ(lines.at(9).substr(9, 3), "P1 ");
    EXPECT_EQ(lines.at(10).substr(9, 3), "P2 ");
    EXPECT_EQ(lines.back(), b(28) + "1" + b(9) + " " + b(8) + "2,00 ");
}

TEST_F(OrderSheetTest, AmountsUpToTheirWidthAndAboveIt) {
    // 9.999,999 has 9 characters for 8, 1.234.567,89 has 12 for 10 and for 11.
    const Lines lines = standard(
        order(header, element("ITEM", item({{"QTDE", "999.999"}, {"UNITARIO", "99999.99"}})) +
                          element("ITEM", item({{"QTDE", "9999.999"}, {"UNITARIO", "0"}})) +
                          element("ITEM", item({{"QTDE", "1"}, {"UNITARIO", "1234567.89"}})) +
                          element("ITEM", item({{"QTDE", "1000"}, {"UNITARIO", "123.45"}}))));
    const std::string middle = " P1      PARAFUSO" + b(28) + " ";
    EXPECT_EQ(lines.at(9), " 999,999" + middle + " 99.999,99 99.999.890,");
    EXPECT_EQ(lines.at(10), "9.999,99" + middle + "      0,00        0,00");
    EXPECT_EQ(lines.at(11), "   1,000" + middle + "1.234.567, 1.234.567,8");
    EXPECT_EQ(lines.at(12), "1.000,00" + middle + "    123,45  123.450,00");
}

TEST_F(OrderSheetTest, TotalsUpToTheirWidthAndAboveIt) {
    const Lines lines =
        standard(order(header, element("ITEM", item({{"VL_DSC", "123456.78"},
                                                     {"VL_IPI", "999999.99"},
                                                     {"VL_ICMS_RTD", "1234567.89"},
                                                     {"VL_DSC_ICMS", "1234567.89"}}))));
    EXPECT_EQ(lines.at(11), b(46) + "VALOR DE DESCONTO: (123.456,78)");
    EXPECT_EQ(lines.at(12), b(51) + "VALOR DE IPI:  999.999,99");
    EXPECT_EQ(lines.at(13), b(43) + "VALOR DE ICMS RETIDO: 1.234.567,8");
    EXPECT_EQ(lines.at(14), b(41) + "VALOR DE DESCONTO ICMS: (1.234.567,8") << "cut, bracket too";
    EXPECT_EQ(lines.at(11).size(), 77U);
    EXPECT_EQ(lines.at(12).size(), 76U);
}

TEST_F(OrderSheetTest, TextsAreCutAtTheirWidth) {
    const std::string description = "ÃBCDEFGHIJKLMNOPQRSTUVWXYZ0123456789";  // 36 characters
    const Lines lines = standard(order(
        {{"RAZAO", std::string(51, 'R')}, {"DT_EMS_NF", "2012-03-12T00:00"}, {"VENDEDOR", ""}},
        element("ITEM", item({{"CD_PRO", "1234567"}, {"DESCRICAO", description}})) +
            element("ITEM", item({{"CD_PRO", "12345678"}, {"DESCRICAO", description + "X"}}))));
    EXPECT_EQ(lines.at(3), "Cliente:  " + std::string(50, 'R') + " Data: 2012-03-12");
    EXPECT_EQ(lines.at(4), "Vendedor: " + b(67));
    EXPECT_EQ(lines.at(9),
              "   1,000 1234567 \xC3"
              "BCDEFGHIJKLMNOPQRSTUVWXYZ0123456789       1,00        1,00");
    EXPECT_EQ(lines.at(10), lines.at(9));
}

TEST_F(OrderSheetTest, ControlCharactersInsideValuesAreBlanks) {
    const Lines lines = standard(
        order({{"RAZAO", "A&#10;B&#13;C"}, {"DT_EMS_NF", "1&#9;2"}, {"VENDEDOR", "V&#127;"}},
              element("ITEM", item({{"CD_PRO", "&#10;"}, {"DESCRICAO", "&#13;&#10;Z"}}))));
    EXPECT_EQ(lines.at(3), "Cliente:  A B C" + b(45) + " Data: 1 2" + b(7));
    EXPECT_EQ(lines.at(4), "Vendedor: V" + b(66));
    EXPECT_EQ(lines.at(9), "   1,000 " + b(7) + "   Z" + b(33) + "       1,00        1,00");
}

TEST_F(OrderSheetTest, AmountsAreReadUpToTheFirstStrangeCharacter) {
    const Lines lines = standard(order(
        header, element("ITEM", item({{"QTDE", "2,5"}, {"UNITARIO", "1.234,50"}})) +
                    element("ITEM", item({{"QTDE", ""}, {"UNITARIO", "S/N"}, {"CD_PRO", ""}}))));
    const std::string middle = "PARAFUSO" + b(28) + " ";
    EXPECT_EQ(lines.at(9), "   2,000 P1      " + middle + "      1,23        2,47");
    EXPECT_EQ(lines.at(10), "   0,000 " + b(7) + " " + middle + "      0,00        0,00");
}

TEST_F(OrderSheetTest, TheNetIsThatOfTheTotalsNotOfThePrintedLines) {
    // Each item is 0,005, shown as 0,01; together they are 0,01.
    const std::string half = element("ITEM", item({{"UNITARIO", "0.005"}}));
    const Lines lines = standard(order(header, half + half));
    EXPECT_EQ(lines.at(9).substr(65), "       0,01");
    EXPECT_EQ(lines.back(), b(50) + "VALOR LIQUIDO:        0,01");
}

TEST_F(OrderSheetTest, ANegativeNetAndOneOfNothing) {
    const Lines lines = standard(order(header, element("ITEM", item({{"VL_DSC", "3.5"}}))));
    EXPECT_EQ(lines.back(), b(50) + "VALOR LIQUIDO:       -2,50");
    EXPECT_EQ(standard(order(header, element("ITEM", item({{"VL_DSC", "1.001"}})))).back(),
              b(50) + "VALOR LIQUIDO:        0,00");
}

TEST_F(OrderSheetTest, PriceSheetWithoutInstalments) {
    const Lines body{"   2,500 P1      PARAFUSO" + b(28) + "     10,000        28,40",
                     "   1,000 P1      PARAFUSO" + b(28) + "      1,000         1,00",
                     rule,
                     b(65) + "        1,50",
                     b(60) + "-----------------",
                     b(65) + "       29,40"};
    EXPECT_EQ(withPrice(order(header, element("ITEM", fullItem) + element("ITEM", item()))),
              joined({priceHead, body, priceFoot}));
}

TEST_F(OrderSheetTest, PriceSheetWithInstalments) {
    const Lines body{
        rule,
        b(65) + "        0,00",
        b(60) + "-----------------",
        b(65) + "        0,00",
        blankLine,
        "                         ---------------- -------------                      ",
        b(28) + "12/04/2012" + b(7) + "514,20 ",
        b(28) + "12/05/2012" + b(8) + "14,20 "};
    EXPECT_EQ(
        withPrice(order(header, parcel("12/04/2012", "514.2") + parcel("12/05/2012", "14.2"))),
        joined({priceHead, body, priceFoot}));
}

TEST_F(OrderSheetTest, TheControlNumberOfThePriceSheet) {
    const auto secondLine = [this](const std::string& attribute) {
        return withPrice(documentOf("<CAB" + attribute + "/>")).at(1);
    };
    EXPECT_EQ(secondLine(""), b(40));
    EXPECT_EQ(secondLine(" NR_CTRL_INT=''"), b(40));
    EXPECT_EQ(secondLine(" NR_CTRL_INT='0'"), "");
    EXPECT_EQ(secondLine(" NR_CTRL_INT='00'"), "00" + b(38));
    EXPECT_EQ(secondLine(" NR_CTRL_INT=' 0'"), " 0" + b(38));
    EXPECT_EQ(secondLine(" NR_CTRL_INT='" + std::string(41, 'N') + "'"), std::string(40, 'N'));
    EXPECT_EQ(secondLine(" NR_CTRL_INT='A&#10;'"), "A" + b(39));
}

TEST_F(OrderSheetTest, AmountsOfThePriceSheetAboveTheirWidth) {
    const Lines lines = withPrice(order(
        header, element("ITEM", item({{"QTDE", "12345"}, {"UNITARIO", "1234567.8912"}})) +
                    element("ITEM", item({{"UNITARIO", "9999999.99"}, {"VL_DSC", "12345678.9"}}))));
    EXPECT_EQ(lines.at(7).substr(0, 8), "12.345,0");
    EXPECT_EQ(lines.at(7).substr(54), "1.234.567, 15.240.740.6");
    EXPECT_EQ(lines.at(8).substr(54), "9.999.999, -2.345.678,9");
    EXPECT_EQ(lines.at(10), b(65) + "12.345.678,9");
}

TEST_F(OrderSheetTest, AbsentHeaderFieldsAreEmpty) {
    EXPECT_EQ(part(standard(documentOf("<CAB/>")), 3, 2),
              (Lines{"Cliente:  " + b(50) + " Data: " + b(10), "Vendedor: " + b(67)}));
    EXPECT_EQ(part(withPrice(documentOf("<CAB/>")), 3, 2), (Lines{b(77), b(67)}));
}

TEST_F(OrderSheetTest, WithoutAHeaderRowTheSheetStopsWhereItFirstReadsIt) {
    for (const std::string& xml : {documentOf(""), documentOf("<!-- none -->"),
                                   declaration + "<OUTRA a='0' b='OK'><CAB/></OUTRA>"}) {
        EXPECT_EQ(standardUpToError(xml), part(standardHead, 0, 3)) << xml;
        EXPECT_EQ(withPriceUpToError(xml), part(priceHead, 0, 1)) << xml;
    }
}

TEST_F(OrderSheetTest, AHeaderFieldSpelledOtherwiseStopsBeforeItsLine) {
    EXPECT_EQ(standardUpToError(documentOf("<CAB razao='R'/>")), part(standardHead, 0, 3));
    Fields fields = header;
    fields.erase("VENDEDOR");
    fields["Vendedor"] = "MARIA";
    EXPECT_EQ(standardUpToError(order(fields, "")), part(standardHead, 0, 4));
    EXPECT_EQ(withPriceUpToError(order(fields, "")), part(priceHead, 0, 4));
}

TEST_F(OrderSheetTest, AMissingFieldOfAnItemStopsBeforeItsLine) {
    for (const auto& [field, value] : fullItem) {
        Fields second = fullItem;
        second.erase(field);
        const std::string xml =
            order(header, element("ITEM", fullItem) + element("ITEM", second) + parcel("1", "1"));
        EXPECT_EQ(standardUpToError(xml),
                  joined({standardHead,
                          {"   2,500 P1      PARAFUSO" + b(28) + "      10,00       25,00"}}))
            << field;
        EXPECT_EQ(
            withPriceUpToError(xml),
            joined({priceHead, {"   2,500 P1      PARAFUSO" + b(28) + "     10,000        28,40"}}))
            << field;
    }
}

TEST_F(OrderSheetTest, AnItemsFieldInAnotherCaseIsMissing) {
    Fields fields = item();
    fields.erase("QTDE");
    fields["Qtde"] = "1";
    EXPECT_EQ(standardUpToError(order(header, element("ITEM", fields))), standardHead);
}

TEST_F(OrderSheetTest, AMissingFieldOfAnInstalmentStopsBeforeItsLine) {
    for (const char* broken : {"<PARCELA DT_PRL='1'/>", "<PARCELA VL_PRL='1'/>"}) {
        const std::string xml = order(header, parcel("1", "2") + broken);
        const Lines lines = standardUpToError(xml);
        EXPECT_EQ(lines.size(), standardHead.size() + 1 + emptyTotals.size() + 3) << broken;
        EXPECT_EQ(lines.back(), b(28) + "1" + b(9) + " " + b(8) + "2,00 ");
        EXPECT_EQ(withPriceUpToError(xml).size(), priceHead.size() + 4 + 3) << broken;
    }
}

TEST_F(OrderSheetTest, TheReportNamesTheMissingField) {
    TestEnvironment seams;
    XmlDocument document;
    ASSERT_TRUE(document.loadXML(order(header, "<ITEM CD_PRO='1' DESCRICAO='2'/>")));
    try {
        ImprimeOrdemFaturamento(seams.environment, document);
        ADD_FAILURE() << "no error";
    } catch (const RuntimeError& error) {
        EXPECT_NE(error.description().find("QTDE"), std::string::npos) << error.description();
    }
}

TEST_F(OrderSheetTest, OnlyOneCompanyHasTheSheetWithThePrice) {
    for (const auto& [company, second] : std::initializer_list<std::pair<int, std::string>>{
             {1361, "CTRL-77" + b(33)}, {2041, standardHead[1]}, {136, standardHead[1]}}) {
        TestEnvironment seams;
        Sessao session;
        session.NCOMPANYCODE = company;
        XmlDocument document;
        ASSERT_TRUE(document.loadXML(order(header, "")));
        printOrder(seams.environment, session, document);
        EXPECT_EQ(seams.spooler.jobs.at(0).writes.at(1), " " + second + "\r\n") << company;
    }
}

}  // namespace
}  // namespace tarn::test
