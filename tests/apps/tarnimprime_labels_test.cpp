// Labels from saved answers.
#include <algorithm>
#include <sstream>

#include "tests/apps/tarnimprime_run.h"

namespace tarn::test {

namespace {

std::string labelData(const std::string& name) {
    return std::string(TARN_LABEL_DATA) + "/" + name;
}

// The texts as they were written into a file of 8 bits a character.
std::string latin1(const std::string& utf8) {
    std::string out;
    for (std::size_t i = 0; i < utf8.size(); ++i) {
        const auto byte = static_cast<unsigned char>(utf8[i]);
        out += byte < 0x80 ? utf8[i] : static_cast<char>(((byte & 0x03) << 6) | (utf8[++i] & 0x3F));
    }
    return out;
}

class TarnimprimeLabels : public Tarnimprime {
protected:
    Result print(const std::string& form, const std::vector<std::string>& more = {}) const {
        std::vector<std::string> words = {"etiquetas",   "--formulario",          form,
                                          "--remetente", labelData("sender.xml"), "--destino",
                                          file("papel")};
        words.insert(words.end(), more.begin(), more.end());
        words.push_back(labelData("labels.xml"));
        return run(words);
    }
    Result printSelected(const std::vector<std::string>& more) const {
        std::vector<std::string> words = {"etiquetas-selecao", "--destino", file("papel"),
                                          "--formato", "ops"};
        words.insert(words.end(), more.begin(), more.end());
        words.push_back(labelData("customers.xml"));
        return run(words);
    }
    std::vector<std::string> ops() const {
        std::istringstream in(job("job-001.ops"));
        std::vector<std::string> lines;
        for (std::string line; std::getline(in, line);) {
            lines.push_back(line);
        }
        return lines;
    }
};

constexpr char printed[] = "TArn:  Etiquetas impressas com sucesso!   \n";
constexpr char made[] = "Alerta: Impressão Gerada com Sucesso !\n";

TEST_F(TarnimprimeLabels, ThreeAcrossOnTheFirstForm) {
    const Result result = print("1", {"--formato", "ops"});
    EXPECT_EQ(result.status, 0);
    EXPECT_EQ(result.err, printed);
    const std::vector<std::string> lines = ops();
    ASSERT_EQ(lines.size(), 2U + 5U * 8U + 2U);
    EXPECT_EQ(lines[0], "scale\t7");
    EXPECT_EQ(lines[1], "orientation\t1");
    EXPECT_EQ(lines[2], "text\t0.500\t1.200\tArial\t6\t1\tPADARIA PÃO QUENTE LTDA");
    EXPECT_EQ(lines[10], "text\t7.500\t1.200\tArial\t6\t1\tJOÃO DA SILVA");
    EXPECT_EQ(lines[12], "text\t7.500\t1.800\tArial\t6\t1\t") << "an empty text, too";
    EXPECT_EQ(lines[29], "text\t3.900\t4.300\tArial\t6\t1\tBAIRRO COM UM NOME MUITO");
    EXPECT_EQ(lines[42], "newpage");
    EXPECT_EQ(lines[43], "enddoc");
    EXPECT_FALSE(hasJob("job-002.ops"));
}

TEST_F(TarnimprimeLabels, TheRawFormIsTwoJobs) {
    const Result result = print("2");
    EXPECT_EQ(result.status, 0);
    EXPECT_EQ(result.err, "") << "no box";
    EXPECT_EQ(job("job-001.prn"), " \x0F\x1BM");
    const auto field = [](const std::string& utf8, std::size_t width) {
        std::string text = latin1(utf8);
        text.resize(width, ' ');
        return text;
    };
    const std::string bytes = job("job-002.prn");
    const std::string gap7(8, ' ');
    const std::string gap12(13, ' ');
    const std::string names = " " + field("PADARIA PÃO QUENTE LTDA", 55) + gap7 +
                              field("JOÃO DA SILVA", 55) + gap12 +
                              field("COMÉRCIO DE PEÇAS E ACESSÓRIOS AUTOMOTIVOS IRMÃOS CONCE", 55) +
                              gap12 + field("ANA", 55) + " \r\n";
    EXPECT_EQ(bytes.substr(0, names.size()), names);
    const std::string last = " " + field("CASA & CIA", 55) + " \r\n " +
                             field("PRAÇA DA SÉ, 5", 55) + " \r\n " + field("CJ 12", 27) + "  " +
                             field("SÉ", 26) + " \r\n " + field("SÃO PAULO", 27) + "  " +
                             field("SP", 26) + " \r\n " + field("01001-000", 27) + "  " +
                             field("1005", 26) + " \r\n\r\n";
    EXPECT_EQ(bytes.substr(bytes.size() - last.size()), last);
    EXPECT_FALSE(hasJob("job-003.prn"));
}

TEST_F(TarnimprimeLabels, TheThirdAndFourthForm) {
    EXPECT_EQ(print("3", {"--formato", "ops"}).status, 0);
    // Three of the five names have more than ten characters.
    EXPECT_EQ(ops().size(), 2U + 5U * 8U + 3U + 2U);
    EXPECT_EQ(print("4", {"--formato", "ops"}).status, 0);
    const std::vector<std::string> withSender = ops();
    // One of the five names takes two lines.
    ASSERT_EQ(withSender.size(), 2U + 5U * (13U + 12U + 1U) + 1U + 1U);
    EXPECT_EQ(withSender[2], "text\t0.500\t0.500\tArial\t13\t1\tDESTINATÁRIO");
    EXPECT_EQ(withSender[17], "text\t0.500\t16.500\tArial\t20\t1\tDISTRIBUIDORA SÃO JORGE LTDA");
    EXPECT_EQ(withSender[21], "text\t12.500\t18.100\tArial\t20\t1\t") << "a blank description";
    EXPECT_EQ(std::count(withSender.begin(), withSender.end(), "newpage"), 5);
    EXPECT_EQ(print("9", {"--formato", "ops"}).status, 0);
    EXPECT_EQ(ops(), withSender) << "any other number is the fourth form";
}

TEST_F(TarnimprimeLabels, DrawnFormsAsPdf) {
    EXPECT_EQ(print("1").status, 0);
    EXPECT_EQ(job("job-001.pdf").substr(0, 5), "%PDF-");
}

// A folder where the file would go takes no page.
TEST_F(TarnimprimeLabels, ARefusedSheetIsAFailure) {
    fs::create_directories(file("papel/job-001.ops"));
    const std::string reason = "não foi possível gravar na pasta";
    for (const Result& result : {print("1", {"--formato", "ops"}), printSelected({})}) {
        EXPECT_EQ(result.status, 1);
        EXPECT_NE(result.err.find(reason), std::string::npos) << result.err;
        EXPECT_NE(result.err.find("tarnimprime: a impressora recusou o documento"),
                  std::string::npos)
            << result.err;
    }
}

TEST_F(TarnimprimeLabels, WithoutLabelsNothingIsEnded) {
    std::ofstream(file("vazio.xml")) << "<xml xmlns:rs='r'><rs:data/></xml>";
    const Result result =
        run({"etiquetas", "--formulario", "1", "--remetente", labelData("sender.xml"), "--destino",
             file("papel"), "--formato", "ops", file("vazio.xml")});
    EXPECT_EQ(result.status, 0);
    EXPECT_EQ(result.err, "TArn:  Não há Etiquetas nesse intervalo!   \n");
    EXPECT_EQ(job("job-001.ops"), "scale\t7\norientation\t1\n");
}

TEST_F(TarnimprimeLabels, ASenderWithoutARowIsTheRunTimesError) {
    std::ofstream(file("vazio.xml")) << "<xml xmlns:rs='r'><rs:data/></xml>";
    const Result result = run({"etiquetas", "--formulario", "2", "--remetente", file("vazio.xml"),
                               "--destino", file("papel"), labelData("labels.xml")});
    EXPECT_EQ(result.status, 3);
    EXPECT_NE(result.err.find("Erro em tempo de execução '91'"), std::string::npos) << result.err;
    EXPECT_FALSE(hasJob("job-001.prn"));
}

TEST_F(TarnimprimeLabels, WrongUsage) {
    EXPECT_EQ(print("x").status, 1);
    EXPECT_EQ(print("").status, 1);
    for (const std::vector<std::string>& words :
         {std::vector<std::string>{"etiquetas", "--formulario", "1", labelData("labels.xml")},
          {"etiquetas", "--remetente", labelData("sender.xml"), labelData("labels.xml")},
          {"etiquetas", "--formulario", "1", "--remetente", labelData("sender.xml")},
          {"etiquetas", "--formulario", "1", "--remetente", file("falta.xml"),
           labelData("labels.xml")},
          {"etiquetas-selecao"},
          {"etiquetas-selecao", file("falta.xml")}}) {
        std::vector<std::string> all{"--destino", file("papel")};
        all.insert(all.end(), words.begin(), words.end());
        EXPECT_EQ(run(all).status, 1);
        EXPECT_FALSE(hasJob("job-001.pdf"));
    }
}

TEST_F(TarnimprimeLabels, SelectedCustomersTwoAcross) {
    const Result result = printSelected({"--marca", "1,3"});
    EXPECT_EQ(result.status, 0);
    EXPECT_EQ(result.err, made);
    EXPECT_EQ(job("job-001.ops"),
              "scale\t7\norientation\t1\n"
              "text\t0.800\t1.545\tArial\t10\t1\tPADARIA PÃO QUENTE LTDA\n"
              "text\t0.800\t2.045\tArial\t8\t1\tRUA DAS FLORES, 100\n"
              "text\t0.800\t2.545\tArial\t8\t1\t01310-100\n"
              "text\t0.800\t3.045\tArial\t8\t1\tSÃO PAULO - SP\n"
              "text\t11.500\t1.545\tArial\t10\t1\tCOMÉRCIO DE PEÇAS E ACESSÓRIOS AUTOMOTIV\n"
              "text\t11.500\t2.045\tArial\t8\t1\tROD. DOS BANDEIRANTES, KM 47\n"
              "text\t11.500\t2.545\tArial\t8\t1\t13450-000\n"
              "text\t11.500\t3.045\tArial\t8\t1\tSANTA BÁRBARA D'OESTE - SP\n"
              "enddoc\n");
}

TEST_F(TarnimprimeLabels, AllCustomersOrNone) {
    EXPECT_EQ(printSelected({}).status, 0);
    EXPECT_EQ(ops().size(), 2U + 3U * 4U + 1U);
    EXPECT_EQ(printSelected({"--marca", ""}).err, made);
    EXPECT_EQ(job("job-001.ops"), "scale\t7\norientation\t1\nenddoc\n");
}

TEST_F(TarnimprimeLabels, ARowThatIsNotThereIsWrongUsage) {
    for (const char* rows : {"4", "0", "1,,3", "x"}) {
        const Result result = printSelected({"--marca", rows});
        EXPECT_EQ(result.status, 1) << rows;
        EXPECT_NE(result.err.find("--marca"), std::string::npos) << result.err;
        EXPECT_FALSE(hasJob("job-001.ops"));
    }
}

}  // namespace
}  // namespace tarn::test
