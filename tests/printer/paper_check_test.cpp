// What the window finds cut or outside the boxes of a form, by real keys and clicks.
#include "printer/paper/paper_check.h"

#include <gtest/gtest.h>

#include <QMouseEvent>
#include <QTableWidget>

#include "forms/layout_forms.h"
#include "tests/dotmatrix/note_streams.h"
#include "tests/printer/shown_printer.h"

namespace tarn::test {

using namespace dotmatrix;
namespace {

class Check : public ShownPrinter {
protected:
    void SetUp() override {
        write("meu.txt",
              "altura 33\ncaixa 3 5 12 1 Cliente\ncaixa 3 17 6 1 Cidade\n"
              "caixa 3,5 40 20 1,5 Obs\n");
        window_.setQuestions(
            {nullptr,
             [this](const QString&, const QString&) { return QStringList{file("meu.txt")}; },
             nullptr, nullptr});
        ShownPrinter::SetUp();
    }
    bool tells(const QString& text) {
        return QTest::qWaitFor([&] { return label("checkResult").startsWith(text); }, printerLimit);
    }
    QStringList row(int number) {
        QStringList words;
        for (int column = 0; column < table_.columnCount(); ++column) {
            words << table_.item(number, column)->text();
        }
        return words;
    }
    void check() { choose(window_, "paperMenu", "checkPaper"); }

