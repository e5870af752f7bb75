#include "tour/DataTransferTour.h"

#include "shell/frmMDIMain.h"
#include "tour/BoardProcess.h"
#include "tour/Hand.h"
#include "tour/TourGuide.h"
#include "tour/TourSetting.h"
#include <memory>
#include <QAction>
#include <QFile>
#include <QRegularExpression>

namespace {
constexpr int first = 520;          // addresses of the range
constexpr int count = 240;          // bytes of it
constexpr int imageBytes = 8176;    // addresses 0 to 8175 stand in the file
constexpr int cancelAfter = 40;     // addresses
constexpr int mostAfterCancel = 60; // addresses that may pass between a look at the view and Cancel

int ByteAt(int place) {
    return place + 1;
}

// The command that gives the range its bytes, or zeros.
QString SetCommand(bool zeros) {
    QString command = QStringLiteral("set %1").arg(first);
    for (int place = 0; place < count; ++place)
        command += u' ' + QString::number(zeros ? 0 : ByteAt(place));
    return command;
}

QString MarkHexDigit(int digit) {
    return QChar(u'0' + digit);
}

QString WantedFile() {
    QString line;
    for (int address = 0; address < imageBytes; ++address) {
        const int place = address - first;
        const int byte = place >= 0 && place < count ? ByteAt(place) : 0;
        line += MarkHexDigit(byte / 16) + MarkHexDigit(byte % 16);
    }
    return line + QStringLiteral("\r\n");
}

QString FileVerdict(const QString& path) {
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly))
        return QStringLiteral("no file");
    const QString text = QString::fromLatin1(file.readAll());
    return text == WantedFile() ? QStringLiteral("as it should be")
                                : QStringLiteral("%1 characters, others").arg(text.size());
}

// How many bytes of the range the board has from its beginning; -1 if anything behind them, or in
// between, is neither the byte of the file nor the zero it was.
int DownloadedBytes(BoardProcess& board) {
    const QString answer = board.Command(QStringLiteral("show %1 %2").arg(first).arg(count));
    const QStringList bytes = answer.section(QStringLiteral(": "), 1).split(u' ');
    if (bytes.size() != count)
        return -1;
    int reached = 0;
    while (reached < count && bytes[reached].toInt() == ByteAt(reached))
        ++reached;
    for (int place = reached; place < count; ++place)
        if (bytes[place] != QLatin1String("0"))
            return -1;
    return reached;
}

// How many addresses the busy view tells of as written; 0 before the first.
int ShownBytes() {
    static const QRegularExpression text(QStringLiteral("^Downloading  \\d+ to B(\\d+)$"));
    const QRegularExpressionMatch match = text.match(Hand::BusyText());
    return match.hasMatch() ? match.captured(1).toInt() - first + 1 : 0;
}

QString CancelVerdict(BoardProcess& board, int shown) {
    const int reached = DownloadedBytes(board);
    const bool asShown = reached >= shown && reached <= shown + mostAfterCancel && reached < count;
    return asShown ? QStringLiteral("changed up to the cancelled address")
                   : QStringLiteral("%1 bytes for %2 shown").arg(reached).arg(shown);
}

void Always(TourGuide& guide, const QString& what, std::function<void()> act) {
    guide.Stop(
        what, [] { return true; }, std::move(act));
}

// The dialog with the range: says what it is for, takes the range, and goes with OK.
void AddRange(TourGuide& guide, const QString& caption, const QString& picture) {
    guide.Expect(QStringLiteral("the dialog's caption"), &Hand::ModalTitle, caption);
    Always(guide, QStringLiteral("choose Range, type 520 and 759"), [] {
        Hand::ClickInModal(QStringLiteral("optRange(1)"));
        Hand::TypeOver(QStringLiteral("txtRange(0)"), QString::number(first));
        Hand::TypeOver(QStringLiteral("txtRange(1)"), QString::number(first + count - 1));
    });
    if (!picture.isEmpty())
        guide.Picture(picture);
    Always(guide, QStringLiteral("press OK"), [] { Hand::ClickInModal(QStringLiteral("cmdOk")); });
}

