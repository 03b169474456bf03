#include "billing/generate_note.h"

#include <gtest/gtest.h>

#include "billing/alert.h"
#include "billing/observations.h"
#include "runtime/runtime_error.h"
#include "tests/support/boxes.h"
#include "tests/support/sessions.h"
#include "tests/support/test_environment.h"
#include "tests/support/texts.h"

namespace tarn::test {
namespace {

const std::string xmlDeclaration = "<?xml version='1.0'?>";
const Box searchFailed = exclamation(
    "Aconteceu um erro na busca da observação da(s) venda(s). Cancele esta tela e tente "
    "novamente.",
    "Aviso");

std::string observation(const std::string& text) {
    return xmlDeclaration + "<R a='' s='OK'><L OBSERVACAO='" + text + "'/></R>";
}
std::string refuse(const std::string& text) {
    return xmlDeclaration + "<R a='' s='" + text + "'><L OBSERVACAO=''/></R>";
}

struct ScriptedAlert : AlertDialog {
    explicit ScriptedAlert(Sessao& s) : session(s) {}
    void show(AlertMode mode) override {
        seen.emplace_back(mode, session.TextoMensagem);
        before.push_back(session.ConfirmaMensagem);
        if (!answer.empty()) {
            session.ConfirmaMensagem = answer;
        }
    }
    Sessao& session;
    std::string answer;  // empty: closed without an answer
    std::vector<std::pair<AlertMode, std::string>> seen;
    std::vector<std::string> before;
};

class GenerateNoteTest : public testing::Test {
protected:
    GenerateNoteTest() {
        seams_.loader.on("Seleciona_Obs_Vnd_X_Ord", observation(""))
            .on("Seleciona_Obs_Ord_X_Est", observation(""));
    }

    // The observations are in order; these answer the rest.
    void answers(const std::string& generation, const std::string& document) {
        seams_.loader.on("SP_GERA_NF", generation).on("sel_gera_nf", document);
    }
    GenerationEnd generate() {
        return generateNote(seams_.environment, session_, alert_, "12",
                            [this](Environment&, const Sessao& session, XmlDocument& document,
                                   const std::string& note) {
                                printed_.push_back(note + " " +
                                                   std::to_string(session.ID_ETB_TARN) + " " +
                                                   document.xml());
                            });
    }
    void expectFatal() {
        try {
            generate();
            ADD_FAILURE() << "no error";
        } catch (const RuntimeError& error) {
            EXPECT_EQ(error.number(), RuntimeErrorCode::ObjectRequired);
        }
        EXPECT_TRUE(printed_.empty());
        EXPECT_TRUE(seams_.spooler.calls.empty());
    }

    const std::string saleQuery_ =
        "comando=Seleciona_Obs_Vnd_X_Ord&Id_Etb_Tarn=9&Id_Ord_Fat=12&ServerName=SRV";
    const std::string stockQuery_ =
        "comando=Seleciona_Obs_Ord_X_Est&Id_Etb_Tarn=9&Id_Ord_Fat=12&ServerName=SRV";
    const std::string generateQuery_ =
        "COMANDO=SP_GERA_NF&ID_ETB_TARN=9&ID_ORD_FAT=12&ID_PES=u1&ServerName=SRV";
    const std::string noteQuery_ =
        "comando=sel_gera_nf&ID_ETB_TARN=9&ID_NF_KESTO=555&CD_SER_NF=A1&ServerName=SRV";
    const std::string generated_ =
        xmlDeclaration + "<R a='' s='OK'>\n <x qualquer='555' b='1'/>\n <y z='A1'/></R>";
    const std::string noteDocument_ =
        xmlDeclaration + "<PRINCIPAL a=\"\" s=\"OK\"><C/></PRINCIPAL>";

