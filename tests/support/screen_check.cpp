#include "tests/support/screen_check.h"

#include <QAbstractButton>
#include <QComboBox>
#include <QGroupBox>
#include <QHeaderView>
#include <QLabel>
#include <QLineEdit>
#include <QMdiArea>
#include <QMenuBar>
#include <QPlainTextEdit>
#include <QScreen>
#include <QScrollBar>
#include <QStyle>
#include <QStyleOptionButton>
#include <QTableView>
#include <algorithm>
#include <cmath>

#include "tests/support/contrast.h"

namespace tarn::test {
namespace {

constexpr int fewestLines = 3;
constexpr int fewestRows = 4;

class Look {
public:
    std::vector<std::string> at(const QWidget& window) {
        within(window);
        return std::move(faults_);
    }

private:
    static std::string nameOf(const QWidget& widget) {
        const QString name = widget.objectName();
        return (name.isEmpty() ? QString::fromLatin1(widget.metaObject()->className()) : name)
            .toStdString();
    }
    static std::string text(const QSize& size) {
        return std::to_string(size.width()) + "x" + std::to_string(size.height());
    }
    void fault(const QWidget& widget, const std::string& what) {
        faults_.push_back(nameOf(widget) + " " + what);
    }
    void needs(const QWidget& widget, const QSize& needed, const char* what) {
        if (widget.width() < needed.width() || widget.height() < needed.height()) {
            fault(widget, "is " + text(widget.size()) + ", " + what + " " + text(needed));
        }
    }

    static std::vector<const QWidget*> childrenOf(const QWidget& widget) {
        std::vector<const QWidget*> children;
        for (const QObject* object : widget.children()) {
            const auto* child = qobject_cast<const QWidget*>(object);
            if (child != nullptr && !child->isWindow() && child->isVisible()) {
                children.push_back(child);
            }
        }
        return children;
    }
    // What a widget is made of inside is its own affair.
    static bool isWhole(const QWidget& widget) {
        return qobject_cast<const QAbstractScrollArea*>(&widget) != nullptr ||
               qobject_cast<const QComboBox*>(&widget) != nullptr ||
               qobject_cast<const QLineEdit*>(&widget) != nullptr ||
               qobject_cast<const QMenuBar*>(&widget) != nullptr;
    }

    void within(const QWidget& widget) {
        const auto children = childrenOf(widget);
        for (const QWidget* child : children) {
            if (!widget.rect().contains(child->geometry())) {
                fault(*child, "stands outside of " + nameOf(widget));
            }
            one(*child);
            if (const auto* area = qobject_cast<const QMdiArea*>(child)) {
                within(*area->viewport());
            } else if (!isWhole(*child)) {
                within(*child);
            }
        }
        if (widget.layout() != nullptr) {
            overlaps(children);
        }
    }

    void overlaps(const std::vector<const QWidget*>& siblings) {
        for (std::size_t i = 0; i < siblings.size(); ++i) {
            for (std::size_t j = i + 1; j < siblings.size(); ++j) {
                if (siblings[i]->geometry().intersects(siblings[j]->geometry())) {
                    fault(*siblings[i], "lies over " + nameOf(*siblings[j]));
                }
            }
        }
    }

    static bool isWithoutBar(const QWidget& widget) {
        const auto* text = qobject_cast<const QPlainTextEdit*>(&widget);
        return text != nullptr && text->verticalScrollBarPolicy() == Qt::ScrollBarAlwaysOff;
    }

    void one(const QWidget& widget) {
        if (!isWithoutBar(widget)) {  // that is for scroll bars
            needs(widget, widget.minimumSizeHint(), "and must be");
        }
        if (const auto* label = qobject_cast<const QLabel*>(&widget)) {
            oneLabel(*label);
        } else if (const auto* button = qobject_cast<const QAbstractButton*>(&widget)) {
            needs(*button, button->sizeHint(), "its text and picture take");
        } else if (const auto* group = qobject_cast<const QGroupBox*>(&widget)) {
            needs(*group, {group->fontMetrics().horizontalAdvance(group->title()), 0},
                  "its title takes");
        } else if (const auto* field = qobject_cast<const QLineEdit*>(&widget)) {
            oneField(*field);
        } else if (const auto* list = qobject_cast<const QComboBox*>(&widget)) {
            oneList(*list);
        } else if (const auto* grid = qobject_cast<const QTableView*>(&widget)) {
            oneGrid(*grid);
        } else if (const auto* free = qobject_cast<const QPlainTextEdit*>(&widget)) {
            lines(*free);
        } else if (const auto* menus = qobject_cast<const QMenuBar*>(&widget)) {
            oneMenuBar(*menus);
        }
    }

    void oneLabel(const QLabel& label) {
        if (label.text().isEmpty() || !label.toolTip().isEmpty()) {
            return;
        }
        if (label.minimumSizeHint().width() == 0) {  // cuts it itself, and tells it
            needs(label, {0, label.sizeHint().height()}, "its text takes");
        } else if (label.wordWrap()) {
            needs(label, {0, label.heightForWidth(label.width())}, "its lines take");
        } else {
            needs(label, label.sizeHint(), "its text takes");
        }
    }

