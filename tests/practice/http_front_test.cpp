#include "practice/server/http_front.h"

#include <gtest/gtest.h>
#include <httplib.h>

#include <stdexcept>
#include <thread>

#include "tests/practice/practice_desk.h"
#include "tests/practice/serving.h"

namespace tarn::practice::test {
namespace {

TEST(HttpFront, HandsOnTheQueryAsItCame) {
    std::string seen;
    const Serving serving([&seen](std::string_view query) {
        seen = query;
        return std::string("<R/>");
    });
    const auto result =
        serving.get("/Kestomain/TarnEmissao.asp?comando=X&A=a+b%E7%23&B=50%&C=1=2?&D=??");
    ASSERT_TRUE(result);
    EXPECT_EQ(result->status, 200);
    EXPECT_EQ(result->body, "<R/>");
    EXPECT_EQ(result->get_header_value("Content-Type"), "text/xml; charset=windows-1252");
    EXPECT_EQ(seen, "comando=X&A=a+b%E7%23&B=50%&C=1=2?&D=??");
}

TEST(HttpFront, HandsOnALongQueryWhole) {
    std::string seen;
    const Serving serving([&seen](std::string_view query) {
        seen = query;
        return std::string("<R/>");
    });
    const std::string query = "A=" + std::string(6000, '?');
    const auto result = serving.get("/Kestomain/TarnEmissao.asp?" + query);
    ASSERT_TRUE(result);
    EXPECT_EQ(result->status, 200);
    EXPECT_EQ(seen, query);
}

TEST(HttpFront, SendsTheBodyUncompressed) {
    const Serving serving([](std::string_view) { return std::string(5000, ' ') + "<R/>"; });
    httplib::Client client("127.0.0.1", serving.port());
    client.set_decompress(false);
    const auto result = client.Get(std::string(pagePath) + "?comando=X",
                                   {{"Accept-Encoding", "br, gzip, deflate"}});
    ASSERT_TRUE(result);
    EXPECT_FALSE(result->has_header("Content-Encoding"));
    EXPECT_EQ(result->body.size(), 5004U);
}

TEST(HttpFront, ServesOnePageOnly) {
    const Serving serving([](std::string_view) { return std::string("<R/>"); });
    const auto other = serving.get("/outra?comando=X");
    ASSERT_TRUE(other);
    EXPECT_EQ(other->status, 404);
    httplib::Client client("127.0.0.1", serving.port());
    const auto posted = client.Post("/Kestomain/TarnEmissao.asp?comando=X", "", "text/plain");
    ASSERT_TRUE(posted);
    EXPECT_EQ(posted->status, 404);
}

TEST(HttpFront, AFailureIsAServerErrorInItsWords) {
    const Serving serving(
        [](std::string_view) -> std::string { throw std::runtime_error("O banco parou."); });
    const auto result = serving.get("/Kestomain/TarnEmissao.asp?comando=X");
    ASSERT_TRUE(result);
    EXPECT_EQ(result->status, 500);
    EXPECT_EQ(result->body, "O banco parou.");
}

TEST(HttpFront, RefusesABusyPort) {
    const Serving serving([](std::string_view) { return std::string("<R/>"); });
    HttpFront second([](std::string_view) { return std::string(); }, "text/xml");
    try {
        second.bind("127.0.0.1", serving.port());
        FAIL() << "the port was taken twice";
    } catch (const std::runtime_error& error) {
        EXPECT_EQ(std::string(error.what()),
                  "Não foi possível usar a porta " + std::to_string(serving.port()) +
                      " do endereço 127.0.0.1: já está ocupada por outro programa. Escolha outra "
                      "com --porta, ou 0 para uma porta livre qualquer.");
    }
}

TEST(HttpFront, StopsBeforeItEverServed) {
    HttpFront front([](std::string_view) { return std::string(); }, "text/xml");
    front.bind("127.0.0.1", 0);
    std::thread serving([&front] { front.serve(); });
    front.stop();
    serving.join();
}

TEST(HttpFront, ServesAWholeSaleOverTheNetwork) {
    Desk desk;
    const Serving serving([&desk](std::string_view query) { return desk.server().answer(query); });
    const auto result = serving.get(
        "/Kestomain/TarnEmissao.asp?COMANDO=MANUTENCAO_OFT&ID_ETB_TARN=1361&ID_ORD_FAT=45001"
        "&ServerName=DADOS1361&DC_OBS=a%E7%E3o%7C%7C&QT_ESP=1,000&PESO_BRU=1&PESO_LIQ=1");
    ASSERT_TRUE(result);
    XmlDocument document;
    ASSERT_TRUE(document.loadXML(result->body));
    EXPECT_EQ(statusOf(document), "OK");
    const XmlDocument list =
        desk.ask("comando=sel_ordem_fatu&ID_ETB_TARN=1361&ServerName=DADOS1361");
    EXPECT_EQ(field(rowsOf(list).front(), "DC_OBS"), "ação%");
}

}  // namespace
}  // namespace tarn::practice::test
