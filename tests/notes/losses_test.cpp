// What a watched run keeps of a note that doesn't fit its form.
#include "notes/losses.h"

#include <gtest/gtest.h>

#include "common/raw_channel.h"
#include "notes/layouts/layouts.h"
#include "notes/pipeline.h"
#include "notes/print_note.h"
#include "tests/notes/note_fixture.h"
#include "tests/support/sessions.h"
#include "tests/support/test_environment.h"

namespace tarn::test {
namespace {

using notes::Loss;

// Printed on the company's own form, watched.
std::vector<Loss> lossesOf(std::int32_t company, const NoteDraft& note,
                           std::int32_t establishment = 1) {
    TestEnvironment seams;
    const Sessao session = sessionOf(company, establishment);
    XmlDocument document;
    if (!document.loadXML(note.xml())) {
        throw std::runtime_error("the note isn't well-formed");
    }
    notes::LossLog log;
    printNote(Ladder::Reprint, seams.environment, session, document, "4567", &log);
    return log.losses();
}

std::vector<std::string> toldOf(std::int32_t company, const NoteDraft& note,
                                std::int32_t establishment = 1) {
    std::vector<std::string> told;
    for (const Loss& loss : lossesOf(company, note, establishment)) {
        told.push_back(describe(loss));
    }
    return told;
}

using Told = std::vector<std::string>;

TEST(Losses, ANoteThatFitsLosesNothing) {
    EXPECT_EQ(toldOf(1361, sampleNote()), Told());
}

TEST(Losses, ATextTooLongForItsBox) {
    NoteDraft note = sampleNote();
    note.head["RAZAO"] = std::string(82, 'R') + " LTDA ÇÃO";
    EXPECT_EQ(toldOf(1361, note), Told{"linha 10, coluna 2, RAZAO: não cabe; perde \" LTDA ÇÃO\""});
    note.head["RAZAO"] = std::string(82, 'R') + "    ";  // blanks are no loss
    EXPECT_EQ(toldOf(1361, note), Told());
}

TEST(Losses, DigitsOfAnAmount) {
    NoteDraft note = sampleNote();
    note.items[1]["VALOR_UN"] = "1234567.89";  // nine columns from 89 on, line 23
    note.items[1]["QTDE"] = "1";
    note.items[1]["VL_DSC"] = "0";
    EXPECT_EQ(toldOf(1361, note),
              Told{"linha 23, coluna 89, item 2, VALOR_UN: valor não cabe; perde \"9\""});
}

// A rate of 18 in a box of two columns prints "18", as the form means it; one of 18,5
// or of 100 prints another number.
TEST(Losses, DecimalsThatAreZeroAreNoLoss) {
    EXPECT_TRUE(notes::readsTheSame("18,00", 2));
    EXPECT_TRUE(notes::readsTheSame("7,00", 2));
    EXPECT_TRUE(notes::readsTheSame("18,50", 4));
    EXPECT_FALSE(notes::readsTheSame("18,50", 2));
    EXPECT_FALSE(notes::readsTheSame("100,00", 2));
    EXPECT_FALSE(notes::readsTheSame("1.000,00", 3));
    EXPECT_FALSE(notes::readsTheSame("1000", 3));
    EXPECT_TRUE(notes::readsTheSame("100,00", 3));
}

TEST(Losses, ParcelsAreNamedByTheirNumber) {
    NoteDraft note = sampleNote();
    note.head["DT_VNC_DOC2"] = "07/03/20099";
    EXPECT_EQ(toldOf(1361, note), Told{"linha 17, coluna 86, DT_VNC_DOC2: não cabe; perde \"9\""});
}

TEST(Losses, TooManyParcels) {
    NoteDraft note = sampleNote();
    note.head["QTDE_PARC"] = "10";
    EXPECT_EQ(toldOf(1361, note),
              Told{"QTDE_PARC: 10 parcelas, o formulário tem lugar para 9; nenhuma imprime"});
}

NoteDraft withItems(std::size_t count) {
    NoteDraft note = sampleNote();
    Attributes last = note.items.back();
    last["AQ_IPI"] = "5";
    note.items.back() = last;
    while (note.items.size() < count) {
        note.items.push_back(last);
        note.items.back()["CD_PRO"] = "P-" + std::to_string(note.items.size());
        note.items.back()["DESCRICAO"] = "ITEM A MAIS";
    }
    return note;
}

TEST(Losses, ItemsPastAPushingForm) {
    EXPECT_EQ(toldOf(1361, withItems(6)), Told());
    EXPECT_EQ(toldOf(1361, withItems(7)),
              Told{"itens: passam das 6 linhas do formulário; o que vem abaixo desce 1 linha"});
    EXPECT_EQ(toldOf(1361, withItems(9)),
              Told{"itens: passam das 6 linhas do formulário; o que vem abaixo desce 3 linhas"});
    // This form is one line short already with as many items as it has lines, and this
    // one has a line to spare.
    EXPECT_EQ(toldOf(2041, withItems(6)),
              Told{"itens: passam das 6 linhas do formulário; o que vem abaixo desce 1 linha"});
    EXPECT_EQ(toldOf(7, withItems(7)), Told());
}

TEST(Losses, ItemsPastACuttingForm) {
    EXPECT_EQ(toldOf(3301, withItems(6)), Told());
    const Told told = toldOf(3301, withItems(8));
    ASSERT_EQ(told.size(), 2U);
    EXPECT_EQ(told[0],
              "item 7, DESCRICAO: não imprime, o formulário tem 6 linhas; perde \"P-7 ITEM A "
              "MAIS\"");
    EXPECT_EQ(told[1],
              "item 8, DESCRICAO: não imprime, o formulário tem 6 linhas; perde \"P-8 ITEM A "
              "MAIS\"");
}

TEST(Losses, AServiceOnAFormForProducts) {
    NoteDraft note = withItems(3);
    note.items[2]["IC_TP_CAD"] = "S";
    EXPECT_EQ(toldOf(2321, note),
              Told{"item 3, DESCRICAO: não imprime, o formulário não tem lugar para serviços; "
                   "perde \"P-3 ITEM A MAIS\""});
}

TEST(Losses, ServicesPastTheirLines) {
    NoteDraft note = withItems(5);
    note.form["QT_MAX_IT_NF_SRV"] = "2";
    for (std::size_t i = 2; i < 5; ++i) {
        note.items[i]["IC_TP_CAD"] = "S";
        note.items[i]["AQ_ISS"] = "5";
        note.items[i]["VL_ISS"] = "1";
        note.items[i]["VL_LIQ_IT"] = "20";
    }
    EXPECT_EQ(toldOf(2161, note, 3341),
              Told{"item 5, serviço: não imprime, o formulário tem 2 linhas; perde \"P-5 ITEM A "
                   "MAIS\""});
}

std::string letters(std::size_t count, char last) {
    return std::string(count - 1, 'x') + last;
}

NoteDraft withLegal(const std::string& text) {
    NoteDraft note = sampleNote();
    for (Attributes& item : note.items) {
        item["DC_TXT_LEG_NF"] = text;
    }
    note.head["DC_OBS"] = "";
    return note;
}

TEST(Losses, LegalTextPastItsPieces) {
    EXPECT_EQ(toldOf(1361, withLegal(letters(186, 'Z'))), Told());
    const Told told = toldOf(1361, withLegal(letters(186, 'Z') + "FIM"));
    ASSERT_EQ(told.size(), 1U);
    EXPECT_NE(told[0].find(", coluna 2, textos legais e observação: não cabe; perde \"FIM\""),
              std::string::npos)
        << told[0];
}

// Characters 249 to 310 never print on this form.
TEST(Losses, AHoleBetweenThePieces) {
    const std::string hole = std::string(62, 'h');
    const Told told =
        toldOf(2161, withLegal(std::string(248, 'x') + hole + std::string(62, 'y')), 3383);
    ASSERT_EQ(told.size(), 1U);
    EXPECT_NE(told[0].find("perde \"" + hole + "\""), std::string::npos) << told[0];
}

TEST(Losses, OverlappingPiecesLoseNothingBetweenThem) {
    EXPECT_EQ(toldOf(2321, withLegal(letters(255, 'Z'))), Told());
    EXPECT_EQ(toldOf(2321, withLegal(letters(255, 'Z') + "!")).size(), 1U);
}

TEST(Losses, ABandAndAnObservationPastTheirLines) {
    NoteDraft note = withLegal(letters(133, 'Z'));
    note.head["DC_OBS"] = letters(134, 'W');
    const Told told = toldOf(3881, note);
    ASSERT_EQ(told.size(), 2U);
    EXPECT_NE(told[0].find("textos legais e observação: não cabe; perde \"Z\""), std::string::npos);
    EXPECT_NE(told[1].find("DC_OBS: não cabe; perde \"xW\""), std::string::npos);
    NoteDraft labelled = withLegal("");
    labelled.head["DC_OBS"] = letters(149, 'V');  // " OBS.: " and 148 characters are 155
    const Told other = toldOf(1521, labelled);
    ASSERT_EQ(other.size(), 1U);
    EXPECT_NE(other[0].find("DC_OBS: não cabe; perde \"V\""), std::string::npos) << other[0];
}

TEST(Losses, ADrawnPageHasNoLines) {
    NoteDraft note = sampleNote();
    note.head["QTDE_PARC"] = "5";
    note.head["INSC_EST"] = std::string(25, '1') + "2";
    EXPECT_EQ(toldOf(2541, note),
              (Told{"coluna 2, INSC_EST: valor não cabe; perde \"2\"",
                    "QTDE_PARC: 5 parcelas, o formulário tem lugar para 4; nenhuma imprime"}));
}

// Control characters of a value don't reach the terminal.
TEST(Losses, WhatIsLostIsShownAsPlainText) {
    NoteDraft note = sampleNote();
    note.head["RAZAO"] = std::string(82, 'R') + "a&#10;b";
    Loss loss{.kind = Loss::Kind::Text, .line = 1, .column = 2, .field = "X", .lost = "a\x1B\nb"};
    EXPECT_EQ(describe(loss), "linha 1, coluna 2, X: não cabe; perde \"a  b\"");
}

// Watching changes no byte.
TEST(Losses, TheWatchedNotePrintsTheSame) {
    for (const notes::Layout* layout : notes::allLayouts()) {
        if (layout->form == nullptr) {
            continue;
        }
        const std::string xml = withItems(9).xml();
        const auto jobs = print(*layout->form, xml);
        RecordingSpooler spooler;
        RawChannel channel(spooler, CodePage::Page1252);
        XmlDocument document;
        ASSERT_TRUE(document.loadXML(xml));
        notes::LossLog log;
        notes::printNote(*layout->form, document, "4567", channel, &log);
        ASSERT_EQ(spooler.jobs.size(), jobs.size()) << layout->name;
        for (std::size_t i = 0; i < jobs.size(); ++i) {
            EXPECT_EQ(spooler.jobs[i].writes, jobs[i].writes) << layout->name;
        }
    }
}

}  // namespace
}  // namespace tarn::test
