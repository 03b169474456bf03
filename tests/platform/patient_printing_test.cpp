#include "platform/qt/patient_printing.h"

#include <gtest/gtest.h>

#include <QSignalSpy>
#include <QVBoxLayout>
#include <future>
#include <thread>

#include "tests/support/raw_line.h"
#include "tests/support/recording_printer.h"
#include "tests/support/recording_spooler.h"
#include "tests/support/user.h"

namespace tarn::test {
namespace {

// Stands still in openPrinter until the test lets it go.
class HeldSpooler : public RecordingSpooler {
public:
    std::promise<void> release;
    std::vector<std::thread::id> threads;

    bool openPrinter(const std::string& name) override {
        threads.push_back(std::this_thread::get_id());
        release.get_future().wait();
        return RecordingSpooler::openPrinter(name);
    }
    std::size_t write(std::string_view bytes) override {
        threads.push_back(std::this_thread::get_id());
        return RecordingSpooler::write(bytes);
    }
};

// Likewise at the end of a document, and it tells its progress there.
class HeldPrinter : public RecordingPrinter {
public:
    std::promise<void> release;
    std::thread::id thread;

    std::optional<PrinterFailure> perform(const PrintOperation& operation) override {
        if (std::holds_alternative<DocumentEnd>(operation)) {
            thread = std::this_thread::get_id();
            for (std::size_t page = 1; progress && page < 3; ++page) {
                progress(page, 3);
            }
            release.get_future().wait();
        }
        return RecordingPrinter::perform(operation);
    }
};

class PatientPrinting : public testing::Test {
protected:
    PatientPrinting() {
        auto* column = new QVBoxLayout(&window);
        column->addWidget(&button);
        column->addWidget(&field);
        window.show();
        EXPECT_TRUE(QTest::qWaitForWindowActive(&window));
        QObject::connect(&button, &QPushButton::clicked, [this] { ++clicks; });
    }
    void print() { printLine(spooler, "x"); }
    // In the event loop of the next wait, which ends after it.
    void meanwhile(std::promise<void>& release, const std::function<void()>& act) {
        QTimer::singleShot(0, &window, [&release, act] {
            act();
            release.set_value();
        });
    }

    HeldSpooler heldSpooler;
    HeldPrinter heldPrinter;
    SideThread side;
    PatientSpooler spooler{heldSpooler, side};
    PatientPrinter printer{heldPrinter, side};
    QWidget window;
    QPushButton button;
    QLineEdit field;
    int clicks = 0;
};

TEST_F(PatientPrinting, AWholeJobIsMadeOnOneThreadBesideTheWindows) {
    heldSpooler.release.set_value();
    print();
    EXPECT_EQ(heldSpooler.bytes(), " x\r\n");
    EXPECT_TRUE(heldSpooler.jobs.at(0).ended);
    ASSERT_EQ(heldSpooler.threads.size(), 2U);
    EXPECT_EQ(heldSpooler.threads[0], heldSpooler.threads[1]);
    EXPECT_NE(heldSpooler.threads[0], std::this_thread::get_id());
}

TEST_F(PatientPrinting, WhileASpoolerIsWaitedForClicksAreDroppedAndTypingIsKept) {
    meanwhile(heldSpooler.release, [this] {
        ASSERT_NE(QGuiApplication::overrideCursor(), nullptr);
        EXPECT_EQ(QGuiApplication::overrideCursor()->shape(), Qt::WaitCursor);
        QTest::mouseClick(&button, Qt::LeftButton);
        field.setFocus();
        QTest::keyClicks(&field, QStringLiteral("123"));
    });
    print();
    EXPECT_EQ(QGuiApplication::overrideCursor(), nullptr);
    EXPECT_TRUE(QTest::qWaitFor([this] { return field.text() == QStringLiteral("123"); }));
    EXPECT_EQ(clicks, 0);
    EXPECT_EQ(heldSpooler.bytes(), " x\r\n");
}

TEST_F(PatientPrinting, WindowsRepaintWhileAPageIsWaitedFor) {
    class Painted : public QWidget {
    public:
        std::promise<void>* release = nullptr;

    protected:
        void paintEvent(QPaintEvent* /*event*/) override {
            if (release != nullptr) {
                std::exchange(release, nullptr)->set_value();  // nothing else ends the wait
            }
        }
    } painted;
    painted.show();
    ASSERT_TRUE(QTest::qWaitForWindowExposed(&painted));
    painted.release = &heldPrinter.release;
    painted.update();
    printer.Print("A");
    EXPECT_EQ(printer.EndDoc(), std::nullopt);
    EXPECT_NE(heldPrinter.thread, std::this_thread::get_id());
    EXPECT_EQ(heldPrinter.lines().size(), 2U);
}

TEST_F(PatientPrinting, PagesAreToldOnTheThreadOfTheWindows) {
    std::vector<std::size_t> told;
    printer.progress = [&](std::size_t done, std::size_t) {
        EXPECT_EQ(QThread::currentThread(), qApp->thread());
        told.push_back(done);
        if (done == 2) {
            heldPrinter.release.set_value();
        }
    };
    printer.Print("A");
    EXPECT_EQ(printer.EndDoc(), std::nullopt);
    EXPECT_EQ(told, (std::vector<std::size_t>{1, 2}));
}

TEST_F(PatientPrinting, ARefusalIsHandedOnAndAnErrorThrown) {
    heldPrinter.release.set_value();
    heldPrinter.failAt = 1;
    printer.Print("A");
    EXPECT_EQ(printer.EndDoc(), std::optional(heldPrinter.failure));
    EXPECT_THROW(side.run([] { throw std::runtime_error("broke"); }), std::runtime_error);
}

}  // namespace
}  // namespace tarn::test
