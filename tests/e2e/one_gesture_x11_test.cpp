// For each button of each screen that issues, cancels, prints, records, deletes, searches or
// closes: an Enter, a Space, an Esc and its shortcut held for two seconds, and a triple click,
// do exactly what one short stroke does, as the server, the printers and the windows see it.
#include <gtest/gtest.h>

#include <QDialog>
#include <QMdiSubWindow>
#include <QStringList>
#include <algorithm>
#include <functional>
#include <iostream>
#include <ostream>
#include <tuple>

#include "tests/e2e/ways_x11.h"

namespace tarn::test {
namespace {

using namespace std::chrono_literals;

constexpr auto held = 2s;

struct ButtonCase {
    const char* place;
    ways::Way way;
    const char* button;   // its name, or what a box's button says
    const char* command;  // that one act sends once; null: the act only opens or closes
    bool escCloses = false;
    bool rests = false;  // takes no second click at the same place for a while
};

void PrintTo(const ButtonCase& button, std::ostream* out) {
    *out << button.button << " of " << button.place;
}

// What a gesture did.
struct Outcome {
    std::vector<std::string> queries;
    std::vector<std::string> windows;
    std::size_t jobs = 0;
    std::size_t drawn = 0;  // operations of the page printer
    bool ended = false;

    bool operator==(const Outcome&) const = default;
    bool isNothing() const { return *this == Outcome{}; }
};

std::ostream& operator<<(std::ostream& out, const Outcome& outcome) {
    for (const std::string& query : outcome.queries) {
        out << "\n  asks " << query.substr(0, 100);
    }
    for (const std::string& window : outcome.windows) {
        out << "\n  " << window;
    }
    return out << "\n  " << outcome.jobs << " jobs, " << outcome.drawn << " drawn"
               << (outcome.ended ? ", the program ends" : "");
}

std::string commandOf(const std::string& query) {
    const std::string rest = query.substr(query.find('=') + 1);
    return rest.substr(0, rest.find('&'));
}

std::string nameOf(const QWidget& window) {
    const QString text = window.accessibleDescription();  // of a box
    return (window.objectName() + (text.isEmpty() ? QString() : QStringLiteral(": ") + text))
        .toStdString();
}

// The screens, dialogs and boxes that come and go.
class WindowLog : public QObject {
public:
    WindowLog() { qApp->installEventFilter(this); }

    const std::vector<std::string>& lines() const { return lines_; }
    // What closes from here on is the test's doing.
    void stop() { qApp->removeEventFilter(this); }

protected:
    bool eventFilter(QObject* receiver, QEvent* event) override {
        const bool shown = event->type() == QEvent::Show;
        if ((!shown && event->type() != QEvent::Hide) || event->spontaneous()) {
            return false;
        }
        if (auto* dialog = qobject_cast<QDialog*>(receiver)) {
            add(shown, *dialog);
        } else if (auto* inner = qobject_cast<QMdiSubWindow*>(receiver);
                   inner != nullptr && inner->widget() != nullptr) {
            add(shown, *inner->widget());
        }
        return false;
    }

private:
    void add(bool shown, const QWidget& window) {
        lines_.push_back((shown ? "opens " : "closes ") + nameOf(window));
    }

