#include "statustable/OfflineData.h"

#include "base/FileSystem.h"
#include "base/NumberReader.h"
#include "base/RunTimeError.h"
#include "base/TextFile.h"
#include "jobs/DataImage.h"
#include "link/MarkHex.h"

int OfflineData::ByteAt(qint64 address) const {
    return address >= 0 && address < static_cast<qint64>(bytes_.size()) ? bytes_[address] : 0;
}

void OfflineData::Fill(const QString& text, int first) {
    bytes_.assign(size, 0);
    const QStringView pairs(text);
    int address = first;
    for (qsizetype at = 0; at + 1 < pairs.size() && address < size; at += 2, ++address)
        bytes_[address] = static_cast<std::uint8_t>(HexNumberValue(pairs.mid(at, 2)));
}

OfflineDataState ReadOfflineData(const QString& path, qint16 board, OfflineData& data) {
    if (!FileSystem().FileExists(path))
        return OfflineDataState::Missing;
    TextReader reader(path);
    if (reader.AtEnd())
        return OfflineDataState::Empty;
    QString text = reader.InputItem();
    data.Fill(MarkHex2HEX(text), DataImageOf(board).file.first);
    return OfflineDataState::Loaded;
}

QString OfflineDataFailureText(const RunTimeError& error) {
    const QString text = ErrorReportText(error);
    return error.Number() == ErrorNumber::FileNotFound
               ? text + QStringLiteral("\r\nUnable to Open Data File.")
               : text;
}
