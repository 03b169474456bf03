// A fiscal note from its document to the printer's socket, through a real cupsd of the
// test's own.
#include <gtest/gtest.h>

#include <fstream>
#include <iterator>
#include <memory>

#include "notes/imprime_nota.h"
#include "platform/cups/cups_spooler.h"
#include "runtime/erro_execucao.h"
#include "support/private_cupsd.h"
#include "support/test_environment.h"

namespace tarn {
namespace {

constexpr std::chrono::seconds jobLimit{30};

std::string noteFile(const char* name) {
    std::ifstream in(std::string(TARN_NOTE_DATA) + "/" + name, std::ios::binary);
    return {std::istreambuf_iterator<char>(in), std::istreambuf_iterator<char>()};
}

class CupsNoteTest : public testing::Test {
protected:
    // One server for the program: libcups remembers the first one it met.
    static void SetUpTestSuite() {
        if (PrivateCupsd::whyMissing().empty()) {
            server_ = std::make_unique<PrivateCupsd>();
            failure_ = server_->start();
        }
    }
    static void TearDownTestSuite() { server_.reset(); }

    void SetUp() override {
        if (const std::string why = PrivateCupsd::whyMissing(); !why.empty()) {
            GTEST_SKIP() << why;
        }
        ASSERT_EQ(failure_, "");
        ASSERT_FALSE(golden_.empty());
    }

    void print(Spooler& spooler, const char* noteDocument) {
        Environment ambiente{.http = seams_.loader,
                             .spooler = spooler,
                             .printer = seams_.printer,
                             .boxes = seams_.boxes,
                             .clock = seams_.clock,
                             .machine = seams_.machine,
                             .baseUrl = {}};
        Sessao sessao;
        sessao.NCOMPANYCODE = 1361;
        sessao.ID_ETB_TARN = 1;
        XmlDocument documento;
        ASSERT_TRUE(documento.loadXML(noteFile(noteDocument)));
        imprimeNota(Escada::Emissao, ambiente, sessao, documento, "4567");
    }

    const std::string golden_ = noteFile("nota_1361.prn");
    TestEnvironment seams_;

    static std::unique_ptr<PrivateCupsd> server_;
    static std::string failure_;
};

std::unique_ptr<PrivateCupsd> CupsNoteTest::server_;
std::string CupsNoteTest::failure_;

TEST_F(CupsNoteTest, SetUpAndNoteArriveByteForByteAndInOrder) {
    CupsSpooler spooler;
    for (int time = 0; time < 2; ++time) {
        print(spooler, "nota_1361.xml");
        EXPECT_EQ(server_->nextJob(jobLimit), " \x0F") << server_->errorLog();
        EXPECT_EQ(server_->nextJob(jobLimit), golden_) << server_->errorLog();
    }
}

TEST_F(CupsNoteTest, ANoteStoppedByAnErrorDoesNotHoldUpTheNext) {
    CupsSpooler spooler;
    EXPECT_THROW(print(spooler, "nota_quantidade_errada.xml"), ErroExecucao);
    EXPECT_EQ(server_->nextJob(jobLimit), " \x0F") << server_->errorLog();
    print(spooler, "nota_1361.xml");
    EXPECT_EQ(server_->nextJob(jobLimit), " \x0F") << server_->errorLog();
    EXPECT_EQ(server_->nextJob(jobLimit), golden_) << server_->errorLog();
}

}  // namespace
}  // namespace tarn
