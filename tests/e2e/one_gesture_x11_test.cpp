// For each button of each screen: an Enter, a Space and its access key held for two
// seconds and a triple click are one act, and none in a box or window that opens meanwhile.
#include <gtest/gtest.h>

#include <QDialog>
#include <array>
#include <functional>
#include <ostream>

#include "tests/e2e/desk_x11.h"

namespace tarn::test {
namespace {

using namespace std::chrono_literals;

constexpr auto held = 2s;

struct ButtonCase {
    const char* entry;    // of the menu
    const char* through;  // a button of the screen that this opens, by which the screen comes
    const char* screen;
    const char* button;
    const char* command;  // what one act asks the server; null: nothing of its own
};

void PrintTo(const ButtonCase& button, std::ostream* out) {
    *out << button.screen << " " << button.button;
}

// Windows that open after it was made, and what is done in them.
class OpenedWindows : public QObject {
public:
    explicit OpenedWindows(QWidget& screen) : screen_(&screen) { qApp->installEventFilter(this); }

    int opened() const { return opened_; }
    int answered() const { return answered_; }
    // What closes from here on is the test's doing.
    void stop() { qApp->removeEventFilter(this); }

protected:
    bool eventFilter(QObject* receiver, QEvent* event) override {
        auto* window = qobject_cast<QDialog*>(receiver);
        if (window != nullptr && window != screen_ && event->type() == QEvent::Show &&
            !event->spontaneous()) {
            ++opened_;
            connect(window, &QDialog::finished, this, [this] { ++answered_; });
        }
        return false;
    }

private:
    QPointer<QWidget> screen_;
    int opened_ = 0;
    int answered_ = 0;
};

class OneGesture : public DeskX11, public testing::WithParamInterface<ButtonCase> {
protected:
    using Hands = std::function<void(X11User&, QPushButton&)>;

