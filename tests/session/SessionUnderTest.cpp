#include "SessionUnderTest.h"

#include <gtest/gtest.h>

SessionUnderTest::SessionUnderTest()
    : mode(link, port, display), update(link, mode, dialogs, views) {
    views.selectedPath = directory.filePath(QStringLiteral("Set.hdn"));
}

void SessionUnderTest::UserGoesOnline() {
    port.Reply(0x55);
    mode.GoOnline();
    ASSERT_TRUE(link.OnlineMode());
}

// The change of mode is reconciled by one more open of the port.
void SessionUnderTest::QuietTick() {
    const FakeShellView before = views;
    views.visible = {StatusTable()};
    views.active = QStringLiteral("frmMain");
    port.Reply(0x55);
    update.Tick();
    views.visible = before.visible;
    views.active = before.active;
    ASSERT_TRUE(link.OnlineMode());
}

void SessionUnderTest::GoOnlineInBrowser() {
    UserGoesOnline();
    QuietTick();
    port.ForgetSent();
}

void SessionUnderTest::SelectBoard(const QByteArray& hdnText) {
    WriteFile(QStringLiteral("Set.hdn"), hdnText);
}

void SessionUnderTest::AnswerFaultCode(int code, bool handshake) {
    if (handshake)
        AcceptHandshake();
    AnswerRead(0x1F, code);
}
