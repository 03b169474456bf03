#include "reprint/reprint_note.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "notes/layouts/layouts.h"
#include "runtime/runtime_error.h"
#include "tests/notes/note_fixture.h"
#include "tests/support/answers.h"
#include "tests/support/boxes.h"
#include "tests/support/sessions.h"
#include "tests/support/test_environment.h"
#include "tests/support/texts.h"

namespace tarn::test {
namespace {

const std::string gap(50, ' ');

// Loaded answers of which no status can be read.
const std::vector<std::string> noStatus{
    "<RESPOSTA cod='0' status='OK'/>",  // no declaration: the root is the first child
    answers::declaration + "<RESPOSTA status='OK'/>",  // one attribute
    answers::declaration + "<RESPOSTA/>"};

class ReprintTest : public testing::Test {
protected:
    std::vector<std::string> series() {
        std::vector<std::string> items;
        EXPECT_TRUE(loadSeries(environment, session, items));
        return items;
    }
    std::optional<FoundNote> search(const std::string& lines) {
        seams.loader.on("SEL_NF", answers::rowset(lines));
        return searchNote(environment, session, {"Série 1" + gap + "|A1", "0555"});
    }
    void reimprime(const std::string& answer) {
        seams.loader.on("sel_gera_nf", answer);
        reprintNote(environment, session, "0555", "A1");
    }
    // Prints the sample note at this company and establishment and compares its jobs
    // with those of the named form.
    void comesOutOnForm(std::int32_t company, std::int32_t establishment,
                        const notes::Layout& layout) {
        session.NCOMPANYCODE = company;
        session.ID_ETB_TARN = establishment;
        const std::string note = test::sampleNote().xml();
        reimprime(note);
        std::vector<std::string> expected;
        for (const test::Job& job :
             test::print(layout.formFor(establishment), note, nullptr, "0555")) {
            expected.push_back(job.bytes());
        }
        std::vector<std::string> output;
        for (const auto& job : seams.spooler.jobs) {
            output.push_back(job.bytes());
            EXPECT_TRUE(job.closed);
            EXPECT_EQ(job.description.kind.document, JobDocument::Note);
            EXPECT_EQ(job.description.kind.form, layout.formName(establishment));
            EXPECT_TRUE(job.description.kind.itemLines.has_value());
        }
        EXPECT_EQ(output, expected);
        EXPECT_EQ(seams.boxes.shown, Boxes{});
    }

