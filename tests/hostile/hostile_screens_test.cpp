// Every screen of the desk over a server whose every text is hostile, and with hostile
// texts pasted into every field: shown as text, and one request with its keys.
#include <QClipboard>
#include <QPlainTextEdit>
#include <QTextDocument>
#include <QTextEdit>

#include "gateway/commands.h"
#include "platform/qt/box_window.h"
#include "tests/e2e/note_faults.h"
#include "tests/hostile/hostile_texts.h"

namespace tarn::test {
namespace {

using testing::Contains;

// What the server says, with a hostile text behind each text of it, as far as an answer goes.
class HostileServer : public HttpLoader {
public:
    HostileServer(PracticePage& page, const HostileText& hostile)
        : page_(page), xml_(hostile.xml), line_(requestLine(hostile.text)) {}

    HttpAnswer get(const std::string& address) override {
        const std::string line = requestLine(address);
        lines.push_back(line.substr(line.find('?') + 1));
        return {true, made(page_.ask(replaceAll(lines.back(), line_, "")))};
    }

    std::vector<std::string> lines;

private:
    static constexpr std::size_t mostOfAnswer = 8U << 20U;  // half of what is read

    // Codes by which the desk or the server knows something stay.
    static bool isCode(std::string_view name) {
        constexpr std::array codes{"STATUS",     "version",      "encoding",  "USERCODE",
                                   "SERVERNAME", "NCOMPANYCODE", "TIPO_DOCTO"};
        return name.starts_with("xmlns") || std::ranges::find(codes, name) != codes.end();
    }
    static bool isLetter(char c) { return isWithin(c, 'A', 'Z') || isWithin(c, 'a', 'z'); }
    static bool isWithin(char c, char first, char last) { return c >= first && c <= last; }
    // More than a number, a date or a flag.
    static bool hasWords(std::string_view value) {
        const auto both = [](char a, char b) { return isLetter(a) && isLetter(b); };
        return std::adjacent_find(value.begin(), value.end(), both) != value.end();
    }
    std::string made(std::string_view answer) const {
        std::string out;
        for (std::size_t equals = answer.find("=\""); equals != std::string_view::npos;
             equals = answer.find("=\"")) {
            const std::size_t name = answer.find_last_of(" <?\"\n", equals) + 1;
            const std::size_t value = equals + 2;
            const std::size_t end = answer.find('"', value);
            if (end == std::string_view::npos) {
                break;
            }
            out.append(answer.substr(0, end));
            if (hasWords(answer.substr(value, end - value)) &&
                !isCode(answer.substr(name, equals - name)) && out.size() < mostOfAnswer) {
                out.append(xml_);
            }
            answer.remove_prefix(end);
        }
        return out.append(answer);
    }

    PracticePage& page_;
    std::string xml_;
    std::string line_;
};

// Widgets and cells of a window that show a hostile text, each checked to show it as text.
class ShownTexts {
public:
    explicit ShownTexts(const HostileText& hostile) : sign_(QString::fromStdString(hostile.sign)) {}

    std::size_t count = 0;

    void look(const QWidget& window) {
        one(window);
        for (const QWidget* widget : window.findChildren<QWidget*>()) {
            one(*widget);
        }
    }

private:
    static constexpr QLatin1StringView markup{"<b>"};

    static void expectPlainTip(const QString& tip) {
        EXPECT_FALSE(Qt::mightBeRichText(tip) && tip.contains(markup)) << tip.toStdString();
    }
    void found(const QString& text) { count += text.contains(sign_) ? 1 : 0; }

    void one(const QWidget& widget) {
        SCOPED_TRACE(widget.objectName().toStdString());
        expectPlainTip(widget.toolTip());
        if (const auto* label = qobject_cast<const QLabel*>(&widget)) {
            found(label->text());
            EXPECT_TRUE(label->textFormat() == Qt::PlainText || !label->text().contains(markup));
        } else if (const auto* line = qobject_cast<const QLineEdit*>(&widget)) {
            found(line->text());
        } else if (const auto* plain = qobject_cast<const QPlainTextEdit*>(&widget)) {
            found(plain->toPlainText());
        } else if (const auto* text = qobject_cast<const QTextEdit*>(&widget)) {
            ADD_FAILURE() << "a widget for rich text" << text->toPlainText().toStdString();
        } else if (const auto* list = qobject_cast<const QComboBox*>(&widget)) {
            cells(*list->model());
        } else if (const auto* grid = qobject_cast<const QTableView*>(&widget)) {
            cells(*grid->model());
        }
    }
    void cells(const QAbstractItemModel& model) {
        constexpr int enough = 5;
        for (int row = 0; row < std::min(model.rowCount(), enough); ++row) {
            for (int column = 0; column < model.columnCount(); ++column) {
                found(model.index(row, column).data().toString());
                expectPlainTip(model.index(row, column).data(Qt::ToolTipRole).toString());
            }
        }
    }

