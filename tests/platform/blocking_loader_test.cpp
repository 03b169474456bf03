#include "platform/qt/blocking_loader.h"

#include <gtest/gtest.h>

#include <QCloseEvent>
#include <QPushButton>
#include <QSignalSpy>
#include <QVBoxLayout>
#include <functional>
#include <future>
#include <stdexcept>
#include <thread>

#include "platform/qt/tick.h"
#include "tests/support/user.h"

namespace tarn::test {
namespace {

// Answers when the test lets it.
class HeldLoader : public HttpLoader {
public:
    std::promise<void> release;
    std::vector<std::string> addresses;
    std::thread::id thread;
    bool fails = false;

    HttpAnswer get(const std::string& address) override {
        addresses.push_back(address);
        thread = std::this_thread::get_id();
        release.get_future().wait();
        if (fails) {
            throw std::runtime_error("loader broke");
        }
        return {true, "<a/>"};
    }
};

class Window : public QWidget {
public:
    std::function<void()> onPaint;
    int closes = 0;

    Window() {
        auto* layout = new QVBoxLayout(this);
        layout->addWidget(&button);
        layout->addWidget(&field);
        show();
        EXPECT_TRUE(QTest::qWaitForWindowActive(this));
    }

    QPushButton button;
    QLineEdit field;

protected:
    void paintEvent(QPaintEvent* /*event*/) override {
        if (onPaint) {
            onPaint();
        }
    }
    void closeEvent(QCloseEvent* event) override {
        ++closes;
        event->ignore();
    }
};

class BlockingLoaderTest : public testing::Test {
protected:
    // Runs `during` inside the event loop of a request, then lets the request end.
    HttpAnswer requestWhile(const std::function<void()>& during) {
        QTimer::singleShot(0, &window, [this, during] {
            during();
            held.release.set_value();
        });
        return loader.get("http://servidor/?comando=x");
    }