    QWidget& reach(X11User& hands) {
        const ButtonCase which = GetParam();
        QWidget& first = opens(hands, which.entry, firstScreen());
        if (which.through == nullptr) {
            return first;
        }
        hands.inProgram([&] {
            QTimer::singleShot(
                0, &first, [&first, which] { named<QPushButton>(first, which.through).click(); });
        });
        return appears(hands, which.screen);
    }
    const char* firstScreen() const {
        const ButtonCase which = GetParam();
        constexpr std::array<std::pair<const char*, const char*>, 7> screens{
            {{"mOFT", "FrmOFT"},
             {"mRINF", "FrmReImprimeNF"},
             {"mCNF", "FrmReImprimeNF"},
             {"mnuChequeImpressao", "frmCheque"},
             {"mnuDuplicata", "FrmPesqDupli"},
             {"mnuBoleto", "frmPesqBoleto"},
             {"mnuImprClientes", "frmPesqEtiquetas"}}};
        for (const auto& [entry, screen] : screens) {
            if (which.entry == std::string(entry)) {
                return screen;
            }
        }
        return which.screen;
    }
    // Clicks of the button, of which there must be one, and what it does to the windows.
    void expectOneAct(const char* gesture, const Hands& makes) {
        SCOPED_TRACE(gesture);
        int clicks = 0;
        std::size_t commands = 0;
        std::unique_ptr<OpenedWindows> windows;
        user.does(
            [&](X11User& hands) {
                QWidget& screen = reach(hands);
                QPushButton* button = nullptr;
                hands.inProgram([&] {
                    button = &named<QPushButton>(screen, GetParam().button);
                    QObject::connect(button, &QPushButton::clicked, &menu, [&] { ++clicks; });
                    page.takeQueries();
                });
                focus(hands, *button);
                hands.inProgram([&] { windows = std::make_unique<OpenedWindows>(screen); });
                makes(hands, *button);
                hands.wait(300ms);
                hands.waitUntil([] { return InputGate::ofApplication().isQuiet(); });
            },
            [&] {
                windows->stop();
                EXPECT_LE(windows->opened(), 1);
                EXPECT_EQ(windows->answered(), 0);
                commands = GetParam().command == nullptr ? 1 : asked(GetParam().command);
            });
        EXPECT_EQ(clicks, 1);
        EXPECT_EQ(commands, 1U);
        closeInnerScreens();
    }
};

TEST_P(OneGesture, IsOneAct) {
    expectOneAct("Enter held", [](X11User& hands, QPushButton&) { hands.hold("Return", held); });
    expectOneAct("Space held", [](X11User& hands, QPushButton&) { hands.hold("space", held); });
    expectOneAct("triple click", [](X11User& hands, QPushButton& button) {
        hands.clickOn(button);
        hands.wait(60ms);
        hands.click();
        hands.wait(60ms);
        hands.click();
        hands.wait(400ms);
    });
    QString accessKey;
    user.does([&](X11User& hands) {
        const QWidget& screen = reach(hands);
        hands.inProgram([&] {
            accessKey = named<QPushButton>(screen, GetParam().button).shortcut().toString();
        });
    });
    closeInnerScreens();
    if (!accessKey.isEmpty()) {
        const std::string letter = accessKey.back().toLower().toLatin1() + std::string();
        expectOneAct("access key held", [&](X11User& hands, QPushButton&) {
            const char name[] = {static_cast<char>(accessKey.back().toLower().toLatin1()), '\0'};
            hands.holdChord("Alt_L", name, held);
        });
    }
}

constexpr std::array buttons{
    ButtonCase{"mOFT", nullptr, "FrmOFT", "cmdSelecionar", "SP_GERA_NF"},
    ButtonCase{"mOFT", nullptr, "FrmOFT", "CmdFechar", nullptr},
    ButtonCase{"mOFT", nullptr, "FrmOFT", "CmdAtualizar", "sel_ordem_fatu"},
    ButtonCase{"mOFT", nullptr, "FrmOFT", "CmdCanOft", nullptr},
    ButtonCase{"mOFT", nullptr, "FrmOFT", "cmdImprimirOF", "Seleciona_Obs_Vnd_X_Ord"},
    ButtonCase{"mOFT", nullptr, "FrmOFT", "cmdDetOFT", "Seleciona_Obs_Vnd_X_Ord"},
    ButtonCase{"mOFT", "cmdDetOFT", "frmManutDetOFT", "cmdOk", nullptr},
    ButtonCase{"mOFT", "cmdDetOFT", "frmManutDetOFT", "cmdCancelar", nullptr},
    ButtonCase{"mRINF", nullptr, "FrmReImprimeNF", "cmdPesquisar", nullptr},
    ButtonCase{"mRINF", nullptr, "FrmReImprimeNF", "cmdSelecionar", nullptr},
    ButtonCase{"mRINF", nullptr, "FrmReImprimeNF", "CmdFechar", nullptr},
    ButtonCase{"mCNF", nullptr, "FrmReImprimeNF", "cmdSelecionar", nullptr},
    ButtonCase{"mnuChequeImpressao", nullptr, "frmCheque", "cmdImprimir", nullptr},
    ButtonCase{"mnuChequeImpressao", nullptr, "frmCheque", "cmdCancelar", nullptr},
    ButtonCase{"mnuDuplicata", nullptr, "FrmPesqDupli", "cmdPesqCli", nullptr},
    ButtonCase{"mnuDuplicata", nullptr, "FrmPesqDupli", "cmdLimpar", nullptr},
    ButtonCase{"mnuDuplicata", nullptr, "FrmPesqDupli", "cmdPesquisar", nullptr},
    ButtonCase{"mnuDuplicata", nullptr, "FrmPesqDupli", "cmdImprimir", nullptr},
    ButtonCase{"mnuDuplicata", nullptr, "FrmPesqDupli", "cmdVoltar", nullptr},
    ButtonCase{"mnuDuplicata", "cmdPesqCli", "FrmPesqCliente", "cmdPesquisar", nullptr},
    ButtonCase{"mnuDuplicata", "cmdPesqCli", "FrmPesqCliente", "cmdSelecionar", nullptr},
    ButtonCase{"mnuDuplicata", "cmdPesqCli", "FrmPesqCliente", "cmdVoltar", nullptr},
    ButtonCase{"mnuBoleto", nullptr, "frmPesqBoleto", "cmdPesquisar", nullptr},
    ButtonCase{"mnuBoleto", nullptr, "frmPesqBoleto", "cmdImprimir", nullptr},
    ButtonCase{"mnuBoleto", nullptr, "frmPesqBoleto", "cmdVoltar", nullptr},
    ButtonCase{"mnuImprClientes", nullptr, "frmPesqEtiquetas", "cmdImprimir", nullptr},
    ButtonCase{"mnuImprClientes", nullptr, "frmPesqEtiquetas", "cmdExcluir", nullptr},
    ButtonCase{"mnuImprClientes", nullptr, "frmPesqEtiquetas", "cmdVoltar", nullptr},
    ButtonCase{"mnuImprClientes", "cmdExcluir", "frmExcluirEtiqueta", "cmdOk", nullptr},
    ButtonCase{"mnuImprClientes", "cmdExcluir", "frmExcluirEtiqueta", "cmdCancelar", nullptr},
};

INSTANTIATE_TEST_SUITE_P(Each, OneGesture, testing::ValuesIn(buttons), [](const auto& each) {
    return std::string(each.param.entry) + "_" + each.param.screen + "_" + each.param.button;
});

}  // namespace
}  // namespace tarn::test
