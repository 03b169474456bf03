// A server that fails while slips are printed: the portfolio's record before, the writes
// behind which the paper comes all the same.
#include <gmock/gmock.h>

#include <QCheckBox>
#include <QComboBox>

#include "tests/e2e/fault_desk.h"
#include "tests/support/boxes.h"
#include "tests/support/texts.h"

namespace tarn::test {
namespace {
using testing::HasSubstr;

const Box noneTicked = information("Selecione um item na Lista!     ");
const std::vector<std::string> writes{"altera_docto_cob", "altera_docto_rec", "insere_car_cob",
                                      "insere_car_rec"};

// A row of the grid; columns as the printing reads them.
struct Document {
    int row = 0;
    std::string table;
    std::string number;
    std::string kind;
    std::string branch;
    std::string bank;
};

class SlipFaults : public FaultDesk {
protected:
    // Positions of cboCartCob.
    static constexpr int wallet57 = 1;   // bank 1016, agency 1123, account 45678-9
    static constexpr int wallet101 = 2;  // bank 1084

    void SetUp() override {
        FaultDesk::SetUp();
        logOn();
    }
    // The screen with a portfolio chosen and its documents searched, or those that wait to
    // be entered in it.
    void inSlips(int portfolio, bool entering, const std::function<void()>& work) {
        modals.then("frmPesqBoleto", [=, this](QWidget& opened) {
            screen = &opened;
            type(opened, "txtDtEmsDe", "01012012");
            type(opened, "txtDtVncAte", "31122012");
            pickIn(opened, "cboCartCob", portfolio);
            if (entering) {
                auto& box = named<QCheckBox>(opened, "chkInc_Carteira");
                QTest::mouseClick(&box, Qt::LeftButton, {}, QPoint(8, box.height() / 2));
            }
            click(opened, "cmdPesquisar");
            forget();
            work();
            click(opened, "cmdVoltar");
        });
        choose(menu, "mnuBoleto");
    }
    std::string cell(int row, int column) { return grid::cell(gridOf(*screen), row, column); }
    // The first document of the given table and of a bank that slips are printed for.
    Document first(const std::string& table, bool entering) {
        for (int row = 1; row <= grid::rows(gridOf(*screen)); ++row) {
            if (cell(row, 16) == table && (entering || cell(row, 27) == "1016")) {
                return {row, table, cell(row, 5), cell(row, 25), cell(row, 24), cell(row, 27)};
            }
        }
        ADD_FAILURE() << "no document of " << table;
        return {};
    }
    // Searches anew, ticks a document of each table and asks for their slips; in the
    // order of the grid.
    std::vector<Document> print(const char* number, bool entering) {
        click(*screen, "cmdPesquisar");
        std::vector<Document> documents{first("DOCTO_COBRANCA", entering),
                                        first("DOCTO_RECEBER", entering)};
        std::ranges::sort(documents, {}, &Document::row);
        for (const Document& document : documents) {
            grid::click(gridOf(*screen), document.row, 1);
        }
        type(*screen, "txtNr_Bol_Banc", number);
        takeCommands();
        click(*screen, "cmdImprimir");
        return documents;
    }
    // What the server keeps of it: slip number and portfolio.
    std::string kept(const Document& document) {
        const auto rows = stored(
            "SELECT COALESCE(d.slip_number, '-'), COALESCE(p.wallet, '-') FROM document d"
            " JOIN establishment e ON e.id = d.establishment_id"
            " LEFT JOIN portfolio p ON p.id = d.portfolio_id WHERE e.company_id = 1361"
            " AND e.code = " +
                document.branch + " AND d.kind_id = " + document.kind + " AND d.number = '" +
                document.number + "'",
            2);
        return rows.size() == 1 ? rows.front() : "no such document";
    }
    bool ticked() {
        const std::vector<bool> ticks = grid::ticks(gridOf(*screen));
        return std::ranges::find(ticks, true) != ticks.end();
    }
    // Each slip behind its set-up job, both jobs ended.
    void expectSlips(const std::vector<Document>& documents,
                     const std::vector<std::string>& numbers) {
        ASSERT_EQ(spooler.jobs.size(), 2 * documents.size());
        for (std::size_t i = 0; i < documents.size(); ++i) {
            EXPECT_EQ(spooler.bytes(2 * i), " \x0F\x1BM");
            const RecordingSpooler::Job& slip = spooler.jobs[2 * i + 1];
            EXPECT_THAT(slip.bytes(), HasSubstr(" " + documents[i].number + " "));
            EXPECT_THAT(slip.bytes(), HasSubstr(numbers[i]));
            EXPECT_TRUE(slip.ended && slip.closed);
        }
    }

