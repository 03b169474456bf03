// The forms of what is no note: every character of a document lies in a box of its form, and the
// document ends with the form.
#include <gtest/gtest.h>

#include <algorithm>
#include <map>
#include <stdexcept>
#include <string>

#include "billing/order_sheet.h"
#include "cheques/imprime_cheque.h"
#include "dotmatrix/paper_roll.h"
#include "forms/form_catalogue.h"
#include "labels/raw_form.h"
#include "slips/slip_layouts.h"
#include "tests/dotmatrix/note_streams.h"
#include "tests/dotmatrix/printer_rig.h"
#include "tests/forms/raw_documents.h"
#include "tests/labels/label_answers.h"

namespace tarn::test {

using namespace dotmatrix;
namespace {

FormDesign drawnForm(const std::string& name) {
    auto form = formDrawing(name);
    if (!form) {
        throw std::runtime_error(name);
    }
    return *form;
}

const FormBox* boxCalled(const FormDesign& form, const std::string& label) {
    const auto found = std::ranges::find(form.boxes, label, &FormBox::label);
    return found == form.boxes.end() ? nullptr : &*found;
}

// The jobs that the document sent.
bool holds(const FormBox& box, const PaperLine& line, const Cell& cell) {
    return box.x <= cell.x && cell.x + cell.width <= box.x + box.width && box.y <= line.y &&
           line.y + lineHeight <= box.y + box.height;
}

// What lies in no box of the form, as "line/column".
std::string astray(const FormDesign& form, const PrinterRig& rig) {
    std::string found;
    for (const PaperLine& line : rig.paper.lines()) {
        for (const Cell& cell : line.cells) {
            const bool inBox = std::ranges::any_of(
                form.boxes, [&](const FormBox& box) { return holds(box, line, cell); });
            if (!inBox) {
                found += std::to_string(line.y / lineHeight + 1) + "/" +
                         std::to_string(cell.column) + " ";
            }
        }
    }
    return found;
}

class DrawnSlip : public testing::TestWithParam<std::pair<const char*, const char*>> {};

TEST_P(DrawnSlip, LiesInTheBoxesAndEndsWithTheForm) {
    const auto& [formName, slip] = GetParam();
    const FormDesign form = drawnForm(formName);
    PrinterRig rig(panelFor(form, {}));
    rig.job(slipSetUp).job(slipFile(slip));
    EXPECT_GT(rig.paper.lines().size(), 8U);
    EXPECT_EQ(astray(form, rig), "");
    EXPECT_EQ(rig.paper.y(), form.height);
    EXPECT_EQ(form.height, 24 * lineHeight);
}

INSTANTIATE_TEST_SUITE_P(Forms, DrawnSlip,
                         testing::Values(std::pair("Boleto_1016_57", "slip_57_jose.prn"),
                                         std::pair("Boleto_1095_57", "slip_57_maria.prn"),
                                         std::pair("Boleto_1084", "slip_7_jose.prn"),
                                         std::pair("Boleto_1016", "slip_7_maria.prn")));

// In the table of the slip: blanks ahead, width, at 20 characters an inch.
TEST(DrawnSlips, ABoxIsWhereItsFieldPrints) {
    const FormDesign form = drawnForm("Boleto_1016_57");
    const FormBox* due = boxCalled(form, "Vencimento");
    ASSERT_NE(due, nullptr);
    EXPECT_EQ(due->x, 101 * 108);
    EXPECT_EQ(due->width, 16 * 108);
    EXPECT_EQ(due->y + due->height, 2 * lineHeight);
    const FormBox* amount = boxCalled(form, "(=) Valor do documento");
    ASSERT_NE(amount, nullptr);
    EXPECT_EQ(amount->x, 112 * 108);
    EXPECT_EQ(amount->y + amount->height, 6 * lineHeight);
    const FormBox* orders = boxCalled(form, "Instruções");
    ASSERT_NE(orders, nullptr);
    EXPECT_EQ(orders->y + orders->height, 13 * lineHeight) << "six lines are one box";
}

class DrawnCheque : public testing::TestWithParam<std::int16_t> {};

TEST_P(DrawnCheque, LiesInTheBoxesAndEndsWithTheForm) {
    TestEnvironment seams;
    ImprimeCheque(seams.environment,
                  {.nNr_Ofi_Ban = GetParam(),
                   .sValor = "9.999.999,99",
                   .sFavorecido = "COMPANHIA DE PAPEIS E CADERNOS DO VALE DO IPE LTDA",
                   .sDataDeposito = "15/02/2012",
                   .sNmMun = "SAO JOSE DOS CAMPOS"});
    const FormDesign form = drawnForm(std::string(chequeFormName(GetParam())));
    PrinterRig rig(panelFor(form, {}));
    rig.job(jobsOf(seams).at(0));
    EXPECT_EQ(rig.paper.lines().size(), 5U);
    EXPECT_EQ(astray(form, rig), "");
    EXPECT_EQ(rig.paper.y(), form.height);
    EXPECT_EQ(form.height, 3 * unitsPerInch);
}

INSTANTIATE_TEST_SUITE_P(Banks, DrawnCheque, testing::Values(33, 341));

TEST(DrawnOrderSheet, HeadAndItemsLieInTheBoxes) {
    TestEnvironment seams;
    XmlDocument order;
    std::string items;
    for (int i = 0; i < 20; ++i) {
        items +=
            "<ITEM CD_PRO='1234567' DESCRICAO='CADERNO DE CAPA DURA, 96 FOLHAS, PAUTADO' "
            "QTDE='9999.999' UNITARIO='99999.999' VL_DSC='0' VL_IPI='0' VL_ICMS_RTD='0' "
            "VL_DSC_ICMS='0' VL_FRT='0' VL_DSP_ACS='0' VL_SEG='0'/>";
    }
    ASSERT_TRUE(order.loadXML(
        "<?xml version='1.0'?><PRINCIPAL cod='0' status='OK'><CAB RAZAO='PAPELARIA TRES IRMAOS' "
        "DT_EMS_NF='12/03/2012' VENDEDOR='MARIA' NR_CTRL_INT='77-A'/>" +
        items + "</PRINCIPAL>"));
    ImprimeOrdemFaturamentoPreco(seams.environment, order);
    const FormDesign form = drawnForm("OrdemFaturamento_1361");
    EXPECT_TRUE(form.everyDocumentAtTop);
    EXPECT_EQ(form.height, 11 * unitsPerInch);
    PrinterRig rig(panelFor(form, {}));
    rig.job(jobsOf(seams).at(0));
    // Rules and what the sheet brings for the totals cross the columns.
    std::string outside;
    for (const PaperLine& line : rig.paper.lines()) {
        const bool printed = std::ranges::any_of(
            line.cells, [](const Cell& cell) { return cell.character != u'-'; });
        for (const Cell& cell : line.cells) {
            if (printed && line.y < 27 * lineHeight &&
                std::ranges::none_of(form.boxes,
                                     [&](const FormBox& box) { return holds(box, line, cell); })) {
                outside += std::to_string(line.y / lineHeight + 1) + "/" +
                           std::to_string(cell.column) + " ";
            }
        }
    }
    EXPECT_EQ(outside, "");
    EXPECT_EQ(rig.paper.lines().size(), 3U + 2U + 20U + 4U + 5U);
}

TEST(DrawnLabels, FourAcrossElevenRowsASheet) {
    TestEnvironment seams;
    XmlDocument answer = document(labelRows(44));
    labels::Labels queue(answer);
    labels::printDotMatrix(seams.environment, queue, {});
    const FormDesign form = drawnForm("Etiquetas");
    EXPECT_EQ(form.boxes.size(), 44U);
    PrinterRig rig(panelFor(form, {}));
    for (const std::string& job : jobsOf(seams)) {
        rig.job(job);
    }
    EXPECT_EQ(astray(form, rig), "");
    EXPECT_EQ(rig.paper.y(), form.height);
}

// Everything that a practice day prints, each document as the desk prints it.
class PracticeDay : public testing::Test {
protected:
    static FormFacts company1361() { return formNamed("1361"); }

