#pragma once

#include <QLabel>
#include <QVBoxLayout>

/// A control under its label. The control gets `name` as object name, the label's text as the name
/// for accessibility tools, and the focus by the label's mnemonic.
inline QWidget* LabelledPane(const QString& caption, const QString& name, QWidget* control) {
    constexpr int gap = 2; // pixels
    auto* label = new QLabel(caption);
    label->setBuddy(control);
    control->setObjectName(name);
    control->setAccessibleName(QString(caption).remove(u'&').remove(u':'));
    auto* pane = new QWidget;
    auto* layout = new QVBoxLayout(pane);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->setSpacing(gap);
    layout->addWidget(label);
    layout->addWidget(control);
    return pane;
}
