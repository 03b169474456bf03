#include "labels/print_selection.h"

#include "tests/labels/label_flows.h"
#include "tests/support/texts.h"

namespace tarn::test {

using namespace labels;
namespace {

const Box madeBox{"Impressão Gerada com Sucesso !", BoxIcon::None, "Alerta"};

std::vector<GridRow> customers(int count) {
    std::vector<GridRow> rows;
    for (int i = 1; i <= count; ++i) {
        const std::string n = std::to_string(i);
        rows.push_back(
            {{"", "CEP " + n, "NOME " + n, "RUA " + n, "BAIRRO " + n, "U" + n, "CIDADE " + n},
             true});
    }
    return rows;
}

TEST_F(LabelFlows, TickedCustomersPrintTwoAcross) {
    std::vector<GridRow> rows = customers(4);
    rows[1].ticked = false;
    printSelection(env.environment, rows, {});
    // 0.7 and 1.7 times 2.55, half a centimetre off.
    EXPECT_EQ(env.printer.lines(),
              (Texts{"scale\t7", "orientation\t1", drawn(800, 1545, 10, "NOME 1"),
                     drawn(800, 2045, 8, "RUA 1"), drawn(800, 2545, 8, "CEP 1"),
                     drawn(800, 3045, 8, "CIDADE 1 - U1"), drawn(11500, 1545, 10, "NOME 3"),
                     drawn(11500, 2045, 8, "RUA 3"), drawn(11500, 2545, 8, "CEP 3"),
                     drawn(11500, 3045, 8, "CIDADE 3 - U3"), drawn(800, 4095, 10, "NOME 4"),
                     drawn(800, 4595, 8, "RUA 4"), drawn(800, 5095, 8, "CEP 4"),
                     drawn(800, 5595, 8, "CIDADE 4 - U4"), "enddoc"}));
    EXPECT_EQ(env.boxes.shown, (Boxes{madeBox}));
}

TEST_F(LabelFlows, NobodyTickedIsCalledASuccessToo) {
    std::vector<GridRow> rows = customers(1);
    rows[0].ticked = false;
    printSelection(env.environment, rows, {});
    EXPECT_EQ(env.printer.lines(), (Texts{"scale\t7", "orientation\t1", "enddoc"}));
    EXPECT_EQ(env.boxes.shown, (Boxes{madeBox}));
}

TEST_F(LabelFlows, TheSelectionsPageIsNeverBroken) {
    printSelection(env.environment, customers(60), {});
    const std::vector<std::string> lines = env.printer.lines();
    ASSERT_EQ(lines.size(), 2U + 60U * 4U + 1U);
    EXPECT_EQ(std::count(lines.begin(), lines.end(), "newpage"), 0);
    // The thirtieth line: 29.7 times 2.55 is 75.735.
    EXPECT_EQ(lines[2 + 58 * 4], drawn(800, 75495, 10, "NOME 59"));
}

TEST_F(LabelFlows, TheSelectionsTextsAreCut) {
    GridRow row{{"", std::string(60, '1'), std::string(41, 'n'), std::string(51, 'e'),
                 std::string(51, 'b'), "", std::string(41, 'm')},
                true};
    printSelection(env.environment, std::vector{row}, {});
    const std::vector<std::string> lines = env.printer.lines();
    ASSERT_EQ(lines.size(), 7U);
    EXPECT_EQ(lines[2], drawn(800, 1545, 10, std::string(40, 'n')));
    EXPECT_EQ(lines[3], drawn(800, 2045, 8, std::string(50, 'e')));
    EXPECT_EQ(lines[4], drawn(800, 2545, 8, std::string(60, '1')));
    EXPECT_EQ(lines[5], drawn(800, 3045, 8, std::string(40, 'm') + " - "));
}

TEST_F(LabelFlows, AFailureOfTheSelectionIsShownAndItGoesOn) {
    env.printer.failAt = 2;
    printSelection(env.environment, customers(1), {});
    EXPECT_EQ(env.printer.operations.size(), 7U);
    EXPECT_EQ(env.boxes.shown, (Boxes{printerRefused, madeBox}));
}

TEST_F(LabelFlows, ASelectionThatThePrinterRefusesIsToldInsteadOfTheSuccess) {
    env.printer.refuses = isNoText;
    printSelection(env.environment, customers(2), {});
    EXPECT_EQ(env.printer.operations.size(), 2U + 2U * 4U + 1U);
    EXPECT_EQ(env.boxes.shown, (Boxes{printerRefused}));
}

}  // namespace
}  // namespace tarn::test
