#include "widgets/status_panel.h"

#include <gtest/gtest.h>

#include <QHelpEvent>
#include <QTest>
#include <QToolTip>

namespace tarn::test {
namespace {

class StatusPanelTest : public testing::Test {
protected:
    StatusPanelTest() {
        window.resize(400, 60);
        panel.resize(200, panel.sizeHint().height());
        window.show();
        EXPECT_TRUE(QTest::qWaitForWindowExposed(&window));
    }
    ~StatusPanelTest() override { QToolTip::hideText(); }
    // What the pointer, resting on the panel, makes appear.
    QString tip() {
        QHelpEvent rest(QEvent::ToolTip, QPoint(5, 5), panel.mapToGlobal(QPoint(5, 5)));
        QCoreApplication::sendEvent(&panel, &rest);
        return QToolTip::text();
    }

    QWidget window;
    StatusPanel panel{"Panel1", QStringLiteral("Impressora"), &window};
};

TEST_F(StatusPanelTest, ATextThatFitsHasNoToolTip) {
    panel.setText(QStringLiteral("LX-300"));
    EXPECT_FALSE(panel.isCut());
    EXPECT_EQ(tip(), QString());
}

TEST_F(StatusPanelTest, ATextThatIsCutShowsWholeInItsToolTip) {
    panel.setText(QStringLiteral("Configurado para Impressora: Epson ActionPrinter- 2000, LX-810"));
    EXPECT_TRUE(panel.isCut());
    EXPECT_TRUE(tip().contains(QStringLiteral("LX-810")));
    panel.resize(1000, panel.height());
    EXPECT_FALSE(panel.isCut());
}

TEST_F(StatusPanelTest, MarkupStaysAText) {
    panel.setText(QStringLiteral("Filial <b>Sul</b> ") + QString(80, u'x'));
    EXPECT_EQ(panel.textFormat(), Qt::PlainText);
    EXPECT_TRUE(tip().contains(QStringLiteral("&lt;b&gt;Sul")));
}

TEST_F(StatusPanelTest, AScreenReaderReadsTheValue) {
    EXPECT_EQ(panel.accessibleName(), QString());
    EXPECT_EQ(panel.accessibleDescription(), QStringLiteral("Impressora"));
}

}  // namespace
}  // namespace tarn::test
