// The desk's printing before a print server that takes the connection and says nothing.
#include <gtest/gtest.h>

#include <QElapsedTimer>
#include <QTimer>

#include "common/raw_channel.h"
#include "platform/cups/cups_spooler.h"
#include "platform/qt/patient_printing.h"
#include "platform/qt/qt_printer.h"
#include "tests/support/silent_server.h"
#include "tests/support/user.h"

namespace tarn::test {
namespace {

class SilentPrintServer : public testing::Test {
protected:
    SilentPrintServer() {
        static const SilentServer server;  // one for the program: libcups remembers the first
        server.beThePrintServer();
        window_.show();
        EXPECT_TRUE(QTest::qWaitForWindowExposed(&window_));
        QObject::connect(&repainting_, &QTimer::timeout, &window_, [this] { window_.update(); });
        repainting_.start(100);
        lasted_.start();
    }
    // The window never stood still, and nobody waited for long.
    void expectSecondsOfALivingWindow() const {
        constexpr qint64 patience = 12'000;  // milliseconds; on a busy machine
        constexpr int fewest = 10;
        EXPECT_LT(lasted_.elapsed(), patience);
        EXPECT_GT(window_.paints, fewest);
    }

    SideThread beside_;

private:
    class Window : public QWidget {
    public:
        int paints = 0;

    protected:
        void paintEvent(QPaintEvent* /*event*/) override { ++paints; }
    };

    Window window_;
    QTimer repainting_;
    QElapsedTimer lasted_;
};

TEST_F(SilentPrintServer, ARawJobIsGivenUpWhileTheWindowRepaints) {
    CupsSpooler real;
    PatientSpooler spooler(real, beside_);
    RawChannel channel(spooler, CodePage::Page1252);
    channel.open();
    std::string line = "linha";
    channel.ImprimeRaw(1, line, 1);
    channel.close();
    EXPECT_FALSE(spooler.answers());
    expectSecondsOfALivingWindow();
}

TEST_F(SilentPrintServer, ADrawnPageIsRefusedWithTheReasonWhileTheWindowRepaints) {
    QtPrinter real;
    PatientPrinter printer(real, beside_);
    const auto failure = printer.Print("A");
    ASSERT_TRUE(failure);
    EXPECT_EQ(failure->description.find(spoolerIsSilent), 0U) << failure->description;
    EXPECT_EQ(printer.EndDoc(), failure);
    expectSecondsOfALivingWindow();
}

}  // namespace
}  // namespace tarn::test