    QString sign_;
};

std::vector<std::string> keysOf(const std::string& line) {
    std::vector<std::string> keys;
    for (const std::string_view pair : split(line, '&')) {
        keys.emplace_back(pair.substr(0, pair.find('=')));
    }
    return keys;
}

// The command of a request, and all its keys.
std::string shapeOf(const std::string& line) {
    const std::size_t value = line.find('=') + 1;
    std::string shape = line.substr(value, line.find('&') - value);
    for (const std::string& key : keysOf(line)) {
        shape += " " + key;
    }
    return shape;
}

class HostileDesk : public FaultDesk, public testing::WithParamInterface<HostileText> {
protected:
    HostileDesk() {
        QObject::connect(&end, &ProgramEnd::didEnd, &end, [this] { wire.close(); });
    }
    void SetUp() override {
        ScreenTest::SetUp();
        hostileMenu.show();
        ASSERT_TRUE(QTest::qWaitForWindowActive(&hostileMenu));
    }
    void enter() {
        modals.then("FrmLogon", [](QWidget& logon) {
            typeLogon(logon);
            key(logon, Qt::Key_Return);
        });
        hostileMenu.load();
        boxes.shown.clear();
        server.lines.clear();
    }
    void openPart(const char* entry) {
        choose(hostileMenu, "mnuNF", entry);
        activate(hostileMenu);
    }
    void lookAt(const QWidget& window) {
        ShownTexts texts(GetParam());
        texts.look(window);
        EXPECT_GT(texts.count, 0U) << "nothing hostile came";
    }
    // With the keyboard: an item's middle may lie far beside the monitor.
    static void chooseItem(QWidget& window, const char* list, int row) {
        auto& box = named<QComboBox>(window, list);
        atLeisure([&box] { box.setFocus(); });
        atLeisure([&box] { QTest::keyClick(&box, Qt::Key_Home); });
        for (int step = 0; step < row; ++step) {
            atLeisure([&box] { QTest::keyClick(&box, Qt::Key_Down); });
        }
        ASSERT_EQ(box.currentIndex(), row) << list;
    }
    static bool isOpenField(const QWidget& field) {
        const auto* line = qobject_cast<const QLineEdit*>(&field);
        const auto* plain = qobject_cast<const QPlainTextEdit*>(&field);
        const bool editable =
            (line != nullptr && !line->isReadOnly()) || (plain != nullptr && !plain->isReadOnly());
        return editable && field.isVisible() && field.isEnabled() &&
               !field.objectName().startsWith("qt_");
    }
    // Into each of the window's fields in turn, the others as `fill` leaves them. Every request
    // that the button makes has the keys of `plain`.
    void pasteIntoFields(QWidget& window, std::size_t count, const std::function<void()>& fill,
                         const char* button, const std::string& plain) {
        std::size_t fields = 0;
        for (QWidget* field : window.findChildren<QWidget*>()) {
            if (!isOpenField(*field)) {
                continue;
            }
            ++fields;
            SCOPED_TRACE(field->objectName().toStdString());
            fill();
            server.lines.clear();
            paste(*field);
            click(window, button);
            for (const std::string& line : server.lines) {
                EXPECT_EQ(shapeOf(line), shapeOf(plain)) << line.substr(0, 300);
                EXPECT_EQ(line.find_first_of(" \t\r\n"), std::string::npos);
            }
            requests += server.lines.size();
            ShownTexts(GetParam()).look(window);
        }
        EXPECT_EQ(fields, count);
    }
    void paste(QWidget& field) {
        QString text = QString::fromStdString(GetParam().text);
        text.remove('=');  // it and "&" go as typed (decision D19)
        QGuiApplication::clipboard()->setText(text);
        atLeisure([&field] { field.setFocus(); });
        QTest::keySequence(&field, QKeySequence::SelectAll);
        QTest::keySequence(&field, QKeySequence::Paste);
    }