    TestEnvironment seams_;
    Sessao session_ = sessionOf(1361, 9, "u1", "SRV");
    ScriptedAlert alert_{session_};
    std::vector<std::string> printed_;
};

TEST_F(GenerateNoteTest, GeneratedAndPrinted) {
    answers(generated_, noteDocument_);
    EXPECT_EQ(generate(), GenerationEnd::Finished);
    EXPECT_EQ(seams_.loader.queries(),
              (Texts{saleQuery_, stockQuery_, generateQuery_, noteQuery_}));
    EXPECT_EQ(seams_.boxes.shown, Boxes{});
    EXPECT_TRUE(alert_.seen.empty());
    EXPECT_EQ(printed_, Texts{"555 9 <?xml version=\"1.0\"?>\r\n<PRINCIPAL a=\"\" s=\"OK\"><C/>"
                              "</PRINCIPAL>\r\n"});
}

TEST_F(GenerateNoteTest, AnErrorOfTheLayoutComesOut) {
    answers(generated_, noteDocument_);
    EXPECT_THROW(generateNote(seams_.environment, session_, alert_, "12",
                              [](auto&, auto&, auto&, auto&) {
                                  throw RuntimeError(RuntimeErrorCode::TypeMismatch);
                              }),
                 RuntimeError);
}

TEST_F(GenerateNoteTest, RefusedObservationMakesNoNote) {
    seams_.loader.on("Seleciona_Obs_Vnd_X_Ord&", observation("ver &lt;b&gt;prazo&lt;/b&gt;"));
    alert_.answer = "N";
    EXPECT_EQ(generate(), GenerationEnd::Stopped);
    EXPECT_EQ(seams_.loader.queries(), Texts{saleQuery_});
    ASSERT_EQ(alert_.seen.size(), 1U);
    EXPECT_EQ(alert_.seen[0].first, AlertMode::Confirm);
    EXPECT_EQ(alert_.seen[0].second, "ver <b>prazo</b>");
    EXPECT_EQ(alert_.before, Texts{"N"});
    EXPECT_EQ(seams_.boxes.shown, Boxes{});
}

TEST_F(GenerateNoteTest, ADialogClosedWithoutAnAnswerIsARefusal) {
    seams_.loader.on("Seleciona_Obs_Vnd_X_Ord&", observation("x"));
    session_.ConfirmaMensagem = "S";  // left from the order before
    EXPECT_EQ(generate(), GenerationEnd::Stopped);
    EXPECT_EQ(seams_.loader.queries(), Texts{saleQuery_});
}

TEST_F(GenerateNoteTest, ConfirmedObservationGoesOn) {
    seams_.loader.on("Seleciona_Obs_Vnd_X_Ord&", observation("x"));
    alert_.answer = "S";
    answers(generated_, noteDocument_);
    EXPECT_EQ(generate(), GenerationEnd::Finished);
    EXPECT_EQ(printed_.size(), 1U);
}

TEST_F(GenerateNoteTest, MissingStockMakesNoNote) {
    seams_.loader.on("Seleciona_Obs_Ord_X_Est&", observation("produto 1"));
    alert_.answer = "S";  // the notice leaves nothing to decide
    EXPECT_EQ(generate(), GenerationEnd::Stopped);
    EXPECT_EQ(seams_.loader.queries(), (Texts{saleQuery_, stockQuery_}));
    ASSERT_EQ(alert_.seen.size(), 1U);
    EXPECT_EQ(alert_.seen[0].first, AlertMode::OutOfStock);
    EXPECT_EQ(alert_.seen[0].second, "produto 1");
    EXPECT_EQ(seams_.boxes.shown, Boxes{});
}

TEST_F(GenerateNoteTest, ObservationsOutOfReachDoNotStopTheNote) {
    seams_.loader.failOn("Seleciona_Obs_Vnd_X_Ord&").failOn("Seleciona_Obs_Ord_X_Est&");
    answers(generated_, noteDocument_);
    EXPECT_EQ(generate(), GenerationEnd::Finished);
    EXPECT_EQ(seams_.boxes.shown, (Boxes{transportFailure("0004"), searchFailed,
                                         transportFailure("0004"), searchFailed}));
    EXPECT_EQ(printed_.size(), 1U);
}

TEST_F(GenerateNoteTest, ATextLeftFromTheOrderBeforeIsShownAgain) {
    seams_.loader.failOn("Seleciona_Obs_Vnd_X_Ord&");
    session_.TextoMensagem = "da ordem anterior";
    EXPECT_EQ(generate(), GenerationEnd::Stopped);
    ASSERT_EQ(alert_.seen.size(), 1U);
    EXPECT_EQ(alert_.seen[0].second, "da ordem anterior");
}

TEST_F(GenerateNoteTest, ObservationsRefusedByTheServer) {
    seams_.loader.on("Seleciona_Obs_Vnd_X_Ord&", refuse("Ordem bloqueada"));
    EXPECT_EQ(generate(), GenerationEnd::Stopped);
    EXPECT_EQ(seams_.boxes.shown, Boxes{exclamation("Ordem bloqueada")});
    EXPECT_EQ(seams_.loader.queries(), Texts{saleQuery_});
}

TEST_F(GenerateNoteTest, StockCheckRefusedByTheServer) {
    seams_.loader.on("Seleciona_Obs_Ord_X_Est&", refuse("ok"));
    EXPECT_EQ(generate(), GenerationEnd::Stopped);
    EXPECT_EQ(seams_.boxes.shown, Boxes{exclamation("ok")});
    EXPECT_EQ(seams_.loader.queries(), (Texts{saleQuery_, stockQuery_}));
}

TEST_F(GenerateNoteTest, GenerationUnknown) {
    seams_.loader.failOn("SP_GERA_NF");
    EXPECT_EQ(generate(), GenerationEnd::Finished);
    EXPECT_EQ(seams_.boxes.shown,
              (Boxes{transportFailure("0004"),
                     exclamation("Favor verificar se a Nota Fiscal foi gerada. Caso tenha sido "
                                 "gerada, utilize a tela de Reimpressão de Nota Fiscal. ",
                                 "Aviso")}));
    EXPECT_EQ(seams_.loader.queries(), (Texts{saleQuery_, stockQuery_, generateQuery_}));
    EXPECT_TRUE(printed_.empty());
}

TEST_F(GenerateNoteTest, GenerationRefused) {
    answers(refuse("Cliente sem cr&#233;dito. "), noteDocument_);
    EXPECT_EQ(generate(), GenerationEnd::Stopped);
    EXPECT_EQ(seams_.boxes.shown, Boxes{exclamation("Cliente sem crédito. ")});
    EXPECT_EQ(seams_.loader.queries(), (Texts{saleQuery_, stockQuery_, generateQuery_}));
}

TEST_F(GenerateNoteTest, GenerationWithoutStatusOrIdentity) {
    for (const std::string& answer :
         {std::string("<R a='' s='OK'><x q='1'/><y z='A'/></R>"),
          xmlDeclaration + "<R a='' s='OK'/>", xmlDeclaration + "<R a='' s='OK'><x q='1'/></R>",
          xmlDeclaration + "<R a='' s='OK'><x/><y z='A'/></R>"}) {
        TestEnvironment other;
        other.loader.on("Seleciona", observation("")).on("SP_GERA_NF", answer);
        EXPECT_THROW(generateNote(other.environment, session_, alert_, "12",
                                  [](auto&, auto&, auto&, auto&) { FAIL() << "printed"; }),
                     RuntimeError)
            << answer;
        EXPECT_EQ(other.loader.addresses.size(), 3U);
    }
}

TEST_F(GenerateNoteTest, DocumentOutOfReach) {
    seams_.loader.on("SP_GERA_NF", generated_).failOn("sel_gera_nf");
    EXPECT_EQ(generate(), GenerationEnd::Finished);
    EXPECT_EQ(seams_.boxes.shown,
              (Boxes{transportFailure("0005"),
                     exclamation("Houve um problema na transferência dos dados da Nota Fiscal nº "
                                 "555. Utilize a tela de Reimpressão de Nota Fiscal.",
                                 "Aviso")}));
    EXPECT_EQ(seams_.loader.queries(),
              (Texts{saleQuery_, stockQuery_, generateQuery_, noteQuery_}));
    EXPECT_TRUE(printed_.empty());
}

TEST_F(GenerateNoteTest, DocumentRefused) {
    answers(generated_, refuse("Nota não encontrada"));
    EXPECT_EQ(generate(), GenerationEnd::Stopped);
    EXPECT_EQ(seams_.boxes.shown, Boxes{exclamation("Nota não encontrada")});
    EXPECT_TRUE(printed_.empty());
}

TEST_F(GenerateNoteTest, TheCustomerWhoseNumberIsLostEndsTheProgramBeforeAnyByte) {
    session_.NCOMPANYCODE = 2161;
    session_.ID_ETB_TARN = 3383;
    answers(generated_, noteDocument_);
    expectFatal();
    EXPECT_EQ(seams_.boxes.shown, Boxes{});
    EXPECT_EQ(seams_.loader.addresses.size(), 4U);
}

TEST_F(GenerateNoteTest, OtherEstablishmentsOfThatCustomerPrint) {
    session_.NCOMPANYCODE = 2161;
    session_.ID_ETB_TARN = 3381;
    answers(generated_, noteDocument_);
    EXPECT_EQ(generate(), GenerationEnd::Finished);
    EXPECT_EQ(printed_.size(), 1U);
}

TEST_F(GenerateNoteTest, ThatCustomersRefusedDocumentIsOnlyShown) {
    session_.NCOMPANYCODE = 2161;
    session_.ID_ETB_TARN = 3383;
    answers(generated_, refuse("x"));
    EXPECT_EQ(generate(), GenerationEnd::Stopped);
    EXPECT_EQ(seams_.boxes.shown, Boxes{exclamation("x")});
}

}  // namespace
}  // namespace tarn::test
