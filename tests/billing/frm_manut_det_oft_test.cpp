#include "billing/frm_manut_det_oft.h"

#include <gmock/gmock.h>

#include <QAccessible>
#include <QLabel>
#include <QMimeData>
#include <QPushButton>

#include "tests/billing/frm_oft_fixture.h"
#include "tests/support/boxes.h"
#include "tests/support/entering.h"
#include "tests/support/texts.h"
#include "widgets/free_text_field.h"

namespace tarn::test {
namespace {

constexpr std::array<const char*, 12> fields{
    "txtOrdFat", "txtCliente",   "txtEstab", "txtTpNF", "txtDtEmissao", "txtOrdCarga",
    "txtTransp", "txtMotorista", "txtObs",   "txtQtde", "txtPesoBruto", "txtPesoLiquido"};

std::string written(const std::string& order, const std::string& observation,
                    const std::string& quantity, const std::string& gross, const std::string& net) {
    return "COMANDO=MANUTENCAO_OFT&ID_ETB_TARN=6001&ID_ORD_FAT=" + order +
           "&ServerName=SRV1&DC_OBS=" + observation + "&QT_ESP=" + quantity + "&PESO_BRU=" + gross +
           "&PESO_LIQ=" + net;
}
const std::string untouched = written("1001", "obs", "12,500", "1.234.567,892", "0,000");

class FrmManutDetOFTTest : public FrmOFTTest {
protected:
    using Work = std::function<void(QWidget&)>;

