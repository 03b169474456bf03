// Every name of the house is English, but for the given ones (given_names.txt).
#include "tests/house/names.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <array>
#include <fstream>
#include <sstream>

#include "tests/house/source_text.h"
#include "tests/house/source_tree.h"
#include "tests/support/files.h"
#include "tests/support/texts.h"

namespace tarn::test {
namespace {
using Strings = std::vector<std::string>;

Strings texts(const std::vector<SourcePiece>& pieces) {
    Strings found;
    for (const SourcePiece& piece : pieces) {
        found.push_back(piece.text);
    }
    return found;
}

// What is judged as a name, and where it stands.
struct NamePlace {
    std::string name;
    std::string place;
};
using NamePlaces = std::vector<NamePlace>;

void addSource(NamePlaces& names, std::string_view path, std::string_view cpp) {
    const SourceText source = takeApart(cpp);
    const auto add = [&](std::string name, int line) {
        names.push_back({std::move(name), std::string(path) + ":" + std::to_string(line)});
    };
    for (const SourcePiece& piece : source.identifiers) {
        add(piece.text, piece.line);
    }
    for (const SourcePiece& comment : source.comments) {
        for (std::string& word : wordsOfComment(comment.text)) {
            add(std::move(word), comment.line);
        }
    }
}

// The folders and the file, without what follows a point; a name of one word is
// judged as the type that such a file holds (`sessao.h` holds `Sessao`).
void addPath(NamePlaces& names, const std::string& path) {
    std::istringstream parts(path);
    for (std::string part; std::getline(parts, part, '/');) {
        part.resize(std::min(part.find('.'), part.size()));
        if (!part.empty() && wordsOfName(part).size() == 1) {
            part[0] =
                part[0] >= 'a' && part[0] <= 'z' ? static_cast<char>(part[0] - 'a' + 'A') : part[0];
        }
        names.push_back({part, path});
    }
}

// The object names of a form of Qt Designer.
void addForm(NamePlaces& names, const std::string& path, const std::string& ui) {
    for (const std::string_view tag :
         {"<widget ", "<layout ", "<spacer ", "<action ", "<buttongroup "}) {
        for (std::size_t at = ui.find(tag); at != std::string::npos; at = ui.find(tag, at + 1)) {
            constexpr std::string_view attribute = " name=\"";
            const std::size_t name = ui.find(attribute, at);
            if (name < ui.find('>', at)) {
                const std::size_t from = name + attribute.size();
                names.push_back({ui.substr(from, ui.find('"', from) - from), path});
            }
        }
    }
}

WordSet wordsIn(const NamePlaces& names) {
    WordSet words;
    WordSet seen;
    for (const NamePlace& place : names) {
        if (seen.insert(place.name).second) {
            for (std::string& word : wordsOfName(place.name)) {
                words.insert(std::move(word));
            }
        }
    }
    return words;
}

constexpr char brazilian[] =
    "caixa\nchão\nmostra\nnome\nordem\npor\nselecionar\ncheque\ncentre\nano\nde\n";
constexpr char english[] = "box\ncheck\nchequer\nnome\nlate\nshow\nÉclair\n";
constexpr char given[] =
    "# screens\nFrmCheque\ncmdSelecionar\nordem   # a parameter\ntxtNome\nimprimeNF_1361\n";

// The names among these that hold a Portuguese word, and the words.
Strings suspects(const NamePlaces& names) {
    std::istringstream in(brazilian);
    std::istringstream out(english);
    std::istringstream list(given);
    Dictionaries dictionaries{in, out, {"cheque"}, {"nome"}};
    const WordSet portuguese = portugueseAmong(wordsIn(names), dictionaries);
    const GivenNames givenNames(list);
    Strings found;
    for (const NamePlace& place : names) {
        for (const std::string& word : suspectsOf(place.name, givenNames, portuguese)) {
            found.push_back(place.name + ": " + word);
        }
    }
    return found;
}

Strings suspectsIn(std::string_view cpp) {
    NamePlaces names;
    addSource(names, "a.cpp", cpp);
    return suspects(names);
}

TEST(SourceText, PartsCodeFromCommentsAndTexts) {
    const SourceText source = takeApart(
        "#include \"a/b.h\"\n#include <c>\nint x1 = 0x1F'FFu + 1'000; // one \"quoted\"\n"
        "                // two\n\nchar q = '\\''; auto r = R\"x(no \" name)x\" u8\"é\"_s;\n/* "
        "three\n*/");
    EXPECT_EQ(texts(source.identifiers), (Texts{"int", "x1", "char", "q", "auto", "r", "_s"}));
    EXPECT_EQ(texts(source.comments), (Texts{" one \"quoted\"\n two\n", "/* three\n"}));
    EXPECT_EQ(texts(source.inQuotes), (Texts{"a/b.h"}));
    EXPECT_EQ(texts(source.inBrackets), (Texts{"c"}));
    EXPECT_EQ(source.identifiers[2].line, 6);
    EXPECT_EQ(source.comments[1].line, 7);
}

TEST(SourceText, WordsOfACommentLeaveOutWhatIsQuoted) {
    EXPECT_EQ(wordsOfComment(" The box \"Não há\" of `cmdOk`, isn't 2x an_id.\n"),
              (Texts{"The", "box", "of", "isn", "t", "an_id"}));
    EXPECT_EQ(wordsOfComment("an inch: 5\" and não"), (Texts{"an", "inch", "and", "não"}));
}

TEST(Names, ArePartedIntoWords) {
    EXPECT_EQ(wordsOfName("FrmOFTTest"), (Texts{"frm", "oft", "test"}));
    EXPECT_EQ(wordsOfName("imprimeNF_2161_3341"), (Texts{"imprime", "nf"}));
    EXPECT_EQ(wordsOfName("kMaxLines_"), (Texts{"k", "max", "lines"}));
    EXPECT_EQ(wordsOfName("chãoÉ"), (Texts{"chaoe"}));
    EXPECT_EQ(folded("Ação ßÿ €"), "acao sy ");
}

TEST(Names, PortugueseOnesAreFound) {
    EXPECT_EQ(suspectsIn("int caixa = mostraNota();"),
              (Texts{"caixa: caixa", "mostraNota: mostra"}));
    EXPECT_EQ(suspectsIn("// the chão below"), (Texts{"chão: chao"}));
    NamePlaces names;
    addPath(names, "src/show/mostra_box.cpp");
    EXPECT_EQ(suspects(names), (Texts{"mostra_box: mostra"}));
    names.clear();
    addForm(names, "a.ui", "<widget class=\"QLabel\" name=\"lblCaixa\"/><layout class=\"Q\"/>");
    EXPECT_EQ(suspects(names), (Texts{"lblCaixa: caixa"}));
}

TEST(Names, EnglishTechnicalAndShortOnesPass) {
    EXPECT_EQ(suspectsIn("int box = cheque + de_late; // show"), Texts{});
    EXPECT_EQ(suspectsIn("auto s = \"caixa\"; // \"mostra\" and `caixa`"), Texts{});
}

TEST(Names, WordsOfBothDictionariesCanBeListed) {
    EXPECT_EQ(suspectsIn("int nome;"), (Texts{"nome: nome"}));
}

TEST(Names, GivenOnesPass) {
    EXPECT_EQ(suspectsIn("cmdSelecionar_Click(FrmChequeTest, ordem, ordem_, lblNome, "
                         "ImprimeNF1361Errors, ui_frm_cheque);"),
              Texts{});
    NamePlaces names;
    addPath(names, "tests/frm_cheque/imprime_nf_1361_test.cpp");
    EXPECT_EQ(suspects(names), Texts{});
}

TEST(Names, AGivenOneExcusesOnlyItself) {
    EXPECT_EQ(suspectsIn("ordemBox, cmdSelecionarCaixa"),
              (Texts{"ordemBox: ordem", "cmdSelecionarCaixa: caixa"}));
    EXPECT_EQ(suspectsIn("Ordem"), (Texts{"Ordem: ordem"}));
}

class TreeNames : public testing::Test {
protected:
    static std::ifstream open(const std::filesystem::path& file) {
        std::ifstream in(file);
        EXPECT_TRUE(in) << file << " is missing (Debian: wbrazilian, wamerican)";
        return in;
    }