    QTableWidget& table_ = named<QTableWidget>(window_, "checkFaults");
};

TEST_F(Check, EachFaultIsARowThatLeadsToItsPlace) {
    choose(window_, "formMenu", "form_file");
    job("\r\n\r\n    Jose Silva  Lins          solto aqui\r\n"
        "\f\f\f\f\r\n\r\n    Jose da SilvaJundiai\r\n");
    check();
    ASSERT_TRUE(tells(QStringLiteral("3 lugares para conferir.")))
        << label("checkResult").toStdString();
    ASSERT_EQ(table_.rowCount(), 3);
    EXPECT_EQ(row(0), QStringList({"1", "3", "31", "", "fora das caixas", "solto aqui"}));
    EXPECT_EQ(row(1), QStringList({"5", "3", "5", "Cliente", "caixa cheia: o fim pode faltar",
                                   "Jose da Silv"}));
    EXPECT_EQ(row(2), QStringList({"5", "3", "23", "Cidade", "passa da borda da caixa", "ai"}));
    QTest::keyClick(&view_, Qt::Key_Home);
    clickAt(*table_.viewport(), table_.visualItemRect(table_.item(2, 4)).center());
    EXPECT_GT(view_.topY(), unitsPerInch * 2 * 33 / 6);
    clickAt(*table_.viewport(), table_.visualItemRect(table_.item(0, 4)).center());
    EXPECT_LT(view_.topY(), unitsPerInch * 33 / 6);
}

TEST_F(Check, WhatComesLaterIsCheckedToo) {
    choose(window_, "formMenu", "form_file");
    QTest::keyClick(&view_, Qt::Key_F6);
    ASSERT_TRUE(tells(QStringLiteral("Nada aparece cortado nem fora das caixas.")));
    job("solto\r\n");
    EXPECT_TRUE(tells(QStringLiteral("1 lugar para conferir.")));
}

TEST_F(Check, BlankPaperHasNothingToBeChecked) {
    job("solto\r\n");
    check();
    EXPECT_TRUE(tells(QStringLiteral("O papel está em branco")));
    EXPECT_EQ(table_.rowCount(), 0);
}

TEST_F(Check, TheBoxUnderTheMouseIsNamed) {
    choose(window_, "formMenu", "form_file");
    const double width = 9.5 * 96;
    const double spare = std::max(0.0, std::floor((view_.viewport()->width() - width) / 2));
    const QPoint at(qRound(spare + (0.5 + 0.65) * 96), qRound(2.5 * 16));
    QMouseEvent move(QEvent::MouseMove, at, view_.viewport()->mapToGlobal(at), Qt::NoButton,
                     Qt::NoButton, {});
    QApplication::sendEvent(view_.viewport(), &move);
    EXPECT_EQ(label("position"), QStringLiteral("formulário 1, linha 3, coluna 7 · Cliente"));
}

// Pixels in which more red than blue shows through: the marks.
int marked(PaperView& view) {
    const QImage image = view.viewport()->grab().toImage();
    int count = 0;
    for (int y = 0; y < image.height(); ++y) {
        for (int x = 0; x < image.width(); ++x) {
            const QColor colour = image.pixelColor(x, y);
            count += colour.red() - colour.blue() > 50 ? 1 : 0;
        }
    }
    return count;
}

TEST_F(Check, AHeldNoteIsShownWithWhatItsFormCut) {
    const auto& marks = named<QAction>(window_, "marks");
    EXPECT_FALSE(marks.isChecked());
    ASSERT_EQ(held_.open(folder_.filePath("retidos")), QString());
    EXPECT_TRUE(marks.isChecked());
    intake_.keepIn(&held_);
    const JobKind kind{.document = JobDocument::Note, .form = "ImprimeNF_1361", .itemLines = 13};
    for (const std::string& bytes : streamsOf(formNamed("1361"), {}, 13)) {
        ASSERT_TRUE(intake_.begin("nota", JobIntake::Kind::Printed, kind));
        ASSERT_TRUE(intake_.take(QByteArray::fromStdString(bytes)));
        ASSERT_TRUE(intake_.end());
    }
    for (const char* bytes : {"texto\r\n", "mais\r\n"}) {
        ASSERT_TRUE(intake_.begin(
            "outro", JobIntake::Kind::Printed,
            {.document = JobDocument::OrderSheet, .form = "OrdemFaturamento", .itemLines = {}}));
        ASSERT_TRUE(intake_.take(bytes));
        ASSERT_TRUE(intake_.end());
    }
    const auto& table = named<QTableWidget>(window_, "heldJobs");
    ASSERT_EQ(table.rowCount(), 3);
    EXPECT_EQ(table.item(0, 3)->text(), QStringLiteral("3 lugares"));
    EXPECT_EQ(table.item(1, 3)->text(), QStringLiteral("sem formulário"));
    view_.showTop(0);
    view_.setZoom(0.5);
    EXPECT_GT(marked(view_), 100);
    choose(window_, "viewMenu", "marks");
    EXPECT_EQ(marked(view_), 0);
}

TEST_F(Check, AHeldJobOfManyFormsIsNotCheckedAsItComes) {
    ASSERT_EQ(held_.open(folder_.filePath("retidos")), QString());
    intake_.keepIn(&held_);
    ASSERT_TRUE(intake_.begin("longo", JobIntake::Kind::Printed));
    ASSERT_TRUE(intake_.take(QByteArray(101, '\f') + "x"));
    ASSERT_TRUE(intake_.end());
    EXPECT_EQ(named<QTableWidget>(window_, "heldJobs").item(0, 3)->text(),
              QStringLiteral("confira com F6"));
}

class LayoutCheck : public testing::TestWithParam<FormFacts> {};

// What a note's field had no room for is told by the field's box; nothing else is.
TEST_P(LayoutCheck, OnANoteOnlyFullBoxesAreFound) {
    const auto design = layoutForm(layoutNameOf(GetParam()), plainItemLines);
    ASSERT_TRUE(design);
    PaperRoll roll(panelFor(*design, {}));
    NoteCase note;
    note.items = GetParam().name == "padrao" ? plainItemLines : 2;  // as long as its items
    for (const std::string& job : streamsOf(GetParam(), note)) {
        roll.startJob("nota");
        ASSERT_FALSE(roll.feed(job));
    }
    for (std::size_t form = 0; form < roll.printedForms(); ++form) {
        const auto page = roll.page(form);
        const auto faults = faultsOn(*page, &*design, roll.jobs());
        ASSERT_TRUE(faults);
        for (const PaperFault& fault : *faults) {
            // What a set-up job leaves on the paper is no note's.
            const bool ofSetUp = std::ranges::any_of(page->lines, [&](const PaperLine& line) {
                return line.y == fault.region.top && line.job < roll.jobs().size();
            });
            EXPECT_TRUE(ofSetUp || fault.kind == PaperFault::Kind::Full)
                << fault.row << "/" << fault.column << " " << describe(fault).toStdString() << " "
                << fault.text.toStdString();
            EXPECT_TRUE(ofSetUp || !fault.box.isEmpty()) << fault.text.toStdString();
        }
    }
}

INSTANTIATE_TEST_SUITE_P(All, LayoutCheck, testing::ValuesIn(allForms()),
                         [](const auto& form) { return form.param.name; });

}  // namespace
}  // namespace tarn::test
