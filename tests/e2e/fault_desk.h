// The desk's screens over HTTP against a practice server that fails when a test says so,
// and the server's database to look at behind it.
#pragma once

#include <QTableView>
#include <algorithm>
#include <array>
#include <chrono>
#include <functional>
#include <ostream>
#include <string>
#include <vector>

#include "desk/mdi_menu.h"
#include "gateway/xml_document.h"
#include "platform/request_line.h"
#include "practice/database/database.h"
#include "tests/support/boxes.h"
#include "tests/support/grid.h"
#include "tests/support/network_desk.h"
#include "tests/support/practice_database.h"
#include "tests/support/practice_page.h"
#include "tests/support/screen_test.h"

namespace tarn::test {

using practice::FaultKind;

// What a fault leaves of an answer for the desk to read.
enum class Left { Nothing, Refusal, NoDeclaration, All };

struct FaultCase {
    const char* name;
    FaultKind kind;
    Left left;
    bool carriedOut;  // the command, by the server
};

inline void PrintTo(const FaultCase& fault, std::ostream* out) {
    *out << fault.name;
}

inline constexpr std::array faultCases{
    FaultCase{"close-before", FaultKind::CloseBefore, Left::Nothing, false},
    FaultCase{"404", FaultKind::NotFound, Left::Nothing, false},
    FaultCase{"500", FaultKind::ServerError, Left::Nothing, false},
    FaultCase{"close-within", FaultKind::CloseWithin, Left::Nothing, true},
    FaultCase{"empty", FaultKind::Empty, Left::Nothing, true},
    FaultCase{"html", FaultKind::Html, Left::Nothing, true},
    FaultCase{"cut-xml", FaultKind::CutXml, Left::Nothing, true},
    FaultCase{"wrong-encoding", FaultKind::WrongEncoding, Left::Nothing, true},
    FaultCase{"refusal", FaultKind::Refuse, Left::Refusal, false},
    FaultCase{"no-declaration", FaultKind::NoDeclaration, Left::NoDeclaration, true},
    FaultCase{"slow", FaultKind::Slow, Left::All, true}};
// Takes its time: for a command or two.
inline constexpr FaultCase hugeAnswer{"huge", FaultKind::Huge, Left::Nothing, true};

inline constexpr char refusalText[] =
    "Recusa de treino: o servidor de prática não atende a este comando. Tente mais tarde.";
inline const Box refusal{refusalText, BoxIcon::Exclamation, "TarnEmissao"};
// What ends the program where an answer lacks what it must have; `detail` as the screen
// adds it.
inline Box endReport(const std::string& detail = "") {
    return {
        "Erro em tempo de execução '91':\r\rFalta um dado na resposta do servidor" + detail + ".",
        BoxIcon::Critical, "TarnEmissao"};
}
inline Box endReportWithNote() {
    Box report = endReport();
    report.text +=
        "\r\rA Nota Fiscal pode ter sido gerada no servidor. Caso tenha sido gerada, utilize a "
        "tela de Reimpressão de Nota Fiscal para imprimi-la.";
    return report;
}

class FaultDesk : public ScreenTest {
protected:
    using Work = std::function<void(QWidget&)>;
    static constexpr std::chrono::milliseconds slowWait{60};

    void SetUp() override {
        ScreenTest::SetUp();
        QObject::connect(&end, &ProgramEnd::didEnd, &end, [this] { network.blocking.close(); });
        menu.show();
        ASSERT_TRUE(QTest::qWaitForWindowActive(&menu));
    }
    // Clara of company 1361, whose establishment has the same number.
    static void typeLogon(QWidget& logon) {
        type(logon, "txtEmpresa", "1361");
        type(logon, "txtUsuario", "clara");
        type(logon, "txtSenha", "pratica");
    }
    void logOn() {
        modals.then("FrmLogon", [](QWidget& logon) {
            typeLogon(logon);
            key(logon, Qt::Key_Return);
        });
        menu.load();
        ASSERT_EQ(boxes.shown, Boxes{});
        page.takeQueries();
    }
    void fail(const std::string& command, const FaultCase& fault) {
        page.fail(command, {fault.kind, slowWait});
    }
    // The body once for each fault that the test is for, with the faults of these
    // commands set and nothing shown, printed or asked yet; afterwards all is mended.
    void under(const std::vector<std::string>& commands, const std::vector<FaultCase>& faults,
               const std::function<void(const FaultCase&)>& body) {
        for (const FaultCase& fault : faults) {
            SCOPED_TRACE(commands.front() + " under " + fault.name);
            forget();
            for (const std::string& command : commands) {
                fail(command, fault);
            }
            body(fault);
            page.heal();
        }
    }
    static std::vector<FaultCase> leaving(std::initializer_list<Left> wanted) {
        std::vector<FaultCase> faults;
        for (const FaultCase& fault : faultCases) {
            if (std::ranges::find(wanted, fault.left) != wanted.end()) {
                faults.push_back(fault);
            }
        }
        return faults;
    }
    static std::vector<FaultCase> allFaults() { return {faultCases.begin(), faultCases.end()}; }
    void forget() {
        boxes.shown.clear();
        spooler.jobs.clear();
        spooler.calls.clear();
        printer.operations.clear();
        page.takeQueries();
    }

    // A screen of the desk's own area.
    void open(const char* entry) {
        choose(menu, "mnuNF", entry);
        activate(menu);
    }
    template <typename Screen>
    void close() {
        click(*menu.findChild<Screen*>(), "CmdFechar");
        ASSERT_TRUE(QTest::qWaitFor([this] { return menu.findChild<Screen*>() == nullptr; }));
    }
    // Off-screen an open menu or list takes the activation along.
    static void activate(QWidget& window) {
        window.activateWindow();
        ASSERT_TRUE(QTest::qWaitFor([&window] { return QApplication::activeWindow() == &window; }));
    }
    static void pickIn(QWidget& window, const char* list, int row) {
        pick(window, list, row);
        activate(window);
    }
    static QTableView& gridOf(const QWidget& screen) {
        return named<QTableView>(screen, "sprDados");
    }
    static std::string text(const QWidget& screen, const char* field) {
        return named<QLineEdit>(screen, field).text().toStdString();
    }

    // The names of the commands that came since this was asked last.
    std::vector<std::string> takeCommands() {
        std::vector<std::string> names;
        for (const std::string& query : page.takeQueries()) {
            const std::size_t begin = query.find('=') + 1;
            names.push_back(query.substr(begin, query.find('&') - begin));
        }
        return names;
    }
    // The server's own answer, whatever faults are set.
    XmlDocument asked(const std::string& query) {
        XmlDocument answer;
        EXPECT_TRUE(answer.loadXML(page.ask(requestLine(query)))) << query;
        return answer;
    }
    std::size_t rowsOf(const std::string& query) {
        return asked(query).selectSingleNode("xml/rs:data").childCount();
    }
    std::vector<std::string> stored(const std::string& sql, int columns) {
        return rowsIn(database, sql, columns);
    }

    QTemporaryDir folder;
    const std::string file = newDatabase(folder);
    PracticePage page{file};
    practice::Database database{file};
    NetworkDesk network{desk, page.baseUrl()};
    MDIMenu menu{network.desk};
};

}  // namespace tarn::test
