#include "gateway/carrega_xml.h"

#include <gtest/gtest.h>

#include <filesystem>
#include <stdexcept>

#include "tests/support/boxes.h"
#include "tests/support/files.h"
#include "tests/support/test_environment.h"

namespace tarn::test {
namespace {

namespace fs = std::filesystem;

class FailingLoader : public HttpLoader {
public:
    HttpAnswer get(const std::string&) override { throw std::runtime_error("memória esgotada"); }
};

class CarregaXMLTest : public testing::Test {
public:
    ~CarregaXMLTest() override {
        fs::current_path(before_);
        fs::remove_all(folder_);
    }

protected:
    CarregaXMLTest() {
        fs::create_directories(folder_);
        fs::current_path(folder_);
    }

    bool load(const std::string& file = "", int save = 0, const std::string& message = "não veio") {
        return CarregaXML(seams_.environment, seams_.environment.baseUrl + "comando=x", document_,
                          false, file, save, "", message);
    }

    fs::path before_ = fs::current_path();
    fs::path folder_ = fs::temp_directory_path() /
                       ("tarn_carrega_" +
                        std::string(testing::UnitTest::GetInstance()->current_test_info()->name()));
    TestEnvironment seams_;
    XmlDocument document_;
};

TEST_F(CarregaXMLTest, LoadsOnceAndShowsNothing) {
    seams_.loader.on("comando=x", "<R/>");
    EXPECT_TRUE(load());
    EXPECT_EQ(document_.documentElement().nodeName(), "R");
    EXPECT_EQ(seams_.loader.addresses, std::vector<std::string>{"http://servidor/p.asp?comando=x"});
    EXPECT_TRUE(seams_.boxes.shown.empty());
}

TEST_F(CarregaXMLTest, UnreachableAndIllFormedAreOneFailure) {
    const Box expected = requestFailure("não veio");
    seams_.loader.failOn("comando=x").on("comando=x", "<html><br></html>").on("comando=x", "");
    for (int i = 1; i <= 3; ++i) {
        EXPECT_FALSE(load());
        EXPECT_TRUE(document_.empty());
        EXPECT_EQ(seams_.boxes.shown, std::vector<Box>(static_cast<std::size_t>(i), expected));
    }
    EXPECT_EQ(seams_.loader.addresses.size(), 3U);
}

TEST_F(CarregaXMLTest, WithoutAMessageAFailureIsSilent) {
    EXPECT_FALSE(load("", 0, ""));
    EXPECT_TRUE(seams_.boxes.shown.empty());
    EXPECT_TRUE(fs::is_empty(folder_));
}

TEST_F(CarregaXMLTest, AnErrorInsideIsShownByItsDescription) {
    FailingLoader failing;
    Environment environment = seams_.with(failing);
    EXPECT_FALSE(
        CarregaXML(environment, "http://servidor/p.asp?x", document_, false, "", 0, "", "m"));
    EXPECT_EQ(seams_.boxes.shown,
              (std::vector<Box>{
                  {.text = "memória esgotada", .icon = BoxIcon::Critical, .title = "Aviso"}}));
}

// So that a loader with a thread of its own parses there.
TEST_F(CarregaXMLTest, TheLoaderReadsTheAnswer) {
    class ReadingLoader : public HttpLoader {
    public:
        bool inLoader = false;
        HttpAnswer get(const std::string&) override { return {}; }
        bool load(const std::string&, const BodyReader& read) override {
            inLoader = read("<R/>");
            return inLoader;
        }
    } reading;
    Environment environment = seams_.with(reading);
    EXPECT_TRUE(
        CarregaXML(environment, "http://servidor/p.asp?x", document_, false, "", 0, "", "m"));
    EXPECT_TRUE(reading.inLoader);
    EXPECT_EQ(document_.documentElement().nodeName(), "R");
}

TEST_F(CarregaXMLTest, NoCopyUnlessNameAndPositiveWish) {
    seams_.loader.on("comando=x", "<R/>");
    EXPECT_TRUE(load("", 1));
    EXPECT_TRUE(load("copia", 0));
    EXPECT_TRUE(load("copia", -1));
    EXPECT_TRUE(fs::is_empty(folder_));
}

TEST_F(CarregaXMLTest, KeepsACopyAndAFailedLoadDeletesIt) {
    seams_.loader.on("comando=x", "<?xml version='1.0'?><R a='1'/>").failOn("comando=x");
    EXPECT_TRUE(load("copia", 1));
    EXPECT_NE(contentOf("copia.XML").find("<R a=\"1\"/>"), std::string::npos);
    EXPECT_FALSE(load("copia", 1));
    EXPECT_FALSE(fs::exists("copia.XML"));
    EXPECT_FALSE(load("copia", 1));  // nothing to delete is no failure of its own
    EXPECT_EQ(seams_.boxes.shown.size(), 2U);
}

TEST_F(CarregaXMLTest, TheCopysNameBeginsWithThePrefix) {
    seams_.loader.on("comando=x", "<R/>").failOn("comando=x");
    fs::create_directory("copias");
    const auto get = [this] {
        return CarregaXML(seams_.environment, seams_.environment.baseUrl + "comando=x", document_,
                          false, "copia", 1, "", "", "copias/9_");
    };
    EXPECT_TRUE(get());
    EXPECT_TRUE(fs::exists("copias/9_copia.XML"));
    EXPECT_FALSE(fs::exists("copia.XML"));
    EXPECT_FALSE(get());
    EXPECT_FALSE(fs::exists("copias/9_copia.XML"));
}

TEST_F(CarregaXMLTest, ACopyThatCannotBeWrittenFailsTheLoad) {
    seams_.loader.on("comando=x", "<R/>");
    EXPECT_FALSE(load("sem/esta/pasta", 1));
    ASSERT_EQ(seams_.boxes.shown.size(), 1U);
    EXPECT_EQ(seams_.boxes.shown[0].icon, BoxIcon::Critical);
    EXPECT_EQ(seams_.boxes.shown[0].title, "Aviso");
    EXPECT_EQ(seams_.boxes.shown[0].text, "Não foi possível gravar o arquivo sem/esta/pasta.XML.");
}

}  // namespace
}  // namespace tarn::test
