#include "jobs/DataTransfer.h"

#include "base/Dialogs.h"
#include "base/FileSystem.h"
#include "base/NumberReader.h"
#include "base/RunTimeError.h"
#include "base/TextFile.h"
#include "jobs/DataFile.h"
#include "jobs/DatafileStart.h"
#include "jobs/DataImage.h"
#include "jobs/JobProgress.h"
#include "jobs/TransferTexts.h"
#include "link/MarkHex.h"
#include "link/RSComm.h"
#include "session/Globals.h"
#include <array>
#include <utility>

namespace {
// Values by address for a download. Without a pair a byte is 0, with text that is no hexadecimal
// number as well.
class DownloadBytes {
public:
    static constexpr int count = 8192;

    DownloadBytes(const QStringList& pairs, qint32 first) {
        for (qsizetype i = 0; i < pairs.size() && first + i < count; ++i)
            bytes_.at(Checked(first + i)) = static_cast<int>(HexNumberValue(pairs[i]));
    }

    int At(qint32 address) const { return bytes_.at(Checked(address)); }

private:
    static std::size_t Checked(qint64 index) {
        if (index < 0 || index >= count)
            throw RunTimeError(ErrorNumber::SubscriptOutOfRange);
        return static_cast<std::size_t>(index);
    }

    std::array<int, count> bytes_{};
};

QString ByteVariable(qint32 address) {
    return u'B' + QString::number(address);
}
} // namespace

// What every address begins and ends with.
class DataTransfer::Steps {
public:
    Steps(const RSComm& link, JobProgress& progress) : link_(link), progress_(progress) {
        progress_.SetRange(0, gXferTo + 1);
        progress_.SetValue(value_);
    }

    bool GoOn() {
        progress_.Yield();
        return !progress_.Cancelled() && !link_.CommError();
    }
    void Show(const QString& message) { progress_.ShowMessage(message); }
    void Advance() { progress_.SetValue(++value_); }

private:
    const RSComm& link_;
    JobProgress& progress_;
    qint32 value_ = gXferFrom;
};

DataTransfer::DataTransfer(RSComm& link, Dialogs& dialogs, const FileSystem& files)
    : link_(link), dialogs_(dialogs), files_(files) {}

void DataTransfer::SetupFileDownload(const QString& StartingAdd) {
    startingAdd_ = StartingAdd;
}

void DataTransfer::TransferData(JobProgress& progress) {
    const QString startingAdd = std::exchange(startingAdd_, QString());
    try {
        Steps steps(link_, progress);
        if (gXferMode == XferMode::Download)
            Download(steps);
        else if (gXferMode == XferMode::Upload)
            Upload(steps);
        else if (gXferMode == XferMode::Datafile)
            DownloadDatafile(steps, startingAdd);
    } catch (const RunTimeError& error) {
        ShowErrorBox(dialogs_, error, QStringLiteral("TransferData"), MsgStyle::Information);
    }
}

void DataTransfer::Download(Steps& steps) const {
    const DataImage& image = DataImageOf(gXferBoard);
    const DownloadBytes bytes(ReadDataPairs(files_, gXferFile, DownloadBytes::count),
                              image.pairsByAddress ? image.file.first : gXferFrom);
    for (qint32 address = gXferFrom; address <= gXferTo; ++address) {
        if (!steps.GoOn())
            return;
        if (!image.skipped.Contains(address)) {
            const QString value = NumberText(bytes.At(address));
            steps.Show(DownloadingText(value, u'B', address));
            link_.RSWrite(ByteVariable(address), value);
        }
        steps.Advance();
    }
}

// The line is written whatever ended the loop: what was read is worth keeping.
void DataTransfer::Upload(Steps& steps) const {
    const DataImage& image = DataImageOf(gXferBoard);
    const AddressRange wanted{gXferFrom, gXferTo};
    const QStringList kept = ReadDataPairs(files_, gXferFile, image.file.Count());
    QStringList pairs;
    for (qint32 address = image.file.first; address <= image.file.last; ++address) {
        if (!steps.GoOn())
            break;
        if (!wanted.Contains(address))
            pairs.append(kept.value(address - image.file.first, QStringLiteral("00")));
        else if (!AppendUploaded(pairs, address, steps))
            break;
    }
    WriteDataPairs(gXferFile, pairs);
}

// A read that failed gives 0: that is no value of the board, so it does not go into the file.
bool DataTransfer::AppendUploaded(QStringList& pairs, qint32 address, Steps& steps) const {
    const int value = static_cast<int>(WholeNumberValue(link_.RSRead(ByteVariable(address))));
    if (link_.CommError())
        return false;
    steps.Show(UploadedText(NumberText(value), address));
    pairs.append(TwoHexDigits(value));
    steps.Advance();
    return true;
}

void DataTransfer::DownloadDatafile(Steps& steps, const QString& startingAdd) const {
    if (!files_.FileExists(gXferFile))
        return;
    const DatafileStartReading reading = ReadDatafileStart(startingAdd);
    if (!reading.start)
        dialogs_.MsgBox(reading.refusal, MsgStyle::Information,
                        QStringLiteral("Download Datafile"));
    else
        SendItems(steps, *reading.start);
}

void DataTransfer::SendItems(Steps& steps, const DatafileStart& start) const {
    TextReader reader(gXferFile);
    qint16 address = start.address;
    while (!reader.AtEnd() && steps.GoOn()) {
        const QString value = NumberText(NumberValue(reader.InputItem()));
        steps.Show(DownloadingText(value, start.width, address));
        link_.RSWrite(start.width + QString::number(address), value);
        address = ToInteger16(address + start.step);
        steps.Advance();
    }
}
