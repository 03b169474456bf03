// The slips of tarnimprime and the rules of their numbers.
#include "tests/apps/tarnimprime_run.h"

namespace tarn::test {

namespace {

constexpr char selectOne[] = "TArn: Selecione um item na Lista!     \n";

std::string slipData(const std::string& name) {
    return std::string(TARN_SLIP_DATA) + "/" + name;
}

class TarnimprimeSlips : public Tarnimprime {
protected:
    Result print(const std::string& portfolio, const std::string& first,
                 const std::vector<std::string>& more = {}) const {
        std::vector<std::string> words = {"--destino", file("papel"), "boletos",
                                          "--empresa", "2161",        "--estabelecimento",
                                          "9",         "--carteira",  slipData(portfolio),
                                          "--proximo", first};
        words.insert(words.end(), more.begin(), more.end());
        words.push_back(slipData("documents.xml"));
        return run(words);
    }
    std::string requests() const { return job("requests.txt"); }
};

const std::string preparation = " \x0F\x1BM";

TEST_F(TarnimprimeSlips, EachTickedRowIsASlipButForAForeignBanks) {
    const Result result = print("portfolio_57.xml", "1234");
    EXPECT_EQ(result.status, 0) << result.err;
    EXPECT_EQ(result.out + result.err, "");
    EXPECT_EQ(job("job-001.prn"), preparation);
    EXPECT_EQ(job("job-002.prn"), contentOf(slipData("slip_57_jose.prn")));
    EXPECT_EQ(job("job-003.prn"), preparation);
    EXPECT_EQ(job("job-004.prn"),
              " \x1B"
              "2 \x0F\x1BG")
        << "left open";
    EXPECT_EQ(job("job-005.prn"), preparation);
    EXPECT_EQ(job("job-006.prn"), contentOf(slipData("slip_57_maria.prn")));
    EXPECT_FALSE(hasJob("job-007.prn"));
    EXPECT_EQ(requests(),
              "comando=altera_docto_cob&ID_ETB=3381&ID_TIP_DOC=201&NR_DOC=4567/1"
              "&NR_BOL_BANC=1234&ServerName=SRV\n"
              "comando=insere_car_cob&ID_EMP_TARN=2161&ID_ETB=3381&ID_TIP_DOC=201&NR_DOC=4567/1"
              "&ID_CRT_COB=5&NR_BOL_BANC=1234&ID_PES_USU=U1&ServerName=SRV\n"
              "comando=altera_docto_rec&ID_ETB=3382&ID_NR_CTL=70\\\\02&ServerName=SRV"
              "&NR_BOL_BANC=1235\n"
              "comando=insere_car_rec&ID_EMP_TARN=2161&ID_ETB=3382&ID_NR_CTL=70\\\\02"
              "&ID_CRT_COB=5&NR_BOL_BANC=1235&ID_PES_USU=U1&ServerName=SRV\n");
}

TEST_F(TarnimprimeSlips, TheOtherWalletsWriteOnceUnderTheirSpelling) {
    const Result result = print("portfolio_101.xml", "9", {"--marca", "1,3"});
    EXPECT_EQ(result.status, 0) << result.err;
    EXPECT_EQ(job("job-002.prn"), contentOf(slipData("slip_7_jose.prn")));
    EXPECT_EQ(job("job-004.prn"), contentOf(slipData("slip_7_maria.prn")));
    EXPECT_FALSE(hasJob("job-005.prn"));
    EXPECT_EQ(requests(),
              "comando=altera_docto_cob&ID_ETB=3381&ID_TIP_DOC=201&NR_DOC=4567/1"
              "&NR_BOL_BANC=00000094&ServerName=SRV\n"
              "comando=altera_docto_rec&ID_ETB=3382&ID_NR_CLT=70\\\\02&ServerName=SRV"
              "&NR_BOL_BANC=00000108\n");
}

TEST_F(TarnimprimeSlips, WithThePortfolioIncludedItsBankCounts) {
    EXPECT_EQ(print("portfolio_57.xml", "1234", {"--inclui-carteira", "--marca", "2"}).status, 0);
    EXPECT_NE(job("job-002.prn").find("OUTRO BANCO LTDA"), std::string::npos);
}

TEST_F(TarnimprimeSlips, NothingTicked) {
    for (const std::vector<std::string>& none :
         {std::vector<std::string>{"--marca", ""}, std::vector<std::string>{"--marca="}}) {
        const Result result = print("portfolio_57.xml", "1234", none);
        EXPECT_EQ(result.status, 0);
        EXPECT_EQ(result.err, selectOne);
        EXPECT_FALSE(hasJob("job-001.prn"));
        EXPECT_TRUE(hasJob("requests.txt"));
        EXPECT_EQ(requests(), "");
    }
}

TEST_F(TarnimprimeSlips, OnlyAForeignBanksRow) {
    const Result result = print("portfolio_57.xml", "1234", {"--marca", "2"});
    EXPECT_EQ(result.status, 0);
    EXPECT_EQ(result.err, selectOne);
    EXPECT_EQ(job("job-002.prn"),
              " \x1B"
              "2 \x0F\x1BG");
    EXPECT_EQ(requests(), "");
}

TEST_F(TarnimprimeSlips, AnEmptyNumberIsAskedFor) {
    const Result result = print("portfolio_57.xml", "");
    EXPECT_EQ(result.status, 0);
    EXPECT_EQ(result.err, "TArn: Nr. Boleto Bancário é um campo obrigatório!     \n");
    EXPECT_FALSE(hasJob("job-001.prn"));
}

TEST_F(TarnimprimeSlips, RunTimeErrorsKeepWhatIsOut) {
    Result result = print("portfolio_short.xml", "1234");
    EXPECT_EQ(result.status, 3);
    EXPECT_NE(result.err.find("Erro em tempo de execução '5'"), std::string::npos) << result.err;
    EXPECT_EQ(job("job-002.prn"),
              " \x1B"
              "2 \x0F\x1BG");
    EXPECT_EQ(requests(), "");
    result = print("portfolio_101.xml", "9999999");
    EXPECT_EQ(result.status, 3);
    EXPECT_NE(result.err.find("Erro em tempo de execução '5'"), std::string::npos) << result.err;
    EXPECT_NE(job("job-002.prn").find("N.N.  9999999-4\r\n"), std::string::npos);
    EXPECT_NE(requests().find("&NR_BOL_BANC=99999994&"), std::string::npos);
    result = print("portfolio_57.xml", "1e3");
    EXPECT_EQ(result.status, 3);
    EXPECT_NE(result.err.find("Erro em tempo de execução '13'"), std::string::npos) << result.err;
}

TEST_F(TarnimprimeSlips, RowsThatAreNoneAreWrongUsage) {
    for (const char* rows : {"0", "4", "x", "1,,2", "-1", "1;2", "1.5"}) {
        const Result result = print("portfolio_57.xml", "1", {std::string("--marca=") + rows});
        EXPECT_EQ(result.status, 1) << rows;
        EXPECT_NE(result.err.find("--marca pede"), std::string::npos) << result.err;
        EXPECT_FALSE(hasJob("job-001.prn"));
    }
    EXPECT_EQ(print("portfolio_57.xml", "1", {"--marca", "3, 1"}).status, 0);
    EXPECT_TRUE(hasJob("job-004.prn"));
}

TEST_F(TarnimprimeSlips, SeveralFilesGoOnWithTheNumbers) {
    EXPECT_EQ(print("portfolio_101.xml", "8", {"--marca", "1", slipData("documents.xml")}).status,
              0);
    EXPECT_NE(job("job-002.prn").find("N.N.  0000008-6"), std::string::npos);
    EXPECT_EQ(job("job-004.prn"), contentOf(slipData("slip_7_jose.prn")));
    EXPECT_FALSE(hasJob("job-005.prn"));
}

TEST_F(TarnimprimeSlips, RequestsThatCannotBeKeptAreToldBeforePaperIsSpent) {
    fs::create_directories(room_ / "papel" / "requests.txt");
    const Result result = print("portfolio_57.xml", "1");
    EXPECT_EQ(result.status, 1);
    EXPECT_NE(result.err.find("requests.txt"), std::string::npos) << result.err;
    EXPECT_FALSE(hasJob("job-001.prn"));
}

TEST_F(TarnimprimeSlips, WrongUsage) {
    EXPECT_EQ(print("falta.xml", "1").status, 1);
    EXPECT_EQ(run({"boletos", "--destino", file("papel"), "--empresa", "1", "--estabelecimento",
                   "1", "--proximo", "1", slipData("documents.xml")})
                  .status,
              1);
    EXPECT_FALSE(hasJob("job-001.prn"));
}

TEST_F(Tarnimprime, CheckDigits) {
    EXPECT_EQ(shown({"digito10", "1234", "1123", "456789"}), "7\n");
    EXPECT_EQ(shown({"digito10", "1234", "112-3", "45678-9"}), "7\n");
    EXPECT_EQ(shown({"digito10", "0", "0000", "000000"}), "0\n");
    EXPECT_EQ(shown({"digito11", "1234567"}), "9\n");
    EXPECT_EQ(shown({"digito11", "5"}), "1\n");
    EXPECT_EQ(shown({"digito11", "6"}), "0\n");
    EXPECT_EQ(run({"digito10", "1234", "1123", "45678"}).status, 3);
    EXPECT_NE(run({"digito10", "1234", "1123", "45678X"}).err.find("'13'"), std::string::npos);
    EXPECT_NE(run({"digito11", "abc"}).err.find("'13'"), std::string::npos);
    EXPECT_EQ(run({"digito11"}).status, 1);
}

}  // namespace
}  // namespace tarn::test
