// Bills and receipts from saved answers.
#include <algorithm>
#include <sstream>

#include "tests/apps/tarnimprime_run.h"

namespace tarn::test {

namespace {

std::string billData(const std::string& name) {
    return std::string(TARN_BILL_DATA) + "/" + name;
}

std::vector<std::string> linesOf(const std::string& text) {
    std::istringstream in(text);
    std::vector<std::string> lines;
    for (std::string line; std::getline(in, line);) {
        lines.push_back(line);
    }
    return lines;
}

class TarnimprimeBills : public Tarnimprime {
protected:
    Result print(const std::vector<std::string>& more = {}) const {
        std::vector<std::string> words = {
            "duplicatas", "--empresa",   "1361",      "--dados", billData("company.xml"),
            "--destino",  file("papel"), "--formato", "ops"};
        words.insert(words.end(), more.begin(), more.end());
        words.push_back(billData("documents.xml"));
        return run(words);
    }
    long count(const std::string& line, const std::string& name = "job-001.ops") const {
        const std::vector<std::string> lines = linesOf(job(name));
        return std::count(lines.begin(), lines.end(), line);
    }
};

// One document each; the receipt says "RECIBO", the bills their acceptance.
constexpr char receipt[] = "text\t9.300\t4.500\tArial\t16\t1\tRECIBO";
constexpr char acceptance[] =
    "text\t4.900\t12.100\tArial\t7\t1\tReconheço(cemos) a exatidão desta DUPLICATA DE VENDA "
    "MERCANTIL na importância acima, que pagarei(emos)";
constexpr char thirdNumber[] = "text\t10.900\t5.000\tArial\t9\t1\t4570/B";

TEST_F(TarnimprimeBills, PrintsAllRowsAsOneJob) {
    const Result result = print();
    EXPECT_EQ(result.status, 0) << result.err;
    EXPECT_EQ(result.out, "");
    EXPECT_EQ(result.err, "TArn: Recibo(s) impresso(s) com sucesso!     \n")
        << "the last row's type 262";
    const std::vector<std::string> lines = linesOf(job("job-001.ops"));
    ASSERT_GT(lines.size(), 4U);
    EXPECT_EQ(lines[0], "scale\t7");
    EXPECT_EQ(lines[1], "orientation\t1");
    EXPECT_EQ(lines[2], "line\t1.100\t0.900\t20.300\t0.900\t15");
    EXPECT_EQ(lines[3], "text\t10.500\t1.100\tArial\t9\t1\tCOMÉRCIO DE PEÇAS SÃO JOÃO LTDA");
    EXPECT_EQ(lines[lines.size() - 2], "newpage");
    EXPECT_EQ(lines.back(), "enddoc");
    EXPECT_EQ(count("newpage"), 3);
    EXPECT_EQ(count(receipt), 1);
    EXPECT_EQ(count(acceptance), 2);
    EXPECT_FALSE(hasJob("job-002.ops"));
}

TEST_F(TarnimprimeBills, TickedRows) {
    EXPECT_EQ(print({"--marca", "1,3"}).status, 0);
    EXPECT_EQ(count("newpage"), 2);
    EXPECT_EQ(count(receipt), 0);
    EXPECT_EQ(count(thirdNumber), 1);
}

TEST_F(TarnimprimeBills, NoneTickedPrintsNothing) {
    const Result result = print({"--marca", ""});
    EXPECT_EQ(result.status, 0);
    EXPECT_EQ(result.err, "TArn: Selecione um documento.     \n");
    EXPECT_FALSE(hasJob("job-001.ops"));
}

TEST_F(TarnimprimeBills, ATickBehindTheLastRowIsWrongUsage) {
    for (const char* tick : {"4", "0", "1,,2", "x"}) {
        EXPECT_EQ(print({"--marca", tick}).status, 1) << tick;
        EXPECT_FALSE(hasJob("job-001.ops"));
    }
}

TEST_F(TarnimprimeBills, Triplicates) {
    EXPECT_EQ(print({"--triplicata", "--marca", "1"}).status, 0);
    std::string triplicate = acceptance;
    triplicate.replace(triplicate.find("DUPLICATA"), 9, "TRIPLICATA");
    EXPECT_EQ(count(triplicate), 1);
    EXPECT_EQ(count(acceptance), 0);
}

TEST_F(TarnimprimeBills, PicturesOfTheFolder) {
    fs::create_directories(file("figuras"));
    std::ofstream(file("figuras/LOGODUPL.jpg")) << "l";
    std::ofstream(file("figuras/ASSEMITENTE.jpg")) << "a";
    EXPECT_EQ(print({"--pasta-figuras", file("figuras"), "--marca", "1"}).status, 0);
    EXPECT_EQ(count("picture\t1.600\t1.300\tpicLogo"), 1);
    EXPECT_EQ(count("picture\t3.200\t7.000\tpicAss"), 1);
    EXPECT_EQ(job("job-001.ops").find("picVert"), std::string::npos);
}

TEST_F(TarnimprimeBills, AsPaper) {
    const Result result = run({"--destino", file("papel"), "duplicatas", "--empresa", "1361",
                               "--dados", billData("company.xml"), billData("documents.xml")});
    EXPECT_EQ(result.status, 0) << result.err;
    const std::string pdf = quoted(file("papel/job-001.pdf"));
    ASSERT_EQ(std::system(("pdfinfo " + pdf + " >" + quoted(file("info"))).c_str()), 0);
    EXPECT_NE(contentOf(file("info")).find("Pages:           3\n"), std::string::npos)
        << "no blank sheet behind the last page";
    ASSERT_EQ(std::system(("pdftotext -l 1 " + pdf + " " + quoted(file("texto"))).c_str()), 0);
    EXPECT_NE(contentOf(file("texto")).find("ASSINATURA DO SACADO"), std::string::npos);
}

TEST_F(TarnimprimeBills, EachFileIsAJob) {
    EXPECT_EQ(print({"--marca", "2", billData("documents.xml")}).status, 0);
    EXPECT_EQ(count(receipt, "job-001.ops"), 1);
    EXPECT_EQ(count(receipt, "job-002.ops"), 1);
}

TEST_F(TarnimprimeBills, WithoutTheCompanysRowItStops) {
    std::ofstream(file("vazia.xml")) << "<?xml version=\"1.0\"?><xml/>";
    const Result result =
        run({"duplicatas", "--empresa", "1361", "--dados", file("vazia.xml"), "--destino",
             file("papel"), "--formato", "ops", billData("documents.xml")});
    EXPECT_EQ(result.status, 3);
    EXPECT_NE(result.err.find("Erro em tempo de execução '91'"), std::string::npos) << result.err;
    EXPECT_FALSE(hasJob("job-001.ops"));
}

TEST_F(TarnimprimeBills, ARowWithoutAnAmountKeepsThePagesBeforeIt) {
    std::string documents = contentOf(billData("documents.xml"));
    documents.erase(documents.find("VL_PRN_DOC=\"1234.5\" "), 20);
    std::ofstream(file("docs.xml")) << documents;
    const Result result =
        run({"duplicatas", "--empresa", "1361", "--dados", billData("company.xml"), "--destino",
             file("papel"), "--formato", "ops", file("docs.xml")});
    EXPECT_EQ(result.status, 3);
    EXPECT_NE(result.err.find("Erro em tempo de execução '13'"), std::string::npos) << result.err;
    EXPECT_EQ(count("newpage"), 1);
    EXPECT_EQ(count("enddoc"), 0);
}

TEST_F(TarnimprimeBills, WhatIsMissingOnTheCommandLineIsWrongUsage) {
    for (const std::vector<std::string>& words :
         {std::vector<std::string>{"duplicatas", "--empresa", "1361", billData("documents.xml")},
          {"duplicatas", "--dados", billData("company.xml"), billData("documents.xml")},
          {"duplicatas", "--empresa", "1361", "--dados", billData("company.xml")},
          {"duplicatas", "--empresa", "1361", "--dados", file("falta.xml"),
           billData("documents.xml")}}) {
        std::vector<std::string> all{"--destino", file("papel")};
        all.insert(all.end(), words.begin(), words.end());
        EXPECT_EQ(run(all).status, 1);
        EXPECT_FALSE(hasJob("job-001.pdf"));
    }
}

}  // namespace
}  // namespace tarn::test