    HeldLoader held;
    BlockingLoader loader{held};
    Window window;
};

TEST_F(BlockingLoaderTest, RunsTheRealLoaderOnAnotherThreadAndHandsItsAnswerBack) {
    const HttpAnswer answer = requestWhile([] {});
    EXPECT_TRUE(answer.loaded);
    EXPECT_EQ(answer.body, "<a/>");
    EXPECT_EQ(held.addresses, std::vector<std::string>{"http://servidor/?comando=x"});
    EXPECT_NE(held.thread, std::this_thread::get_id());
}

TEST_F(BlockingLoaderTest, WindowsRepaintWhileTheRequestIsUnderWay) {
    bool painted = false;
    window.onPaint = [&] {
        if (!std::exchange(painted, true)) {
            held.release.set_value();  // only a repaint lets the request end
        }
    };
    window.update();
    loader.get("x");
    EXPECT_TRUE(painted);
}

TEST_F(BlockingLoaderTest, WindowsRepaintWhileTheAnswerIsRead) {
    held.release.set_value();
    std::promise<void> painted;
    std::future<void> paint = painted.get_future();
    bool once = false;
    const auto read = [&](std::string_view body) {
        EXPECT_EQ(body, "<a/>");
        EXPECT_EQ(std::this_thread::get_id(), held.thread);
        QMetaObject::invokeMethod(&window, [&] {
            EXPECT_TRUE(InputGate::ofApplication().isShut());
            window.onPaint = [&] {
                if (!std::exchange(once, true)) {
                    painted.set_value();
                }
            };
            window.update();
        });
        return paint.wait_for(std::chrono::seconds(20)) == std::future_status::ready;
    };
    EXPECT_TRUE(loader.load("x", read));
    EXPECT_EQ(QGuiApplication::overrideCursor(), nullptr);
}

TEST_F(BlockingLoaderTest, WhatTheReaderSaysAndThrowsIsHandedBack) {
    held.release.set_value();
    EXPECT_FALSE(loader.load("x", [](std::string_view) { return false; }));
    held.release = {};
    held.release.set_value();
    EXPECT_THROW(
        loader.load("x", [](std::string_view) -> bool { throw std::runtime_error("no memory"); }),
        std::runtime_error);
    loader.close();
    EXPECT_FALSE(loader.load("x", [](std::string_view) { return true; }));
}

TEST_F(BlockingLoaderTest, ShowsTheHourglassOnlyMeanwhile) {
    requestWhile([] {
        ASSERT_NE(QGuiApplication::overrideCursor(), nullptr);
        EXPECT_EQ(QGuiApplication::overrideCursor()->shape(), Qt::WaitCursor);
    });
    EXPECT_EQ(QGuiApplication::overrideCursor(), nullptr);
}

TEST_F(BlockingLoaderTest, DropsClicksShortcutsAndClosingAndKeepsTyping) {
    int clicks = 0;
    QObject::connect(&window.button, &QPushButton::clicked, [&] { ++clicks; });
    QAction action;
    action.setShortcut(Qt::Key_F5);
    window.addAction(&action);
    const QSignalSpy shortcut(&action, &QAction::triggered);
    const auto use = [&] {
        QTest::mouseClick(&window.button, Qt::LeftButton);
        window.field.setFocus();
        QTest::keyClicks(&window.field, QStringLiteral("abc"));
        QTest::keyClick(&window.field, Qt::Key_F5);
        window.close();
    };
    requestWhile(use);
    EXPECT_EQ(clicks, 0);
    EXPECT_EQ(window.field.text(), QString());
    EXPECT_EQ(shortcut.count(), 0);
    EXPECT_EQ(window.closes, 0);
    EXPECT_TRUE(window.isVisible());

    EXPECT_TRUE(QTest::qWaitFor([] { return InputGate::ofApplication().isQuiet(); }));
    EXPECT_EQ(window.field.text(), QStringLiteral("abc"));
    EXPECT_EQ(clicks, 0);
    use();
    EXPECT_EQ(clicks, 1);
    EXPECT_EQ(window.field.text(), QStringLiteral("abcabc"));
    EXPECT_EQ(shortcut.count(), 1);
    EXPECT_EQ(window.closes, 1);
}

TEST_F(BlockingLoaderTest, ClicksOfTheWindowSystemThatArriveMeanwhileAreDropped) {
    int clicks = 0;
    QObject::connect(&window.button, &QPushButton::clicked, [&] { ++clicks; });
    requestWhile([&] {
        QTest::mouseClick(window.windowHandle(), Qt::LeftButton, {},
                          window.button.geometry().center());
    });
    QCoreApplication::processEvents();
    EXPECT_EQ(clicks, 0);
}

TEST_F(BlockingLoaderTest, AScreensTimerTicksOnceAfterTheRequest) {
    Tick timer(1, nullptr);
    bool underWay = true;
    int ticks = 0;
    QObject::connect(&timer, &Tick::ticked, [&] {
        EXPECT_FALSE(underWay);
        if (++ticks == 1) {
            timer.setInterval(3600000);
        }
    });
    timer.start();
    // A plain timer that runs several times as long shows that the other came due.
    QTimer other;
    int others = 0;
    QObject::connect(&other, &QTimer::timeout, [&] {
        if (++others == 5) {
            held.release.set_value();
        }
    });
    other.start(3);
    loader.get("x");
    other.stop();
    underWay = false;
    EXPECT_EQ(ticks, 0);
    EXPECT_TRUE(QTest::qWaitFor([&] { return ticks > 0; }));
    EXPECT_EQ(ticks, 1);
}

TEST_F(BlockingLoaderTest, ATimerStoppedAfterTheRequestDoesNotTick) {
    Tick timer(1, nullptr);
    const QSignalSpy ticks(&timer, &Tick::ticked);
    timer.start();
    QTimer::singleShot(20, [&] { held.release.set_value(); });
    loader.get("x");
    timer.stop();
    QCoreApplication::processEvents();
    QCoreApplication::processEvents();
    EXPECT_EQ(ticks.count(), 0);
}

TEST_F(BlockingLoaderTest, AnExceptionCrossesBack) {
    held.fails = true;
    EXPECT_THROW(requestWhile([] {}), std::runtime_error);
    EXPECT_EQ(QGuiApplication::overrideCursor(), nullptr);
    int clicks = 0;
    QObject::connect(&window.button, &QPushButton::clicked, [&] { ++clicks; });
    QTest::mouseClick(&window.button, Qt::LeftButton);
    EXPECT_EQ(clicks, 1);
}

TEST_F(BlockingLoaderTest, RefusesASecondRequestWhileOneIsUnderWay) {
    requestWhile([&] { EXPECT_THROW(loader.get("y"), std::logic_error); });
    EXPECT_EQ(held.addresses.size(), 1U);
}

TEST_F(BlockingLoaderTest, ClosedItSendsNothing) {
    loader.close();
    EXPECT_FALSE(loader.get("x").loaded);
    EXPECT_TRUE(held.addresses.empty());
}

}  // namespace
}  // namespace tarn::test
