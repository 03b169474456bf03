// One gesture, one act, and no key lost: with the keyboard and mouse of a real X server.
#include <gtest/gtest.h>

#include <QCheckBox>
#include <QDialog>
#include <QEventLoop>
#include <QLineEdit>
#include <QListWidget>
#include <QMessageBox>
#include <QPushButton>
#include <QShortcut>
#include <QTest>
#include <QTimer>
#include <QVBoxLayout>
#include <QWindow>

#include "platform/qt/input_gate.h"
#include "tests/support/typing_pace.h"
#include "tests/support/x11_user.h"
#include "tests/widgets/tab_field.h"
#include "widgets/gesture_filter.h"

namespace tarn::test {
namespace {

using namespace std::chrono_literals;

class Window : public QDialog {
public:
    Window() {
        auto* layout = new QVBoxLayout(this);
        for (QWidget* widget : std::initializer_list<QWidget*>{&first, &second, &third, &button,
                                                               &other, &tick, &list}) {
            layout->addWidget(widget);
        }
        list.addItems({"a", "b", "c"});
        button.setAutoDefault(false);
        other.setAutoDefault(false);
        move(200, 100);
        show();
        EXPECT_TRUE(QTest::qWaitForWindowActive(this));
        // Framed by the window manager, it stands where it will stay.
        EXPECT_TRUE(QTest::qWaitFor([this] { return !windowHandle()->frameMargins().isNull(); }));
    }

    TabField first, second, third;
    QPushButton button{"&Grava"};
    QPushButton other{"Fecha"};
    QCheckBox tick{"Marca"};
    QListWidget list;
    int escapes = 0;

protected:
    void keyPressEvent(QKeyEvent* event) override {
        if (event->key() == Qt::Key_Escape) {
            ++escapes;
        }
    }
};

class GestureX11Test : public testing::Test {
protected:
    GestureX11Test() {
        QObject::connect(&window.button, &QPushButton::clicked, [this] {
            ++acts;
            if (onAct) {
                onAct();
            }
        });
    }
    // A request that takes so long.
    void request(int milliseconds) {
        const ShutGate shut(gate);
        QEventLoop loop;
        QTimer::singleShot(milliseconds, &loop, &QEventLoop::quit);
        loop.exec();
    }
    void askInABox() {
        ++boxes;
        QMessageBox box(&window);
        box.setText(QStringLiteral("Confirma?"));
        box.setStandardButtons(QMessageBox::Yes | QMessageBox::No);
        box.setDefaultButton(QMessageBox::Yes);
        answers += box.exec() == QMessageBox::Yes ? 1 : 0;
    }
    void giveFocus(QWidget& widget) {
        widget.setFocus();
        ASSERT_TRUE(QTest::qWaitFor([&] { return widget.hasFocus(); }));
    }

