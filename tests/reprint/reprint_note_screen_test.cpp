// The reprinting job by clicks.
#include <gmock/gmock.h>

#include "tests/notes/note_files.h"
#include "tests/notes/note_fixture.h"
#include "tests/reprint/note_screen_test.h"
#include "tests/support/texts.h"

namespace tarn::test {
namespace {

class ReprintScreen : public NoteScreenTest {
protected:
    void SetUp() override {
        NoteScreenTest::SetUp();
        open("mRINF");
    }
    void print() { click(screen(), "cmdSelecionar"); }
};

TEST_F(ReprintScreen, TheNoteComesOutByteForByteAsOftenAsAsked) {
    server.on("sel_gera_nf", noteFile("note_1361.xml"));
    find();
    print();
    EXPECT_EQ(server.queries(), (Texts{documentQuery}));
    ASSERT_EQ(spooler.jobs.size(), 2U);
    EXPECT_EQ(spooler.bytes(0), " \x0F");
    EXPECT_EQ(spooler.bytes(1), noteFile("note_1361.prn"));
    EXPECT_EQ(data(), found());
    print();
    EXPECT_EQ(server.queries(), (Texts{documentQuery, documentQuery}));
    ASSERT_EQ(spooler.jobs.size(), 4U);
    EXPECT_EQ(spooler.bytes(3), spooler.bytes(1));
    EXPECT_EQ(boxes.shown, Boxes{});
    EXPECT_FALSE(menusEnabled());
}

TEST_F(ReprintScreen, ANoteOfTypeDIsPrinted) {
    server.on("sel_gera_nf", noteFile("note_1361.xml"));
    find("D");
    EXPECT_FALSE(option(0).isEnabled() || option(1).isEnabled());
    print();
    ASSERT_EQ(spooler.jobs.size(), 2U);
    EXPECT_EQ(spooler.bytes(1), noteFile("note_1361.prn"));
}

TEST_F(ReprintScreen, NumberAndSeriesAreThoseOfTheNoteFound) {
    server.on("sel_gera_nf", noteFile("note_1361.xml"));
    find();
    named<QComboBox>(screen(), "cboSerie").setCurrentIndex(series1);  // by no choice of the user
    print();
    EXPECT_EQ(server.queries(), (Texts{documentQuery}));
}

TEST_F(ReprintScreen, ADocumentOutOfReachIsToldTwiceAndTheFieldsStay) {
    server.failOn("sel_gera_nf");
    find();
    print();
    EXPECT_EQ(boxes.shown,
              (Boxes{transportFailure("0008"),
                     notice("Houve um problema na transferência dos dados da Nota Fiscal !!!")}));
    EXPECT_EQ(server.queries(), (Texts{documentQuery}));
    EXPECT_EQ(data(), found());
    EXPECT_THAT(spooler.calls, testing::IsEmpty());
}

TEST_F(ReprintScreen, ARefusalIsTheServersWords) {
    server.on("sel_gera_nf", answers::status("Nota &lt;bloqueada&gt;"));
    find();
    print();
    EXPECT_EQ(boxes.shown, (Boxes{exclamation("Nota <bloqueada>")}));
    EXPECT_EQ(data(), found());
    EXPECT_THAT(spooler.calls, testing::IsEmpty());
}

TEST_F(ReprintScreen, AStatusThatCannotBeReadIsAFailedTransferAndTheProgramLivesOn) {
    server.on("sel_gera_nf", "<PRINCIPAL a='' s='OK'/>");
    find();
    print();
    EXPECT_EQ(
        boxes.shown,
        (Boxes{notice("Houve um problema na transferência dos dados da Nota Fiscal nº 4567. ")}));
    EXPECT_EQ(data(), found());
    EXPECT_FALSE(end.ended());
}

TEST_F(ReprintScreen, AnErrorInTheNoteEndsTheProgramWithTheReport) {
    server.on("sel_gera_nf", noteFile("note_wrong_quantity.xml"));
    find();
    print();
    ASSERT_EQ(boxes.shown.size(), 1U);
    EXPECT_EQ(boxes.shown[0].icon, BoxIcon::Critical);
    EXPECT_EQ(boxes.shown[0].title, "TarnEmissao");
    EXPECT_EQ(boxes.shown[0].text.rfind("Erro em tempo de execução '13':\r\r", 0), 0U)
        << boxes.shown[0].text;
    EXPECT_THAT(
        boxes.shown[0].text,
        testing::EndsWith("\r\rA Nota Fiscal continua no servidor e pode ser impressa outra "
                          "vez pela tela de Reimpressão de Nota Fiscal."));
    EXPECT_EQ(end.status(), 3);
    ASSERT_EQ(spooler.jobs.size(), 2U);
    EXPECT_TRUE(spooler.jobs[0].closed);
    EXPECT_FALSE(spooler.jobs[1].ended) << "the note's job stays open";
}

TEST_F(ReprintScreen, AnEstablishmentWithoutAFormPrintsNothingAndSaysNothing) {
    find();
    server.on("sel_gera_nf", noteFile("note_1361.xml"));
    session.NCOMPANYCODE = 2161;
    print();
    EXPECT_THAT(spooler.calls, testing::IsEmpty());
    EXPECT_EQ(boxes.shown, Boxes{});
    EXPECT_EQ(data(), found());
}

TEST_F(ReprintScreen, APrinterThatFailsGoesUnnoticed) {
    server.on("sel_gera_nf", noteFile("note_1361.xml"));
    spooler.failOpen = 1;
    find();
    print();
    EXPECT_EQ(boxes.shown, Boxes{});
    print();
    EXPECT_EQ(spooler.jobs.back().bytes(), noteFile("note_1361.prn"));
}

}  // namespace
}  // namespace tarn::test
