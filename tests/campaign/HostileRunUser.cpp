#include "campaign/HostileRun.h"

#include "jobs/DataTransfer.h"
#include "session/Globals.h"
#include <array>

// What the user of a run does, and what it asks the board's memory to become.

namespace {
constexpr int k2014 = 51;
constexpr int identAddress = 0xEFF0;
constexpr int identLength = 10;
constexpr int dumpRequestAddress = 8181;
constexpr int faultCodeAddress = 8176;
constexpr int lowestVariable = 32;
constexpr int highestVariable = 8170;

bool IsWholeHex(const QByteArray& text) {
    return text.startsWith(':') && text.endsWith(":00000001FF\r\n");
}

bool IsOneLine(const QByteArray& text) {
    return text.endsWith("\r\n") && text.count('\n') == 1;
}

QByteArray Hex(int value, int digits) {
    return QByteArray::number(value, 16).toUpper().rightJustified(digits, '0');
}
} // namespace

void HostileRun::DoSomething() {
    using Deed = void (HostileRun::*)();
    constexpr std::array<Deed, 12> deeds{
        &HostileRun::ReadVariable,     &HostileRun::ReadVariable,  &HostileRun::WriteVariable,
        &HostileRun::WriteVariable,    &HostileRun::WriteVariable, &HostileRun::WriteVariable,
        &HostileRun::AskBoard,         &HostileRun::DumpProgram,   &HostileRun::DownloadData,
        &HostileRun::DownloadDatafile, &HostileRun::UploadData,    &HostileRun::UploadProgram};
    const bool rare = Chance(0.9); // an upload of a program takes as long as a hundred others
    const int most = int(deeds.size()) - (rare ? 2 : 1);
    (this->*deeds.at(static_cast<std::size_t>(Number(0, most))))();
}

void HostileRun::ReopenAfterFailure() {
    if (link_.OnlineMode() && !link_.CommError())
        return;
    story_ += QStringLiteral("go online");
    link_.SetCommError(false);
    link_.OpenRSComm(port_);
}

void HostileRun::ReadVariable() {
    for (int reads = Number(1, 20); reads > 0; --reads) {
        const QChar width = QStringLiteral("BWDF").at(Number(0, 3));
        const int address =
            width == u'F' ? Number(0, 255) : Number(lowestVariable, highestVariable);
        story_ += QStringLiteral("read %1%2").arg(width).arg(address);
        link_.RSRead(width + QString::number(address));
    }
}

void HostileRun::WriteVariable() {
    for (int writes = Number(1, 10); writes > 0; --writes) {
        const int address = Number(lowestVariable, highestVariable);
        const int kind = Number(0, 3);
        const qint64 value = kind == 0   ? Number(0, 255)
                             : kind == 1 ? Number(0, 65535)
                                         : Number(0, 1);
        story_ += QStringLiteral("write %1 kind %2 value %3").arg(address).arg(kind).arg(value);
        if (kind == 0) {
            Want(address, int(value));
            link_.RSWrite(QStringLiteral("B%1").arg(address), QString::number(value));
        } else if (kind == 1) {
            Want(address, int(value % 256));
            Want(address + 1, int(value / 256));
            link_.RSWrite(QStringLiteral("W%1").arg(address), QString::number(value));
        } else if (kind == 2) {
            WantPart(address);
            link_.RSWrite(QStringLiteral("B%1.%2").arg(address).arg(Number(0, 7)),
                          QString::number(value));
        } else {
            const int low = Number(0, 9999);
            const int high = Number(0, 65535);
            Want(address, low % 256);
            Want(address + 1, low / 256);
            Want(address + 2, high % 256);
            Want(address + 3, high / 256);
            link_.RSWrite(QStringLiteral("D%1").arg(address),
                          QString::number(qint64(high) * 10000 + low));
        }
    }
}

void HostileRun::AskBoard() {
    story_ += QStringLiteral("fault code, revision, offset");
    link_.FaultCode();
    link_.FirmwareRev();
    if (Chance(0.3))
        link_.PLSOffset();
    if (Chance(0.3)) {
        story_ += QStringLiteral("close");
        link_.CloseRSComm();
    }
}

