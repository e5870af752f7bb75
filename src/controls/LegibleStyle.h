#pragma once

#include <QProxyStyle>

/// The style of the platform, with what its drawing leaves illegible on dark grounds made legible:
/// it draws the outlines of check boxes, options and entries and the lines of tables darker than
/// the window, where they are lost. On light grounds nothing is changed.
class LegibleStyle final : public QProxyStyle {
    Q_OBJECT
public:
    /// Over the style of this name ("fusion"); over the platform's own where it is empty.
    explicit LegibleStyle(const QString& name = {});

    void drawPrimitive(PrimitiveElement element, const QStyleOption* option, QPainter* painter,
                       const QWidget* widget) const override;
    int styleHint(StyleHint hint, const QStyleOption* option, const QWidget* widget,
                  QStyleHintReturn* returnData) const override;
};
