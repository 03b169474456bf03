// What gets into a field of numbers by each way there is into it.
#include "widgets/character_filter.h"

#include <functional>

#include "tests/support/entering.h"
#include "tests/support/screen_test.h"
#include "tests/support/texts.h"
#include "widgets/field_families.h"

namespace tarn::test {
namespace {

constexpr KeyFilter filters[] = {KeyFilter::Decimal, KeyFilter::Integer};

// All characters of one byte, and some that look like digits or have a digit's low bits.
std::vector<char32_t> characters() {
    std::vector<char32_t> all;
    for (char32_t character = 1; character < 256; ++character) {
        all.push_back(character);
    }
    for (const char32_t character :
         {U'\u0130', U'\u0660', U'\u2009', U'\u2044', U'\u200D', U'\u20AC', U'\uFF0C', U'\uFF11',
          U'\U00010030', U'\U0001D7D9', U'\U0001F600'}) {
        all.push_back(character);
    }
    return all;
}

bool goesIn(char32_t character, KeyFilter filter) {
    return (character >= '0' && character <= '9') ||
           (character == ',' && filter == KeyFilter::Decimal);
}

QString textOf(char32_t character) {
    return QString::fromUcs4(&character, 1);
}

using Way = std::function<void(QWidget&, const QString&)>;
struct NamedWay {
    const char* name;
    Way bring;
};

Way typedWith(Qt::KeyboardModifiers held) {
    return [held](QWidget& field, const QString& text) { typeWith(field, held, text); };
}

const NamedWay typing[] = {
    {"plain", typedWith(Qt::NoModifier)},
    {"Shift", typedWith(Qt::ShiftModifier)},
    {"Alt", typedWith(Qt::AltModifier)},
    {"Alt and Shift", typedWith(Qt::AltModifier | Qt::ShiftModifier)},
    {"Meta", typedWith(Qt::MetaModifier)},
    {"number pad", typedWith(Qt::KeypadModifier)},
    {"AltGr", typedWith(Qt::GroupSwitchModifier)},
    {"input method", [](QWidget& field, const QString& text) { compose(field, text); }}};

const NamedWay pasting[] = {
    {"Ctrl+V", paste},
    {"Shift+Insert", pasteByInsert},
    {"drop", [](QWidget& field, const QString& text) { drop(field, text); }}};

// Notes what an input method's text looks like when it comes to the field.
class Compositions : public QObject {
public:
    std::vector<std::string> shown;

protected:
    bool eventFilter(QObject* /*watched*/, QEvent* event) override {
        if (event->type() == QEvent::InputMethod) {
            shown.push_back(static_cast<QInputMethodEvent*>(event)->preeditString().toStdString());
        }
        return false;
    }
};

class CharacterFilterTest : public ScreenTest {
protected:
    void SetUp() override {
        ScreenTest::SetUp();
        for (const KeyFilter filter : filters) {
            QLineEdit& edit = of(filter);
            edit.setParent(&window);
            edit.installEventFilter(&compositions);
            new CharacterFilter(edit, filter, machine);
        }
        window.resize(200, 100);
        integer.move(0, 50);
        window.show();
        ASSERT_TRUE(QTest::qWaitForWindowActive(&window));
    }
    QLineEdit& of(KeyFilter filter) { return filter == KeyFilter::Decimal ? decimal : integer; }
    QLineEdit& holding(KeyFilter filter, const char* text) {
        QLineEdit& edit = of(filter);
        edit.setFocus();
        edit.setText(QString::fromUtf8(text));
        machine.beeps = 0;
        return edit;
    }
    static std::string held(const QLineEdit& edit) { return edit.text().toStdString(); }

