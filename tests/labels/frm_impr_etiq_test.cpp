#include <gmock/gmock.h>

#include <QRadioButton>

#include "tests/labels/label_screens.h"
#include "tests/support/entering.h"
#include "tests/support/texts.h"

namespace tarn::test {

using namespace labels;
namespace {

const Box madeBox{"Impressão Gerada com Sucesso !", BoxIcon::None, "Alerta"};
const Box dateBox{"Data de Venda obrigatoria nesta ocasião!", BoxIcon::None, "Alert"};

constexpr char countriesQuery[] = "comando=sel_pais&ServerName=SRV1";
constexpr char companysBranchesQuery[] =
    "comando=sel_filias&nId_Emp_Tarn=2161&nId_Pes_Usu=77&ServerName=SRV1";

// The query of a search: what follows the branches up to the product, and from there on.
std::string searchQuery(const std::string& branches, const std::string& places,
                        const std::string& rest) {
    return "comando=sel_dados_etq&nIdEtbTarn=" + branches + "&nIdPais=" + places +
           "&nIdMatPro=" + rest + "&ServerName=SRV1";
}
const std::string noFilter =
    "&nCepDe=&nCepAte=&dDtDe=&dDtAte=&nVlrDe=&nVlrAte=&nQtDe=&nQtAte=&nIdOrd=CEP";

class SelectionScreen : public LabelScreens {
protected:
    void SetUp() override {
        LabelScreens::SetUp();
        server.on("sel_pais", answers::rowset("<z:row NM_PAIS='BRASIL' ID_PAIS='55'/>"
                                              "<z:row NM_PAIS='CHILE' ID_PAIS='56'/>"));
        server.on("comando=sel_filias&",
                  answers::rowset("<z:row FILIAL='A' ID_ETB='10'/><z:row FILIAL='B' ID_ETB='20'/>"
                                  "<z:row FILIAL='C' ID_ETB='30'/>"));
        server.on("sel_estado", answers::rowset("<z:row NM_UF='SÃO PAULO' ID_UF='35'/>"));
        server.on("sel_cidade", answers::rowset("<z:row NM_MUN='SANTOS' ID_MUN='99'/>"));
        server.on("sel_dados_etq", answers::rowset(customers(3)));
    }
    static std::string customers(int count) {
        const std::vector<std::pair<const char*, const char*>> fields{
            {"CD_CEP", "CEP"},    {"NM_PES_CPL", "NOME"}, {"DC_LG_CPL", "RUA"},
            {"NM_BRR", "BAIRRO"}, {"SG_UF", "U"},         {"NM_MUN", "CIDADE"}};
        std::string rows;
        for (int i = 1; i <= count; ++i) {
            rows += "<z:row";
            for (const auto& [name, text] : fields) {
                rows.append(" ").append(name).append("='").append(text);
                rows.append(name == std::string_view("SG_UF") ? "" : " ");
                rows.append(std::to_string(i)).append("'");
            }
            rows += "/>";
        }
        return rows;
    }
    void inSelection(const Work& work) {
        modals.then("FrmImprEtiq", [work](QWidget& selection) {
            work(selection);
            click(selection, "cmdVoltar");
            EXPECT_FALSE(selection.isVisible());
        });
        menu.openLabelSelection();
    }
    // Searches with nothing typed: the grid has its customers.
    void inFound(const Work& work) {
        inSelection([this, work](QWidget& selection) {
            click(selection, "cmdPesquisar");
            server.addresses.clear();
            boxes.shown.clear();
            work(selection);
        });
    }
    static void tick(const QWidget& selection, int row) { grid::click(gridOf(selection), row, 1); }
    static bool ticked(const QWidget& selection, int row) {
        return grid::ticks(gridOf(selection)).at(static_cast<std::size_t>(row - 1));
    }
    static bool enabled(const QWidget& selection, const char* name) {
        return named<QWidget>(selection, name).isEnabled();
    }
};

TEST_F(SelectionScreen, OpensWithItsListsAndLeavesTheDeskAlone) {
    inSelection([this](QWidget& selection) {
        EXPECT_TRUE(selection.isModal());
        EXPECT_EQ(server.queries(), (Texts{countriesQuery, companysBranchesQuery}));
        EXPECT_EQ(items(selection, "cboPais"), (Texts{"<-TODAS->", "BRASIL", "CHILE"}));
        EXPECT_EQ(items(selection, "cboFilial"), (Texts{"<-TODAS->", "A", "B", "C"}));
        EXPECT_EQ(items(selection, "cboEstado"), Texts{});
        EXPECT_EQ(items(selection, "cboCidade"), Texts{});
        EXPECT_FALSE(enabled(selection, "cboEstado"));
        EXPECT_FALSE(enabled(selection, "cboCidade"));
        EXPECT_TRUE(named<QRadioButton>(selection, "optCep").isChecked());
        EXPECT_EQ(headings(selection),
                  (Texts{" ", "Cep", "Cliente", "Endereço", "Bairro", "Estado", "Cidade"}));
        EXPECT_TRUE(named<QTableView>(selection, "sprDados").verticalHeader()->isHidden());
    });
    EXPECT_EQ(server.addresses.size(), 2U);
    EXPECT_EQ(boxes.shown, Boxes{});
}

TEST_F(SelectionScreen, LabelsAsGiven) {
    inSelection([](QWidget& selection) {
        for (const auto& [field, label] :
             {std::pair{"cboFilial", "Filial"}, std::pair{"cboPais", "País"},
              std::pair{"cboEstado", "Estado"}, std::pair{"cboCidade", "Cidade"},
              std::pair{"txtProd", "Cod. Produto"}, std::pair{"txtCepDe", "De"},
              std::pair{"txtCepAte", "Até"}, std::pair{"txtDtVndDe", "De"},
              std::pair{"txtDtVndAte", "Até"}, std::pair{"txtVlrDe", "De"},
              std::pair{"txtVlrAte", "Até"}, std::pair{"txtQtde", "De"},
              std::pair{"txtQtAte", "Até"}}) {
            EXPECT_EQ(labelOf(selection, field), label) << field;
        }
        for (const auto& [name, words] :
             {std::pair{"lblPostalCode", "Cep:"}, std::pair{"lblSale", "Data Venda:"},
              std::pair{"lblAmount", "Valor:"}, std::pair{"lblQuantity", "Quantidade:"},
              std::pair{"lblOrder", "Ordenar por:"}}) {
            EXPECT_EQ(named<QLabel>(selection, name).text(), QString::fromUtf8(words));
        }
        EXPECT_EQ(named<QRadioButton>(selection, "optCep").text(), QStringLiteral("CEP"));
        EXPECT_EQ(named<QRadioButton>(selection, "optNome").text(), QStringLiteral("Nome"));
        for (const char* idle : {"txtSlip", "picLogo", "picAss", "picVert"}) {
            named<QWidget>(selection, idle);
        }
    });
}

TEST_F(SelectionScreen, TabFollowsTheFilters) {
    inSelection([](QWidget& selection) {
        pick(selection, "cboPais", 1);
        pick(selection, "cboEstado", 1);
        EXPECT_EQ(
            tabOrder(selection, "cboFilial", 18),
            (Texts{"cboFilial", "cboPais", "cboEstado", "cboCidade", "txtProd", "txtCepDe",
                   "txtCepAte", "txtDtVndDe", "txtDtVndAte", "txtVlrDe", "txtVlrAte", "txtQtde",
                   "txtQtAte", "optCep", "sprDados", "cmdPesquisar", "cmdImprimir", "cmdVoltar"}));
    });
}

// Tab stops at the two options once, at the one chosen.
TEST_F(SelectionScreen, ArrowsChooseTheOrder) {
    inSelection([](QWidget& selection) {
        EXPECT_EQ(tabOrder(selection, "txtQtAte", 2), (Texts{"txtQtAte", "optCep"}));
        key(selection, Qt::Key_Right);
        EXPECT_TRUE(named<QRadioButton>(selection, "optNome").isChecked());
        EXPECT_EQ(tabOrder(selection, "txtQtAte", 3), (Texts{"txtQtAte", "optNome", "sprDados"}));
    });
}

TEST_F(SelectionScreen, PlacesDependOnEachOther) {
    inSelection([this](QWidget& selection) {
        server.addresses.clear();
        pick(selection, "cboPais", 1);
        EXPECT_EQ(items(selection, "cboEstado"), (Texts{"<-TODAS->", "SÃO PAULO"}));
        EXPECT_TRUE(enabled(selection, "cboEstado"));
        EXPECT_FALSE(enabled(selection, "cboCidade"));
        pick(selection, "cboEstado", 1);
        EXPECT_EQ(items(selection, "cboCidade"), (Texts{"<-TODAS->", "SANTOS"}));
        EXPECT_TRUE(enabled(selection, "cboCidade"));
        EXPECT_EQ(server.queries(), (Texts{"comando=sel_estado&Pais=55&ServerName=SRV1",
                                           "comando=sel_cidade&Estado=35&ServerName=SRV1"}));
        pick(selection, "cboEstado", 0);
        EXPECT_EQ(items(selection, "cboCidade"), Texts{});
        EXPECT_FALSE(enabled(selection, "cboCidade"));
        pick(selection, "cboPais", 0);
        EXPECT_EQ(items(selection, "cboEstado"), Texts{});
        EXPECT_FALSE(enabled(selection, "cboEstado"));
        EXPECT_EQ(server.addresses.size(), 2U);
    });
}

TEST_F(SelectionScreen, EachWayToChooseAPlaceAsksOnce) {
    inSelection([this](QWidget& selection) {
        const auto expectAsked = [this](const std::vector<std::string>& queries) {
            EXPECT_EQ(server.queries(), queries);
            server.addresses.clear();
        };
        auto& countries = named<QComboBox>(selection, "cboPais");
        auto& states = named<QComboBox>(selection, "cboEstado");
        server.addresses.clear();
        countries.setFocus();
        QTest::keyClick(&countries, Qt::Key_Down);
        expectAsked({"comando=sel_estado&Pais=55&ServerName=SRV1"});
        wheelDown(countries);
        expectAsked({"comando=sel_estado&Pais=56&ServerName=SRV1"});
        states.setFocus();
        QTest::keyClick(&states, Qt::Key_S);
        expectAsked({"comando=sel_cidade&Estado=35&ServerName=SRV1"});
        wheelDown(states);
        QTest::keyClick(&states, Qt::Key_Down);
        expectAsked({});
        countries.setFocus();
        QTest::keyClick(&countries, Qt::Key_Home);
        expectAsked({});
        EXPECT_FALSE(states.isEnabled() || enabled(selection, "cboCidade"));
        EXPECT_EQ(states.count() + named<QComboBox>(selection, "cboCidade").count(), 0);
    });
}

TEST_F(SelectionScreen, AFailedStateTakesTheCitiesOfTheFormerOneAway) {
    server.on("sel_estado&Pais=56", answers::rowset("<z:row NM_UF='SUR' ID_UF='70'/>"));
    server.failOn("sel_cidade&Estado=70");
    inSelection([this](QWidget& selection) {
        pick(selection, "cboPais", 1);
        pick(selection, "cboEstado", 1);
        pick(selection, "cboCidade", 1);
        pick(selection, "cboPais", 2);
        EXPECT_EQ(items(selection, "cboCidade"), Texts{});
        EXPECT_FALSE(enabled(selection, "cboCidade"));
        pick(selection, "cboEstado", 1);
        EXPECT_EQ(items(selection, "cboCidade"), Texts{});
        EXPECT_TRUE(enabled(selection, "cboCidade"));
        EXPECT_EQ(boxes.shown, (Boxes{noInternet9Wide}));
        boxes.shown.clear();
        click(selection, "cmdPesquisar");
        EXPECT_EQ(boxes.shown, (Boxes{Box{searchQuery("10, 20, 30", "56&nIdUf=70", noFilter)}}));
    });
}

TEST_F(SelectionScreen, WhatIsPressedDuringTheSearchIsLost) {
    inSelection([this](QWidget& selection) {
        server.addresses.clear();
        boxes.onShow = [&selection](const Box&) { pressSoon(selection, "cmdPesquisar"); };
        click(selection, "cmdPesquisar");
        boxes.onShow = nullptr;
        QCoreApplication::processEvents();
        EXPECT_TRUE(selection.isVisible());
        EXPECT_EQ(server.addresses.size(), 1U);
        EXPECT_EQ(boxes.shown.size(), 1U);
        EXPECT_EQ(rows(selection), 3);
    });
}

TEST_F(SelectionScreen, FailedPlacesLeaveTheirListsEmpty) {
    server.failOn("comando=sel_estado");
    inSelection([this](QWidget& selection) {
        pick(selection, "cboPais", 2);
        EXPECT_EQ(boxes.shown, (Boxes{noInternet9Wide}));
        EXPECT_EQ(items(selection, "cboEstado"), Texts{});
        EXPECT_TRUE(enabled(selection, "cboEstado"));
        boxes.shown.clear();
        click(selection, "cmdPesquisar");
        EXPECT_EQ(boxes.shown, (Boxes{Box{searchQuery("10, 20, 30", "56", noFilter)}}));
    });
}

TEST_F(SelectionScreen, FailedListsLeaveTheScreenOpenAndTheirFiltersEmpty) {
    server = ScriptedLoader();
    inSelection([this](QWidget& selection) {
        EXPECT_EQ(boxes.shown, (Boxes{noInternet9Wide, noInternet9Wide}));
        EXPECT_EQ(items(selection, "cboPais"), Texts{});
        EXPECT_EQ(items(selection, "cboFilial"), Texts{});
        boxes.shown.clear();
        click(selection, "cmdPesquisar");
        EXPECT_EQ(boxes.shown, (Boxes{Box{searchQuery("", "", noFilter)}, noInternet9Wide}));
        EXPECT_EQ(rows(selection), 0);
    });
}

TEST_F(SelectionScreen, ASearchShowsItsQueryThenTheCustomers) {
    inSelection([this](QWidget& selection) {
        server.addresses.clear();
        boxes.onShow = [this](const Box&) { EXPECT_TRUE(server.addresses.empty()); };
        click(selection, "cmdPesquisar");
        const std::string query = searchQuery("10, 20, 30", "", noFilter);
        EXPECT_EQ(boxes.shown, (Boxes{Box{query}}));
        EXPECT_EQ(server.queries(), (Texts{query}));
        ASSERT_EQ(rows(selection), 3);
        std::vector<std::string> row;
        for (int column = 1; column <= 7; ++column) {
            row.push_back(cell(selection, 2, column));
        }
        EXPECT_EQ(row, (Texts{"", "CEP 2", "NOME 2", "RUA 2", "BAIRRO 2", "U2", "CIDADE 2"}));
        EXPECT_FALSE(ticked(selection, 1));
    });
}

TEST_F(SelectionScreen, EveryFilterTravels) {
    inSelection([this](QWidget& selection) {
        pick(selection, "cboFilial", 2);
        pick(selection, "cboPais", 1);
        pick(selection, "cboEstado", 1);
        pick(selection, "cboCidade", 1);
        selection.activateWindow();  // off-screen an open list takes the activation along
        ASSERT_TRUE(QTest::qWaitFor([&] { return QApplication::activeWindow() == &selection; }));
        type(selection, "txtProd", "P&Q 1");
        type(selection, "txtCepDe", "1000");
        type(selection, "txtCepAte", "2000");
        type(selection, "txtDtVndDe", "010112");
        type(selection, "txtDtVndAte", "3112");
        type(selection, "txtVlrDe", "1,5");
        type(selection, "txtVlrAte", "2");
        type(selection, "txtQtde", "3");
        type(selection, "txtQtAte", "4");
        QTest::mouseClick(&named<QWidget>(selection, "optNome"), Qt::LeftButton, {}, QPoint(5, 5));
        server.addresses.clear();
        click(selection, "cmdPesquisar");
        EXPECT_EQ(server.queries(),
                  (Texts{searchQuery("20", "55&nIdUf=35&nIdMun=99",
                                     "P&Q 1&nCepDe=1000&nCepAte=2000&dDtDe=01/01/2012&dDtAte="
                                     "31/12/2012&nVlrDe=1,5&nVlrAte=2&nQtDe=3&nQtAte=4&nIdOrd="
                                     "NOME")}));
    });
}

TEST_F(SelectionScreen, WhatWasBoughtAsksForTheDatesOfTheSale) {
    for (const char* field : {"txtProd", "txtVlrDe", "txtVlrAte", "txtQtde", "txtQtAte"}) {
        inSelection([this, field](QWidget& selection) {
            boxes.shown.clear();
            server.addresses.clear();
            type(selection, field, "1");
            click(selection, "cmdPesquisar");
            EXPECT_EQ(focused(selection), "txtDtVndDe");
            type(selection, "txtDtVndDe", "15");
            click(selection, "cmdPesquisar");
            EXPECT_EQ(focused(selection), "txtDtVndAte");
            EXPECT_EQ(boxes.shown, (Boxes{dateBox, dateBox})) << field;
            EXPECT_TRUE(server.addresses.empty());
            EXPECT_EQ(text(selection, "txtDtVndDe"), "15/03/2012");
        });
    }
}

TEST_F(SelectionScreen, ItsKeyPressesTheSearchAfterTheDateIsComplete) {
    inSelection([this](QWidget& selection) {
        type(selection, "txtDtVndDe", "0101");
        QTest::keyClick(&selection, Qt::Key_P, Qt::AltModifier);
        ASSERT_TRUE(QTest::qWaitFor([this] { return !boxes.shown.empty(); }));
        EXPECT_THAT(boxes.shown[0].text, testing::HasSubstr("&dDtDe=01/01/2012&dDtAte=&"));
    });
}

TEST_F(SelectionScreen, PostalCodesAskForNoDate) {
    inSelection([this](QWidget& selection) {
        type(selection, "txtCepDe", "1");
        click(selection, "cmdPesquisar");
        EXPECT_EQ(boxes.shown.size(), 1U);
        EXPECT_THAT(server.queries().back(), testing::HasSubstr("&nCepDe=1&nCepAte=&dDtDe=&"));
    });
}

TEST_F(SelectionScreen, FieldsOfNumbersTakeNothingElse) {
    inSelection([this](QWidget& selection) {
        for (const char* name : {"txtCepDe", "txtCepAte", "txtDtVndDe", "txtDtVndAte", "txtVlrDe",
                                 "txtVlrAte", "txtQtde", "txtQtAte"}) {
            expectNumbersOnly(selection, name, machine, Comma::Taken);
        }
    });
}

TEST_F(SelectionScreen, NumericBoxesAreFilteredAndEnterGoesOn) {
    inSelection([this](QWidget& selection) {
        const std::vector<std::pair<const char*, const char*>> boxesAndNext{
            {"txtCepDe", "txtCepAte"},   {"txtCepAte", "txtDtVndDe"}, {"txtDtVndDe", "txtDtVndAte"},
            {"txtDtVndAte", "txtVlrDe"}, {"txtVlrDe", "txtVlrAte"},   {"txtVlrAte", "txtQtde"},
            {"txtQtde", "txtQtAte"},     {"txtQtAte", "optCep"}};
        for (const auto& [field, next] : boxesAndNext) {
            machine.beeps = 0;
            type(selection, field, "1-2");
            EXPECT_EQ(text(selection, field), "12") << field;
            key(selection, Qt::Key_Return);
            EXPECT_EQ(machine.beeps, 2) << field;
            EXPECT_EQ(focused(selection), next);
        }
        type(selection, "txtProd", "a-1");
        EXPECT_EQ(text(selection, "txtProd"), "a-1");
        key(selection, Qt::Key_Return);
        EXPECT_EQ(focused(selection), "txtProd") << "a plain field, and no default button";
    });
}

TEST_F(SelectionScreen, AFailedSearchEmptiesTheGrid) {
    inFound([this](QWidget& selection) {
        server = ScriptedLoader();
        EXPECT_EQ(rows(selection), 3);
        click(selection, "cmdPesquisar");
        EXPECT_EQ(boxes.shown.back(), noInternet9Wide);
        EXPECT_EQ(rows(selection), 0);
    });
}

TEST_F(SelectionScreen, TickedCustomersPrint) {
    inFound([this](QWidget& selection) {
        tick(selection, 1);
        tick(selection, 2);
        tick(selection, 2);
        tick(selection, 3);
        EXPECT_TRUE(ticked(selection, 1));
        EXPECT_FALSE(ticked(selection, 2));
        click(selection, "cmdImprimir");
        EXPECT_EQ(printer.lines(),
                  (Texts{"scale\t7", "orientation\t1", drawn(800, 1545, 10, "NOME 1"),
                         drawn(800, 2045, 8, "RUA 1"), drawn(800, 2545, 8, "CEP 1"),
                         drawn(800, 3045, 8, "CIDADE 1 - U1"), drawn(11500, 1545, 10, "NOME 3"),
                         drawn(11500, 2045, 8, "RUA 3"), drawn(11500, 2545, 8, "CEP 3"),
                         drawn(11500, 3045, 8, "CIDADE 3 - U3"), "enddoc"}));
        EXPECT_EQ(boxes.shown, (Boxes{madeBox}));
        EXPECT_TRUE(server.addresses.empty());
        EXPECT_TRUE(selection.isVisible());
    });
}

TEST_F(SelectionScreen, TheHeadingTicksNothing) {
    inFound([](QWidget& selection) {
        grid::clickHeading(gridOf(selection), 1);
        for (int row = 1; row <= 3; ++row) {
            EXPECT_FALSE(ticked(selection, row));
        }
    });
}

TEST_F(SelectionScreen, NobodyTickedIsCalledASuccess) {
    inFound([this](QWidget& selection) {
        click(selection, "cmdImprimir");
        EXPECT_EQ(printer.lines(), (Texts{"scale\t7", "orientation\t1", "enddoc"}));
        EXPECT_EQ(boxes.shown, (Boxes{madeBox}));
    });
}

TEST_F(SelectionScreen, AFailureWhileDrawingIsShownAndPrintingGoesOn) {
    inFound([this](QWidget& selection) {
        tick(selection, 1);
        printer.failAt = 3;
        click(selection, "cmdImprimir");
        EXPECT_EQ(printer.operations.size(), 7U);
        EXPECT_EQ(boxes.shown, (Boxes{printerRefused, madeBox}));
    });
}

TEST_F(SelectionScreen, ADocumentThatIsRefusedKeepsTheTicksAndIsNoSuccess) {
    inFound([this](QWidget& selection) {
        tick(selection, 1);
        printer.refuses = isNoText;
        click(selection, "cmdImprimir");
        EXPECT_EQ(boxes.shown, (Boxes{printerRefused}));
        EXPECT_TRUE(selection.isVisible());
        EXPECT_TRUE(ticked(selection, 1));
    });
}

TEST_F(SelectionScreen, ALongRunShowsHowFarItIs) {
    server = ScriptedLoader();
    server.on("sel_pais", answers::rowset("")).on("sel_filias", answers::rowset(""));
    server.on("sel_dados_etq", answers::rowset(customers(5000)));
    inFound([this](QWidget& selection) {
        QAbstractItemModel& model = *named<QTableView>(selection, "sprDados").model();
        for (int row = 0; row < model.rowCount(); ++row) {
            model.setData(model.index(row, 0), Qt::Checked, Qt::CheckStateRole);
        }
        const auto told = watchProgress(selection, [&] { click(selection, "cmdImprimir"); });
        ASSERT_FALSE(told.empty());
        EXPECT_THAT(told.front(), testing::EndsWith(" de 5000"));
        EXPECT_EQ(printer.operations.size(), 2U + 5000U * 4U + 1U);
    });
}

}  // namespace
}  // namespace tarn::test
