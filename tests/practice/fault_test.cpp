// Faults told by command, seen from the network as the desk sees them.
#include "practice/server/fault.h"

#include <gtest/gtest.h>

#include <atomic>
#include <chrono>

#include "platform/curl/curl_loader.h"
#include "platform/request_line.h"
#include "tests/practice/practice_desk.h"
#include "tests/practice/serving.h"

namespace tarn::practice::test {
namespace {

constexpr const char* list = "comando=sel_ordem_fatu&ID_ETB_TARN=1361&ServerName=DADOS1361";
constexpr const char* generate =
    "COMANDO=SP_GERA_NF&ID_ETB_TARN=1361&ID_ORD_FAT=45001&ID_PES=101&ServerName=DADOS1361";
constexpr const char* versionQuery = "comando=VERSAO_TARN_EMISSAO&Versao=07/01/2009";
constexpr const char* logonQuery = "comando=LOGIN&EMPRESA=1361&USUARIO=clara&SENHA=pratica";

// A practice server with its faults, over the network.
class FaultyServer {
public:
    explicit FaultyServer(const std::vector<std::string>& faults) {
        for (const std::string& fault : faults) {
            EXPECT_EQ(plan_.add(fault), std::nullopt) << fault;
        }
    }

    HttpAnswer get(const std::string& query) { return loader_.get(serving_.baseUrl() + query); }
    httplib::Result raw(const std::string& query) {
        return serving_.get(std::string(pagePath) + '?' + requestLine(query));
    }
    Desk& desk() { return desk_; }
    const Serving& serving() const { return serving_; }
    void awaitRequest() const {
        while (requests_ == 0) {
            std::this_thread::yield();
        }
    }

private:
    Desk desk_;
    FaultPlan plan_;
    std::atomic<int> requests_ = 0;
    Serving serving_{[this](std::string_view query) {
        ++requests_;
        return answeredPage(desk_.server(), plan_, query);
    }};
    CurlLoader loader_;
};

bool parses(const std::string& body) {
    XmlDocument document;
    return document.loadXML(body);
}

XmlDocument parsed(const std::string& body) {
    XmlDocument document;
    EXPECT_TRUE(document.loadXML(body)) << body;
    return document;
}

constexpr std::size_t orderCount = 23;

TEST(Fault, StrikesTheCommandToldAndNoOther) {
    FaultyServer server({"SEL_NF=500"});
    EXPECT_EQ(rowsOf(parsed(server.get(list).body)).size(), orderCount);
    EXPECT_FALSE(server.get("comando=SEL_NF&ID_ETB_TARN=1361&ServerName=DADOS1361").loaded);
}

TEST(Fault, RefusesInTheCommandsOwnShape) {
    FaultyServer server({"SP_GERA_NF=recusa", "sel_ordem_fatu=recusa", "VERSAO_TARN_EMISSAO=recusa",
                         "LOGIN=recusa"});
    const std::string words =
        "Recusa de treino: o servidor de prática não atende a este comando. Tente mais tarde.";
    EXPECT_EQ(statusOf(parsed(server.get(generate).body)), words);
    EXPECT_TRUE(rowsOf(parsed(server.get(list).body)).empty());
    const XmlDocument version = parsed(server.get(versionQuery).body);
    EXPECT_EQ(version.child(1).child(0).attributes().item(0).text(), words);
    const XmlDocument logon = parsed(server.get(logonQuery).body);
    EXPECT_EQ(logon.child(1).nodeName(), "PRINCIPAL");
    EXPECT_EQ(statusOf(logon), words);
    EXPECT_EQ(server.desk().orders().size(), orderCount);
}

TEST(Fault, ClosesBeforeTheBodyWithoutCarryingOut) {
    FaultyServer server({"SP_GERA_NF=fecha-antes"});
    EXPECT_FALSE(server.get(generate).loaded);
    EXPECT_FALSE(server.raw(generate));
    EXPECT_EQ(server.desk().orders().size(), orderCount);
}

TEST(Fault, ClosesInTheMiddleOfTheBodyOfWhatWasCarriedOut) {
    FaultyServer server({"SP_GERA_NF=fecha-no-meio"});
    EXPECT_FALSE(server.get(generate).loaded);
    EXPECT_EQ(server.desk().orders().size(), orderCount - 1);
}

TEST(Fault, ResetsTheConnection) {
    FaultyServer before({"SP_GERA_NF=reset-antes"});
    EXPECT_FALSE(before.get(generate).loaded);
    EXPECT_EQ(before.desk().orders().size(), orderCount);
    for (const char* place : {"cabecalho", "meio"}) {
        FaultyServer server({std::string("SP_GERA_NF=reset-no-") + place});
        EXPECT_FALSE(server.get(generate).loaded);
        EXPECT_FALSE(server.raw(generate));
        EXPECT_EQ(server.desk().orders().size(), orderCount - 1) << place;
    }
}

TEST(Fault, CallsTheWholeAnswerAPart) {
    FaultyServer server({"sel_ordem_fatu=206"});
    EXPECT_FALSE(server.get(list).loaded);
    const auto answer = server.raw(list);
    ASSERT_TRUE(answer);
    EXPECT_EQ(answer->status, 206);
    EXPECT_EQ(rowsOf(parsed(answer->body)).size(), orderCount);
}

class FaultStatus : public testing::TestWithParam<int> {};

TEST_P(FaultStatus, AnswersWithAnErrorAndCarriesNothingOut) {
    FaultyServer server({"SP_GERA_NF=" + std::to_string(GetParam())});
    EXPECT_FALSE(server.get(generate).loaded);
    const auto answer = server.raw(generate);
    ASSERT_TRUE(answer);
    EXPECT_EQ(answer->status, GetParam());
    EXPECT_EQ(answer->get_header_value("Content-Type"), "text/html; charset=utf-8");
    EXPECT_NE(answer->body.find("<html>"), std::string::npos);
    EXPECT_EQ(server.desk().orders().size(), orderCount);
}

INSTANTIATE_TEST_SUITE_P(Http, FaultStatus, testing::Values(404, 500));

TEST(Fault, SendsAnEmptyBody) {
    FaultyServer server({"SP_GERA_NF=vazio"});
    const auto answer = server.raw(generate);
    ASSERT_TRUE(answer);
    EXPECT_EQ(answer->status, 200);
    EXPECT_EQ(answer->body, "");
    EXPECT_EQ(server.desk().orders().size(), orderCount - 1);
}

TEST(Fault, SendsAPageThatIsNoXml) {
    FaultyServer server({"SP_GERA_NF=html"});
    const auto answer = server.raw(generate);
    ASSERT_TRUE(answer);
    EXPECT_EQ(answer->status, 200);
    EXPECT_EQ(answer->get_header_value("Content-Type"), "text/html; charset=utf-8");
    EXPECT_FALSE(parses(answer->body));
    EXPECT_EQ(server.desk().orders().size(), orderCount - 1);
}

TEST(Fault, CutsTheXmlAsIfItWereAll) {
    FaultyServer server({"sel_ordem_fatu=cortado"});
    const HttpAnswer answer = server.get(list);
    EXPECT_TRUE(answer.loaded);
    EXPECT_EQ(answer.body.rfind("<?xml", 0), 0U);
    EXPECT_FALSE(parses(answer.body));
}

TEST(Fault, LeavesTheDeclarationOut) {
    FaultyServer server({"LOGIN=sem-declaracao"});
    const HttpAnswer answer = server.get(logonQuery);
    EXPECT_TRUE(answer.loaded);
    const XmlDocument document = parsed(answer.body);
    EXPECT_EQ(document.childCount(), 1U);
    EXPECT_EQ(document.child(0).nodeName(), "PRINCIPAL");
    EXPECT_EQ(field(document.child(0).child(0), "COMPANYNAME"),
              "Comércio de Ferragens Três Irmãos Ltda");
}

// Also where the answer itself has no accent at all.
TEST(Fault, DeclaresAnotherEncodingThanItsOwn) {
    FaultyServer server({"VERSAO_TARN_EMISSAO=codificacao-errada"});
    const HttpAnswer answer = server.get(versionQuery);
    EXPECT_TRUE(answer.loaded);
    EXPECT_NE(answer.body.find("encoding=\"utf-8\""), std::string::npos) << answer.body;
    EXPECT_FALSE(parses(answer.body));
}

TEST(Fault, AnswersLate) {
    FaultyServer server({"VERSAO_TARN_EMISSAO=lento:1"});
    const auto begin = std::chrono::steady_clock::now();
    EXPECT_TRUE(parses(server.get(versionQuery).body));
    EXPECT_GE(std::chrono::steady_clock::now() - begin, std::chrono::seconds(1));
}

// The server ends at once, even while clients are waiting.
TEST(Fault, ALateAnswerDoesNotKeepTheServerFromEnding) {
    const auto begin = std::chrono::steady_clock::now();
    std::thread waiting;
    {
        FaultyServer server({"VERSAO_TARN_EMISSAO=lento:3600"});
        waiting = std::thread([target = server.serving().baseUrl()] {
            CurlLoader loader;
            loader.get(target + versionQuery);
        });
        server.awaitRequest();
    }
    waiting.join();
    EXPECT_LT(std::chrono::steady_clock::now() - begin, std::chrono::minutes(1));
}

TEST(Fault, SendsMoreThanTheDeskTakes) {
    FaultyServer server({"VERSAO_TARN_EMISSAO=enorme"});
    EXPECT_FALSE(server.get(versionQuery).loaded);
    const auto answer = server.raw(versionQuery);
    ASSERT_TRUE(answer);
    EXPECT_GT(answer->body.size(), 16U << 20);
    EXPECT_EQ(answer->body.rfind("<?xml", 0), 0U);
}

TEST(Fault, IsToldByTheCommandsNameInAnyCase) {
    FaultPlan plan;
    EXPECT_TRUE(plan.empty());
    EXPECT_EQ(plan.add("sp_gera_nf=500"), std::nullopt);
    EXPECT_EQ(plan.add("SP_GERA_NF=lento:2"), std::nullopt);
    ASSERT_TRUE(plan.of("SP_GERA_NF"));
    EXPECT_EQ(plan.of("SP_GERA_NF")->kind, FaultKind::Slow);
    EXPECT_EQ(plan.of("SP_GERA_NF")->wait, std::chrono::seconds(2));
    EXPECT_FALSE(plan.of("LOGIN"));
}

TEST(Fault, IsTakenAsItIsForACommandOfTheCatalogue) {
    FaultPlan plan;
    EXPECT_TRUE(plan.add("LOGIN", Fault{FaultKind::Refuse, {}}));
    EXPECT_TRUE(plan.add("login", Fault{FaultKind::Slow, std::chrono::milliseconds(20)}));
    ASSERT_TRUE(plan.of("LOGIN"));
    EXPECT_EQ(plan.of("LOGIN")->kind, FaultKind::Slow);
    EXPECT_EQ(plan.of("LOGIN")->wait, std::chrono::milliseconds(20));
    FaultPlan none;
    EXPECT_FALSE(none.add("NADA", Fault{}));
    EXPECT_TRUE(none.empty());
}

TEST(Fault, SaysWhyItCannotBeTaken) {
    FaultPlan plan;
    EXPECT_EQ(plan.add("LOGIN"),
              "A falha \"LOGIN\" não diz de que comando. Escreva --falha COMANDO=FALHA.");
    EXPECT_EQ(plan.add("NADA=500"),
              "O comando \"NADA\" não existe neste servidor. Confira --falha.");
    EXPECT_EQ(plan.add("LOGIN=501"),
              "A falha \"501\" não existe. Use recusa, fecha-antes, fecha-no-meio, reset-antes, "
              "reset-no-cabecalho, reset-no-meio, 404, 500, 206, vazio, html, cortado, "
              "sem-declaracao, codificacao-errada, lento[:SEGUNDOS], enorme.");
    for (const char* wrong : {"LOGIN=", "LOGIN=lento:", "LOGIN=lento:x", "LOGIN=lento:3601",
                              "LOGIN=500:1", "=500", ""}) {
        EXPECT_NE(plan.add(wrong), std::nullopt) << wrong;
    }
    EXPECT_TRUE(plan.empty());
}

}  // namespace
}  // namespace tarn::practice::test
