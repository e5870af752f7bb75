#include "results/VariableDoc.h"

#include "base/modUtility.h"
#include "base/NumberReader.h"
#include "base/RunTimeError.h"
#include "base/TextFile.h"

namespace {
constexpr qsizetype addressWidth = 4;
constexpr qsizetype longestFile = 16 * 1024 * 1024; // characters; no file comes near

/// Which addresses of a section are shown, and under which letter.
struct ShownRange {
    char letter;
    int first;
    int last;
    int elements; ///< the whole variable, and its bits where it has them
};
constexpr std::array<ShownRange, VariableDoc::sections> shownRanges{
    {{'F', 0, 991, 1}, {'B', 32, 8175, 9}, {'X', 0, 151, 9}, {'Y', 0, 151, 9}, {'I', 0, 151, 9}}};

// Takes the lines of one file in their order.
class DocFileReading {
public:
    DocFileReading(std::array<NameTable, VariableDoc::sections>& tables, NameKind kind)
        : tables_(tables), kind_(kind) {}

    bool Ended() const { return section_ == VariableDoc::sections; }
    int Entries() const { return entries_; }

    void TakeLine(const QString& line) {
        if (line.isEmpty())
            throw RunTimeError(ErrorNumber::InvalidProcedureCall);
        switch (line.front().unicode()) {
        case u'&':
            ++section_;
            [[fallthrough]];
        case u'#':
            bitMode_ = false;
            return;
        case u'/':
            bitMode_ = true;
            return;
        default:
            TakeEntry(line);
        }
    }

private:
    void TakeEntry(const QString& line) {
        ++entries_;
        if (bitMode_) {
            const auto bit = static_cast<int>(WholeNumberValue(line.left(1)));
            Table().Store(kind_, address_, bit + 1, line.mid(1));
        } else {
            address_ = WholeNumberValue(line.left(addressWidth));
            Table().Store(kind_, address_, 0, line.mid(addressWidth));
        }
    }

    NameTable& Table() { return tables_.at(static_cast<std::size_t>(section_)); }

    std::array<NameTable, VariableDoc::sections>& tables_;
    NameKind kind_;
    int section_ = 0;
    int entries_ = 0;
    bool bitMode_ = false;
    qint64 address_ = 0;
};

QString VariableText(char letter, qint64 number, int element) {
    const QString variable = QChar::fromLatin1(letter) + PadNumber(static_cast<qint16>(number), 4);
    return element == 0 ? variable : variable + u'.' + QString::number(element - 1);
}
} // namespace

int VariableDoc::Read(const QString& path, NameKind kind) {
    TextReader reader(path);
    DocFileReading reading(tables_, kind);
    qsizetype characters = 0;
    while (!reading.Ended() && !reader.AtEnd()) {
        const QString line = reader.LineInput();
        characters += line.size() + 1;
        if (characters > longestFile)
            throw RunTimeError(ErrorNumber::OutOfMemory);
        reading.TakeLine(line);
    }
    return reading.Entries();
}

void VariableDoc::AddRows(int section, qint64 number, std::vector<Row>& rows) const {
    const ShownRange& range = shownRanges.at(static_cast<std::size_t>(section));
    const NameTable& table = tables_.at(static_cast<std::size_t>(section));
    for (int element = 0; element < range.elements; ++element) {
        Row row{QString(), table.Entry(NameKind::NicName, number, element),
                table.Entry(NameKind::Description, number, element)};
        if (row.nicName.trimmed().isEmpty() && row.description.trimmed().isEmpty())
            continue;
        row.variable = VariableText(range.letter, number, element);
        rows.push_back(std::move(row));
    }
}

std::vector<VariableDoc::Row> VariableDoc::Rows() const {
    std::vector<Row> rows;
    for (int section = 0; section < sections; ++section) {
        const ShownRange& range = shownRanges.at(static_cast<std::size_t>(section));
        for (qint64 number = range.first; number <= range.last; ++number)
            AddRows(section, number, rows);
    }
    return rows;
}
