#pragma once

#include <QLabel>

/// A value on display whose text can be marked and copied, by the mouse and by the keyboard: Tab
/// reaches it while there is a text and marks all of it, as it does with an entry. Accessibility
/// tools hear its caption with the value.
class ValueLabel : public QLabel {
    Q_OBJECT
public:
    /// `caption` names the value: "Checksum:". Empty for a text that explains itself.
    explicit ValueLabel(QString caption = {}, QWidget* parent = nullptr);

    /// Shows a value, as plain text.
    void Show(const QString& value);

protected:
    void focusInEvent(QFocusEvent* event) override;
    void focusOutEvent(QFocusEvent* event) override;

private:
    QString caption_;
};