void HostileRun::DumpProgram() {
    std::map<int, int> image;
    QByteArray hex;
    const int start = Number(0x2000, 0x3000);
    for (int record = Number(0, 12), address = start; record > 0; --record) {
        const int count = Number(1, 16);
        QByteArray line = Hex(count, 2) + Hex(address, 4) + "00";
        for (int i = 0; i < count; ++i) {
            image[address] = Number(0, 255);
            line += Hex(image[address++], 2);
        }
        hex += ':' + line + "00\r\n";
    }
    Write(QStringLiteral("A.rev"), "PUMP1:301\r\n");
    Write(QStringLiteral("A.hex"), hex + ":00000001FF\r\n");
    Write(QStringLiteral("A.hdn"), QByteArray(1, k2014) + "\r\n");
    for (const auto& [address, value] : image)
        Want(address, value);
    for (int i = 0; i < identLength; ++i)
        WantPart(identAddress + i);
    WantPart(dumpRequestAddress);
    WantPart(faultCodeAddress);
    story_ += QStringLiteral("dump of %1 bytes").arg(image.size());
    const std::size_t boxes = user_.Boxes().size();
    link_.DownloadFile(Path(QStringLiteral("A.hdn")));
    link_.DumpProgram();
    CheckDumpComplete(image, boxes);
    CheckFileIsWhole(QStringLiteral("A.hex"), hex + ":00000001FF\r\n", [](auto&) { return false; });
}

void HostileRun::CheckDumpComplete(const std::map<int, int>& image, std::size_t boxesBefore) {
    bool complete = false;
    for (std::size_t i = boxesBefore; i < user_.Boxes().size(); ++i)
        complete = complete ||
                   user_.Boxes()[i].text.contains(QStringLiteral("Program Download Complete!"));
    for (const auto& [address, value] : image)
        if (complete && board_.Peek(static_cast<std::uint16_t>(address)) != value) {
            Fail(QStringLiteral("complete, but %1 is not what was sent").arg(address));
            return;
        }
}

void HostileRun::UploadProgram() {
    story_ += QStringLiteral("upload");
    Write(QStringLiteral("UP.hdn"), QByteArray(1, k2014 + 1) + "\r\n");
    const QByteArray rev = Read(QStringLiteral("UP.rev"));
    const QByteArray hex = Read(QStringLiteral("UP.hex"));
    link_.UploadFile(Path(QStringLiteral("UP.hdn")));
    link_.SetInUploadMode(true);
    link_.UploadProgram();
    CheckFileIsWhole(QStringLiteral("UP.rev"), rev, IsOneLine);
    CheckFileIsWhole(QStringLiteral("UP.hex"), hex, IsWholeHex);
}

void HostileRun::DownloadData() {
    gXferMode = XferMode::Download;
    gXferBoard = k2014;
    gXferFile = Path(QStringLiteral("A.ldt"));
    gXferFrom = static_cast<qint16>(Number(70, 100));
    gXferTo = static_cast<qint16>(gXferFrom + Number(0, 60));
    story_ += QStringLiteral("data to %1 to %2").arg(gXferFrom).arg(gXferTo);
    QByteArray line;
    for (int address = gXferFrom; address <= gXferTo; ++address) {
        const int value = Number(0, 255);
        Want(address, value);
        line += static_cast<char>('0' + value / 16);
        line += static_cast<char>('0' + value % 16);
    }
    Write(QStringLiteral("A.ldt"), line + "\r\n");
    RandomProgress progress(random_);
    DataTransfer(link_, user_, files_).TransferData(progress);
    CheckFileIsWhole(QStringLiteral("A.ldt"), line + "\r\n", [](auto&) { return false; });
}

void HostileRun::UploadData() {
    gXferMode = XferMode::Upload;
    gXferBoard = k2014;
    gXferFile = Path(QStringLiteral("UP.ldt"));
    gXferFrom = static_cast<qint16>(Number(70, 100));
    gXferTo = static_cast<qint16>(gXferFrom + Number(0, 100));
    story_ += QStringLiteral("data from %1 to %2").arg(gXferFrom).arg(gXferTo);
    const QByteArray before = Read(QStringLiteral("UP.ldt"));
    RandomProgress progress(random_);
    DataTransfer(link_, user_, files_).TransferData(progress);
    CheckFileIsWhole(QStringLiteral("UP.ldt"), before, IsOneLine);
}

void HostileRun::DownloadDatafile() {
    gXferMode = XferMode::Datafile;
    gXferBoard = 0;
    gXferFile = Path(QStringLiteral("values.txt"));
    gXferFrom = 0;
    const int items = Number(1, 30);
    gXferTo = static_cast<qint16>(items);
    const int start = Number(100, 4000);
    story_ += QStringLiteral("%1 words to %2").arg(items).arg(start);
    QByteArray lines;
    for (int item = 0; item < items; ++item) {
        const int value = Number(0, 65535);
        Want(start + 2 * item, value % 256);
        Want(start + 2 * item + 1, value / 256);
        lines += QByteArray::number(value) + "\r\n";
    }
    Write(QStringLiteral("values.txt"), lines);
    RandomProgress progress(random_);
    DataTransfer transfer(link_, user_, files_);
    transfer.SetupFileDownload(QStringLiteral("W%1").arg(start));
    transfer.TransferData(progress);
}
