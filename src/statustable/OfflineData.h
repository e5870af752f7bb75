#pragma once

#include <cstdint>
#include <QString>
#include <vector>

class RunTimeError;

/// The board bytes of a program set's data file, by board address.
class OfflineData {
public:
    /// Board addresses 0 to 8192, the reach of the largest data file.
    static constexpr int size = 8193;

    /// The byte at a board address; 0 where the data has none.
    int ByteAt(qint64 address) const;
    /// Takes the pairs of hexadecimal digits of `text` from the address `first` on. Pairs beyond
    /// the last address are dropped, and so is a last digit without its partner; bytes that the
    /// text does not reach are 0.
    void Fill(const QString& text, int first);

private:
    std::vector<std::uint8_t> bytes_;
};

/// How an attempt to read a data file ended.
enum class OfflineDataState { Missing, Empty, Loaded };

/// Reads the .ldt file at `path`. A file of board 50 or 68 starts with the byte at address 0, of
/// any other board with that at address 70. Raises as TextReader.
OfflineDataState ReadOfflineData(const QString& path, qint16 board, OfflineData& data);

/// What the user is told when the data file fails: the report of the error, and for a file that
/// went away meanwhile (53) that it cannot be opened.
QString OfflineDataFailureText(const RunTimeError& error);