    QWidget window;
    Compositions compositions;
    QLineEdit decimal{&window};
    QLineEdit integer{&window};
};

TEST_F(CharacterFilterTest, WhatIsTypedGoesInOrBeepsWhateverIsHeld) {
    for (const KeyFilter filter : filters) {
        for (const NamedWay& way : typing) {
            for (const char32_t character : characters()) {
                QLineEdit& edit = holding(filter, "7");
                way.bring(edit, textOf(character));
                const bool in = goesIn(character, filter);
                EXPECT_EQ(held(edit), in ? "7" + textOf(character).toStdString() : "7")
                    << way.name << ' ' << static_cast<int>(character);
                EXPECT_EQ(machine.beeps, in ? 0 : 1)
                    << way.name << ' ' << static_cast<int>(character);
            }
        }
    }
}

// Ctrl with Alt is AltGr where there is no key of that name; control codes bring nothing.
TEST_F(CharacterFilterTest, CtrlAndAltBringCharactersThatAreJudged) {
    for (const KeyFilter filter : filters) {
        for (const char32_t character : characters()) {
            QLineEdit& edit = holding(filter, "7");
            typeWith(edit, Qt::ControlModifier | Qt::AltModifier, textOf(character));
            const bool in = goesIn(character, filter);
            const bool code = character < 32 || (character >= 127 && character < 160);
            EXPECT_EQ(held(edit), in ? "7" + textOf(character).toStdString() : "7")
                << static_cast<int>(character);
            EXPECT_EQ(machine.beeps, in || code ? 0 : 1) << static_cast<int>(character);
        }
    }
}

TEST_F(CharacterFilterTest, WhatIsPastedOrDroppedIsJudgedAsAWhole) {
    for (const KeyFilter filter : filters) {
        for (const NamedWay& way : pasting) {
            for (const char32_t character : characters()) {
                QLineEdit& edit = holding(filter, "");
                way.bring(edit, QStringLiteral("12") + textOf(character) + QStringLiteral("3"));
                const bool in = goesIn(character, filter);
                const bool out = std::string_view(" ./-,").find(static_cast<char>(character)) !=
                                     std::string_view::npos &&
                                 character < 128;
                std::string expected;
                if (in || out) {
                    expected = in ? "12" + textOf(character).toStdString() + "3" : "123";
                }
                EXPECT_EQ(held(edit), expected) << way.name << ' ' << static_cast<int>(character);
                EXPECT_EQ(machine.beeps, in || out ? 0 : 1)
                    << way.name << ' ' << static_cast<int>(character);
            }
        }
    }
}

TEST_F(CharacterFilterTest, TheMenuPastesByTheSameRule) {
    for (const KeyFilter filter : filters) {
        QLineEdit& edit = holding(filter, "");
        pasteByMenu(edit, QStringLiteral("1.234"));
        EXPECT_EQ(held(edit), "1234");
        pasteByMenu(edit, QString::fromUtf8("5º"));
        EXPECT_EQ(held(edit), "1234");
        EXPECT_EQ(machine.beeps, 1);
    }
}

TEST_F(CharacterFilterTest, ARefusedPasteLeavesTheSelection) {
    QLineEdit& edit = holding(KeyFilter::Decimal, "123");
    edit.selectAll();
    paste(edit, QStringLiteral("12\r\n"));
    EXPECT_EQ(edit.selectedText(), QStringLiteral("123"));
    EXPECT_EQ(machine.beeps, 1);
    paste(edit, QStringLiteral(" - "));
    EXPECT_EQ(edit.selectedText(), QStringLiteral("123")) << "nothing is left to put in";
    EXPECT_EQ(machine.beeps, 1);
    paste(edit, QStringLiteral("12.345-678"));
    EXPECT_EQ(held(edit), "12345678");
}

TEST_F(CharacterFilterTest, ADroppedTextLandsWhereItIsDropped) {
    QLineEdit& edit = holding(KeyFilter::Decimal, "99");
    EXPECT_TRUE(drop(edit, QStringLiteral("1.000,50")));
    EXPECT_EQ(held(edit), "1000,5099");
    EXPECT_FALSE(drop(edit, QStringLiteral("mil")));
    EXPECT_FALSE(drop(edit, QStringLiteral("...")));
    EXPECT_EQ(held(edit), "1000,5099");
    EXPECT_EQ(machine.beeps, 1);
}

TEST_F(CharacterFilterTest, TheFieldsLengthHoldsAndIsHeard) {
    QLineEdit& edit = holding(KeyFilter::Decimal, "");
    edit.setMaxLength(4);
    paste(edit, QStringLiteral("1.2.3.4"));
    EXPECT_EQ(held(edit), "1234") << "what is taken out doesn't count";
    EXPECT_EQ(machine.beeps, 0);
    typeWith(edit, Qt::NoModifier, QStringLiteral("5"));
    EXPECT_EQ(machine.beeps, 1);
    edit.selectAll();
    paste(edit, QStringLiteral("987654"));
    EXPECT_EQ(held(edit), "9876");
    EXPECT_EQ(machine.beeps, 2);
}

TEST_F(CharacterFilterTest, AKeyOfSeveralCharactersBringsTheGoodOnes) {
    QLineEdit& edit = holding(KeyFilter::Decimal, "");
    typeWith(edit, Qt::NoModifier, QString::fromUtf8("´1"));  // a dead key that fits no letter
    EXPECT_EQ(held(edit), "1");
    EXPECT_EQ(machine.beeps, 1);
    compose(edit, QString::fromUtf8("´2"));
    EXPECT_EQ(held(edit), "12");
    EXPECT_EQ(machine.beeps, 2);
}

TEST_F(CharacterFilterTest, WhatIsStillComposedIsShownOnlyIfItCouldGoIn) {
    QLineEdit& edit = holding(KeyFilter::Decimal, "5");
    compose(edit, {}, QStringLiteral("12"));
    compose(edit, {}, QString::fromUtf8("12á"));
    EXPECT_EQ(machine.beeps, 1);
    compose(edit, {});
    EXPECT_EQ(compositions.shown, (Texts{"12", "", ""}));
    EXPECT_EQ(held(edit), "5");
}

TEST_F(CharacterFilterTest, ARefusedCompositionReplacesNothing) {
    QLineEdit& edit = holding(KeyFilter::Decimal, "55");
    edit.selectAll();
    QInputMethodEvent input;
    input.setCommitString(QString::fromUtf8("é"), -1, 1);
    QCoreApplication::sendEvent(&edit, &input);
    EXPECT_EQ(held(edit), "55");
    EXPECT_EQ(edit.selectedText(), QStringLiteral("55"));
    EXPECT_EQ(machine.beeps, 1);
}

TEST_F(CharacterFilterTest, KeysThatEditStillDo) {
    QLineEdit& edit = holding(KeyFilter::Decimal, "");
    const auto control = [&edit](Qt::Key letter, Qt::KeyboardModifiers more = Qt::NoModifier) {
        const QString code(QChar(static_cast<char16_t>(letter - Qt::Key_A + 1)));
        QTest::sendKeyEvent(QTest::Click, &edit, letter, code, Qt::ControlModifier | more);
    };
    keys(edit, "123");
    control(Qt::Key_A);
    EXPECT_EQ(edit.selectedText(), QStringLiteral("123"));
    control(Qt::Key_C);
    EXPECT_EQ(QApplication::clipboard()->text(), QStringLiteral("123"));
    control(Qt::Key_X);
    EXPECT_EQ(held(edit), "");
    control(Qt::Key_Z);
    EXPECT_EQ(held(edit), "123");
    control(Qt::Key_Z, Qt::ShiftModifier);
    EXPECT_EQ(held(edit), "");
    control(Qt::Key_V);
    EXPECT_EQ(held(edit), "123");
    QTest::keyClick(&edit, Qt::Key_Backspace);
    QTest::keyClick(&edit, Qt::Key_Backspace, Qt::ControlModifier);
    EXPECT_EQ(held(edit), "");
    control(Qt::Key_G);
    QTest::keyClick(&edit, Qt::Key_Alt);
    EXPECT_EQ(machine.beeps, 0);
}

TEST_F(CharacterFilterTest, TheMenuOffersWhatTheFieldDoes) {
    QLineEdit& edit = holding(KeyFilter::Decimal, "123");
    QContextMenuEvent wish(QContextMenuEvent::Keyboard, {2, 2}, edit.mapToGlobal(QPoint(2, 2)));
    QCoreApplication::sendEvent(&edit, &wish);
    auto* menu = qobject_cast<QMenu*>(QApplication::activePopupWidget());
    ASSERT_NE(menu, nullptr);
    int entries = 0;
    for (const QAction* entry : menu->actions()) {
        entries += entry->isSeparator() ? 0 : 1;
        EXPECT_EQ(entry->menu(), nullptr) << entry->text().toStdString();
    }
    EXPECT_EQ(entries, 7) << "undo, redo, cut, copy, paste, delete, select all";
    menu->close();
}

TEST_F(CharacterFilterTest, AFieldThatIsOnlyReadKeepsQuiet) {
    QLineEdit& edit = holding(KeyFilter::Decimal, "123");
    edit.setReadOnly(true);
    keys(edit, "a");
    paste(edit, QStringLiteral("a"));
    EXPECT_EQ(held(edit), "123");
    EXPECT_EQ(machine.beeps, 0);
}

}  // namespace
}  // namespace tarn::test