    QWidget* screen = nullptr;
};

// Number 1234 with agency 1123 and account 456789 has the check digit 7, 1235 the 6.
TEST_F(SlipFaults, SlipsArePrintedWhateverBecomesOfTheirWrites) {
    inSlips(wallet57, true, [this] {
        under(writes, allFaults(), [this](const FaultCase& fault) {
            const std::vector<Document> documents = print("1234", true);
            EXPECT_EQ(boxes.shown, Boxes{});
            EXPECT_THAT(takeCommands(), testing::SizeIs(5)) << "the portfolio and four writes";
            expectSlips(documents, {"NOSSO NUMERO: 0000000001234/7   CODIGO CLIENTE: ",
                                    "NOSSO NUMERO: 0000000001235/6   CODIGO CLIENTE: "});
            EXPECT_EQ(kept(documents.front()), fault.carriedOut ? "1234|57" : "-|-");
            EXPECT_EQ(kept(documents.back()), fault.carriedOut ? "1235|57" : "-|-");
            EXPECT_FALSE(ticked());
            EXPECT_EQ(text(*screen, "txtNr_Bol_Banc"), "");
        });
    });
    EXPECT_FALSE(end.ended());
}

TEST_F(SlipFaults, ADocumentWhoseSecondWriteFailsHasANumberAndNoPortfolio) {
    inSlips(wallet57, true, [this] {
        under({"insere_car_cob", "insere_car_rec"}, leaving({Left::Refusal}),
              [this](const FaultCase&) {
                  const std::vector<Document> documents = print("1234", true);
                  EXPECT_EQ(spooler.jobs.size(), 4U);
                  EXPECT_EQ(kept(documents.front()), "1234|-");
                  EXPECT_EQ(kept(documents.back()), "1235|-");
                  click(*screen, "cmdPesquisar");
                  EXPECT_EQ(first("DOCTO_COBRANCA", true).number,
                            documents[documents[0].table == "DOCTO_COBRANCA" ? 0 : 1].number)
                      << "it still waits to be entered";
              });
        under({"altera_docto_cob", "altera_docto_rec"}, leaving({Left::Refusal}),
              [this](const FaultCase&) {
                  const std::vector<Document> documents = print("2000", true);
                  EXPECT_EQ(spooler.jobs.size(), 4U);
                  EXPECT_EQ(kept(documents.front()), "2000|57") << "the second write is sent too";
              });
        EXPECT_EQ(boxes.shown, Boxes{});
    });
}

// Number 1234 gives the sum 30, the remainder 8 and the digit 3; 1235 gives 32, 10 and 1.
TEST_F(SlipFaults, TheOtherLayoutIsPrintedWhateverBecomesOfItsWrite) {
    inSlips(wallet101, true, [this] {
        under(writes, allFaults(), [this](const FaultCase& fault) {
            database.execute("UPDATE document SET slip_number = NULL");
            const std::vector<Document> documents = print("1234", true);
            EXPECT_EQ(boxes.shown, Boxes{});
            EXPECT_THAT(takeCommands(), testing::SizeIs(3)) << "it enters nothing anywhere";
            expectSlips(documents, {"N.N.  0001234-3\r\n", "N.N.  0001235-1\r\n"});
            EXPECT_EQ(kept(documents.front()), fault.carriedOut ? "00012343|-" : "-|-");
            EXPECT_EQ(kept(documents.back()), fault.carriedOut ? "00012351|-" : "-|-");
        });
    });
}

TEST_F(SlipFaults, WithoutThePortfoliosRecordNothingIsTouched) {
    inSlips(wallet57, false, [this] {
        under({"sel_carteira_cob"}, leaving({Left::Nothing}), [this](const FaultCase&) {
            print("1234", false);
            EXPECT_EQ(boxes.shown, (Boxes{noInternet9}));
            EXPECT_EQ(takeCommands(), (Texts{"sel_carteira_cob"}));
            EXPECT_THAT(spooler.calls, testing::IsEmpty());
            EXPECT_EQ(text(*screen, "txtNr_Bol_Banc"), "1234");
            EXPECT_TRUE(ticked());
        });
        page.heal();
        under({"sel_carteira_cob"}, leaving({Left::NoDeclaration, Left::All}),
              [this](const FaultCase&) {
                  expectSlips(print("1234", false),
                              {"NOSSO NUMERO: 0000000001234/7", "NOSSO NUMERO: 0000000001235/6"});
                  EXPECT_EQ(boxes.shown, Boxes{});
              });
    });
}

// A portfolio of which the server says nothing has neither bank nor wallet.
TEST_F(SlipFaults, ARefusedPortfolioLeavesTheBankToTheRowOrToNobody) {
    page.fail("sel_carteira_cob", {FaultKind::Refuse, {}});
    inSlips(wallet57, false, [this] {
        const std::vector<Document> documents = print("1234", false);
        EXPECT_EQ(boxes.shown, Boxes{});
        expectSlips(documents, {"N.N.  0001234-3\r\n", "N.N.  0001235-1\r\n"});
        EXPECT_EQ(kept(documents.front()), "00012343|57");
    });
    inSlips(wallet57, true, [this] {
        const std::vector<Document> documents = print("1234", true);
        EXPECT_EQ(boxes.shown, (Boxes{noneTicked}));
        EXPECT_EQ(takeCommands(), (Texts{"sel_carteira_cob"}));
        ASSERT_EQ(spooler.jobs.size(), 4U) << "the set-up, and a job that is never closed, twice";
        EXPECT_TRUE(spooler.jobs[0].closed);
        EXPECT_FALSE(spooler.jobs[1].ended);
        EXPECT_EQ(spooler.bytes(1),
                  " \x1B"
                  "2 \x0F\x1BG");
        EXPECT_EQ(kept(documents.front()), "-|-");
        EXPECT_FALSE(ticked());
        EXPECT_EQ(text(*screen, "txtNr_Bol_Banc"), "");
    });
}

TEST_F(SlipFaults, ListsThatDontComeLeaveTheirFirstItems) {
    under({"sel_filiais", "sel_carteira"}, leaving({Left::Nothing}), [this](const FaultCase&) {
        modals.then("frmPesqBoleto", [this](QWidget& opened) {
            EXPECT_EQ(boxes.shown, (Boxes{noInternet9Wide, noInternet9Wide}));
            EXPECT_EQ(named<QComboBox>(opened, "cboFilial").currentText(),
                      QStringLiteral("<-TODAS->"));
            EXPECT_EQ(named<QComboBox>(opened, "cboCartCob").currentText(),
                      QStringLiteral("--------"));
            EXPECT_EQ(named<QComboBox>(opened, "cboCartCob").count(), 1);
            click(opened, "cmdImprimir");
            EXPECT_EQ(boxes.shown,
                      (Boxes{noInternet9Wide, noInternet9Wide,
                             information("Carteira Cobrança é um campo obrigatório!     ")}));
            click(opened, "cmdVoltar");
        });
        choose(menu, "mnuBoleto");
    });
}

TEST_F(SlipFaults, ASearchWithoutAnAnswerLeavesTheGrid) {
    inSlips(wallet57, true, [this] {
        const int before = grid::rows(gridOf(*screen));
        ASSERT_GT(before, 0);
        under({"sel_boleto"}, leaving({Left::Nothing}), [this, before](const FaultCase&) {
            click(*screen, "cmdPesquisar");
            EXPECT_EQ(boxes.shown, (Boxes{noInternet9}));
            EXPECT_EQ(grid::rows(gridOf(*screen)), before);
        });
        under({"sel_boleto"}, leaving({Left::Refusal}), [this](const FaultCase&) {
            click(*screen, "cmdPesquisar");
            EXPECT_EQ(boxes.shown,
                      (Boxes{Box{"Não foi encontrado nenhum documento para esta pesquisa. ",
                                 BoxIcon::Exclamation, "TarnEmissao"}}));
            EXPECT_EQ(grid::rows(gridOf(*screen)), 0);
        });
    });
}

}  // namespace
}  // namespace tarn::test