    InputGate& gate = InputGate::ofApplication();
    Window window;
    X11User user;
    int acts = 0;
    int boxes = 0;
    int answers = 0;
    std::function<void()> onAct;
};

struct HeldKey {
    const char* modifier;
    const char* key;
};

void PrintTo(const HeldKey& held, std::ostream* out) {
    *out << (held.modifier != nullptr ? "Alt and " : "") << held.key;
}

class AHeldKey : public GestureX11Test, public testing::WithParamInterface<HeldKey> {
protected:
    AHeldKey() {
        new QShortcut(Qt::Key_F5, &window, [this] { window.button.click(); });
    }
    void holdIt(X11User& hands) const {
        const HeldKey held = GetParam();
        if (held.modifier != nullptr) {
            hands.holdChord(held.modifier, held.key, 2s);
        } else {
            hands.hold(held.key, 2s);
        }
        hands.settle();
    }
};

TEST_P(AHeldKey, ActsOnce) {
    giveFocus(window.button);
    user.does([&](X11User& hands) { holdIt(hands); });
    EXPECT_EQ(acts, 1);
}

TEST_P(AHeldKey, AnswersNothingInTheBoxItOpened) {
    giveFocus(window.button);
    onAct = [this] { askInABox(); };
    bool stands = false;
    user.does([&](X11User& hands) { holdIt(hands); },
              [&] { stands = QApplication::activeModalWidget() != nullptr; });
    EXPECT_EQ(boxes, 1);
    EXPECT_EQ(answers, 0);
    EXPECT_TRUE(stands);
}

TEST_P(AHeldKey, AnswersNothingInABoxAfterARequest) {
    giveFocus(window.button);
    onAct = [this] {
        request(500);
        askInABox();
    };
    user.does([&](X11User& hands) { holdIt(hands); });
    EXPECT_EQ(boxes, 1);
    EXPECT_EQ(answers, 0);
}

INSTANTIATE_TEST_SUITE_P(Each, AHeldKey,
                         testing::Values(HeldKey{nullptr, "Return"}, HeldKey{nullptr, "KP_Enter"},
                                         HeldKey{nullptr, "space"}, HeldKey{"Alt_L", "g"},
                                         HeldKey{nullptr, "F5"}),
                         [](const auto& each) {
                             return each.param.modifier != nullptr ? std::string("AccessKey")
                                    : each.param.key == std::string("KP_Enter") ? "KeypadEnter"
                                                                                : each.param.key;
                         });

TEST_F(GestureX11Test, AHeldEnterWalksOneField) {
    giveFocus(window.first);
    user.does([&](X11User& hands) {
        hands.hold("Return", 2s);
        hands.settle();
    });
    EXPECT_TRUE(window.second.hasFocus());
}

TEST_F(GestureX11Test, AHeldEscIsOneEsc) {
    giveFocus(window.first);
    user.does([&](X11User& hands) {
        hands.hold("Escape", 2s);
        hands.settle();
    });
    EXPECT_EQ(window.escapes, 1);
}

TEST_F(GestureX11Test, AHeldSpaceTogglesOnce) {
    giveFocus(window.tick);
    user.does([&](X11User& hands) {
        hands.hold("space", 2s);
        hands.settle();
    });
    EXPECT_TRUE(window.tick.isChecked());
}

TEST_F(GestureX11Test, AHeldLetterRepeats) {
    giveFocus(window.first);
    user.does([&](X11User& hands) {
        hands.hold("a", 1s);
        hands.settle();
    });
    EXPECT_GT(window.first.text().size(), 10);
}

TEST_F(GestureX11Test, SingleStrokesEachAct) {
    giveFocus(window.button);
    user.does([&](X11User& hands) {
        for (int turn = 0; turn < 5; ++turn) {
            hands.tap("Return");
            hands.wait(120ms);
        }
        hands.settle();
    });
    EXPECT_EQ(acts, 5);
}

TEST_F(GestureX11Test, ATripleClickActsOnceAndNotInTheBox) {
    onAct = [this] { askInABox(); };
    user.does([&](X11User& hands) {
        hands.clickOn(window.button);
        hands.wait(60ms);
        hands.click();
        hands.wait(60ms);
        hands.click();
        hands.settle();
    });
    EXPECT_EQ(acts, 1);
    EXPECT_EQ(answers, 0);
}

TEST_F(GestureX11Test, ALateClickAtTheSamePlaceIsTakenAfterTheRest) {
    onAct = [this] { ignoreClicksHere(window.button); };
    user.does([&](X11User& hands) {
        hands.clickOn(window.button);
        hands.wait(600ms);
        hands.click();
        hands.wait(600ms);
        hands.click();
        hands.wait(900ms);
        hands.click();
        hands.settle();
    });
    EXPECT_EQ(acts, 2);
}

TEST_F(GestureX11Test, AMovedPointerClicksAtOnce) {
    onAct = [this] { ignoreClicksHere(window.button); };
    user.does([&](X11User& hands) {
        hands.clickOn(window.list);  // begins a count of its own, whatever was clicked before
        hands.clickOn(window.button);
        hands.clickOn(window.list);
        hands.wait(100ms);
        hands.clickOn(window.button);
        hands.settle();
    });
    EXPECT_EQ(acts, 2);
}

TEST_F(GestureX11Test, ADoubleClickReachesAList) {
    int chosen = 0;
    QObject::connect(&window.list, &QListWidget::itemDoubleClicked, [&] { ++chosen; });
    user.does([&](X11User& hands) {
        QPoint row;
        hands.inProgram([&] {
            row = window.list.viewport()->mapToGlobal(
                window.list.visualItemRect(window.list.item(1)).center());
        });
        hands.moveTo(row);
        hands.click();
        hands.click();
        hands.settle();
    });
    EXPECT_EQ(chosen, 1);
}

class TypingOn : public GestureX11Test, public testing::WithParamInterface<Pace> {};

// Leaving the first field asks the server, while the user types on.
TEST_P(TypingOn, LosesNoCharacter) {
    int asked = 0;
    QObject::connect(&window.first, &QLineEdit::editingFinished, [&] {
        ++asked;
        QTimer::singleShot(0, &window, [&] {
            const Unasked unasked(gate);
            request(GetParam().answer);
        });
    });
    giveFocus(window.first);
    user.does([&](X11User& hands) {
        const std::chrono::milliseconds pace(GetParam().key);
        hands.type("778", pace);
        hands.tap("Return");
        hands.type("12345,67", pace);
        hands.tap("Tab");
        hands.type("abc def", pace);
        EXPECT_TRUE(hands.waitUntil([&] { return window.third.text().size() >= 7; }));
    });
    EXPECT_EQ(asked, 1);
    EXPECT_EQ(window.first.text(), QStringLiteral("778"));
    EXPECT_EQ(window.second.text(), QStringLiteral("12345,67"));
    EXPECT_EQ(window.third.text(), QStringLiteral("abc def"));
}

// As before, with a box that the answer brings: what was typed before is the field's, what
// comes after it has the keyboard is the box's. (A stroke made while the window manager
// hands the keyboard over reaches neither.)
TEST_P(TypingOn, NothingTypedForTheFieldGoesIntoABox) {
    QString inBox;
    QObject::connect(&window.first, &QLineEdit::editingFinished, [&] {
        QTimer::singleShot(0, &window, [&] {
            const Unasked unasked(gate);
            request(GetParam().answer);
            QDialog box(&window);
            QLineEdit field(&box);
            ++boxes;
            box.exec();
            inBox = field.text();
        });
    });
    giveFocus(window.first);
    QString typed;
    user.does([&](X11User& hands) {
        hands.tap("7");
        hands.tap("Tab");
        int inside = 0;
        for (int turn = 0; inside < 5 && turn < 60; ++turn) {
            const char digit[] = {static_cast<char>('0' + turn % 10), '\0'};
            hands.type(digit, std::chrono::milliseconds(GetParam().key));
            typed += QLatin1StringView(digit);
            inside += boxes;
        }
        hands.arrive();
    });
    EXPECT_EQ(boxes, 1);
    EXPECT_TRUE(QTest::qWaitFor([&] { return !window.second.text().isEmpty(); }));
    EXPECT_FALSE(inBox.isEmpty());
    EXPECT_TRUE(typed.startsWith(window.second.text())) << window.second.text().toStdString();
    EXPECT_TRUE(typed.endsWith(inBox)) << inBox.toStdString();
}

INSTANTIATE_TEST_SUITE_P(Each, TypingOn, testing::ValuesIn(paces()), paceName);

}  // namespace
}  // namespace tarn::test