    static NamePlaces namesOfTheTree(const std::filesystem::path& root) {
        NamePlaces names;
        constexpr std::array<std::string_view, 7> folders{"src",   "apps",  "practice", "tests",
                                                          "bench", "cmake", "docs"};
        for (const std::string& path : filesIn(root, folders)) {
            if (path.starts_with("docs/manual")) {
                continue;  // Portuguese, and its pictures with it
            }
            addPath(names, path);
            if (isCpp(path)) {
                addSource(names, path, contentOf(root / path));
            } else if (path.ends_with(".ui")) {
                addForm(names, path, contentOf(root / path));
            }
        }
        return names;
    }

    // By word: the names that hold it, how often, and where first.
    static std::string listing(const NamePlaces& names, const GivenNames& givenNames,
                               const WordSet& portuguese) {
        std::map<std::string, std::map<std::string, std::pair<int, std::string>>> byWord;
        for (const NamePlace& place : names) {
            for (const std::string& word : suspectsOf(place.name, givenNames, portuguese)) {
                auto& [count, first] = byWord[word][place.name];
                first = ++count == 1 ? place.place : first;
            }
        }
        std::ostringstream text;
        for (const auto& [word, found] : byWord) {
            text << word << "\n";
            for (const auto& [name, seen] : found) {
                text << "    " << name << " (" << seen.first << ") " << seen.second << "\n";
            }
        }
        return text.str();
    }
};

TEST_F(TreeNames, AreEnglishOrGiven) {
    const std::filesystem::path root(TARN_SOURCE_DIR);
    const std::filesystem::path lists = root / "tests/house";
    std::ifstream brazilianWords = open("/usr/share/dict/brazilian");
    std::ifstream englishWords = open("/usr/share/dict/american-english");
    std::ifstream technical = open(lists / "technical_words.txt");
    std::ifstream alsoPortuguese = open(lists / "portuguese_words.txt");
    std::ifstream list = open(lists / "given_names.txt");
    Dictionaries dictionaries{brazilianWords, englishWords, readWords(technical),
                              readWords(alsoPortuguese)};
    const GivenNames givenNames(list);
    ASSERT_GT(givenNames.size(), 100U);

    const NamePlaces names = namesOfTheTree(root);
    ASSERT_GT(names.size(), 50'000U);
    const WordSet portuguese = portugueseAmong(wordsIn(names), dictionaries);
    const std::string found = listing(names, givenNames, portuguese);
    EXPECT_TRUE(found.empty()) << "Portuguese names:\n" << found;
}

}  // namespace
}  // namespace tarn::test
