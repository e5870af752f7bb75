#include "targetboard/views/PageParts.h"

#include <QFontMetrics>
#include <QLabel>
#include <QPlainTextEdit>

QString IndexedName(const char* name, int index) {
    return QStringLiteral("%1(%2)").arg(QLatin1String(name)).arg(index);
}

QLabel* PlainLabel(const QString& objectName, const QString& text) {
    auto* label = new QLabel(text);
    label->setObjectName(objectName);
    label->setTextFormat(Qt::PlainText);
    return label;
}

QLabel* WrappedLabel(const QString& objectName, const QString& text) {
    QLabel* label = PlainLabel(objectName, QString(text).remove(u'\r'));
    label->setWordWrap(true);
    return label;
}

QPlainTextEdit* ReadOnlyBox(const QString& objectName, const QString& accessibleName, int lines) {
    auto* box = new QPlainTextEdit;
    box->setObjectName(objectName);
    box->setAccessibleName(accessibleName);
    box->setReadOnly(true);
    box->setTabChangesFocus(true);
    const int frame =
        2 * box->frameWidth() + 2 * static_cast<int>(box->document()->documentMargin());
    box->setMinimumHeight(lines * QFontMetrics(box->font()).lineSpacing() + frame + 2);
    box->setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Preferred);
    return box;
}

void ShowText(QPlainTextEdit& box, const QString& text) {
    if (box.toPlainText() != text)
        box.setPlainText(text);
}
