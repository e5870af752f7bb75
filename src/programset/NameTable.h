#pragma once

#include <QString>
#include <vector>

/// Which of the two texts of a variable is meant, and their files: .nam and .doc of a program set.
enum class NameKind { NicName = 0, Description = 1 };

/// Names of one range of variables: two kinds, numbers from 0, and for each number the whole
/// variable and, in tables with bits, its bits 0 to 7.
class NameTable {
public:
    enum class Bits { None, Eight };

    /// Numbers run from 0 to `highest`.
    NameTable(int highest, Bits bits);
    /// Empties all texts.
    void Clear();
    /// `bitIndex` is 0 for the whole variable, bit + 1 for a bit; a table without bits does not
    /// look at it. Raises SubscriptOutOfRange (9) outside the table.
    void Store(NameKind kind, qint64 number, int bitIndex, const QString& text);
    /// The text; empty outside the table.
    QString Entry(NameKind kind, qint64 number, int bitIndex) const;

private:
    // Place in the array, or -1 outside the table.
    qint64 PlaceOf(NameKind kind, qint64 number, int bitIndex) const;

    int highest_;
    int perNumber_;
    std::vector<QString> texts_;
};