    std::vector<std::string> lines_;
};

QPushButton& buttonOf(const QWidget& screen, const char* name) {
    for (auto* button : screen.findChildren<QPushButton*>()) {
        const QString caption = button->text().remove(u'&');
        if (button->isVisible() &&
            (button->objectName() == QLatin1StringView(name) || caption == QString(name))) {
            return *button;
        }
    }
    throw std::runtime_error(std::string("the screen shows no ") + name);
}

void expectAllListed(const char* place, const QWidget& screen);

using Gesture = std::function<void(X11User&, QPushButton&)>;

// On a desk of its own.
Outcome outcomeOf(const ButtonCase& which, const Gesture& makes) {
    RunningDesk desk;
    which.way == &ways::logon ? desk.show() : desk.enter();
    std::unique_ptr<WindowLog> windows;
    std::size_t jobs = 0;
    std::size_t drawn = 0;
    Outcome outcome;
    desk.user.does(
        [&](X11User& hands) {
            QWidget& screen = which.way(desk, hands);
            QPushButton* button = nullptr;
            hands.inProgram([&] {
                expectAllListed(which.place, screen);
                button = &buttonOf(screen, which.button);
            });
            RunningDesk::focus(hands, *button);
            hands.settle();
            hands.inProgram([&] {
                desk.page.takeQueries();
                jobs = desk.spooler.jobs.size();
                drawn = desk.printer.operations.size();
                windows = std::make_unique<WindowLog>();
            });
            makes(hands, *button);
            hands.settle();
        },
        [&] {
            if (windows == nullptr) {
                return;  // the script failed before its gesture
            }
            windows->stop();
            outcome = {.queries = desk.page.takeQueries(),
                       .windows = windows->lines(),
                       .jobs = desk.spooler.jobs.size() - jobs,
                       .drawn = desk.printer.operations.size() - drawn,
                       .ended = desk.end.ended()};
        });
    return outcome;
}

Gesture stroke(const char* key, X11User::Time time) {
    return [key, time](X11User& hands, QPushButton&) { hands.hold(key, time); };
}
constexpr auto shortly = 60ms;

void tripleClick(X11User& hands, QPushButton& button) {
    hands.clickOn(button);
    for (int more = 0; more < 2; ++more) {
        hands.wait(60ms);
        hands.click();
    }
}

// Of someone who saw nothing happen.
void lateClick(X11User& hands, QPushButton& button) {
    hands.clickOn(button);
    hands.wait(700ms);
    hands.click();
}

// X's names of a shortcut's keys.
std::vector<std::string> keysOf(const QKeySequence& shortcut) {
    std::vector<std::string> keys;
    for (const QString& part : shortcut.toString().split(u'+')) {
        if (part == QLatin1StringView("Alt") || part == QLatin1StringView("Ctrl")) {
            keys.emplace_back(part == QLatin1StringView("Alt") ? "Alt_L" : "Control_L");
        } else {
            keys.push_back((part.size() == 1 ? part.toLower() : part).toStdString());
        }
    }
    return keys;
}

Gesture holding(const QKeySequence& shortcut) {
    return [keys = keysOf(shortcut)](X11User& hands, QPushButton&) {
        if (keys.size() == 1) {
            hands.hold(keys[0].c_str(), held);
        } else {
            hands.holdChord(keys[0].c_str(), keys[1].c_str(), held);
        }
    };
}

class OneGesture : public testing::TestWithParam<ButtonCase> {};

void expectOneAct(const ButtonCase& which, const Outcome& once) {
    EXPECT_FALSE(once.isNothing());
    if (which.command != nullptr) {
        EXPECT_EQ(std::ranges::count(once.queries, which.command, commandOf), 1) << once;
    }
    EXPECT_LE(
        std::ranges::count_if(once.windows, [](const std::string& line) { return line[0] == 'o'; }),
        1)
        << once;
}

TEST_P(OneGesture, IsOneAct) {
    const ButtonCase which = GetParam();
    QKeySequence shortcut;
    const Outcome once = outcomeOf(which, [&](X11User& hands, QPushButton& button) {
        hands.inProgram([&] { shortcut = button.shortcut(); });
        hands.hold("space", shortly);
    });
    std::cout << testing::PrintToString(which) << ":" << once << std::endl;
    expectOneAct(which, once);
    EXPECT_EQ(outcomeOf(which, stroke("Return", held)), once) << "Enter held";
    EXPECT_EQ(outcomeOf(which, stroke("space", held)), once) << "Space held";
    EXPECT_EQ(outcomeOf(which, tripleClick), once) << "triple click";
    if (!shortcut.isEmpty()) {
        EXPECT_EQ(outcomeOf(which, holding(shortcut)), once) << "shortcut held";
    }
    if (which.rests) {
        EXPECT_EQ(outcomeOf(which, lateClick), once) << "late click";
    }
    const Outcome escHeld = outcomeOf(which, stroke("Escape", held));
    const Outcome escaped = outcomeOf(which, stroke("Escape", shortly));
    EXPECT_NE(escaped.isNothing(), which.escCloses) << escaped;
    EXPECT_EQ(escHeld, escaped) << "Esc held";
}

constexpr bool esc = true;
constexpr bool rests = true;
const std::vector<ButtonCase> buttons{
    {"Logon", ways::logon, "btnLogin", "LOGIN", esc},
    {"Logon", ways::logon, "cmdFechar", nullptr, esc},
    {"Orders", ways::orders, "cmdSelecionar", "SP_GERA_NF", esc, rests},
    {"Orders", ways::orders, "CmdFechar", nullptr, esc},
    {"Orders", ways::orders, "CmdAtualizar", "sel_ordem_fatu", esc},
    {"Orders", ways::orders, "CmdCanOft", nullptr, esc},
    {"Orders", ways::orders, "cmdImprimirOF", "sel_impr_ordem_fatu", esc},
    {"Orders", ways::orders, "cmdDetOFT", "Seleciona_Obs_Vnd_X_Ord", esc},
    {"CancelQuestion", ways::cancelQuestion, "Sim", "sp_can_oft", esc},
    {"CancelQuestion", ways::cancelQuestion, "Não", nullptr, esc},
    {"Maintenance", ways::maintenance, "cmdOk", "MANUTENCAO_OFT", esc},
    {"Maintenance", ways::maintenance, "cmdCancelar", nullptr, esc},
    {"ObservationAlert", ways::observationAlert, "cmdOk", "SP_GERA_NF", esc},
    {"ObservationAlert", ways::observationAlert, "cmdCancelar", nullptr, esc},
    {"StockAlert", ways::stockAlert, "cmdVoltar", nullptr, esc},
    {"Reprint", ways::reprint, "cmdPesquisar", "SEL_NF"},
    {"Reprint", ways::reprint, "cmdSelecionar", "sel_gera_nf", false, rests},
    {"Reprint", ways::reprint, "CmdFechar", nullptr},
    {"Cancellation", ways::cancellation, "cmdPesquisar", "SEL_NF"},
    {"Cancellation", ways::cancellation, "cmdSelecionar", "sp_can_nf"},
    {"Cancellation", ways::cancellation, "CmdFechar", nullptr},
    {"Bills", ways::bills, "cmdPesqCli", nullptr},
    {"Bills", ways::bills, "cmdPesquisar", "sel_duplicata"},
    {"Bills", ways::bills, "cmdImprimir", nullptr},
    {"Bills", ways::bills, "cmdVoltar", nullptr},
    {"Slips", ways::slips, "cmdPesqCli", nullptr},
    {"Slips", ways::slips, "cmdPesquisar", "sel_boleto"},
    {"Slips", ways::slips, "cmdImprimir", "altera_docto_rec"},
    {"Slips", ways::slips, "cmdVoltar", nullptr},
    {"CustomersOfBills", ways::customersOfBills, "cmdPesquisar", "Sel_Cliente", esc},
    {"CustomersOfBills", ways::customersOfBills, "cmdSelecionar", nullptr, esc},
    {"CustomersOfBills", ways::customersOfBills, "cmdVoltar", nullptr, esc},
    {"CustomersOfSlips", ways::customersOfSlips, "cmdPesquisar", "Sel_Cliente", esc},
    {"CustomersOfSlips", ways::customersOfSlips, "cmdSelecionar", nullptr, esc},
    {"CustomersOfSlips", ways::customersOfSlips, "cmdVoltar", nullptr, esc},
    {"Cheque", ways::cheque, "cmdImprimir", "adiciona_controle_cheque_emitido"},
    {"Cheque", ways::cheque, "cmdCancelar", nullptr},
    {"LabelQueue", ways::labelQueue, "cmdImprimir", nullptr},
    {"LabelQueue", ways::labelQueue, "cmdExcluir", nullptr},
    {"LabelQueue", ways::labelQueue, "cmdVoltar", nullptr},
    {"LabelPrinting", ways::labelPrinting, "cmdOk", "sel_dados_remetente"},
    {"LabelPrinting", ways::labelPrinting, "cmdCancelar", nullptr},
    {"LabelDeletion", ways::labelDeletion, "cmdOk", "exclui_etiquetas"},
    {"LabelDeletion", ways::labelDeletion, "cmdCancelar", nullptr},
    {"LabelSelection", ways::labelSelection, "cmdPesquisar", nullptr},
    {"LabelSelection", ways::labelSelection, "cmdImprimir", nullptr},
    {"LabelSelection", ways::labelSelection, "cmdVoltar", nullptr},
    {"Help", ways::help, "cmdVoltar", nullptr, esc},
    {"Help", ways::help, "cmdManual", nullptr, esc},
};

// The table lacks no button of the screen but cmdLimpar, which empties a field.
void expectAllListed(const char* place, const QWidget& screen) {
    for (const auto* button : screen.findChildren<QPushButton*>()) {
        const QString name =
            button->objectName().isEmpty() ? button->text().remove(u'&') : button->objectName();
        const bool listed = std::ranges::any_of(buttons, [&](const ButtonCase& each) {
            return each.place == std::string(place) && name == QString(each.button);
        });
        EXPECT_TRUE(listed || !button->isVisible() || name == QStringLiteral("cmdLimpar"))
            << place << " has " << name.toStdString();
    }
}

INSTANTIATE_TEST_SUITE_P(Each, OneGesture, testing::ValuesIn(buttons), [](const auto& each) {
    const std::string button = each.param.button;
    return each.param.place + ("_" + (button == "Não" ? "Nao" : button));
});

}  // namespace
}  // namespace tarn::test
