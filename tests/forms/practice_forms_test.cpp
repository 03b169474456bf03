// The forms in practice/forms: every character of a slip and of a cheque lies in a box.
#include <gtest/gtest.h>

#include <algorithm>
#include <fstream>
#include <iterator>
#include <stdexcept>
#include <string>

#include "cheques/imprime_cheque.h"
#include "dotmatrix/form_file.h"
#include "tests/dotmatrix/printer_rig.h"
#include "tests/support/test_environment.h"

namespace tarn::test {

using namespace dotmatrix;
namespace {

constexpr PaperUnits sixthOfAnInch = unitsPerInch / 6;

std::string contentOf(const std::string& file) {
    std::ifstream in(file, std::ios::binary);
    if (!in) {
        throw std::runtime_error(file);
    }
    return {std::istreambuf_iterator<char>(in), {}};
}

FormDesign practiceForm(const std::string& name) {
    auto form = readForm(contentOf(std::string(TARN_PRACTICE_FORMS) + "/" + name));
    if (const auto* error = std::get_if<FormTextError>(&form)) {
        throw std::runtime_error(error->what);
    }
    return std::get<FormDesign>(form);
}

bool holds(const FormBox& box, const PaperLine& line, const Cell& cell) {
    return box.x <= cell.x && cell.x + cell.width <= box.x + box.width && box.y <= line.y &&
           line.y + sixthOfAnInch <= box.y + box.height;
}

// What lies in no box of the form, as "line/column".
std::string astray(const FormDesign& form, const PrinterRig& rig) {
    std::string found;
    for (const PaperLine& line : rig.paper.lines()) {
        for (const Cell& cell : line.cells) {
            const bool inBox = std::ranges::any_of(
                form.boxes, [&](const FormBox& box) { return holds(box, line, cell); });
            if (!inBox) {
                found += std::to_string(line.y / sixthOfAnInch + 1) + "/" +
                         std::to_string(cell.column) + " ";
            }
        }
    }
    return found;
}

class PracticeSlip : public testing::TestWithParam<std::pair<const char*, const char*>> {};

TEST_P(PracticeSlip, LiesInTheBoxesAndEndsWithTheForm) {
    const auto& [formName, slip] = GetParam();
    const FormDesign form = practiceForm(formName);
    PrinterRig rig(panelFor(form, {}));
    rig.job(" \x0F\x1BM").job(contentOf(std::string(TARN_SLIP_DATA) + "/" + slip));
    EXPECT_GT(rig.paper.lines().size(), 8U);
    EXPECT_EQ(astray(form, rig), "");
    EXPECT_EQ(rig.paper.y(), form.height);
}

INSTANTIATE_TEST_SUITE_P(Forms, PracticeSlip,
                         testing::Values(std::pair("slip-wallet-57.txt", "slip_57_jose.prn"),
                                         std::pair("slip-wallet-57.txt", "slip_57_maria.prn"),
                                         std::pair("slip-other-wallets.txt", "slip_7_jose.prn"),
                                         std::pair("slip-other-wallets.txt", "slip_7_maria.prn")));

TEST(PracticeCheque, LiesInTheBoxesAndEndsWithTheForm) {
    TestEnvironment seams;
    ImprimeCheque(seams.environment,
                  {.nNr_Ofi_Ban = 341,
                   .sValor = "9.999.999,99",
                   .sFavorecido = "COMPANHIA DE PAPEIS E CADERNOS DO VALE DO IPE LTDA",
                   .sDataDeposito = "15/02/2012",
                   .sNmMun = "SAO JOSE DOS CAMPOS"});
    std::string bytes;
    for (const std::string& write : seams.spooler.jobs.at(0).writes) {
        bytes += write;
    }
    const FormDesign form = practiceForm("cheque.txt");
    PrinterRig rig(panelFor(form, {}));
    rig.job(bytes);
    EXPECT_EQ(rig.paper.lines().size(), 5U);
    EXPECT_EQ(astray(form, rig), "");
    EXPECT_EQ(rig.paper.y(), form.height);
}

}  // namespace
}  // namespace tarn::test
