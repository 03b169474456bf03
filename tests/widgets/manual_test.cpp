#include "widgets/manual.h"

#include <QDialog>
#include <QLineEdit>

#include "desk/desk_application.h"
#include "tests/support/screen_test.h"
#include "tests/support/shipped_manual.h"

namespace tarn::test {
namespace {

// A screen with a field, as its name is known to the manual.
class KnownScreen : public QDialog {
public:
    explicit KnownScreen(QWidget* parent = nullptr) : QDialog(parent), field_(this) {
        setObjectName(QStringLiteral("frmConhecida"));
        field_.setObjectName(QStringLiteral("txtCampo"));
    }
    QLineEdit& field() { return field_; }

private:
    QLineEdit field_;
};

const QString screenPage = QStringLiteral("telas/frmConhecida.html");
const QStringList twoPages{QStringLiteral("index.html"), screenPage};

class ManualTest : public ScreenTest {
protected:
    void open(QWidget& window) {
        window.show();
        ASSERT_TRUE(QTest::qWaitForWindowActive(&window));
    }
    ShippedManual manual{twoPages};
};

TEST_F(ManualTest, F1OpensThePageOfTheScreenAroundTheField) {
    KnownScreen screen;
    open(screen);
    QTest::keyClick(&screen.field(), Qt::Key_F1);
    EXPECT_EQ(manual.opened(), QStringList{manual.page(screenPage)});
    EXPECT_EQ(screen.field().text(), QString());
}

TEST_F(ManualTest, AScreenWithoutAPageHasThatOfTheScreenBehindIt) {
    KnownScreen screen;
    QDialog dialog(&screen);
    dialog.setObjectName(QStringLiteral("frmOutra"));
    EXPECT_EQ(manualPage(&dialog), manual.page(screenPage));
    EXPECT_EQ(manualPage(nullptr), manual.page(QStringLiteral("index.html")));
}

TEST_F(ManualTest, AHeldKeyOpensItOnce) {
    KnownScreen screen;
    open(screen);
    QTest::keyPress(&screen, Qt::Key_F1);
    for (int i = 0; i < 3; ++i) {
        QKeyEvent held(QEvent::KeyPress, Qt::Key_F1, Qt::NoModifier, QString(), true);
        QCoreApplication::sendEvent(&screen, &held);
    }
    QTest::keyRelease(&screen, Qt::Key_F1);
    EXPECT_EQ(manual.opened().size(), 1);
}

TEST_F(ManualTest, F1WithAnotherKeyIsNotOurs) {
    KnownScreen screen;
    open(screen);
    QTest::keyClick(&screen, Qt::Key_F1, Qt::ControlModifier);
    EXPECT_EQ(manual.opened(), QStringList());
}

TEST_F(ManualTest, WithoutAManualTheUserIsTold) {
    const ShippedManual none{QStringList()};
    KnownScreen screen;
    open(screen);
    QString told;
    const auto listening =
        QObject::connect(&static_cast<DeskApplication&>(*qApp).manualKey(), &ManualKey::notOpened,
                         [&told](const QString& trouble) { told = trouble; });
    QTest::keyClick(&screen, Qt::Key_F1);
    QObject::disconnect(listening);
    EXPECT_TRUE(told.startsWith(QStringLiteral("O manual não está nesta máquina.")))
        << told.toStdString();
    EXPECT_EQ(none.opened(), QStringList());
}

}  // namespace
}  // namespace tarn::test