    void note() {
        for (const std::string& bytes : streamsOf(company1361(), {}, 13)) {
            lay({.document = JobDocument::Note, .form = "ImprimeNF_1361", .itemLines = 13}, bytes);
        }
    }
    void slip(bool wallet57) {
        const std::string form = slipFormName(1016, wallet57);
        const JobKind kind{.document = JobDocument::Slip, .form = form, .itemLines = {}};
        lay(kind, slipSetUp);
        lay(kind, slipFile(wallet57 ? "slip_57_jose.prn" : "slip_7_jose.prn"));
    }
    void cheque(std::int16_t bank) {
        TestEnvironment seams;
        ImprimeCheque(seams.environment, {.nNr_Ofi_Ban = bank,
                                          .sValor = "1.234,56",
                                          .sFavorecido = "PAPELARIA",
                                          .sDataDeposito = "15/02/2012",
                                          .sNmMun = "SAO PAULO"});
        layAll(seams);
    }
    void order() {
        TestEnvironment seams;
        XmlDocument document;
        ASSERT_TRUE(document.loadXML(
            "<?xml version='1.0'?><PRINCIPAL cod='0' status='OK'><CAB RAZAO='PAPELARIA' "
            "DT_EMS_NF='12/03/2012' VENDEDOR='MARIA' NR_CTRL_INT='77-A'/>"
            "<ITEM CD_PRO='1' DESCRICAO='CADERNO' QTDE='2' UNITARIO='3' VL_DSC='0' VL_IPI='0' "
            "VL_ICMS_RTD='0' VL_DSC_ICMS='0' VL_FRT='0' VL_DSP_ACS='0' VL_SEG='0'/></PRINCIPAL>"));
        ImprimeOrdemFaturamentoPreco(seams.environment, document);
        layAll(seams);
    }
    void labelSheet() {
        TestEnvironment seams;
        XmlDocument answer = document(labelRows(5));
        labels::Labels queue(answer);
        labels::printDotMatrix(seams.environment, queue, {});
        layAll(seams);
    }
    // Name of each form, and the first place printed on it: line, and units to the right.
    std::string papers() {
        std::string all;
        for (std::size_t form = 0; form < roll_.printedForms(); ++form) {
            const auto page = roll_.page(form);
            const FormDesign* design = page->design.get();
            if (design == nullptr || page->lines.empty()) {
                all += "(none) ";
                continue;
            }
            EXPECT_EQ(page->shape.height, design->height) << design->name;
            const PaperLine& first = page->lines.front();
            all += design->name + "@" +
                   std::to_string((first.y - page->shape.top) / lineHeight + 1) + "/" +
                   std::to_string(first.cells.front().x) + " ";
        }
        return all;
    }
    // A document's first blank is as wide as the printer is set when it comes: plain on a
    // printer just switched on, condensed behind a document of the same kind.
    static constexpr PaperUnits firstBlank = 216 - 126;
    static FormBox widened(FormBox box) {
        box.x -= firstBlank;
        box.width += firstBlank;
        return box;
    }

