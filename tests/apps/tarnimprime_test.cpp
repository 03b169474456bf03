// tarnimprime as its users run it: the program itself, its exit status, what it
// says and the job files it leaves.
#include "tests/apps/tarnimprime_run.h"

#include <algorithm>
#include <cmath>
#include <cstdlib>
#include <fstream>
#include <regex>
#include <sstream>
#include <string>
#include <vector>

namespace tarn::test {

namespace {

std::string data(const std::string& name) {
    return std::string(TARN_NOTE_DATA) + "/" + name;
}

std::string orderData(const std::string& name) {
    return std::string(TARN_ORDER_DATA) + "/" + name;
}

TEST_F(Tarnimprime, PrintsANoteIntoTheDirectoryItMakes) {
    const Result result =
        run({"--destino", file("papel"), "nota", "--empresa", "1361", "--estabelecimento", "1",
             "--numero", "4567", data("note_1361.xml")});
    EXPECT_EQ(result.status, 0) << result.err;
    EXPECT_EQ(result.out, "");
    EXPECT_EQ(job("job-001.prn"), " \x0F");
    EXPECT_EQ(job("job-002.prn"), contentOf(data("note_1361.prn")));
    EXPECT_FALSE(hasJob("job-003.prn"));
}

// Looking a note over prints nothing, here of all places where no printer is.
TEST_F(Tarnimprime, ANoteThatFitsIsLookedOverInSilence) {
    const Result result = run({"nota", "--confere", "--empresa", "1361", "--estabelecimento", "1",
                               "--numero", "4567", data("note_1361.xml")});
    EXPECT_EQ(result.status, 0) << result.err;
    EXPECT_EQ(result.out, "");
    EXPECT_EQ(result.err, "");
}

TEST_F(Tarnimprime, WhatANoteLosesIsToldWithStatusFour) {
    std::string note = contentOf(data("note_1361.xml"));
    const std::string name = "RAZAO=\"";
    note.insert(note.find(name) + name.size(), std::string(70, 'X'));
    const std::string wide = file("larga.xml");
    std::ofstream(wide, std::ios::binary) << note;
    const Result result =
        run({"--destino", file("papel"), "nota", "--empresa", "1361", "--estabelecimento", "1",
             "--numero", "4567", "--confere", data("note_1361.xml"), wide});
    EXPECT_EQ(result.status, 4);
    EXPECT_EQ(result.out, wide +
                              ": linha 10, coluna 2, RAZAO: não cabe; perde \"PEÇAS SÃO JOÃO "
                              "LTDA\"\n");
    EXPECT_EQ(result.err, "");
    // With a directory given the notes are there to be looked at too.
    EXPECT_TRUE(hasJob("job-004.prn"));
}

TEST_F(Tarnimprime, ANoteThatStopsIsLookedOverUpToThere) {
    const Result result = run({"nota", "--confere", "--empresa", "1361", "--estabelecimento", "1",
                               "--numero", "4567", data("note_wrong_quantity.xml")});
    EXPECT_EQ(result.status, 3);
    EXPECT_NE(result.err, "");
}

// A text of a drawn job: where it lands, in points, and what it says.
struct Text {
    double x = 0;
    double y = 0;
    std::string words;
};

std::vector<Text> textsOf(const std::string& ops) {
    constexpr double pointsPerCentimetre = 72 / 2.54;
    std::vector<Text> texts;
    std::istringstream lines(ops);
    for (std::string line; std::getline(lines, line);) {
        std::istringstream fields(line);
        std::vector<std::string> field;
        for (std::string value; std::getline(fields, value, '\t');) {
            field.push_back(value);
        }
        if (field.size() == 7 && field[0] == "text") {
            texts.push_back({std::stod(field[1]) * pointsPerCentimetre,
                             std::stod(field[2]) * pointsPerCentimetre, field[6]});
        }
    }
    return texts;
}

// The boxes of the words on a page, top left corners.
std::vector<Text> wordsOf(const std::string& bbox) {
    static const std::regex shape("xMin=\"([-0-9.]+)\" yMin=\"([-0-9.]+)\"[^>]*>([^<]*)<");
    std::vector<Text> words;
    for (std::sregex_iterator found(bbox.begin(), bbox.end(), shape), end; found != end; ++found) {
        words.push_back({std::stod((*found)[1]), std::stod((*found)[2]), (*found)[3]});
    }
    return words;
}

bool standsAt(const Text& text, const std::vector<Text>& words) {
    constexpr double halfMillimetre = 0.5 * 72 / 25.4;
    const std::string first = text.words.substr(0, text.words.find(' '));
    return std::any_of(words.begin(), words.end(), [&](const Text& word) {
        return word.words == first && std::abs(word.x - text.x) < halfMillimetre &&
               std::abs(word.y - text.y) < halfMillimetre;
    });
}

TEST_F(Tarnimprime, TheDrawnNoteAsOperations) {
    const Result result = run({"--formato", "ops", "--destino", file("papel"), "nota", "--empresa",
                               "2541", "--estabelecimento", "1", "--numero", "4567",
                               data("full_note.xml"), data("full_note.xml")});
    EXPECT_EQ(result.status, 0) << result.err;
    const std::string ops = job("job-001.ops");
    EXPECT_EQ(ops.rfind("scale\t7\norientation\t1\ntext\t1.100\t1.000\tArial\t8\t1\tSAÍDA\n"
                        "text\t4.500\t1.000\tArial\t8\t1\t004567\n",
                        0),
              0U)
        << ops;
    EXPECT_EQ(textsOf(ops).size(), 9U + 3 + 4 + 3 + 8);
    EXPECT_EQ(ops.substr(ops.size() - 7), "enddoc\n");
    EXPECT_EQ(job("job-002.ops"), ops);
    EXPECT_FALSE(hasJob("job-003.ops"));
}

TEST_F(Tarnimprime, TheDrawnNoteAsPdfNeedsNoDisplay) {
    const std::vector<std::string> note = {
        "nota",          "--empresa", "2541", "--estabelecimento",   "1",
        "--reimpressao", "--numero",  "4567", data("full_note.xml"), "--destino",
        file("papel")};
    std::vector<std::string> ops = note;
    ops.insert(ops.end(), {"--formato", "ops"});
    ::setenv("QT_QPA_PLATFORM", "xcb", 1);
    ::unsetenv("DISPLAY");
    const Result result = run(note);
    EXPECT_EQ(result.status, 0) << result.err;
    EXPECT_EQ(result.out + result.err, "");
    ASSERT_TRUE(hasJob("job-001.pdf"));
    ASSERT_EQ(run(ops).status, 0);
    const std::vector<Text> texts = textsOf(job("job-001.ops"));
    const std::string pdf = quoted((room_ / "papel" / "job-001.pdf").string());
    ASSERT_EQ(std::system(("pdftotext -bbox " + pdf + " " + quoted(file("bbox"))).c_str()), 0);
    const std::vector<Text> words = wordsOf(contentOf(file("bbox")));
    std::size_t compared = 0;
    for (const Text& text : texts) {
        if (!text.words.empty() && text.words[0] != ' ') {
            EXPECT_TRUE(standsAt(text, words)) << text.words;
            ++compared;
        }
    }
    EXPECT_EQ(compared, 9U + 3 + 4 + 0 + 5);
    ASSERT_EQ(std::system(("pdffonts " + pdf + " | tail -n +3 >" + quoted(file("fonts"))).c_str()),
              0);
    std::istringstream fonts(contentOf(file("fonts")));
    std::size_t count = 0;
    for (std::string font; std::getline(fonts, font); ++count) {
        EXPECT_TRUE(std::regex_search(font, std::regex("Liberation.* Identity-H +yes ")))
            << "embedded: " << font;
    }
    EXPECT_EQ(count, 2U) << "plain and bold";
}

TEST_F(Tarnimprime, ADrawnNoteThatStopsLeavesNoPaper) {
    const std::vector<std::string> note = {
        "nota",      "--empresa",  "2541", "--estabelecimento",
        "1",         "--numero",   "4567", data("note_wrong_quantity.xml"),
        "--destino", file("papel")};
    std::vector<std::string> ops = note;
    ops.insert(ops.end(), {"--formato", "ops"});
    const Result result = run(note);
    EXPECT_EQ(result.status, 3);
    EXPECT_NE(result.err.find("QTDE"), std::string::npos) << result.err;
    EXPECT_FALSE(hasJob("job-001.pdf"));
    EXPECT_EQ(run(ops).status, 3);
    const std::string drawn = job("job-001.ops");
    EXPECT_GT(textsOf(drawn).size(), 9U);
    EXPECT_EQ(drawn.find("enddoc"), std::string::npos);
}

TEST_F(Tarnimprime, TheFormatOfDrawnPages) {
    const std::vector<std::string> note = {"nota", "--empresa", "2541", "--estabelecimento",
                                           "1",    "--numero",  "1",    data("full_note.xml")};
    std::vector<std::string> words = note;
    words.insert(words.end(), {"--formato", "ops"});
    Result result = run(words);
    EXPECT_EQ(result.status, 1);
    EXPECT_NE(result.err.find("--destino"), std::string::npos) << result.err;
    words = note;
    words.insert(words.end(), {"--formato", "png", "--destino", file("papel")});
    result = run(words);
    EXPECT_EQ(result.status, 1);
    EXPECT_NE(result.err.find("--formato pede pdf ou ops"), std::string::npos) << result.err;
}

TEST_F(Tarnimprime, SeveralNotesPrintOneAfterTheOther) {
    const Result result =
        run({"nota", "--empresa", "141", "--estabelecimento", "1", "--numero", "4567",
             data("note_1361.xml"), data("entry_note.xml"), "--destino", file("papel")});
    EXPECT_EQ(result.status, 0) << result.err;
    std::string entry = contentOf(data("note_1361.prn"));
    entry.replace(89, 15, "              X");
    EXPECT_EQ(job("job-002.prn"), contentOf(data("note_1361.prn")));
    EXPECT_EQ(job("job-003.prn"), " \x0F");
    EXPECT_EQ(job("job-004.prn"), entry) << "latin-1 document, mark in column 104";
    EXPECT_FALSE(hasJob("job-005.prn"));
}

TEST_F(Tarnimprime, ARunTimeErrorKeepsWhatWasPrinted) {
    const Result result =
        run({"nota", "--destino", file("papel"), "--empresa", "1361", "--estabelecimento", "1",
             "--numero", "4567", "--reimpressao", data("note_wrong_quantity.xml")});
    EXPECT_EQ(result.status, 3);
    EXPECT_NE(result.err.find("Erro em tempo de execução '13'"), std::string::npos) << result.err;
    EXPECT_NE(result.err.find("QTDE"), std::string::npos) << result.err;
    const std::string golden = contentOf(data("note_1361.prn"));
    EXPECT_EQ(job("job-002.prn"), golden.substr(0, golden.find(" P-002")));
}

TEST_F(Tarnimprime, AnUnreadableInputSpendsNoForm) {
    std::ofstream(file("quebrado.xml")) << "<?xml version=\"1.0\"?><PRINCIPAL";
    for (const std::string& wrong : {file("falta.xml"), file("quebrado.xml")}) {
        const Result result =
            run({"nota", "--destino", file("papel"), "--empresa", "1361", "--estabelecimento", "1",
                 "--numero", "1", data("note_1361.xml"), wrong});
        EXPECT_EQ(result.status, 1);
        EXPECT_NE(result.err.find(wrong), std::string::npos) << result.err;
        EXPECT_FALSE(hasJob("job-001.prn"));
    }
}

TEST_F(Tarnimprime, ADirectoryThatCantBeMadeIsAUsageError) {
    std::ofstream(file("arquivo")) << "x";
    for (const std::string& wrong : {file("arquivo"), file("arquivo") + "/dentro", std::string()}) {
        const Result result =
            run({"nota", "--destino", wrong, "--empresa", "1361", "--estabelecimento", "1",
                 "--numero", "1", data("note_1361.xml")});
        EXPECT_EQ(result.status, 1) << wrong;
        EXPECT_NE(result.err.find("não foi possível criar a pasta \"" + wrong + "\""),
                  std::string::npos)
            << result.err;
    }
}

TEST_F(Tarnimprime, ADirectoryOrANamelessFileIsNoDocument) {
    for (const std::string& wrong : {room_.string(), std::string()}) {
        const Result result = run({"nota", "--destino", file("papel"), "--empresa", "1361",
                                   "--estabelecimento", "1", "--numero", "1", wrong});
        EXPECT_EQ(result.status, 1);
        EXPECT_NE(result.err.find("não foi possível ler \"" + wrong + "\""), std::string::npos)
            << result.err;
        EXPECT_FALSE(hasJob("job-001.prn"));
    }
}

TEST_F(Tarnimprime, AnEmptyFileIsNoAnswer) {
    std::ofstream(file("vazio.xml")).close();
    const Result result = run({"nota", "--destino", file("papel"), "--empresa", "1361",
                               "--estabelecimento", "1", "--numero", "1", file("vazio.xml")});
    EXPECT_EQ(result.status, 1);
    EXPECT_NE(result.err.find("\"" + file("vazio.xml") + "\" não é uma resposta do servidor"),
              std::string::npos)
        << result.err;
    EXPECT_FALSE(hasJob("job-001.prn"));
}

TEST_F(Tarnimprime, AFileWithoutEndOrOfTooManyAttributesIsRefusedAtOnce) {
    std::ofstream crowded(file("cheio.xml"));
    crowded << "<?xml version='1.0'?><PRINCIPAL><x";
    for (int i = 0; i < 400'000; ++i) {
        crowded << " a" << i << "=''";
    }
    crowded << "/></PRINCIPAL>";
    crowded.close();
    for (const std::string& wrong : {std::string("/dev/zero"), file("cheio.xml")}) {
        const Result result = run({"nota", "--destino", file("papel"), "--empresa", "1361",
                                   "--estabelecimento", "1", "--numero", "1", wrong});
        EXPECT_EQ(result.status, 1);
        EXPECT_NE(result.err.find("não é uma resposta do servidor"), std::string::npos)
            << result.err;
    }
}

TEST_F(Tarnimprime, NothingOfTheServersCommandsTheTerminal) {
    std::ofstream(file("recusa.xml"))
        << "<?xml version='1.0'?><R A='1' STATUS='Ação &#155;31mrecusada&#127;&#144;"
           "&#10;linha'/>";
    const Result result =
        run({"ordem", "--destino", file("papel"), "--empresa", "1361", file("recusa.xml")});
    EXPECT_EQ(result.status, 1);
    EXPECT_NE(result.err.find("Ação ?31mrecusada??\nlinha"), std::string::npos) << result.err;
}

TEST_F(Tarnimprime, GlobalOptionsStandBeforeOrAfterTheCommandAndOnce) {
    const std::vector<std::string> note = {"nota", "--empresa", "1361", "--estabelecimento",
                                           "1",    "--numero",  "4567"};
    const auto with = [&note](std::vector<std::string> before,
                              const std::vector<std::string>& after) {
        before.insert(before.end(), note.begin(), note.end());
        before.insert(before.end(), after.begin(), after.end());
        return before;
    };
    const std::string golden = contentOf(data("note_1361.prn"));
    for (const auto& words : {with({"--pagina-de-codigo", "1252", "--destino=" + file("papel")},
                                   {data("note_1361.xml")}),
                              with({}, {data("note_1361.xml"), "--destino", file("papel")}),
                              with({"--destino", file("papel")}, {"--", data("note_1361.xml")})}) {
        fs::remove_all(room_ / "papel");
        EXPECT_EQ(run(words).status, 0);
        EXPECT_EQ(job("job-002.prn"), golden);
    }
    EXPECT_EQ(
        run(with({"--destino", file("papel")}, {"--destino", file("outra"), data("note_1361.xml")}))
            .status,
        1);
    EXPECT_FALSE(fs::exists(file("outra")));
}

// What the numbers look like is no matter of the machine's settings.
TEST_F(Tarnimprime, TheMachinesLanguageChangesNothing) {
    for (const char* language : {"C", "en_US.UTF-8", "pt_BR.UTF-8", "de_DE", ""}) {
        ASSERT_EQ(::setenv("LC_ALL", language, 1), 0);
        EXPECT_EQ(shown({"mascara", "##,###0.00", "1234567,891"}), "1.234.567,89\n") << language;
        EXPECT_EQ(run({"nota", "--destino", file("papel"), "--empresa", "1361", "--estabelecimento",
                       "1", "--numero", "4567", data("note_1361.xml")})
                      .status,
                  0);
        EXPECT_EQ(job("job-002.prn"), contentOf(data("note_1361.prn"))) << language;
    }
    ::unsetenv("LC_ALL");
}

TEST_F(Tarnimprime, ACompanyWithoutAFormPrintsNothingAndIsTold) {
    const Result result = run({"nota", "--destino", file("papel"), "--empresa", "2161",
                               "--estabelecimento", "1", "--numero", "1", data("note_1361.xml")});
    EXPECT_EQ(result.status, 0);
    EXPECT_EQ(result.out, "");
    EXPECT_EQ(result.err,
              "tarnimprime: a empresa 2161, estabelecimento 1, não tem formulário de nota: nada é "
              "impresso.\n");
    EXPECT_FALSE(hasJob("job-001.prn"));
}

TEST_F(Tarnimprime, AnEstablishmentPrintsOnlyFromTheReprintScreen) {
    const Result result =
        run({"nota", "--destino", file("papel"), "--empresa", "2161", "--estabelecimento", "3383",
             "--numero", "1", data("note_1361.xml")});
    EXPECT_EQ(result.status, 3);
    EXPECT_NE(result.err.find("ImprimeNF_2161_3383"), std::string::npos) << result.err;
    EXPECT_FALSE(hasJob("job-001.prn"));
}

TEST_F(Tarnimprime, OtherCodePages) {
    const Result result =
        run({"nota", "--pagina-de-codigo", "850", "--destino", file("papel"), "--empresa", "1361",
             "--estabelecimento", "1", "--numero", "4567", data("note_1361.xml")});
    EXPECT_EQ(result.status, 0) << result.err;
    EXPECT_NE(job("job-002.prn")
                  .find("COM\x90RCIO DE PE\x80"
                        "AS S\xC7O JO\xC7O LTDA"),
              std::string::npos);
    EXPECT_EQ(run({"nota", "--pagina-de-codigo", "437", "--destino", file("papel"), "--empresa",
                   "1361", "--estabelecimento", "1", "--numero", "1", data("note_1361.xml")})
                  .status,
              1);
}

TEST_F(Tarnimprime, TheLadder) {
    EXPECT_EQ(shown({"escada", "--empresa", "761", "--estabelecimento", "1"}), "ImprimeNF_1361\n");
    EXPECT_EQ(shown({"escada", "--empresa", "761", "--estabelecimento", "1", "--reimpressao"}),
              "ImprimeNF_Padrao\n");
    EXPECT_EQ(shown({"escada", "--empresa", "2161", "--estabelecimento", "6001"}), "-\n");
    EXPECT_EQ(shown({"escada", "--empresa", "01361", "--estabelecimento", "0001"}),
              "ImprimeNF_1361\n");
    for (const char* word : {"x", "", "0x551", "1361,0", "1e3", "99999999999"}) {
        EXPECT_EQ(run({"escada", "--empresa", word, "--estabelecimento", "1"}).status, 1) << word;
    }
    EXPECT_EQ(run({"escada", "--empresa", "7"}).status, 1);
}

TEST_F(Tarnimprime, PrintsAnOrderSheet) {
    const Result result = run({"--destino", file("papel"), "ordem", "--empresa", "2041",
                               orderData("order_in_parcels.xml")});
    EXPECT_EQ(result.status, 0) << result.err;
    EXPECT_EQ(result.out + result.err, "");
    EXPECT_EQ(job("job-001.prn"), contentOf(orderData("order_in_parcels.prn")));
    EXPECT_FALSE(hasJob("job-002.prn"));
}

TEST_F(Tarnimprime, ACompanysOwnOrderSheetAndSeveralOrders) {
    const Result result =
        run({"ordem", orderData("order_in_parcels.xml"), orderData("order_at_sight.xml"),
             "--empresa", "1361", "--destino", file("papel")});
    EXPECT_EQ(result.status, 0) << result.err;
    EXPECT_EQ(job("job-001.prn"), contentOf(orderData("order_in_parcels_1361.prn")));
    EXPECT_EQ(job("job-002.prn"), contentOf(orderData("order_at_sight_1361.prn")));
    EXPECT_FALSE(hasJob("job-003.prn"));
}

TEST_F(Tarnimprime, AnOrderWithoutAFieldKeepsTheLinesBeforeIt) {
    const Result result = run({"ordem", "--destino", file("papel"), "--empresa", "2041",
                               orderData("order_incomplete_item.xml")});
    EXPECT_EQ(result.status, 3);
    EXPECT_NE(result.err.find("Erro em tempo de execução '91'"), std::string::npos) << result.err;
    EXPECT_NE(result.err.find("VL_SEG"), std::string::npos) << result.err;
    const std::string golden = contentOf(orderData("order_in_parcels.prn"));
    EXPECT_EQ(job("job-001.prn"), golden.substr(0, golden.find("   12,000")));
}

// Beside a good one too: what was refused is found out before anything prints.
TEST_F(Tarnimprime, ARefusedOrderPrintsNothing) {
    std::ofstream(file("recusa.xml"), std::ios::binary)
        << R"(<?xml version="1.0"?><PRINCIPAL cod="1" status="Ordem cancelada."/>)";
    const Result result = run({"ordem", "--destino", file("papel"), "--empresa", "2041",
                               orderData("order_at_sight.xml"), file("recusa.xml")});
    EXPECT_EQ(result.status, 1);
    EXPECT_EQ(result.err, "tarnimprime: Ordem cancelada.\n");
    EXPECT_FALSE(hasJob("job-001.prn"));
}

TEST_F(Tarnimprime, AnOrderWithoutAStatusPrintsAsItIs) {
    std::string order = contentOf(orderData("order_in_parcels.xml"));
    const std::string status = " status=\"OK\"";
    order.erase(order.find(status), status.size());
    std::ofstream(file("ordem.xml"), std::ios::binary) << order;
    const Result result =
        run({"ordem", "--destino", file("papel"), "--empresa", "2041", file("ordem.xml")});
    EXPECT_EQ(result.status, 0) << result.err;
    EXPECT_EQ(job("job-001.prn"), contentOf(orderData("order_in_parcels.prn")));
}

TEST_F(Tarnimprime, AnOrderSheetWithoutACompanyOrADocumentIsWrongUsage) {
    for (const std::vector<std::string>& words :
         {std::vector<std::string>{"ordem", orderData("order_at_sight.xml")},
          {"ordem", "--empresa", "2041"},
          {"ordem", "--empresa", "x", orderData("order_at_sight.xml")},
          {"ordem", "--empresa", "2041", orderData("order_at_sight.xml"), file("falta.xml")}}) {
        std::vector<std::string> all{"--destino", file("papel")};
        all.insert(all.end(), words.begin(), words.end());
        EXPECT_EQ(run(all).status, 1);
        EXPECT_FALSE(hasJob("job-001.prn"));
    }
}

std::vector<std::string> chequeWords(const std::string& bank, const std::string& amount,
                                     const std::string& payee, const std::string& date) {
    return {"cheque", "--banco", bank, "--valor",     amount,      "--favorecido",
            payee,    "--data",  date, "--municipio", "SÃO CARLOS"};
}

TEST_F(Tarnimprime, PrintsAChequeOfAnyBank) {
    std::vector<std::string> words = chequeWords("151", "1.234,56", "MARIA", "15/03/2012");
    words.insert(words.end(), {"--destino", file("papel")});
    const Result result = run(words);
    EXPECT_EQ(result.status, 0) << result.err;
    EXPECT_EQ(result.out + result.err, "");
    EXPECT_EQ(job("job-001.prn"),
              " \x0F\x1B\x1BG" + std::string(1 + 64 + 6, ' ') +
                  "1.234,56\r\n\r\n"
                  "               UM MIL, DUZENTOS E TRINTA E QUATRO REAIS E CINQUENTA E SEIS "
                  "CENT\r\n"
                  "   AVOS\r\n\r\n"
                  "     MARIA\r\n\r\n" +
                  std::string(1 + 29, ' ') + "S\xC3O CARLOS" + std::string(9 + 2, ' ') +
                  "15   MARCO" + std::string(12 + 2, ' ') +
                  "2012\r\n\r\n"
                  " \r\n\r\n\r\n\r\n\r\n\r\n\r\n\r\n\r\n");
    EXPECT_FALSE(hasJob("job-002.prn"));
}

TEST_F(Tarnimprime, PrintsAChequeOfBank33WithoutAPayee) {
    std::vector<std::string> words = chequeWords("033", "1,00", "", "5/12/2012");
    words.insert(words.begin(), {"--destino", file("papel")});
    const Result result = run(words);
    EXPECT_EQ(result.status, 0) << result.err;
    EXPECT_EQ(job("job-001.prn"),
              " \x1B\x41\x06 \x0F\x1B\x1BG \r\n\r\n" + std::string(1 + 93 + 19, ' ') +
                  "#1,00#\r\n\r\n\r\n\r\n" + std::string(1 + 26, ' ') +
                  "UM REAL\r\n\r\n"
                  " \r\n\r\n" +
                  std::string(1 + 12, ' ') + "\r\n\r\n\r\n\r\n" + std::string(1 + 61 + 9, ' ') +
                  "S\xC3O CARLOS   5      DEZEMBRO" + std::string(9 + 9, ' ') +
                  "12\r\n\r\n"
                  " \r\n\r\n\r\n\r\n\r\n\r\n\r\n\r\n\r\n\r\n"
                  "\r\n\r\n\r\n\r\n\r\n\r\n\r\n\r\n\r\n\r\n");
}

TEST_F(Tarnimprime, AChequeThatCannotBeReadPrintsNothing) {
    const struct {
        std::vector<std::string> words;
        const char* number;
    } wrong[] = {{chequeWords("B1", "1,00", "X", "15/03/2012"), "'13'"},
                 {chequeWords("40000", "1,00", "X", "15/03/2012"), "'6'"},
                 {chequeWords("1", "um real", "X", "15/03/2012"), "'13'"},
                 {chequeWords("1", "1,00", "X", "15/03"), "'9'"}};
    for (auto one : wrong) {
        one.words.insert(one.words.end(), {"--destino", file("papel")});
        const Result result = run(one.words);
        EXPECT_EQ(result.status, 3);
        EXPECT_NE(result.err.find(std::string("Erro em tempo de execução ") + one.number),
                  std::string::npos)
            << result.err;
        EXPECT_FALSE(hasJob("job-001.prn"));
    }
}

TEST_F(Tarnimprime, AChequeNeedsAllItsOptions) {
    const std::vector<std::string> all = chequeWords("1", "1,00", "X", "15/03/2012");
    for (std::size_t option = 1; option < all.size(); option += 2) {
        std::vector<std::string> words{"--destino", file("papel")};
        for (std::size_t i = 0; i < all.size(); ++i) {
            if (i != option && i != option + 1) {
                words.push_back(all[i]);
            }
        }
        EXPECT_EQ(run(words).status, 1) << "without " << all[option];
        EXPECT_FALSE(hasJob("job-001.prn"));
    }
}

TEST_F(Tarnimprime, AmountsInWords) {
    EXPECT_EQ(shown({"extenso", "1234,50"}),
              "UM MIL, DUZENTOS E TRINTA E QUATRO REAIS E CINQUENTA CENTAVOS\n");
    EXPECT_EQ(shown({"extenso", "--", "-5"}), "MENOS CINCO REAIS\n");
    EXPECT_EQ(shown({"extenso", "0"}), "\n");
    for (const std::string word : {"abc", "", "1e3"}) {
        const Result result = run({"extenso", "--", word});
        EXPECT_EQ(result.status, 3) << word;
        EXPECT_EQ(result.out, "");
        EXPECT_NE(result.err.find("Erro em tempo de execução '13'"), std::string::npos);
    }
}

TEST_F(Tarnimprime, DateFields) {
    EXPECT_EQ(shown({"data", "1503", "--hoje", "07/01/2009"}), "15/03/2009\n");
    EXPECT_EQ(shown({"data", "--hoje", "07/01/2009", "15"}), "15/01/2009\n");
    EXPECT_EQ(shown({"data", "--hoje", "07/01/2009", "--", ""}), "\n");
    EXPECT_EQ(run({"data", "15", "--hoje", "31/02/2009"}).status, 1);
    EXPECT_EQ(run({"data", "15"}).status, 1);
}

TEST_F(Tarnimprime, QuantityFields) {
    EXPECT_EQ(shown({"quantidade", "1234,5"}), "1.234,500\n");
    EXPECT_EQ(shown({"quantidade", "--", "-1,5"}), "-1,500\n");
    EXPECT_EQ(shown({"quantidade", "abc"}), "Quantidade inválido.     \n");
    EXPECT_EQ(shown({"quantidade", "10000000"}), "Quantidade máxima permitida é 9.999.999,999 \n");
}

TEST_F(Tarnimprime, Masks) {
    EXPECT_EQ(shown({"mascara", "##,###0.00", "1234,5"}), "1.234,50\n");
    EXPECT_EQ(shown({"mascara", "#,#00", "5102"}), "5.102\n");
    EXPECT_EQ(shown({"mascara", "0.00", "--", "-1,005"}), "-1,01\n");
    EXPECT_EQ(shown({"mascara", "0.00", "A VISTA"}), "A VISTA\n");
    EXPECT_EQ(shown({"mascara", "0.00", "--", ""}), "\n");
    EXPECT_EQ(shown({"mascara", "@@@.@@@.@@@-@@", "12345678901"}), "123.456.789-01\n");
    EXPECT_EQ(shown({"mascara", "@@@-@@", "1é2"}), "  1-é2\n");
    EXPECT_EQ(shown({"mascara", "dd/mm/yyyy", "2009-1-7"}), "07/01/2009\n");
    EXPECT_EQ(shown({"mascara", "dd/mm/yyyy", "31/02/2009"}), "31/02/2009\n");
}

TEST_F(Tarnimprime, PrinterNotice) {
    EXPECT_EQ(shown({"aviso-impressora", "2161", "6001"}), "\n");
    EXPECT_EQ(run({"aviso-impressora", "2161"}).status, 1);
}

TEST_F(Tarnimprime, ARulerForTheFormsOfAllDocuments) {
    for (const char* form : {"ImprimeNF_1361", "Boleto_1084", "Cheque_33", "OrdemFaturamento",
                             "OrdemFaturamento_1361", "Etiquetas"}) {
        const std::string paper = file(form);
        const Result result = run({"regua", "--formulario", form, "--destino", paper});
        EXPECT_EQ(result.status, 0) << result.err;
        EXPECT_EQ(result.out + result.err, "");
        const std::string jobs =
            contentOf(paper + "/job-001.prn") + contentOf(paper + "/job-002.prn");
        EXPECT_EQ(jobs.find('[') == std::string::npos, form == std::string("OrdemFaturamento"));
        // The cheque's lines are too close to each other for it.
        EXPECT_EQ(jobs.find(".    1    .    2") == std::string::npos,
                  form == std::string("Cheque_33"));
    }
    for (const std::vector<std::string>& words : {std::vector<std::string>{"--formulario", "Nada"},
                                                  {"--formulario", "Cheque", "--itens", "3"}}) {
        std::vector<std::string> all{"regua", "--destino", file("nada")};
        all.insert(all.end(), words.begin(), words.end());
        const Result result = run(all);
        EXPECT_EQ(result.status, 1);
        EXPECT_EQ(contentOf(file("nada") + "/job-001.prn"), "");
    }
}

TEST_F(Tarnimprime, WrongUsageIsToldInPortuguese) {
    for (const std::vector<std::string>& words : {std::vector<std::string>{},
                                                  {"imprime"},
                                                  {"nota"},
                                                  {"extenso", "1", "2"},
                                                  {"extenso", "1", "--cor", "x"}}) {
        const Result result = run(words);
        EXPECT_EQ(result.status, 1);
        EXPECT_EQ(result.out, "");
        EXPECT_EQ(result.err.rfind("tarnimprime: ", 0), 0U) << result.err;
        EXPECT_NE(result.err.find("--ajuda"), std::string::npos) << result.err;
    }
    const Result help = run({"--ajuda"});
    EXPECT_EQ(help.status, 0);
    for (const char* words : {"Uso: tarnimprime", "Opções:", "Comandos:"}) {
        EXPECT_NE(help.out.find(words), std::string::npos) << help.out;
    }
    const Result noteHelp = run({"nota", "--ajuda"});
    EXPECT_NE(noteHelp.out.find("Opções:"), std::string::npos) << noteHelp.out;
    for (const char* words : {"Options", "Subcommands", "Positionals", "REQUIRED"}) {
        EXPECT_EQ((help.out + noteHelp.out).find(words), std::string::npos) << words;
    }
}

}  // namespace
}  // namespace tarn::test