    TestEnvironment seams;
    Environment& environment = seams.environment;
    Sessao session = sessionOf(1361, 9, "u1", "SRV");
};

TEST_F(ReprintTest, AnItemIsDescriptionFiftyBlanksBarAndTrimmedCode) {
    seams.loader.on("SEL_SERIE_NF",
                    answers::rowset("<z:row DC_SER_NF='Série única ' CD_SER_NF='  U 1 '/>"
                                    "<z:row CD_SER_NF='2'/><z:row DC_SER_NF='Sem código'/>"
                                    "<z:row dc_ser_nf='x' cd_ser_nf='y'/>"));
    EXPECT_EQ(series(), (Texts{"Série única " + gap + "|U 1", gap + "|2", "Sem código" + gap + "|",
                               gap + "|"}));
    EXPECT_EQ(seams.loader.queries(), (Texts{"comando=SEL_SERIE_NF&ServerName=SRV"}));
    EXPECT_EQ(seams.boxes.shown, Boxes{});
}

TEST_F(ReprintTest, TheCodeIsTheSecondPiece) {
    EXPECT_EQ(seriesCode("Série única " + gap + "|U 1"), "U 1");
    EXPECT_EQ(seriesCode(gap + "|"), "");
    EXPECT_EQ(seriesCode("A|B" + gap + "|7"), "B" + gap) << "a bar in the description";
}

TEST_F(ReprintTest, NoRowsetNoItems) {
    seams.loader.on("SEL_SERIE_NF", answers::status("OK")).on("SEL_MOT_CAN", answers::rowset(""));
    EXPECT_EQ(series(), Texts{});
    EXPECT_TRUE(loadReasons(environment, session).empty());
    EXPECT_EQ(seams.boxes.shown, Boxes{});
}

TEST_F(ReprintTest, SeriesOutOfReachStopNothing) {
    EXPECT_EQ(series(), Texts{});
    EXPECT_EQ(seams.boxes.shown, (Boxes{transportFailure("0010")}));
}

TEST_F(ReprintTest, ReasonsKeepTheirNumber) {
    seams.loader.on("SEL_MOT_CAN", answers::rowset("<z:row DC_MOT_CAN='Erro' ID_MOT_CAN=' 12 '/>"
                                                   "<z:row DC_MOT_CAN='Outro' ID_MOT_CAN='-3'/>"
                                                   "<z:row DC_MOT_CAN='Sem'/>"
                                                   "<z:row ID_MOT_CAN='2147483648'/>"));
    std::vector<std::pair<std::string, std::optional<std::int32_t>>> reasonsRead;
    for (const CancelReason& reason : loadReasons(environment, session)) {
        reasonsRead.emplace_back(reason.description, reason.id);
    }
    EXPECT_THAT(
        reasonsRead,
        testing::ElementsAre(testing::Pair("Erro", 12), testing::Pair("Outro", -3),
                             testing::Pair("Sem", std::nullopt), testing::Pair("", std::nullopt)));
    EXPECT_EQ(seams.loader.queries(), (Texts{"comando=SEL_MOT_CAN&ID_ETB_TARN=9&ServerName=SRV"}));
}

TEST_F(ReprintTest, ReasonsOutOfReachAreToldOnce) {
    EXPECT_TRUE(loadReasons(environment, session).empty());
    EXPECT_EQ(seams.boxes.shown, (Boxes{transportFailure("0011")}));
}

TEST_F(ReprintTest, TheFirstRowIsTheNote) {
    const auto note = search(
        "<z:row DC_TIP_NF='Saída' IC_TIP_NF='S' DT_EMS_NF='2012-03-05T00:00:00' "
        "NM_PES_CPL='PÃO &amp; CIA'/><z:row DC_TIP_NF='outra'/>");
    ASSERT_TRUE(note);
    EXPECT_EQ(note->number, "0555");
    EXPECT_EQ(note->series, "A1");
    EXPECT_EQ(note->kind, "S");
    EXPECT_EQ(note->kindText, "Saída");
    EXPECT_EQ(note->issued, "05/03/2012");
    EXPECT_EQ(note->customer, "PÃO & CIA");
    EXPECT_EQ(seams.loader.queries(),
              (Texts{"comando=SEL_NF&ID_ETB_TARN=9&ID_NF_KESTO=0555&CD_SER_NF=A1&ServerName=SRV"}));
}

TEST_F(ReprintTest, AbsentFieldsOfTheNoteAreEmptyAndNoDateStaysAsItIs) {
    const auto empty = search("<z:row/>");
    ASSERT_TRUE(empty);
    EXPECT_EQ(empty->kind + empty->kindText + empty->issued + empty->customer, "");
    seams.loader.on("ID_NF_KESTO=0555", answers::rowset("<z:row DT_EMS_NF='31/02/2012'/>"));
    EXPECT_EQ(search("")->issued, "31/02/2012");
}

TEST_F(ReprintTest, AFieldSpelledInAnotherCaseFails) {
    EXPECT_THROW(search("<z:row Ic_Tip_Nf='S'/>"), RuntimeError);
}

TEST_F(ReprintTest, NoRowIsNoNoteWhateverTheStatus) {
    EXPECT_FALSE(search(""));
    seams.loader.on("ID_NF_KESTO=0555&CD", answers::status("Sessão inválida"));
    EXPECT_FALSE(search(""));
    const Box nothing = notice("Nota Fiscal não encontrada ou Cancelada !!!    ");
    EXPECT_EQ(seams.boxes.shown, (Boxes{nothing, nothing}));
}

TEST_F(ReprintTest, AnUnreadableStatusIsAFailedTransferOfTheJobInHand) {
    for (const std::string& answer : noStatus) {
        TestEnvironment other;
        other.loader.on("sel_gera_nf", answer).on("sp_can_nf", answer);
        reprintNote(other.environment, session, "0555", "A1");
        EXPECT_FALSE(
            cancelNote(other.environment, session, {"0555", "A1", "S", Rebilling::With, 1}));
        EXPECT_EQ(other.boxes.shown,
                  (Boxes{notice("Houve um problema na transferência dos dados da "
                                "Nota Fiscal nº 0555. "),
                         notice("Houve um problema no Cancelamento da Nota Fiscal "
                                "nº 0555. ")}))
            << answer;
        EXPECT_TRUE(other.spooler.calls.empty());
    }
}

TEST_F(ReprintTest, TheStatusIsExact) {
    reimprime(answers::status("ok"));
    EXPECT_EQ(seams.boxes.shown, (Boxes{Box{"ok", BoxIcon::Exclamation}}));
    EXPECT_TRUE(seams.spooler.calls.empty());
}

TEST_F(ReprintTest, Company761PrintsOnTheDefaultForm) {
    comesOutOnForm(761, 762, notes::imprimeNF_Padrao);
}

TEST_F(ReprintTest, TheEstablishmentThatTheIssuingScreenCannotPrintPrintsHere) {
    comesOutOnForm(2161, 3383, notes::imprimeNF_2161_3383);
}

TEST_F(ReprintTest, EstablishmentsWithoutAFormPrintNothingAndSayNothing) {
    session.NCOMPANYCODE = 2161;
    session.ID_ETB_TARN = 6001;
    reimprime(test::sampleNote().xml());
    EXPECT_TRUE(seams.spooler.calls.empty());
    EXPECT_EQ(seams.boxes.shown, Boxes{});
}

TEST_F(ReprintTest, AnErrorOfTheLayoutIsThatOfANoteThatExists) {
    test::NoteDraft note = test::sampleNote();
    note.items.clear();
    try {
        reimprime(note.xml());
        FAIL() << "no error";
    } catch (const ErrorAfterNote& error) {
        EXPECT_EQ(error.note, NoteState::Exists);
    }
}

// In the report a point is a point, so that support finds the text in the answer. One of the
// two is only masked, the other one computed with.
TEST_F(ReprintTest, AnAmountThatIsNoNumberIsReportedAsTheServerSentIt) {
    for (const char* field : {"VALOR_FRETE", "VALOR_UN"}) {
        test::NoteDraft note = test::sampleNote();
        (note.totals.contains(field) ? note.totals : note.items[0])[field] = "1.234.5";
        TestEnvironment other;
        other.loader.on("sel_gera_nf", note.xml());
        try {
            reprintNote(other.environment, session, "0555", "A1");
            FAIL() << field;
        } catch (const RuntimeError& error) {
            EXPECT_EQ(error.description(), "Há um texto onde era esperado um número: o campo " +
                                               std::string(field) +
                                               " da nota traz \"1.234.5\", que não é um número");
        }
    }
}

TEST_F(ReprintTest, TheOptionDecidesTheKindOfCancellation) {
    seams.loader.on("sp_can_nf", answers::status("OK"));
    EXPECT_TRUE(cancelNote(environment, session, {"0555", "A1", "S", Rebilling::Without, 12}));
    EXPECT_TRUE(cancelNote(environment, session, {"7", "", "", Rebilling::With, -1}));
    EXPECT_EQ(seams.loader.queries(),
              (Texts{"comando=sp_can_nf&ID_ETB_TARN=9&IC_TIP_NF=S&ID_NF_KESTO=0555&CD_SER_NF=A1&"
                     "id_mot_can=12&id_pes_usu=u1&Tipo_Can=S&ServerName=SRV",
                     "comando=sp_can_nf&ID_ETB_TARN=9&IC_TIP_NF=&ID_NF_KESTO=7&CD_SER_NF=&"
                     "id_mot_can=-1&id_pes_usu=u1&Tipo_Can=C&ServerName=SRV"}));
}

}  // namespace
}  // namespace tarn::test
