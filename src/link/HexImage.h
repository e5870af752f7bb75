#pragma once

#include <cstdint>
#include <QByteArray>
#include <QString>
#include <vector>

/// One line of a .HEX file, as a dump takes it.
struct HexLine {
    enum class Kind {
        Record,    ///< goes to the board
        Empty,     ///< a record without data, such as the end record: nothing goes out
        NoRecord,  ///< does not begin with ":"; the dump halts when it comes to it
        Unsendable ///< begins with ":", but cannot go over the line whole
    };
    Kind kind = Kind::NoRecord;
    QString address; ///< the four digits of a Record as they stand in the file
    QByteArray wire; ///< of a Record: count, address high, address low, data bytes
};

/// Reads one line. The record type and the check byte are not looked at, nor is anything behind
/// the data. Unsendable is a line with characters that are no hexadecimal digits where the count,
/// the address or the data should stand, one that ends before its data do, and a count of 255:
/// its byte 0xFF would end program mode.
HexLine ParseHexLine(const QString& line);

/// What the board answers to a record: the sum of all its bytes, modulo 256.
std::uint8_t RecordSum(const QByteArray& wire);

/// A compiled program image, read and checked as a whole before any of it is sent.
class HexImage {
public:
    /// Reads a .HEX file, one record a line. Raises as TextReader. A file of more than 4 million
    /// characters is far beyond what any board holds: it is not read to its end and counts as
    /// unsendable.
    explicit HexImage(const QString& path);

    /// True for a file without a single character.
    bool IsEmpty() const { return empty_; }
    /// False if a line is Unsendable: a machine must not be stopped for such a file.
    bool IsSendable() const { return sendable_; }
    /// All lines in the order of the file.
    const std::vector<HexLine>& Lines() const { return lines_; }

private:
    bool empty_ = true;
    bool sendable_ = true;
    std::vector<HexLine> lines_;
};

/// A line of an uploaded image: ":10", the address in four upper-case digits, "00" and the data
/// bytes. It carries no check byte, as nobody reads one.
QString HexDataLine(qint32 address, const QByteArray& sixteenBytes);

/// The line that ends every image.
inline const QString hexEndLine = QStringLiteral(":00000001FF");
