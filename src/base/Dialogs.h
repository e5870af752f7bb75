#pragma once

#include <QString>

/// Message box styles by number, as the texts of the system use them: icon plus buttons plus
/// default button.
namespace MsgStyle {
constexpr int Plain = 0;                    ///< OK, no icon
constexpr int Critical = 16;                ///< OK, critical icon
constexpr int CriticalRetryCancel = 21;     ///< Retry and Cancel, critical icon
constexpr int YesNoCancelQuestion = 35;     ///< Yes, No and Cancel, question mark
constexpr int YesNoQuestion = 36;           ///< Yes and No, question mark
constexpr int RetryCancelQuestion = 37;     ///< Retry and Cancel, question mark
constexpr int Exclamation = 48;             ///< OK, exclamation mark
constexpr int Information = 64;             ///< OK, information icon
constexpr int YesNoCancelInformation = 67;  ///< Yes, No and Cancel, information icon
constexpr int RetryCancelInformation = 69;  ///< Retry and Cancel, information icon
constexpr int YesNoExclamationSecond = 308; ///< Yes and No, exclamation mark, No is the default
} // namespace MsgStyle

/// Answers of a message box by number.
namespace MsgAnswer {
constexpr int Ok = 1;
constexpr int Cancel = 2;
constexpr int Retry = 4;
constexpr int Yes = 6;
constexpr int No = 7;
} // namespace MsgAnswer

/// What a file dialog is opened with.
struct FileDialogRequest {
    QString title;       ///< empty: the platform's own title
    QString fileName;    ///< name or full path that stands in the name field
    QString initDir;     ///< folder that is shown first
    QString filter;      ///< "Halden Files(*.hdn)|*.hdn|": label, bar, pattern, bar, ...
    int filterIndex = 1; ///< which pair of the filter is selected, counted from 1
    int flags = 0;       ///< the bit numbers of the dialog, kept for tests and hints
};

/// Bits of FileDialogRequest::flags that change what a dialog does.
namespace DialogFlag {
constexpr int OverwritePrompt = 0x2; ///< a save asks before it takes an existing file
constexpr int PathMustExist = 0x800;
constexpr int FileMustExist = 0x1000;
} // namespace DialogFlag

/// What the user chose in the print dialog.
struct PrinterChoice {
    QString printerName; ///< empty when the output goes to a file
    QString outputFile;  ///< path of the PDF, empty when the output goes to a printer
    int copies = 1;      ///< 1 or more
};

/// The seam through which every prompt goes. The real form shows windows; the form for tests
/// answers from a script, and a prompt that no test expected fails that test at once.
class Dialogs {
public:
    virtual ~Dialogs();

    /// Shows a message box and returns the answer (MsgAnswer). `style` is a MsgStyle number.
    /// Lines of `text` may be parted by CR LF or by CR alone.
    virtual int MsgBox(const QString& text, int style, const QString& title) = 0;
    /// Asks for a line of text; Cancel gives an empty text.
    virtual QString InputBox(const QString& prompt, const QString& title,
                             const QString& defaultText = QString()) = 0;
    /// Asks for a file to open and returns its full path. Raises 32755 on Cancel.
    virtual QString ShowOpen(const FileDialogRequest& request) = 0;
    /// Asks for a file to save to and returns its full path. Raises 32755 on Cancel.
    virtual QString ShowSave(const FileDialogRequest& request) = 0;
    /// Asks for a printer or a PDF file. Raises 32755 on Cancel.
    virtual PrinterChoice ShowPrinter() = 0;
};
