#include "bench/BenchLink.h"

#include <QDir>
#include <QFile>
#include <stdexcept>
#include <utility>

namespace bench {

namespace {
[[noreturn]] void Unexpected(const QString& title, const QString& text) {
    throw std::runtime_error("unexpected prompt [" + title.toStdString() + "] " +
                             text.toStdString());
}
} // namespace

void BenchDialogs::Expect(const QString& title, int answer, std::function<void()> meanwhile) {
    expected_.push_back({title, answer, std::move(meanwhile)});
}

int BenchDialogs::MsgBox(const QString& text, int, const QString& title) {
    if (expected_.empty() || title != expected_.front().title)
        Unexpected(title, text);
    const Expected expected = std::move(expected_.front());
    expected_.pop_front();
    expected.meanwhile();
    return expected.answer;
}

QString BenchDialogs::InputBox(const QString& prompt, const QString& title, const QString&) {
    Unexpected(title, prompt);
}

QString BenchDialogs::ShowOpen(const FileDialogRequest& request) {
    Unexpected(request.title, request.fileName);
}

QString BenchDialogs::ShowSave(const FileDialogRequest& request) {
    Unexpected(request.title, request.fileName);
}

PrinterChoice BenchDialogs::ShowPrinter() {
    Unexpected(QStringLiteral("printer"), QString());
}

BenchLink::BenchLink(const QString& device, int baud) {
    QDir(directory.path()).mkpath(QStringLiteral("Support/ports"));
    QFile::link(device, directory.filePath(QStringLiteral("Support/ports/COM1")));
    QFile settings(directory.filePath(QStringLiteral("Support/RSPort.cfg")));
    if (!settings.open(QIODevice::WriteOnly) || settings.write("1," + QByteArray::number(baud)) < 0)
        throw std::runtime_error("cannot write the port settings");
    settings.close();
    link.OpenRSComm(port);
    Check();
}

BenchLink::~BenchLink() {
    link.CloseRSComm();
}

void BenchLink::Check() const {
    if (!link.OnlineMode() || link.CommError())
        throw std::runtime_error("the link has failed");
}

} // namespace bench
