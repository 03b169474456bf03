#include "widgets/desk_style.h"

#include <QAbstractItemView>
#include <QAbstractScrollArea>
#include <QComboBox>
#include <QIcon>
#include <QPainter>
#include <QPainterPath>
#include <QStyleOption>

#include "widgets/late_icon.h"
#include "widgets/look.h"

namespace tarn {
namespace {

constexpr QRgb edge = 0xff6f7c7e;  // 3 times as dark as all that it stands on
constexpr qreal radius = 2.5;
constexpr qreal thin = 1;
constexpr qreal thick = 2;

class Painting {
public:
    explicit Painting(QPainter& painter) : painter_(painter) {
        painter.save();
        painter.setRenderHint(QPainter::Antialiasing);
    }
    ~Painting() { painter_.restore(); }
    Painting(const Painting&) = delete;
    Painting& operator=(const Painting&) = delete;

private:
    QPainter& painter_;
};

QRectF within(const QRect& rect, qreal width) {
    const qreal half = width / 2;
    return QRectF(rect).adjusted(half, half, -half, -half);
}

void drawEdge(QPainter& painter, const QRect& rect, const QColor& color, qreal width) {
    const Painting painting(painter);
    painter.setBrush(Qt::NoBrush);
    painter.setPen(QPen(color, width));
    painter.drawRoundedRect(within(rect, width), radius, radius);
}

QColor accentOf(const QStyleOption& option) {
    return option.palette.color(QPalette::Active, QPalette::Highlight);
}

void drawEdge(QPainter& painter, const QStyleOption& option, bool focused) {
    if (focused) {
        drawEdge(painter, option.rect, accentOf(option), thick);
    } else {
        drawEdge(painter, option.rect, QColor::fromRgb(edge), thin);
    }
}

bool isScrollArea(const QWidget* widget) {
    return qobject_cast<const QAbstractScrollArea*>(widget) != nullptr;
}

// Inside of a thin edge the ground goes on.
void drawFrame(QPainter& painter, const QStyleOption& option, bool focused, bool roomy) {
    const Painting painting(painter);
    painter.setBrush(Qt::NoBrush);
    const auto ring = [&](const QColor& color, qreal width) {
        painter.setPen(QPen(color, width, Qt::SolidLine, Qt::SquareCap, Qt::MiterJoin));
        painter.drawRect(within(option.rect, width));
    };
    if (roomy) {
        ring(focused ? accentOf(option) : option.palette.color(QPalette::Base), thick);
    }
    if (!focused) {
        ring(QColor::fromRgb(edge), thin);
    }
}

// The button that Enter presses wherever the focus is.
bool isDefault(const QStyleOption& option) {
    const auto* button = qstyleoption_cast<const QStyleOptionButton*>(&option);
    return button != nullptr && button->features.testFlag(QStyleOptionButton::DefaultButton);
}

bool has(const QStyleOption& option, QStyle::StateFlag state) {
    return option.state.testFlag(state);
}

// The round or square of an option, with what it holds.
void drawIndicator(QPainter& painter, const QStyleOption& option, bool round) {
    const Painting painting(painter);
    const bool held = has(option, QStyle::State_Sunken);
    painter.setBrush(option.palette.brush(held ? QPalette::Mid : QPalette::Base));
    painter.setPen(QPen(QColor::fromRgb(edge), thin));
    const int side = qMin(option.rect.width(), option.rect.height());
    const QRect square =
        QStyle::alignedRect(option.direction, Qt::AlignCenter, {side, side}, option.rect);
    const QRectF shape = within(square, thin);
    if (round) {
        painter.drawEllipse(shape);
    } else {
        painter.drawRoundedRect(shape, radius, radius);
    }
    const QColor mark = option.palette.color(QPalette::Text);
    if (has(option, QStyle::State_On) && round) {
        painter.setPen(Qt::NoPen);
        painter.setBrush(mark);
        painter.drawEllipse(shape.center(), side / 4.0, side / 4.0);
    } else if (has(option, QStyle::State_On)) {
        const auto at = [&shape](qreal x, qreal y) {
            return QPointF(shape.left() + x * shape.width(), shape.top() + y * shape.height());
        };
        painter.setPen(QPen(mark, side / 6.0, Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin));
        painter.drawPolyline(QPolygonF{at(0.24, 0.54), at(0.43, 0.74), at(0.78, 0.3)});
    }
}

}  // namespace

DeskStyle::DeskStyle() : QProxyStyle(QStringLiteral("Fusion")) {}

// The wheel turns a drop-down list only while it is in use, and doesn't bring it the
// focus: a choice isn't lost by scrolling past it.
void DeskStyle::polish(QWidget* widget) {
    QProxyStyle::polish(widget);
    if (qobject_cast<QComboBox*>(widget) != nullptr) {
        widget->setFocusPolicy(Qt::StrongFocus);
    }
}

// Grids and texts of several lines have room for the focus around them.
int DeskStyle::pixelMetric(PixelMetric metric, const QStyleOption* option,
                           const QWidget* widget) const {
    if (metric == PM_DefaultFrameWidth && isScrollArea(widget)) {
        return static_cast<int>(thick);
    }
    return QProxyStyle::pixelMetric(metric, option, widget);
}

int DeskStyle::styleHint(StyleHint hint, const QStyleOption* option, const QWidget* widget,
                         QStyleHintReturn* data) const {
    if (hint == SH_LineEdit_PasswordCharacter) {
        return '*';
    }
    if (hint == SH_EtchDisabledText || hint == SH_DitherDisabledText ||
        hint == SH_DialogButtonBox_ButtonsHaveIcons) {
        return 0;
    }
    if (hint == SH_ComboBox_AllowWheelScrolling) {
        return widget != nullptr && widget->hasFocus() ? 1 : 0;
    }
    return QProxyStyle::styleHint(hint, option, widget, data);
}

// The toolkit's own are made for nobody in particular, as nobody may be there any more when they
// are drawn.
QIcon DeskStyle::standardIcon(StandardPixmap icon, const QStyleOption* /*option*/,
                              const QWidget* /*widget*/) const {
    switch (icon) {
        case SP_MessageBoxInformation:
            return picture(QStringLiteral("box_information"));
        case SP_MessageBoxWarning:
            return picture(QStringLiteral("box_exclamation"));
        case SP_MessageBoxQuestion:
            return picture(QStringLiteral("box_question"));
        case SP_MessageBoxCritical:
            return picture(QStringLiteral("box_critical"));
        default:
            return lateIcon(
                [this, icon] { return QProxyStyle::standardIcon(icon, nullptr, nullptr); });
    }
}

void DeskStyle::drawPrimitive(PrimitiveElement element, const QStyleOption* option,
                              QPainter* painter, const QWidget* widget) const {
    const bool focused = has(*option, State_HasFocus);
    switch (element) {
        case PE_IndicatorCheckBox:
        case PE_IndicatorItemViewItemCheck:
            drawIndicator(*painter, *option, false);
            return;
        case PE_IndicatorRadioButton:
            drawIndicator(*painter, *option, true);
            return;
        case PE_FrameLineEdit:
            drawEdge(*painter, *option, focused);
            return;
        case PE_Frame:
            drawFrame(*painter, *option, focused, isScrollArea(widget));
            return;
        case PE_PanelButtonCommand:
            QProxyStyle::drawPrimitive(element, option, painter, widget);
            drawEdge(*painter, *option, focused);
            if (!focused && isDefault(*option)) {
                drawEdge(*painter, option->rect, accentOf(*option), thin);
            }
            return;
        case PE_FrameFocusRect:
            if (qobject_cast<const QAbstractItemView*>(widget) != nullptr) {
                break;  // the current row is a selected one
            }
            drawEdge(*painter, *option, true);
            return;
        default:
            break;
    }
    QProxyStyle::drawPrimitive(element, option, painter, widget);
}

void DeskStyle::drawComplexControl(ComplexControl control, const QStyleOptionComplex* option,
                                   QPainter* painter, const QWidget* widget) const {
    QProxyStyle::drawComplexControl(control, option, painter, widget);
    if (control == CC_ComboBox) {
        drawEdge(*painter, *option, has(*option, State_HasFocus));
    }
}

}  // namespace tarn
