#pragma once

#include "support/LinkUnderTest.h"
#include <gtest/gtest.h>

using Bytes = std::vector<int>;

namespace Answer {
constexpr int cancel = 2;
constexpr int retry = 4;
} // namespace Answer

/// A link that is online with a limit switch board of which every byte is scripted.
class PLSLinkTest : public testing::Test, protected LinkUnderTest {
protected:
    PLSLinkTest() {
        GoOnline();
        start = clock.MonotonicSeconds();
    }
    double Elapsed() const { return clock.MonotonicSeconds() - start; }

    /// The next read of a word brings this value.
    void AnswerWord(int value) {
        AcceptHandshake();
        port.Replies({value % 256, value / 256});
    }
    /// The next `count` bytes are acknowledged.
    void Acknowledge(int count) { port.Replies(Bytes(static_cast<std::size_t>(count), 0x55)); }
    /// The board tells that it is ready.
    void AnswerReady() { port.Replies({0x55, 0x00, 0x55}); }
    /// The board takes a command with so many data bytes and is ready at once.
    void TakeCommand(int dataBytes) {
        AcceptHandshake();
        Acknowledge(dataBytes);
        AnswerReady();
    }
    void ExpectNotReadyAlert(int answer, std::function<void()> meanwhile = {}) {
        ExpectAlert(QStringLiteral("Cannot Determine PLS READY Mode Within Target Board."), answer,
                    std::move(meanwhile));
    }
    void ExpectRefusal(const QString& text, const QString& title) {
        dialogs.ExpectBox(text, 48, title, 1);
    }
    /// Bytes sent since the last call.
    Bytes TakeSent() {
        Bytes sent = port.Sent();
        port.ForgetSent();
        return sent;
    }

    double start = 0.0;
};