void AddUpload(TourGuide& guide, frmMDIMain& window, BoardProcess& board, const QString& dataFile) {
    Always(guide, QStringLiteral("stop the machine, press the upload button"), [&window, &board] {
        board.Command(QStringLiteral("demo off"));
        board.Command(SetCommand(false));
        Hand::PressButton(window, "Upload");
    });
    guide.AnswerBox(QStringLiteral("Data Upload [PUMP1]"), QStringLiteral("Yes"),
                    QStringLiteral("upload-question"));
    AddRange(guide, QStringLiteral("Target Board Data Upload - [PUMP1.hdn]"),
             QStringLiteral("upload-range"));
    guide.Stop(
        QStringLiteral("the busy view counts"),
        [] { return Hand::BusyText().startsWith(QLatin1String("Uploaded  ")); }, [] {});
    guide.Picture(QStringLiteral("upload"));
    guide.Stop(
        QStringLiteral("the busy view has gone"), &Hand::NothingModal, [] {}, 30.0);
    guide.Expect(
        QStringLiteral("the data file"), [dataFile] { return FileVerdict(dataFile); },
        QStringLiteral("as it should be"));
}

void AddCancelledDownload(TourGuide& guide, frmMDIMain& window, BoardProcess& board) {
    const auto shown = std::make_shared<int>(0);
    Always(guide, QStringLiteral("clear the board's bytes, press the download button"),
           [&window, &board] {
               board.Command(SetCommand(true));
               Hand::PressButton(window, "Download");
           });
    guide.AnswerBox(QStringLiteral("Data Download [PUMP1]"), QStringLiteral("Yes"),
                    QStringLiteral("download-question"));
    AddRange(guide, QStringLiteral("Target Board Data Download - [PUMP1.hdn]"), {});
    guide.Stop(
        QStringLiteral("the busy view is past the first addresses"),
        [] { return ShownBytes() > cancelAfter; }, [] {});
    guide.Picture(QStringLiteral("download"));
    Always(guide, QStringLiteral("press Cancel"), [shown] {
        *shown = ShownBytes();
        Hand::ClickInModal(QStringLiteral("cmdCancel"));
    });
    guide.Stop(QStringLiteral("the busy view has gone"), &Hand::NothingModal, [] {});
    guide.Expect(
        QStringLiteral("the board's memory"),
        [&board, shown] { return CancelVerdict(board, *shown); },
        QStringLiteral("changed up to the cancelled address"));
}

// 100, 2500 and 7 as words, low byte first.
void AddDatafile(TourGuide& guide, frmMDIMain& window, BoardProcess& board, const QString& file) {
    Always(guide, QStringLiteral("choose Download Datafile"), [&window] {
        window.Commands().Action(QStringLiteral("mnuFileDownloadFile"))->trigger();
    });
    guide.Stop(
        QStringLiteral("choose LIMITS.txt"),
        [] { return Hand::Modal() && Hand::Modal()->inherits("QFileDialog"); },
        [file] { Hand::ChooseFile(file); });
    guide.Expect(QStringLiteral("the input box"), &Hand::ModalTitle,
                 QStringLiteral("Datafile Download"));
    guide.Picture(QStringLiteral("datafile-start"));
    Always(guide, QStringLiteral("type W100 and Return"),
           [] { Hand::TypeOver(QString(), QStringLiteral("w100")); });
    guide.Stop(QStringLiteral("the busy view has gone"), &Hand::NothingModal, [] {});
    guide.Expect(
        QStringLiteral("the board's words from W100 on"),
        [&board] { return board.Command(QStringLiteral("show 100 6")); },
        QStringLiteral("100: 100 0 196 9 7 0"));
}
} // namespace

void AddDataTransfers(TourGuide& guide, frmMDIMain& window, BoardProcess& board,
                      const TourSetting& setting) {
    AddUpload(guide, window, board, setting.Sample(QStringLiteral("PUMP1.ldt")));
    AddCancelledDownload(guide, window, board);
    AddDatafile(guide, window, board, setting.Sample(QStringLiteral("LIMITS.txt")));
}
