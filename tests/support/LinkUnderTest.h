#pragma once

#include "base/ApplicationFolder.h"
#include "link/RSComm.h"
#include "support/PrintText.h"
#include "support/ScriptedDialogs.h"
#include "support/ScriptedPort.h"
#include "support/VirtualClock.h"
#include <initializer_list>
#include <QTemporaryDir>
#include <vector>

/// A busy display that keeps what it was told.
class RecordedBusyDisplay final : public BusyDisplay {
public:
    void StillWaiting(double seconds) override { waits.push_back(seconds); }
    void WaitEnded() override { ++ends; }

    std::vector<double> waits; ///< seconds of each call, in order
    int ends = 0;
};

/// A link with everything around it: a scripted port, scripted dialogs, virtual time and an
/// application folder of its own, which is empty at first.
class LinkUnderTest {
public:
    LinkUnderTest();

    /// Opens the port and answers the attention; the bytes of that are forgotten again.
    void GoOnline();
    /// Scripts the handshake of a link mode: attention and mode byte acknowledged.
    void AcceptHandshake();
    /// Scripts the read of one byte in read mode: echo of the high address byte, then the data.
    void AnswerRead(int highAddress, int data);
    /// Scripts the echoes of one byte written in write mode.
    void AnswerWrite(int highAddress, int lowAddress, int data);
    /// Puts the link into read mode by reading byte 40; the bytes of that are forgotten again.
    void EnterReadMode();
    /// Writes a file below the application folder, its folder included.
    void WriteFile(const QString& relative, const QByteArray& bytes) const;
    /// The whole content of a file below the application folder.
    QByteArray FileContent(const QString& relative) const;
    /// The next box is one of the link's two Retry and Cancel alerts.
    void ExpectAlert(const QString& text, int answer, std::function<void()> meanwhile = {});

    QTemporaryDir directory;
    ApplicationFolder folder;
    VirtualClock clock;
    RecordedBusyDisplay busy;
    ScriptedDialogs dialogs;
    ScriptedPort port;
    RSComm link;
};

/// Texts of the link's alerts.
QString NoReplyAlert();
QString NoModeAlert();
