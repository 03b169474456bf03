#include "common/drawn_text.h"

#include <gtest/gtest.h>

#include "common/drawn_run.h"
#include "tests/support/boxes.h"
#include "tests/support/test_environment.h"
#include "tests/support/texts.h"

namespace tarn::test {
namespace {

TEST(DrawText, LandsHalfACentimetreOffUnlessExact) {
    RecordingPrinter printer;
    drawText(printer, "a", 3, 2, {.size = 9});
    drawText(printer, "b", 3, 2, {.name = "Courier New", .size = 8.5, .bold = false},
             TextPlace::Exact);
    EXPECT_EQ(printer.lines(), (Texts{"text\t2.500\t1.500\tArial\t9\t1\ta",
                                      "text\t3.000\t2.000\tCourier New\t8.5\t0\tb"}));
}

TEST(DrawText, ANotesMarginTakesTheHalfCentimetre) {
    TestEnvironment env;
    ImprimeTextoEm(env.environment, "a", 1.6, 1.5, true, 8, "Arial", 0);
    ImprimeTextoEm(env.environment, "b", 1.6, 1.5, false, 8, "Arial", 1);
    EXPECT_EQ(env.printer.lines(),
              (Texts{"text\t1.100\t1.000\tArial\t8\t1\ta", "text\t1.600\t1.500\tArial\t8\t0\tb"}));
}

TEST(DrawnRun, HasFailedWhereNotOneTextWasTaken) {
    TestEnvironment env;
    DrawnRun run(env.environment);
    EXPECT_FALSE(run.failed()) << "nothing was asked";
    env.printer.failAt = env.printer.operations.size();
    run.ImprimeLinha("a", 1, 1, 6);
    EXPECT_TRUE(run.failed());
    run.ImprimeLinha("b", 1, 2, 6);
    EXPECT_FALSE(run.failed()) << "one text less: decision D97";
}

TEST(ShowFailure, LabelsAndNotesDifferInTheLineEnd) {
    TestEnvironment env;
    env.printer.refuses = [](const PrintOperation&) { return true; };
    DrawnRun(env.environment).ImprimeLinha("a", 1, 1, 6);
    ImprimeTextoEm(env.environment, "a", 1, 1, false, 8, "Arial", 0);
    EXPECT_EQ(env.boxes.shown, (Boxes{plain("Descrição :impressora sem papel\r\n   Numero :482"),
                                      plain("Descrição :impressora sem papel\r   Numero :482")}));
}

}  // namespace
}  // namespace tarn::test
