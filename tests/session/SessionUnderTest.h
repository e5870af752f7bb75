#pragma once

#include "session/BackgroundUpdate.h"
#include "session/CommMode.h"
#include "support/LinkUnderTest.h"
#include <functional>
#include <QSet>

/// Views that are where the test puts them.
class FakeShellView final : public ShellView {
public:
    QString ActiveChildName() const override { return active; }
    bool IsViewVisible(const QString& name) const override { return visible.contains(name); }
    QString SelectedProgramPath() const override { return selectedPath; }
    void ShowSystemMessage(const QString& text) override { panels.push_back(text); }

    /// Text of panel 1, without "System Message:  ".
    QString Panel() const {
        const QString start = QStringLiteral("System Message:  ");
        return !panels.empty() && panels.back().startsWith(start) ? panels.back().mid(start.size())
                                                                  : QStringLiteral("no message");
    }

    QString active = QStringLiteral("frmMain");
    QSet<QString> visible;
    QString selectedPath;
    std::vector<QString> panels;
};

/// A mode display that keeps what it was shown.
class FakeModeDisplay final : public ModeDisplay {
public:
    void ShowMode(bool online) override { shown.push_back(online); }
    std::vector<bool> shown;
};

/// A link under test with its mode control and its background update.
class SessionUnderTest : public LinkUnderTest {
public:
    SessionUnderTest();

    /// The user's online command, with a board that answers.
    void UserGoesOnline();
    /// A tick that notices the online mode and polls nothing, because another view is in front.
    void QuietTick();
    /// Goes online and lets the tick notice it, in the browser with a set of a PLC board.
    void GoOnlineInBrowser();
    /// Writes the .hdn file of the set that is selected in the browser.
    void SelectBoard(const QByteArray& hdnText);
    /// Scripts the handshake of the read mode and a fault code.
    void AnswerFaultCode(int code, bool handshake);

    FakeModeDisplay display;
    FakeShellView views;
    CommMode mode;
    BackgroundUpdate update;
};

inline QString StatusTable() {
    return QStringLiteral("frmStatusTable");
}
inline QString Timing() {
    return QStringLiteral("frmTiming");
}
inline QString Trending() {
    return QStringLiteral("frmTrending");
}
inline QString TargetBoardView() {
    return QStringLiteral("frmTargetBoard");
}
