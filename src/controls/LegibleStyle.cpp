#include "controls/LegibleStyle.h"

#include <QPainter>
#include <QStyleOption>

namespace {
constexpr int darkBelow = 128;         // lightness of a ground, 0 to 255
constexpr double outlineShare = 0.5;   // of the text's colour in an outline
constexpr double tableLineShare = 0.2; // and in the lines of a table
constexpr double corner = 2.0;         // pixels, as round as the style below draws it

bool IsDark(const QPalette& palette) {
    return palette.color(QPalette::Window).lightness() < darkBelow;
}

QColor Between(const QColor& text, const QColor& ground, double share) {
    const auto mixed = [share](int of, int with) {
        return static_cast<int>(of * share + with * (1 - share));
    };
    return {mixed(text.red(), ground.red()), mixed(text.green(), ground.green()),
            mixed(text.blue(), ground.blue())};
}

QColor LineColour(const QPalette& palette, double share) {
    return Between(palette.color(QPalette::Text), palette.color(QPalette::Base), share);
}
} // namespace

// Whoever asks for the style's name means the one that draws.
LegibleStyle::LegibleStyle(const QString& name) : QProxyStyle(name) {
    setObjectName(baseStyle()->objectName());
}

void LegibleStyle::drawPrimitive(PrimitiveElement element, const QStyleOption* option,
                                 QPainter* painter, const QWidget* widget) const {
    QProxyStyle::drawPrimitive(element, option, painter, widget);
    const bool round = element == PE_IndicatorRadioButton;
    const bool square = element == PE_IndicatorCheckBox || element == PE_FrameLineEdit;
    if ((!round && !square) || !IsDark(option->palette))
        return;
    const bool shown = element == PE_FrameLineEdit || option->state & State_KeyboardFocusChange;
    const bool focused = shown && option->state & State_HasFocus;
    painter->save();
    painter->setRenderHint(QPainter::Antialiasing);
    painter->setBrush(Qt::NoBrush);
    painter->setPen(focused ? option->palette.color(QPalette::Highlight).lighter()
                            : LineColour(option->palette, outlineShare));
    const QRectF line = QRectF(option->rect).adjusted(0.5, 0.5, -0.5, -0.5);
    if (round)
        painter->drawEllipse(line);
    else
        painter->drawRoundedRect(line, corner, corner);
    painter->restore();
}

int LegibleStyle::styleHint(StyleHint hint, const QStyleOption* option, const QWidget* widget,
                            QStyleHintReturn* returnData) const {
    if (hint == SH_Table_GridLineColor && option && IsDark(option->palette))
        return static_cast<int>(LineColour(option->palette, tableLineShare).rgb());
    return QProxyStyle::styleHint(hint, option, widget, returnData);
}
