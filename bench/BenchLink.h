#pragma once

#include "base/ApplicationFolder.h"
#include "base/Clock.h"
#include "base/Dialogs.h"
#include "base/port/SerialMSComm.h"
#include "link/RSComm.h"
#include <QTemporaryDir>

namespace bench {

/// Nobody is there to answer a prompt: a box means that the measurement failed. Boxes that are
/// part of the work measured are named before it.
class BenchDialogs final : public Dialogs {
public:
    /// The next boxes with this title are answered so; `text` tells what they said.
    void Answer(const QString& title, int answer);
    int MsgBox(const QString& text, int style, const QString& title) override;
    QString InputBox(const QString& prompt, const QString& title,
                     const QString& defaultText) override;
    QString ShowOpen(const FileDialogRequest& request) override;
    QString ShowSave(const FileDialogRequest& request) override;
    PrinterChoice ShowPrinter() override;

private:
    QString answeredTitle_;
    int answer_ = 0;
};

/// The link of the program on a real port, with settings of its own, as the program has it.
class BenchLink {
public:
    /// Goes online to the device at `baud`, 9600 or 19200. Raises std::runtime_error when that
    /// fails.
    BenchLink(const QString& device, int baud);
    ~BenchLink();

    /// Runs statements on the link, and raises std::runtime_error when it has failed since.
    void Check() const;

    BenchDialogs dialogs;
    SystemClock clock;
    NoBusyDisplay busy;
    QTemporaryDir directory;
    ApplicationFolder folder{directory.path()};
    SerialMSComm port{clock, folder};
    RSComm link{dialogs, clock, busy, folder};
};

} // namespace bench
