#pragma once

#include <functional>
#include <QString>

class BackgroundTimer;
class CommMode;
class Dialogs;
class ProgramCommands;
class RSComm;
struct ModalViews;

/// The command of the data menu entries and toolbar buttons: moves the data of a program set's
/// board to or from its .LDT file.
class DataTransferCommand {
public:
    static constexpr qint16 download = 1; ///< file to board
    static constexpr qint16 upload = 2;   ///< board to file

    /// `plsRoute` is what a limit switch board is sent to, for either direction: its upload. All
    /// must outlive the object.
    DataTransferCommand(ProgramCommands& programs, RSComm& link, CommMode& mode, Dialogs& dialogs,
                        BackgroundTimer& timer, const ModalViews& views,
                        std::function<void()> plsRoute);

    /// Selects the set unless `BypassOpen`, asks, goes online and shows frmDataXfr. `Action` is
    /// `download` or `upload`. The background update stands still meanwhile and runs at the end,
    /// however it ends. Errors are shown, titled "TransferData".
    void StartDataTransfer(qint16 Action, bool BypassOpen);

private:
    void TransferSelected(qint16 Action);
    void AskAndTransfer(qint16 Action, qint16 board);

    ProgramCommands& programs_;
    RSComm& link_;
    CommMode& mode_;
    Dialogs& dialogs_;
    BackgroundTimer& timer_;
    const ModalViews& views_;
    std::function<void()> plsRoute_;
};

/// Title and text of the question before a data transfer of a set.
struct TransferQuestion {
    QString title; ///< "Data Upload [PUMP]"
    QString text;  ///< lines parted by CR LF
};
/// The question for an `Action` of DataTransferCommand, the .hdn file and the index of its board.
TransferQuestion DataTransferQuestion(qint16 Action, const QString& setPath, qint16 board);