    // A field that is typed in scrolls.
    void oneField(const QLineEdit& field) {
        needs(field, {0, field.sizeHint().height()}, "its text takes");
        const int room =
            field.style()->subElementRect(QStyle::SE_LineEditContents, nullptr, &field).width();
        const QFontMetrics letters = field.fontMetrics();
        const int inner = std::max(room, field.contentsRect().width() - 8);
        if (letters.horizontalAdvance(field.placeholderText()) > inner) {
            fault(field, "cuts its placeholder");
        }
        if (field.isReadOnly() && field.toolTip().isEmpty() &&
            letters.horizontalAdvance(field.text()) > inner) {
            fault(field, "cuts its text");
        }
    }

    void oneList(const QComboBox& list) {
        needs(list, {0, list.sizeHint().height()}, "its text takes");
        QStyleOptionComboBox option;
        option.initFrom(&list);
        const QRect room = list.style()->subControlRect(QStyle::CC_ComboBox, &option,
                                                        QStyle::SC_ComboBoxEditField, &list);
        // What stands behind a gap isn't for reading.
        const QString shown = list.currentText().trimmed().section(QStringLiteral("   "), 0, 0);
        if (list.toolTip().isEmpty() &&
            list.fontMetrics().horizontalAdvance(shown) > room.width()) {
            fault(list, "cuts \"" + shown.toStdString() + "\"");
        }
    }

    void oneGrid(const QTableView& grid) {
        const int row = grid.verticalHeader()->defaultSectionSize();
        if (grid.viewport()->height() < fewestRows * row) {
            fault(grid, "shows " + std::to_string(grid.viewport()->height() / row) + " rows");
        }
        const QHeaderView& heading = *grid.horizontalHeader();
        for (int column = 0; column < heading.count(); ++column) {
            if (!heading.isSectionHidden(column) &&
                heading.sectionSize(column) < heading.sectionSizeHint(column)) {
                fault(grid, "cuts the heading of column " + std::to_string(column + 1));
            }
        }
    }

    // All of it, or a few lines and the means to see the rest.
    void lines(const QPlainTextEdit& text) {
        const int room = text.viewport()->height();
        if (text.horizontalScrollBar()->maximum() > 0) {
            fault(text, "has lines beyond its edge");
        }
        if (text.verticalScrollBar()->maximum() > 0 &&
            (room < fewestLines * text.fontMetrics().lineSpacing() ||
             text.verticalScrollBarPolicy() == Qt::ScrollBarAlwaysOff)) {
            fault(text, "shows too few of its lines");
        }
    }

    void oneMenuBar(const QMenuBar& menus) {
        for (const QAction* entry : menus.actions()) {
            if (entry->isVisible() &&
                !menus.rect().contains(menus.actionGeometry(const_cast<QAction*>(entry)))) {
                fault(menus, "cuts " + entry->text().toStdString());
            }
        }
    }

    std::vector<std::string> faults_;
};

}  // namespace

std::vector<std::string> faultsOf(const QWidget& window) {
    return Look().at(window);
}

std::vector<std::string> faultsOfColours(const QWidget& window) {
    constexpr double readable = 4.5;
    constexpr int edge = 4;  // dots, no text on them
    std::vector<std::string> faults;
    const auto note = [&faults](const QWidget& widget, const char* what, double found) {
        if (found < readable) {
            faults.push_back(widget.objectName().toStdString() + " (" +
                             widget.metaObject()->className() + "): " + what + " " +
                             std::to_string(found) + ":1");
        }
    };
    for (QWidget* widget : window.findChildren<QWidget*>()) {
        if (widget->window() != &window || !widget->isVisible()) {
            continue;
        }
        note(*widget, "its colours", worstTextContrast(widget->palette()));
        const bool showsText = qobject_cast<QLabel*>(widget) != nullptr
                                   ? !static_cast<QLabel*>(widget)->text().isEmpty()
                                   : qobject_cast<QAbstractButton*>(widget) != nullptr &&
                                         !static_cast<QAbstractButton*>(widget)->text().isEmpty();
        if (showsText || qobject_cast<QHeaderView*>(widget) != nullptr ||
            qobject_cast<QMenuBar*>(widget) != nullptr) {
            note(*widget, "as drawn",
                 contrastIn(
                     widget->grab(widget->rect().adjusted(edge, edge, -edge, -edge)).toImage()));
        }
    }
    return faults;
}

std::vector<std::string> faultsOfPlace(const QWidget& window) {
    const QRect screen = window.screen()->availableGeometry();
    const QRect place = window.geometry().adjusted(-frameSide, -frameTop, frameSide, frameSide);
    if (place.width() > screen.width() || place.height() > screen.height()) {
        return {window.objectName().toStdString() + " is " + std::to_string(window.width()) + "x" +
                std::to_string(window.height()) + " on a screen of " +
                std::to_string(screen.width()) + "x" + std::to_string(screen.height())};
    }
    return {};
}

}  // namespace tarn::test
