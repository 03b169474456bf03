// The billing desk against the practice server itself, over a real connection.
#include <QTableView>
#include <thread>

#include "billing/frm_oft.h"
#include "practice/server/http_front.h"
#include "practice/server/practice_server.h"
#include "tests/support/network_desk.h"
#include "tests/support/screen_test.h"
#include "widgets/free_text_field.h"

namespace tarn::test {
namespace {

// The practice server on a free port, for the life of a test.
class Practice {
public:
    Practice() : port_(front_.bind("127.0.0.1", 0)), thread_([this] { front_.serve(); }) {}
    ~Practice() {
        front_.stop();
        thread_.join();
    }
    Practice(const Practice&) = delete;
    Practice& operator=(const Practice&) = delete;

    std::string baseUrl() const {
        return "http://127.0.0.1:" + std::to_string(port_) + std::string(practice::pagePath) + "?";
    }

private:
    practice::PracticeServer server_;
    practice::HttpFront front_{[this](std::string_view query) { return server_.answer(query); },
                               "text/xml; charset=windows-1252"};
    int port_;
    std::thread thread_;
};

class PracticeDeskTest : public ScreenTest {
protected:
    void SetUp() override {
        ScreenTest::SetUp();
        entered(1361, 1361);
        session.UserCode = "101";
        session.SERVERNAME = "DADOS1361";
        list.show();
        list.load();
        ASSERT_TRUE(QTest::qWaitForWindowActive(&list));
        ASSERT_GT(grid().model()->rowCount(), 0);
    }
    QTableView& grid() { return named<QTableView>(list, "sprDados"); }
    std::string cell(int column) {
        return grid().model()->index(0, column - 1).data().toString().toStdString();
    }

    Practice practice;
    NetworkDesk network{desk, practice.baseUrl()};
    FrmOFT list{network.desk};
};

TEST_F(PracticeDeskTest, WhatIsTypedComesBackInTheList) {
    const std::string order = cell(1);
    modals.then("frmManutDetOFT", [](QWidget& dialog) {
        auto& observation = named<FreeTextField>(dialog, "txtObs");
        observation.selectAll();
        keys(observation, "50% à vista & 50% em 30 dias #1 + \"João\"");
        type(dialog, "txtQtde", "1234,5");
        type(dialog, "txtPesoBruto", "0");
        type(dialog, "txtPesoLiquido", "9999999,999");
        click(dialog, "cmdOk");
        EXPECT_FALSE(dialog.isVisible());
    });
    click(list, "cmdDetOFT");
    EXPECT_EQ(boxes.shown, Boxes{});
    EXPECT_EQ(cell(1), order);
    EXPECT_EQ(cell(9), "50% à vista & 50% em 30 dias #1 + \"João\"");
    EXPECT_EQ(cell(10), "1.234,500");
    EXPECT_EQ(cell(11), "0,000");
    EXPECT_EQ(cell(12), "9.999.999,999");
}

TEST_F(PracticeDeskTest, ARefusalOfTheServerLeavesTheDialogOpen) {
    modals.then("frmManutDetOFT", [this](QWidget& dialog) {
        type(dialog, "txtQtde", "9999999,9995");  // shown as 10.000.000,000
        click(dialog, "cmdOk");
        EXPECT_TRUE(dialog.isVisible());
        ASSERT_EQ(boxes.shown.size(), 1U);
        EXPECT_EQ(boxes.shown[0].icon, BoxIcon::Exclamation);
        EXPECT_EQ(named<QLineEdit>(dialog, "txtQtde").text(), QStringLiteral("10.000.000,000"));
        click(dialog, "cmdCancelar");
    });
    const std::string before = cell(10);
    click(list, "cmdDetOFT");
    EXPECT_EQ(cell(10), before);
}

TEST_F(PracticeDeskTest, TheSheetOfAnOrderComesOut) {
    click(list, "cmdImprimirOF");
    EXPECT_EQ(boxes.shown, Boxes{});
    ASSERT_EQ(spooler.jobs.size(), 1U);
    const auto& lines = spooler.jobs[0].writes;
    EXPECT_TRUE(spooler.jobs[0].closed);
    EXPECT_EQ(lines.at(1), " CTRL 000871-A" + std::string(27, ' ') + "\r\n");
    // Head 7, items 4, totals 4, instalments 2 + 3, observations 11.
    EXPECT_EQ(lines.size(), 31U);
    EXPECT_EQ(lines.back(), " " + std::string(77, '_') + "\r\n");
}

}  // namespace
}  // namespace tarn::test
