// The desk on a private X server with a real keyboard and mouse, its practice server
// behind real HTTP.
#pragma once

#include <QAction>
#include <QTemporaryDir>
#include <QTest>
#include <chrono>
#include <string>
#include <vector>

#include "desk/desk_application.h"
#include "desk/mdi_menu.h"
#include "desk/start.h"
#include "platform/curl/curl_loader.h"
#include "platform/qt/blocking_loader.h"
#include "platform/qt/qt_message_boxes.h"
#include "tests/support/fixed_machine.h"
#include "tests/support/practice_database.h"
#include "tests/support/recording_printer.h"
#include "tests/support/recording_spooler.h"
#include "tests/support/shipped_manual.h"
#include "tests/support/user.h"
#include "tests/support/x11_user.h"

namespace tarn::test {

// A desk of its own, its database and server too.
class RunningDesk {
public:
    using Time = std::chrono::milliseconds;

    RunningDesk() {
        static_cast<DeskApplication*>(qApp)->setErrorReport(
            [this](const std::exception_ptr& error) { reportError(desk, error); });
    }
    ~RunningDesk() { static_cast<DeskApplication*>(qApp)->setErrorReport(nullptr); }
    RunningDesk(const RunningDesk&) = delete;
    RunningDesk& operator=(const RunningDesk&) = delete;

    void show() {
        menu.resize(1100, 800);
        menu.show();
        ASSERT_TRUE(QTest::qWaitForWindowActive(&menu));
        ASSERT_TRUE(
            QTest::qWaitFor([this] { return !menu.windowHandle()->frameMargins().isNull(); }));
    }
    // Clara of company 1361 is logged on.
    void enter() {
        ASSERT_TRUE(logOn(environment, session, "1361", "clara", "pratica"));
        show();
        page.takeQueries();
    }
    // The answers to this command come so much later.
    void delay(const char* command, Time time) {
        page.fail(command, {practice::FaultKind::Slow, time});
    }
    // For scripts: opens a screen by its menu entry and waits until it takes input.
    QWidget& opens(X11User& hands, const char* entry, const char* name) {
        hands.inProgram([&] {
            QTimer::singleShot(0, &menu, [this, entry] { named<QAction>(menu, entry).trigger(); });
        });
        return appears(hands, name);
    }
    QWidget& appears(X11User& hands, const char* name) {
        QWidget* screen = nullptr;
        const bool ready = hands.waitUntil([&] {
            screen = find(name);
            return screen != nullptr && screen->isVisible() &&
                   QApplication::activeWindow() == screen->window() &&
                   hands.typesInto(*screen->window()) && X11User::isReady();
        });
        if (!ready) {
            throw std::runtime_error(std::string("no screen came: ") + name);
        }
        return *screen;
    }
    // For scripts: a click that may open a window, which isn't waited for.
    static void press(const X11User& hands, QWidget& screen, const char* button) {
        auto& which = named<QPushButton>(screen, button);
        hands.inProgram([&] { QTimer::singleShot(0, &which, [&which] { which.click(); }); });
    }
    static QWidget* find(const char* name) {
        for (QWidget* top : QApplication::topLevelWidgets()) {
            if (top->objectName() == QLatin1StringView(name) && top->isVisible()) {
                return top;
            }
            if (auto* inside = top->findChild<QWidget*>(QLatin1StringView(name))) {
                return inside;
            }
        }
        return nullptr;
    }
    static void focus(const X11User& hands, QWidget& widget) {
        hands.inProgram([&] { widget.setFocus(); });
        if (!hands.waitUntil([&] { return widget.hasFocus() && X11User::isReady(); })) {
            throw std::runtime_error("no focus");
        }
    }
    std::size_t asked(const std::string& command) {
        std::size_t times = 0;
        for (const std::string& query : page.takeQueries()) {
            times += query.find(command) != std::string::npos ? 1U : 0U;
        }
        return times;
    }

    ShippedManual noManual{QStringList()};  // a browser would come in front of the desk
    QTemporaryDir folder;
    PracticePage page{newDatabase(folder)};
    RecordingSpooler spooler;
    RecordingPrinter printer;
    QtMessageBoxes boxes;
    FixedClock clock;
    FixedMachine machine;
    CurlLoader curl;
    BlockingLoader network{curl};
    Environment environment{network, spooler, printer, boxes, clock, machine, page.baseUrl()};
    Sessao session;
    ProgramEnd end;
    DeskContext desk{environment, session, end};
    MDIMenu menu{desk};
    X11User user;
};

class DeskX11 : public testing::Test, protected RunningDesk {
protected:
    void SetUp() override { enter(); }
};

}  // namespace tarn::test
