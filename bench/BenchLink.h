#pragma once

#include "base/ApplicationFolder.h"
#include "base/Clock.h"
#include "base/Dialogs.h"
#include "base/port/SerialMSComm.h"
#include "bench/CountingPort.h"
#include "link/RSComm.h"
#include <deque>
#include <functional>
#include <QTemporaryDir>

namespace bench {

/// Nobody is there to answer a prompt: a box means that the measurement failed, but for those that
/// are part of the work measured and are named before it.
class BenchDialogs final : public Dialogs {
public:
    /// The next box must have this title; `meanwhile` runs, and it is answered with `answer`.
    void Expect(const QString& title, int answer, std::function<void()> meanwhile);
    int MsgBox(const QString& text, int style, const QString& title) override;
    QString InputBox(const QString& prompt, const QString& title,
                     const QString& defaultText) override;
    QString ShowOpen(const FileDialogRequest& request) override;
    QString ShowSave(const FileDialogRequest& request) override;
    PrinterChoice ShowPrinter() override;

private:
    struct Expected {
        QString title;
        int answer;
        std::function<void()> meanwhile;
    };
    std::deque<Expected> expected_;
};

/// The link of the program on a real port, with settings of its own, as the program has it.
class BenchLink {
public:
    /// Goes online to the device at `baud`, 9600 or 19200. Raises std::runtime_error when that
    /// fails.
    BenchLink(const QString& device, int baud);
    ~BenchLink();

    /// Raises std::runtime_error when the link has failed since.
    void Check() const;

    BenchDialogs dialogs;
    SystemClock clock;
    NoBusyDisplay busy;
    QTemporaryDir directory;
    ApplicationFolder folder{directory.path()};
    SerialMSComm serial{clock, folder};
    CountingPort port{serial};
    RSComm link{dialogs, clock, busy, folder};
};

} // namespace bench