    // Opens the dialog on the active row and works in it; the work closes it.
    void edit(const Work& work) {
        modals.then("frmManutDetOFT", work);
        click(screen(), "cmdDetOFT");
    }
    // Opens the list, then the dialog on its first row, works in it and cancels.
    void look(const Work& work, const std::string& orders = twoOrders) {
        open(orders);
        edit([&](QWidget& dialog) {
            work(dialog);
            server.addresses.clear();
            key(dialog, Qt::Key_Escape);
            EXPECT_FALSE(dialog.isVisible());
            EXPECT_TRUE(server.addresses.empty()) << "cancelling sends nothing";
        });
    }
    // The request of the write, after the observation's and before the list's.
    std::vector<std::string> saved() {
        std::vector<std::string> writes;
        for (const std::string& query : server.queries()) {
            if (query.find("MANUTENCAO_OFT") != std::string::npos) {
                writes.push_back(query);
            }
        }
        return writes;
    }
    static std::string text(const QWidget& dialog, const char* name) {
        if (const auto* line = dialog.findChild<QLineEdit*>(QLatin1StringView(name))) {
            return line->text().toStdString();
        }
        return named<FreeTextField>(dialog, name).text();
    }
    static std::vector<std::string> texts(const QWidget& dialog) {
        std::vector<std::string> all;
        all.reserve(fields.size());
        for (const char* name : fields) {
            all.push_back(text(dialog, name));
        }
        return all;
    }
    static FreeTextField& obs(const QWidget& dialog) {
        return named<FreeTextField>(dialog, "txtObs");
    }
    static void typeObs(const QWidget& dialog, const char* typed) {
        obs(dialog).setFocus();
        obs(dialog).selectAll();
        keys(obs(dialog), typed);
    }
    static void settle() {
        for (int turn = 0; turn < 3; ++turn) {
            QCoreApplication::processEvents();
        }
    }
    std::string orders(const std::string& attributes) {
        return answers::rowset("<z:row ID_ORD_FAT='1001' " + attributes + "/>");
    }
};

TEST_F(FrmManutDetOFTTest, ShowsTheTwelveCellsOfTheActiveRow) {
    look([&](QWidget& dialog) {
        EXPECT_EQ(dialog.windowTitle(),
                  QStringLiteral("Alteração dos dados da Ordem de Faturamento"));
        EXPECT_TRUE(dialog.isModal());
        EXPECT_EQ(texts(dialog), (Texts{"1001", "JOSÉ <b>", "MATRIZ", "VENDA", "12/03/2012", "77",
                                        "TT", "MM", "obs", "12,500", "1.234.567,892", "0,000"}));
        EXPECT_EQ(server.queries(), (Texts{obsQuery})) << "nothing is read anew";
        EXPECT_EQ(named<QLineEdit>(dialog, "txtCliente").toolTip(),
                  QStringLiteral("<p>JOSÉ &lt;b&gt;</p>"));
        const auto spoken = [&dialog](QAccessible::Text what) {
            return QAccessible::queryAccessibleInterface(&named<QWidget>(dialog, "txtCliente"))
                ->text(what);
        };
        EXPECT_EQ(spoken(QAccessible::Value), QStringLiteral("JOSÉ <b>"));
        EXPECT_EQ(spoken(QAccessible::Description), QStringLiteral("Só para leitura"));
    });
    EXPECT_TRUE(boxes.shown.empty());
}

TEST_F(FrmManutDetOFTTest, LabelsAndButtonsAsGiven) {
    look([&](QWidget& dialog) {
        const std::array<const char*, 12> labels{
            "Ordem de Fat.",   "Cliente",        "Estabelecimento", "Tipo de NF",
            "Data de Emissão", "Ordem de Carga", "Transportadora",  "Motorista",
            "Observação",      "Qtde. Espécie",  "Peso Bruto",      "Peso Líquido"};
        for (std::size_t i = 0; i < fields.size(); ++i) {
            std::string found = "no label";
            for (const QLabel* label : dialog.findChildren<QLabel*>()) {
                if (label->buddy() == &named<QWidget>(dialog, fields[i])) {
                    found = label->text().toStdString();
                }
            }
            EXPECT_EQ(found, labels[i]);
        }
        EXPECT_EQ(named<QLabel>(dialog, "lblTitulo").text(),
                  QStringLiteral("Alteração dos dados da Ordem Faturamento"));
        for (const char* name : {"cmdOk", "cmdCancelar"}) {
            auto& button = named<QPushButton>(dialog, name);
            EXPECT_TRUE(button.text().isEmpty()) << name;
            EXPECT_FALSE(button.icon().pixmap(24).isNull()) << name;
            EXPECT_FALSE(button.toolTip().isEmpty()) << name;
            EXPECT_FALSE(button.accessibleName().isEmpty()) << name;
        }
    });
}

TEST_F(FrmManutDetOFTTest, StandsInTheMiddleOfTheDesk) {
    menu.setGeometry(10, 0, 780, 600);
    look([&](QWidget& dialog) {
        EXPECT_NEAR(dialog.geometry().center().x(), menu.geometry().center().x(), 1);
    });
}

TEST_F(FrmManutDetOFTTest, TabFollowsTheFieldsThenTheButtons) {
    look([&](QWidget& dialog) {
        std::vector<std::string> expected(fields.begin(), fields.end());
        expected.insert(expected.end(), {"cmdOk", "cmdCancelar", "txtOrdFat"});
        EXPECT_EQ(tabOrder(dialog, "txtOrdFat", 15), expected);
    });
}

TEST_F(FrmManutDetOFTTest, ReferenceFieldsCantBeChanged) {
    look([&](QWidget& dialog) {
        const auto before = texts(dialog);
        for (std::size_t i = 0; i < 8; ++i) {
            auto& field = named<QLineEdit>(dialog, fields[i]);
            field.setFocus();
            field.selectAll();
            keys(field, "9");
            QTest::keyClick(&field, Qt::Key_Delete);
            paste(field, QStringLiteral("9"));
        }
        EXPECT_EQ(texts(dialog), before);
    });
}

TEST_F(FrmManutDetOFTTest, TheSecondRowOpensWhenItIsActive) {
    open();
    QTest::mouseClick(grid().viewport(), Qt::LeftButton, {},
                      grid().visualRect(grid().model()->index(1, 1)).center());
    edit([](QWidget& dialog) {
        EXPECT_EQ(texts(dialog),
                  (Texts{"1002", "B", "", "", "", "78", "", "", "", "1,000", "", ""}));
        click(dialog, "cmdCancelar");
    });
}

TEST_F(FrmManutDetOFTTest, OkSendsTheFieldsAsTheyStandAndReadsTheListAnew) {
    open();
    server.on("MANUTENCAO_OFT", answers::status("OK"));
    edit([&](QWidget& dialog) {
        server.addresses.clear();
        click(dialog, "cmdOk");
        EXPECT_FALSE(dialog.isVisible());
    });
    EXPECT_EQ(server.queries(), (Texts{untouched, listQuery}));
    EXPECT_TRUE(boxes.shown.empty());
    EXPECT_TRUE(timer().isActive());
}

TEST_F(FrmManutDetOFTTest, TypedValuesTravelInTheirScreenForm) {
    open();
    server.on("MANUTENCAO_OFT", answers::status("OK"));
    edit([&](QWidget& dialog) {
        typeObs(dialog, "100% à vista & já || ok");
        type(dialog, "txtQtde", "1234,5");
        type(dialog, "txtPesoBruto", "0");
        type(dialog, "txtPesoLiquido", ",5");
        click(dialog, "cmdOk");
    });
    EXPECT_EQ(saved(),
              (Texts{written("1001", "100|| à vista | já || ok", "1.234,500", "0,000", "0,500")}));
    EXPECT_TRUE(boxes.shown.empty());
}

TEST_F(FrmManutDetOFTTest, TheTimerRunsAgainAfterAWrite) {
    open();
    server.on("SP_GERA_NF", answers::status("Não"));
    click(screen(), "cmdSelecionar");
    boxes.shown.clear();
    ASSERT_FALSE(timer().isActive());
    edit([](QWidget& dialog) { click(dialog, "cmdCancelar"); });
    EXPECT_FALSE(timer().isActive()) << "cancelling leaves it as it was";
    server.on("MANUTENCAO_OFT", answers::status("OK"));
    bool stillOpen = false;
    edit([&](QWidget& dialog) {
        QObject::connect(grid().model(), &QAbstractItemModel::modelReset, &dialog,
                         [&] { stillOpen = dialog.isVisible(); });
        click(dialog, "cmdOk");
    });
    EXPECT_TRUE(stillOpen) << "the list is read before the dialog closes";
    EXPECT_TRUE(timer().isActive());
    EXPECT_TRUE(boxes.shown.empty());
}

TEST_F(FrmManutDetOFTTest, ALostWriteIsToldOnceAndTheListRead) {
    open();
    server.failOn("MANUTENCAO_OFT");
    edit([&](QWidget& dialog) {
        server.addresses.clear();
        click(dialog, "cmdOk");
        EXPECT_FALSE(dialog.isVisible());
    });
    EXPECT_EQ(boxes.shown,
              (Boxes{transportFailure("0013"),
                     notice("Favor verificar se os dados da Ordem de Faturamento foi gravado. ")}));
    EXPECT_EQ(server.queries(), (Texts{untouched, listQuery}));
    EXPECT_TRUE(timer().isActive());
}

TEST_F(FrmManutDetOFTTest, ARefusalLeavesWhatWasTyped) {
    open();
    server.on("MANUTENCAO_OFT", answers::status("Ordem em uso por outro &lt;usuário&gt;"))
        .on("MANUTENCAO_OFT", answers::status("OK"));
    edit([&](QWidget& dialog) {
        typeObs(dialog, "novo texto");
        type(dialog, "txtQtde", "7");
        server.addresses.clear();
        click(dialog, "cmdOk");
        EXPECT_TRUE(dialog.isVisible());
        EXPECT_EQ(boxes.shown, (Boxes{exclamation("Ordem em uso por outro <usuário>")}));
        EXPECT_EQ(text(dialog, "txtObs"), "novo texto");
        EXPECT_EQ(text(dialog, "txtQtde"), "7,000");
        EXPECT_EQ(server.addresses.size(), 1U) << "the list isn't read";
        type(dialog, "txtQtde", "6");
        click(dialog, "cmdOk");
    });
    EXPECT_EQ(saved(), (Texts{written("1001", "novo texto", "7,000", "1.234.567,892", "0,000"),
                              written("1001", "novo texto", "6,000", "1.234.567,892", "0,000")}));
    EXPECT_EQ(boxes.shown.size(), 1U);
}

TEST_F(FrmManutDetOFTTest, AnAnswerWithoutAStatusEndsTheProgram) {
    open();
    server.on("MANUTENCAO_OFT", "<R a='0' s='OK'/>");
    edit([&](QWidget& dialog) {
        click(dialog, "cmdOk");
        ASSERT_EQ(boxes.shown.size(), 1U);
        EXPECT_EQ(boxes.shown[0].text.rfind("Erro em tempo de execução '91'", 0), 0U);
        EXPECT_EQ(end.status(), 3);
        key(dialog, Qt::Key_Escape);
    });
}

TEST_F(FrmManutDetOFTTest, FieldsLeftEmptyByTheListAreAskedForInOrder) {
    open(orders("DC_OBS='o'"));
    server.on("MANUTENCAO_OFT", answers::status("OK"));
    edit([&](QWidget& dialog) {
        server.addresses.clear();
        click(dialog, "cmdOk");
        EXPECT_EQ(focused(dialog), "txtQtde");
        type(dialog, "txtQtde", "1");
        click(dialog, "cmdOk");
        EXPECT_EQ(focused(dialog), "txtPesoBruto");
        type(dialog, "txtPesoBruto", "2");
        click(dialog, "cmdOk");
        EXPECT_EQ(focused(dialog), "txtPesoLiquido");
        EXPECT_TRUE(server.addresses.empty());
        type(dialog, "txtPesoLiquido", "3");
        click(dialog, "cmdOk");
    });
    EXPECT_EQ(boxes.shown, (Boxes{attention("Quantidade Espécie é obrigatório!     "),
                                  attention("Peso Bruto é obrigatório!     "),
                                  attention("Peso Líquido é obrigatório!     ")}));
    EXPECT_EQ(saved(), (Texts{written("1001", "o", "1,000", "2,000", "3,000")}));
}

TEST_F(FrmManutDetOFTTest, NegativeFieldsAreRefusedInOrder) {
    open(orders("QT_ESP='-1' PESO_BRU='-0.5' PESO_LIQ='-2'"));
    edit([&](QWidget& dialog) {
        server.addresses.clear();
        for (const char* field : {"txtQtde", "txtPesoBruto", "txtPesoLiquido"}) {
            click(dialog, "cmdOk");
            EXPECT_EQ(focused(dialog), field);
            type(dialog, field, "0");
        }
        EXPECT_TRUE(server.addresses.empty());
        click(dialog, "cmdCancelar");
    });
    EXPECT_EQ(boxes.shown, (Boxes{attention("Quantidade Espécie inválido!     "),
                                  attention("Peso Bruto inválido!     "),
                                  attention("Peso Líquido inválido!     ")}));
}

TEST_F(FrmManutDetOFTTest, EachNumberFieldHasItsOwnMessages) {
    look([&](QWidget& dialog) {
        for (const auto& [field, invalid, large] :
             {std::tuple{"txtQtde", "Quantidade inválido.     ",
                         "Quantidade máxima permitida é 9.999.999,999 "},
              {"txtPesoBruto", "Peso Bruto inválido.     ",
               "Peso Bruto máximo permitido é 9.999.999,999 "},
              {"txtPesoLiquido", "Peso Líquido inválido.     ",
               "Peso Líquido máximo permitido é 9.999.999,999 "}}) {
            boxes.shown.clear();
            type(dialog, field, "");
            key(dialog, Qt::Key_Delete);
            key(dialog, Qt::Key_Return);
            settle();
            EXPECT_EQ(boxes.shown, (Boxes{attention(invalid)}));
            EXPECT_EQ(text(dialog, field), "0,000");
            EXPECT_EQ(focused(dialog), field);
            boxes.shown.clear();
            type(dialog, field, "10000000");
            key(dialog, Qt::Key_Tab);
            settle();
            EXPECT_EQ(boxes.shown, (Boxes{attention(large)}));
            EXPECT_EQ(text(dialog, field), "0,000");
            EXPECT_EQ(focused(dialog), field);
        }
        boxes.shown.clear();
    });
    EXPECT_TRUE(boxes.shown.empty());
}

TEST_F(FrmManutDetOFTTest, NumberFieldsAreFilteredSelectedAndLimited) {
    look([&](QWidget& dialog) {
        auto& field = named<QLineEdit>(dialog, "txtPesoBruto");
        EXPECT_EQ(field.maxLength(), 13);
        EXPECT_EQ(field.alignment() & Qt::AlignHorizontal_Mask, Qt::AlignRight);
        field.setFocus(Qt::TabFocusReason);
        EXPECT_EQ(field.selectedText(), QStringLiteral("1.234.567,892"));
        keys(field, "1-2.a3");
        EXPECT_EQ(text(dialog, "txtPesoBruto"), "123");
        EXPECT_EQ(machine.beeps, 3);
    });
}

TEST_F(FrmManutDetOFTTest, ABadFieldKeepsTheClickOnOkFromCounting) {
    open();
    edit([&](QWidget& dialog) {
        server.addresses.clear();
        type(dialog, "txtQtde", "");
        key(dialog, Qt::Key_Delete);
        click(dialog, "cmdOk");
        settle();
        EXPECT_EQ(boxes.shown, (Boxes{attention("Quantidade inválido.     ")}));
        EXPECT_TRUE(server.addresses.empty());
        EXPECT_EQ(focused(dialog), "txtQtde");
        key(dialog, Qt::Key_Escape);
    });
    EXPECT_EQ(boxes.shown.size(), 1U);
}

TEST_F(FrmManutDetOFTTest, EscWithABadFieldSaysNothing) {
    look([](QWidget& dialog) {
        type(dialog, "txtQtde", "");
        key(dialog, Qt::Key_Delete);
    });
    settle();
    EXPECT_TRUE(boxes.shown.empty());
}

TEST_F(FrmManutDetOFTTest, TheLargestWeightOfTheListIsShownWhole) {
    open(orders("QT_ESP='9999999.9995' PESO_BRU='123456789.5' PESO_LIQ='1'"));
    server.on("MANUTENCAO_OFT", answers::status("OK"));
    edit([](QWidget& dialog) { click(dialog, "cmdOk"); });
    EXPECT_EQ(saved(), (Texts{written("1001", "", "10.000.000,000", "123.456.789,500", "1,000")}));
}

TEST_F(FrmManutDetOFTTest, EnterMovesOnFromTheFourFieldsInSilence) {
    look([&](QWidget& dialog) {
        obs(dialog).setFocus();
        for (const char* next : {"txtQtde", "txtPesoBruto", "txtPesoLiquido", "cmdOk"}) {
            key(dialog, Qt::Key_Return);
            EXPECT_EQ(focused(dialog), next);
        }
        obs(dialog).setFocus();
        key(dialog, Qt::Key_Enter);
        EXPECT_EQ(focused(dialog), "txtQtde");
        obs(dialog).setFocus();
        QTest::keyClick(&obs(dialog), Qt::Key_Return, Qt::ShiftModifier);
        EXPECT_EQ(focused(dialog), "txtQtde");
        EXPECT_EQ(text(dialog, "txtObs"), "obs");
        EXPECT_EQ(machine.beeps, 0);
        EXPECT_TRUE(boxes.shown.empty());
    });
}

TEST_F(FrmManutDetOFTTest, EnterInAReferenceFieldDoesNothingAndOnAButtonPressesIt) {
    open();
    server.on("MANUTENCAO_OFT", answers::status("OK"));
    edit([&](QWidget& dialog) {
        named<QWidget>(dialog, "txtCliente").setFocus();
        key(dialog, Qt::Key_Return);
        EXPECT_TRUE(dialog.isVisible());
        EXPECT_TRUE(saved().empty());
        named<QWidget>(dialog, "cmdOk").setFocus();
        key(dialog, Qt::Key_Return);
        EXPECT_FALSE(dialog.isVisible());
    });
    EXPECT_EQ(saved(), (Texts{untouched}));
}

TEST_F(FrmManutDetOFTTest, TheObservationTakesFiveHundredCharactersAndNoMore) {
    look([&](QWidget& dialog) {
        typeObs(dialog, "x");
        paste(obs(dialog), QString::fromUtf8("ã").repeated(498));
        keys(obs(dialog), "yz");
        const std::string full = text(dialog, "txtObs");
        EXPECT_EQ(full.substr(full.size() - 3), "\xC3\xA3y") << "the 501st is refused";
        EXPECT_EQ(obs(dialog).toPlainText().size(), 500);
        QTest::keyClick(&obs(dialog), Qt::Key_Home, Qt::ControlModifier);
        keys(obs(dialog), "w");
        EXPECT_EQ(text(dialog, "txtObs"), full) << "in the middle neither";
        QTest::keyClick(&obs(dialog), Qt::Key_Delete);
        paste(obs(dialog), QStringLiteral("abc"));
        EXPECT_EQ(obs(dialog).toPlainText().left(3), QString::fromUtf8("aãã"));
        EXPECT_EQ(obs(dialog).toPlainText().size(), 500);
        obs(dialog).selectAll();
        paste(obs(dialog), QStringLiteral("p").repeated(700));
        EXPECT_EQ(text(dialog, "txtObs"), std::string(500, 'p'));
    });
}

TEST_F(FrmManutDetOFTTest, ALongObservationIsCutToTheFieldsLength) {
    std::string sent;
    for (int i = 0; i < 62; ++i) {
        sent += "çbcdefghij";
    }
    const std::string kept =
        sent.substr(0, std::size_t{50} * 11);  // 500 characters, each ç of two bytes
    open(orders("DC_OBS='" + sent + "' QT_ESP='1' PESO_BRU='1' PESO_LIQ='1'"));
    server.on("MANUTENCAO_OFT", answers::status("OK"));
    edit([&](QWidget& dialog) {
        EXPECT_EQ(text(dialog, "txtObs"), kept);
        QTest::keyClick(&obs(dialog), Qt::Key_End, Qt::ControlModifier);
        keys(obs(dialog), "!");
        EXPECT_EQ(text(dialog, "txtObs"), kept) << "there is no room for more";
        QTest::keyClick(&obs(dialog), Qt::Key_Backspace);
        keys(obs(dialog), "!?");
        click(dialog, "cmdOk");
    });
    EXPECT_EQ(
        saved(),
        (Texts{written("1001", kept.substr(0, kept.size() - 1) + "!", "1,000", "1,000", "1,000")}));
}

// A line end of two characters takes the room of two.
TEST_F(FrmManutDetOFTTest, LineEndsCountAsTheirCharacters) {
    const auto typesIn = [&](QWidget& dialog) {
        const std::string kept = "a\r\n" + std::string(497, 'b');
        EXPECT_EQ(text(dialog, "txtObs"), kept);
        QTest::keyClick(&obs(dialog), Qt::Key_Home, Qt::ControlModifier);
        keys(obs(dialog), "x");
        EXPECT_EQ(text(dialog, "txtObs"), kept);
        QTest::keyClick(&obs(dialog), Qt::Key_Delete);
        keys(obs(dialog), "xy");
        EXPECT_EQ(text(dialog, "txtObs"), "x" + kept.substr(1));
    };
    look(typesIn, orders("DC_OBS='a&#13;&#10;" + std::string(600, 'b') + "' QT_ESP='1'"));
}

TEST_F(FrmManutDetOFTTest, FieldsOfNumbersTakeNothingElse) {
    look([&](QWidget& dialog) {
        for (const char* name : {"txtQtde", "txtPesoBruto", "txtPesoLiquido"}) {
            expectNumbersOnly(dialog, name, machine, Comma::Taken);
        }
    });
}

TEST_F(FrmManutDetOFTTest, NoLineEndGetsIntoTheObservation) {
    look([&](QWidget& dialog) {
        typeObs(dialog, "x");
        paste(obs(dialog), QString::fromUtf8("a\r\nb\nc\rd\u2028e\u2029f"));
        EXPECT_EQ(text(dialog, "txtObs"), "xa b c d e f");
        QMimeData dropped;
        dropped.setText(QStringLiteral("1\n2"));
        QDragEnterEvent enter({2, 2}, Qt::CopyAction, &dropped, Qt::LeftButton, Qt::NoModifier);
        QCoreApplication::sendEvent(obs(dialog).viewport(), &enter);
        QDropEvent drop(QPointF(2, 2), Qt::CopyAction, &dropped, Qt::LeftButton, Qt::NoModifier);
        QCoreApplication::sendEvent(obs(dialog).viewport(), &drop);
        EXPECT_EQ(text(dialog, "txtObs").find('\n'), std::string::npos);
        EXPECT_NE(text(dialog, "txtObs").find("1 2"), std::string::npos);
        QInputMethodEvent composed;
        composed.setCommitString(QStringLiteral("y\nz"));
        QCoreApplication::sendEvent(&obs(dialog), &composed);
        EXPECT_NE(text(dialog, "txtObs").find("y z"), std::string::npos);
        EXPECT_EQ(obs(dialog).blockCount(), 1);
    });
}

TEST_F(FrmManutDetOFTTest, LineEndsThatTheListBringsStayAsTheyAre) {
    const std::string list =
        orders("DC_OBS='a&#13;&#10;b&#10;c&#160;d' QT_ESP='1' PESO_BRU='1' PESO_LIQ='1'");
    open(list);
    server.on("MANUTENCAO_OFT", answers::status("OK"));
    edit([&](QWidget& dialog) {
        EXPECT_EQ(obs(dialog).blockCount(), 3);
        click(dialog, "cmdOk");
    });
    edit([&](QWidget& dialog) {
        QTest::keyClick(&obs(dialog), Qt::Key_End, Qt::ControlModifier);
        keys(obs(dialog), "!");
        click(dialog, "cmdOk");
    });
    EXPECT_EQ(saved(), (Texts{written("1001",
                                      "a\r\nb\nc\xC2\xA0"
                                      "d",
                                      "1,000", "1,000", "1,000"),
                              written("1001",
                                      "a\r\nb\r\nc\xC2\xA0"
                                      "d!",
                                      "1,000", "1,000", "1,000")}));
}

TEST_F(FrmManutDetOFTTest, ATickUnderTheOpenDialogLeavesItsFields) {
    open();
    server.on("MANUTENCAO_OFT", answers::status("OK"));
    edit([&](QWidget& dialog) {
        const auto before = texts(dialog);
        server.on("sel_ordem_fatu", orders("DC_OBS='outra' QT_ESP='9'"));
        tick();
        tick();
        EXPECT_EQ(cell(0, 9), "outra");
        EXPECT_EQ(texts(dialog), before);
        click(dialog, "cmdOk");
    });
    EXPECT_EQ(saved(), (Texts{untouched}));
}

TEST_F(FrmManutDetOFTTest, TheListRenewedUnderTheObservationOpensTheRowThatIsActiveThen) {
    open();
    observation("x");
    server.on("sel_ordem_fatu", answers::rowset("<z:row ID_ORD_FAT='2001' NM_PES_CPL='OUTRO'/>"));
    modals.then("frmMensagemAlerta", [&](QWidget& alert) {
        tick();
        tick();
        click(alert, "cmdOk");
    });
    edit([](QWidget& dialog) {
        EXPECT_EQ(text(dialog, "txtOrdFat"), "2001");
        EXPECT_EQ(text(dialog, "txtCliente"), "OUTRO");
        click(dialog, "cmdCancelar");
    });
}

TEST_F(FrmManutDetOFTTest, TheListEmptiedUnderTheObservationOpensTheOrderThatWasAccepted) {
    open();
    observation("x");
    server.on("sel_ordem_fatu", answers::rowset(""));
    modals.then("frmMensagemAlerta", [&](QWidget& alert) {
        tick();
        tick();
        EXPECT_EQ(rows(), 0);
        click(alert, "cmdOk");
    });
    edit([](QWidget& dialog) {
        EXPECT_EQ(text(dialog, "txtOrdFat"), "1001");
        click(dialog, "cmdCancelar");
    });
    EXPECT_TRUE(boxes.shown.empty());
}

TEST_F(FrmManutDetOFTTest, CtrlEnterSavesFromTheObservationToo) {
    open();
    server.on("MANUTENCAO_OFT", answers::status("OK"));
    edit([&](QWidget& dialog) {
        typeObs(dialog, "nova");
        QTest::keyClick(&obs(dialog), Qt::Key_Return, Qt::ControlModifier);
        EXPECT_FALSE(dialog.isVisible());
    });
    EXPECT_THAT(saved(), testing::ElementsAre(testing::HasSubstr("&DC_OBS=nova&")));
}

}  // namespace
}  // namespace tarn::test
