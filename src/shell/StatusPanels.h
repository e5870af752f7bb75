#pragma once

#include <array>
#include <optional>
#include <QLabel>
#include <QTimer>

class Clock;
class QStatusBar;

/// One panel of the status bar: a line of text that is shortened where there is no room, so that
/// a long text never widens the window.
class StatusPanel : public QLabel {
    Q_OBJECT
public:
    explicit StatusPanel(QWidget* parent = nullptr);
    QSize minimumSizeHint() const override;
    QSize sizeHint() const override;
    /// A lamp before the text: lit or not. Without a call there is none.
    void SetLamp(bool lit);

Q_SIGNALS:
    /// A double-click of any button on the panel.
    void DoubleClicked();

protected:
    void mouseDoubleClickEvent(QMouseEvent* event) override;
    void paintEvent(QPaintEvent* event) override;

private:
    int LampWidth() const;
    std::optional<bool> lamp_;
};

/// The four panels of sbrMain, counted from 1: system message, mode, date and time. Date and time
/// keep themselves current by waking once a minute.
class StatusPanels : public QObject {
    Q_OBJECT
public:
    static constexpr int systemMessage = 1;
    static constexpr int mode = 2;
    static constexpr int date = 3;
    static constexpr int time = 4;

    /// Builds the panels into `bar`, which owns the object. `clock` must outlive it.
    StatusPanels(QStatusBar& bar, Clock& clock);

    /// Puts a text into panel 1 to 4. One that is too long is shown shortened and kept whole.
    void SetText(int panel, const QString& text);
    /// The whole text of panel 1 to 4.
    QString Text(int panel) const;
    /// Writes the mode of the link and lights its lamp while it is online.
    void ShowMode(bool online);
    /// Puts the wall clock's date and time into their panels.
    void ShowDateAndTime();

Q_SIGNALS:
    /// The user double-clicked panel 1 to 4.
    void PanelDoubleClicked(int panel);

private:
    void AddPanel(QStatusBar& bar, int panel, const QString& text);

    Clock& clock_;
    std::array<StatusPanel*, 4> panels_{};
    QTimer nextMinute_;
};