    HostileServer server{page, GetParam()};
    BlockingLoader wire{server};
    Environment wired{wire, spooler, printer, boxes, clock, machine, page.baseUrl()};
    DeskContext hostileDesk{wired, session, end};
    MDIMenu hostileMenu{hostileDesk};
    std::size_t requests = 0;  // made with hostile fields
};

TEST_P(HostileDesk, LogonWithItsThreeFields) {
    modals.then("FrmLogon", [this](QWidget& logon) {
        pasteIntoFields(
            logon, 3, [&logon] { typeLogon(logon); }, "btnLogin", commands::LOGIN("x", "x", "x"));
        EXPECT_GE(requests, 2U);
        click(logon, "cmdFechar");
    });
    hostileMenu.load();
}

TEST_P(HostileDesk, OrdersAndTheFourFieldsOfTheirData) {
    enter();
    openPart("mOFT");
    lookAt(hostileMenu);
    QTableView& orders = gridOf(hostileMenu);
    int row = 1;
    while (grid::cell(orders, row, 1) != "45001") {
        ASSERT_LE(++row, grid::rows(orders));
    }
    // Saving closes the dialog: once for each field.
    for (const char* field : {"txtObs", "txtQtde", "txtPesoBruto", "txtPesoLiquido"}) {
        SCOPED_TRACE(field);
        modals.then("frmManutDetOFT", [&](QWidget& dialog) {
            lookAt(dialog);
            server.lines.clear();
            paste(named<QWidget>(dialog, field));
            ShownTexts(GetParam()).look(dialog);
            click(dialog, "cmdOk");
            for (const std::string& line : server.lines) {
                const std::string shape = shapeOf(line);
                EXPECT_TRUE(!shape.starts_with("MANUTENCAO_OFT") ||
                            shape == shapeOf(commands::MANUTENCAO_OFT({}, {})))
                    << shape;
                ++requests;
            }
            if (dialog.isVisible()) {
                click(dialog, "cmdCancelar");
            }
        });
        grid::click(orders, row, 2);
        click(hostileMenu, "cmdDetOFT");
    }
    EXPECT_GE(requests, 1U);
}

TEST_P(HostileDesk, AlertOfAnOrder) {
    enter();
    openPart("mOFT");
    QTableView& orders = gridOf(hostileMenu);
    int row = 1;
    while (grid::cell(orders, row, 1) != "45007") {
        ASSERT_LE(++row, grid::rows(orders));
    }
    modals.then("frmMensagemAlerta", [this](QWidget& alert) {
        lookAt(alert);
        click(alert, "cmdVoltar");
    });
    grid::click(orders, row, 2);
    click(hostileMenu, "cmdSelecionar");
}

TEST_P(HostileDesk, ReprintWithItsField) {
    enter();
    page.ask(
        "COMANDO=SP_GERA_NF&ID_ETB_TARN=1361&ID_ORD_FAT=45001&ID_PES=101&ServerName=DADOS1361");
    const std::string note = stored("SELECT number FROM note", 1).at(0);
    openPart("mRINF");
    QWidget& screen = named<QWidget>(hostileMenu, "FrmReImprimeNF");
    const auto fill = [&] {
        chooseItem(screen, "cboSerie", 0);
        type(screen, "txtNF", note.c_str());
    };
    fill();
    click(screen, "cmdPesquisar");
    lookAt(hostileMenu);
    pasteIntoFields(screen, 1, fill, "cmdPesquisar", commands::SEL_NF({}, "x", "x"));
}

TEST_P(HostileDesk, BillsAndCustomersWithTheirFiveFields) {
    enter();
    modals.then("FrmPesqDupli", [this](QWidget& screen) {
        modals.then("FrmPesqCliente", [this](QWidget& dialog) {
            type(dialog, "txtNmCli", "ltda");
            click(dialog, "cmdPesquisar");
            lookAt(dialog);
            pasteIntoFields(
                dialog, 1, [] {}, "cmdPesquisar", commands::Sel_Cliente({}, "x"));
            EXPECT_EQ(requests, 1U);
            type(dialog, "txtNmCli", "ltda");
            click(dialog, "cmdPesquisar");
            grid::click(gridOf(dialog), 1, 1);
            click(dialog, "cmdSelecionar");
        });
        click(screen, "cmdPesqCli");
        click(screen, "cmdLimpar");
        const auto fill = [&screen] {
            chooseItem(screen, "cboTpDocto", 1);
            type(screen, "txtDtVncAte", "31122012");
        };
        fill();
        click(screen, "cmdPesquisar");
        lookAt(screen);
        pasteIntoFields(screen, 4, fill, "cmdPesquisar", commands::sel_duplicata({}, 1, {}));
        click(screen, "cmdVoltar");
    });
    choose(hostileMenu, "mnuDuplicata");
}

TEST_P(HostileDesk, SlipsWithTheirFiveFields) {
    enter();
    modals.then("frmPesqBoleto", [this](QWidget& screen) {
        const auto fill = [&screen] {
            type(screen, "txtDtEmsDe", "01012012");
            type(screen, "txtDtVncAte", "31122012");
            type(screen, "txtNr_Bol_Banc", "1234567890123");
            chooseItem(screen, "cboCartCob", 1);
        };
        fill();
        click(screen, "cmdPesquisar");
        lookAt(screen);
        pasteIntoFields(screen, 5, fill, "cmdPesquisar", commands::sel_boleto({}, {}, 1, false));
        click(screen, "cmdVoltar");
    });
    choose(hostileMenu, "mnuBoleto");
}

TEST_P(HostileDesk, ChequeWithItsSixFields) {
    enter();
    modals.then("frmCheque", [this](QWidget& screen) {
        chooseItem(screen, "cboBancoAgConta", 1);
        lookAt(screen);
        int number = 100;
        for (const char* field : {"txtNumeroCheque", "txtSerie", "txtValor", "txtFavorecido",
                                  "txtDtDeposito", "txtObservacao"}) {
            SCOPED_TRACE(field);
            chooseItem(screen, "cboBancoAgConta", 1);
            type(screen, "txtNumeroCheque", std::to_string(++number).c_str());
            type(screen, "txtSerie", "AB1");
            type(screen, "txtValor", "12,50");
            type(screen, "txtFavorecido", "ANA");
            type(screen, "txtDtDeposito", "05092012");
            server.lines.clear();
            paste(named<QWidget>(screen, field));
            ShownTexts(GetParam()).look(screen);
            click(screen, "cmdImprimir");
            for (const std::string& line : server.lines) {
                EXPECT_THAT(
                    (std::vector{shapeOf(commands::adiciona_controle_cheque_emitido({}, {})),
                                 shapeOf(commands::seleciona_um_controle_cheque_emitido({}, {})),
                                 shapeOf(commands::sel_dados_empresa({}))}),
                    Contains(shapeOf(line)));
                ++requests;
            }
        }
        EXPECT_GE(requests, 6U);
        click(screen, "cmdCancelar");
    });
    choose(hostileMenu, "mnuCheque", "mnuChequeImpressao");
}

TEST_P(HostileDesk, LabelQueueAndTheFourFieldsOfItsRanges) {
    enter();
    modals.then("frmPesqEtiquetas", [this](QWidget& queue) {
        chooseItem(queue, "cboMotivo", 1);
        chooseItem(queue, "cboTp_Form", 2);
        chooseItem(queue, "CboFilialRemet", 1);
        lookAt(queue);
        const auto ranges = [this](QWidget& range) {
            for (const char* field : {"txtDe", "txtAte"}) {
                paste(named<QWidget>(range, field));
                ShownTexts(GetParam()).look(range);
            }
            server.lines.clear();
            click(range, "cmdOk");
            for (const std::string& line : server.lines) {
                EXPECT_THAT((std::vector{shapeOf(commands::sel_etiquetas({}, "x", "1", "2")),
                                         shapeOf(commands::sel_dados_remetente({}, 1)),
                                         shapeOf(commands::exclui_etiquetas({}, "x", "1", "2"))}),
                            Contains(shapeOf(line)));
            }
            if (range.isVisible()) {
                click(range, "cmdCancelar");
            }
        };
        modals.then("frmImprimirEtiqueta", ranges);
        click(queue, "cmdImprimir");
        modals.then("frmExcluirEtiqueta", ranges);
        click(queue, "cmdExcluir");
        click(queue, "cmdVoltar");
    });
    choose(hostileMenu, "mnuEtiquetas", "mnuImprClientes");
}

TEST_P(HostileDesk, LabelSelectionWithItsNineFields) {
    enter();
    modals.then("FrmImprEtiq", [this](QWidget& screen) {
        const auto fill = [&screen] {
            type(screen, "txtCepDe", "01000000");
            type(screen, "txtCepAte", "99999999");
        };
        fill();
        click(screen, "cmdPesquisar");
        lookAt(screen);
        pasteIntoFields(screen, 9, fill, "cmdPesquisar", commands::sel_dados_etq({}, {}));
        click(screen, "cmdVoltar");
    });
    hostileMenu.openLabelSelection();
}

INSTANTIATE_TEST_SUITE_P(Texts, HostileDesk, testing::ValuesIn(hostileTexts()),
                         [](const auto& text) { return std::string(text.param.name); });

}  // namespace
}  // namespace tarn::test
