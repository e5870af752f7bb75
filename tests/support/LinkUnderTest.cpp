#include "support/LinkUnderTest.h"

#include <gtest/gtest.h>
#include <QDir>
#include <QFile>
#include <QFileInfo>

namespace {
constexpr int acknowledge = 0x55;
}

LinkUnderTest::LinkUnderTest()
    : folder(directory.path()), port(clock), link(dialogs, clock, busy, folder) {}

void LinkUnderTest::GoOnline() {
    port.Reply(acknowledge);
    link.OpenRSComm(port);
    ASSERT_TRUE(link.OnlineMode());
    port.ForgetSent();
}

void LinkUnderTest::AcceptHandshake() {
    port.Replies({acknowledge, acknowledge});
}

void LinkUnderTest::AnswerRead(int highAddress, int data) {
    port.Replies({highAddress, data});
}

void LinkUnderTest::AnswerWrite(int highAddress, int lowAddress, int data) {
    port.Replies({highAddress, lowAddress, data});
}

void LinkUnderTest::EnterReadMode() {
    AcceptHandshake();
    AnswerRead(0, 1);
    ASSERT_EQ(link.RSRead(QStringLiteral("B40")), QStringLiteral("1"));
    port.ForgetSent();
}

void LinkUnderTest::WriteFile(const QString& relative, const QByteArray& bytes) const {
    const QString path = folder.Path(relative);
    QDir().mkpath(QFileInfo(path).path());
    QFile file(path);
    ASSERT_TRUE(file.open(QIODevice::WriteOnly)) << path.toStdString();
    ASSERT_EQ(file.write(bytes), bytes.size());
}

QByteArray LinkUnderTest::FileContent(const QString& relative) const {
    QFile file(folder.Path(relative));
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

void LinkUnderTest::ExpectAlert(const QString& text, int answer, std::function<void()> meanwhile) {
    dialogs.ExpectBox(text, 21, QStringLiteral("WARNING - Communication Error!"), answer,
                      std::move(meanwhile));
}

QString NoReplyAlert() {
    return QStringLiteral("Cannot Communicate with Target Board.\rVerify RS-232 Cable is Connected "
                          "Between\rCOMM Port and PROG Port.");
}

QString NoModeAlert() {
    return QStringLiteral("Cannot Set PLC Mode Within Target Board.");
}