    // Places printed outside every box of their own form, the sheet's rules left out.
    std::string astrayPlaces() {
        std::string found;
        for (std::size_t form = 0; form < roll_.printedForms(); ++form) {
            const auto page = roll_.page(form);
            if (page->design->everyDocumentAtTop || page->design->name == "Etiquetas") {
                continue;
            }
            for (PaperLine line : page->lines) {
                line.y -= page->shape.top;
                for (const Cell& cell : line.cells) {
                    if (std::ranges::none_of(page->design->boxes, [&](const FormBox& box) {
                            return holds(widened(box), line, cell);
                        })) {
                        found += page->design->name + " " +
                                 std::to_string(line.y / lineHeight + 1) + "/" +
                                 std::to_string(cell.x) + "; ";
                    }
                }
            }
        }
        return found;
    }

    PaperRoll roll_{Dialect{}};

private:
    void lay(const JobKind& kind, const std::string& bytes) {
        roll_.startJob("job", {.form = shelf_.formOf(kind), .told = true});
        ASSERT_FALSE(roll_.feed(bytes));
    }
    void layAll(const TestEnvironment& seams) {
        for (const RecordingSpooler::Job& job : seams.spooler.jobs) {
            lay(job.description.kind, job.bytes());
        }
    }

    FormShelf shelf_;
};

TEST_F(PracticeDay, EachPaperLiesOnItsOwnFormWhateverTheOrder) {
    order();
    note();
    slip(true);
    cheque(341);
    labelSheet();
    note();
    note();
    cheque(33);
    slip(false);
    order();
    order();
    slip(true);
    slip(true);
    note();
    labelSheet();
    cheque(341);
    cheque(341);
    const std::string all = " " + papers();
    std::string names;
    for (std::size_t at = 1; at < all.size(); at = all.find(' ', at) + 1) {
        names += all.substr(at, all.find('@', at) - at) + " ";
    }
    EXPECT_EQ(names,
              "OrdemFaturamento_1361 ImprimeNF_1361 Boleto_1016_57 Cheque Etiquetas "
              "ImprimeNF_1361 ImprimeNF_1361 Cheque_33 Boleto_1016 OrdemFaturamento_1361 "
              "OrdemFaturamento_1361 Boleto_1016_57 Boleto_1016_57 ImprimeNF_1361 Etiquetas "
              "Cheque Cheque ");
    // Wherever it comes in the day, a paper begins at the same place of its form.
    std::map<std::string, PaperUnits> place;
    for (std::size_t at = 1; at < all.size(); at = all.find(' ', at) + 1) {
        const std::string entry = all.substr(at, all.find(' ', at) - at);
        const std::size_t slash = entry.find('/');
        const PaperUnits x = std::stol(entry.substr(slash + 1));
        const auto known = place.try_emplace(entry.substr(0, entry.find('@')), x).first;
        EXPECT_TRUE(x == known->second || x == known->second - firstBlank) << entry;
        const bool oneLineDown = entry.starts_with("Boleto") || entry.starts_with("Ordem") ||
                                 entry.starts_with("Cheque_33");
        EXPECT_EQ(entry.substr(entry.find('@'), slash - entry.find('@')), oneLineDown ? "@2" : "@1")
            << entry;
    }
    EXPECT_EQ(astrayPlaces(), "");
}

TEST(Catalogue, KnowsEveryFormByDocumentAndCompanies) {
    std::string listed;
    for (const CatalogueForm& form : formCatalogue()) {
        EXPECT_TRUE(formDrawing(form.name)) << form.name;
        listed += form.name + " = " + form.title + "\n";
    }
    EXPECT_EQ(listed,
              "ImprimeNF_7 = Nota: 7\n"
              "ImprimeNF_1361 = Nota: 1361, 141, 761\n"
              "ImprimeNF_2161_3381 = Nota: 2161 (3381, 3382, 3384, 3385)\n"
              "ImprimeNF_2161_3341 = Nota: 2161 (3341)\n"
              "ImprimeNF_2161_3383 = Nota: 2161 (3383)\n"
              "ImprimeNF_2041 = Nota: 2041\n"
              "ImprimeNF_2321 = Nota: 2321\n"
              "ImprimeNF_1581 = Nota: 1581\n"
              "ImprimeNF_2801 = Nota: 2801\n"
              "ImprimeNF_2421_3621 = Nota: 2421, estabelecimento 3621\n"
              "ImprimeNF_2421 = Nota: 2421\n"
              "ImprimeNF_1521 = Nota: 1521\n"
              "ImprimeNF_821 = Nota: 821\n"
              "ImprimeNF_3301 = Nota: 3301\n"
              "ImprimeNF_3881 = Nota: 3881\n"
              "ImprimeNF_E6001 = Nota: estabelecimento 6001\n"
              "ImprimeNF_3081 = Nota: 3081, 3141\n"
              "ImprimeNF_E5282 = Nota: estabelecimento 5282\n"
              "ImprimeNF_3601 = Nota: 3601, estabelecimento 5281\n"
              "ImprimeNF_3681 = Nota: 3681\n"
              "ImprimeNF_4621_7321 = Nota: 4621, 541, estabelecimento 7321\n"
              "ImprimeNF_4621 = Nota: 4621, 541\n"
              "ImprimeNF_Padrao = Nota: outras empresas\n"
              "Boleto_1016_57 = Boleto: banco 1016, carteira 57\n"
              "Boleto_1016 = Boleto: banco 1016, outras carteiras\n"
              "Boleto_1084_57 = Boleto: banco 1084, carteira 57\n"
              "Boleto_1084 = Boleto: banco 1084, outras carteiras\n"
              "Boleto_1095_57 = Boleto: banco 1095, carteira 57\n"
              "Boleto_1095 = Boleto: banco 1095, outras carteiras\n"
              "Cheque_33 = Cheque: banco 33\n"
              "Cheque = Cheque: outros bancos\n"
              "OrdemFaturamento_1361 = Ordem de faturamento: 1361\n"
              "OrdemFaturamento = Ordem de faturamento: outras empresas\n"
              "Etiquetas = Etiquetas: quatro por linha\n");
    EXPECT_EQ(formTitle("minha.form"), "minha.form");
}

TEST(Shelf, TheSameKindIsTheSameForm) {
    FormShelf shelf;
    const JobKind note{.document = JobDocument::Note, .form = "ImprimeNF_1361", .itemLines = 13};
    const auto form = shelf.formOf(note);
    ASSERT_NE(form, nullptr);
    EXPECT_EQ(form->height, 11 * unitsPerInch);
    EXPECT_EQ(shelf.formOf(note), form);
    JobKind longer = note;
    longer.itemLines = 20;
    EXPECT_EQ(shelf.formOf(longer)->height, 73 * lineHeight);
    EXPECT_EQ(shelf.formOf({.document = JobDocument::Note, .form = "ImprimeNF_9", .itemLines = {}}),
              nullptr);
    EXPECT_EQ(shelf.formOf({.document = JobDocument::Slip, .form = "", .itemLines = {}}), nullptr);
    EXPECT_EQ(shelf.formOf({}), nullptr);
}

}  // namespace
}  // namespace tarn::test
