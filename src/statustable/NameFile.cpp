#include "base/NumberReader.h"
#include "base/TextFile.h"
#include "statustable/NameTables.h"

namespace {
// The sections of a name file in their order.
enum class Section { Flags, Memory, Inputs, OutputsAndImage, Dropped };

Section After(Section section) {
    return section == Section::Dropped ? section
                                       : static_cast<Section>(static_cast<int>(section) + 1);
}

// Takes the lines of one name file in their order.
class NameFileReading {
public:
    NameFileReading(NameTables& tables, NameKind kind, int numberWidth)
        : tables_(tables), kind_(kind), numberWidth_(numberWidth) {}

    void TakeLine(const QString& line) {
        if (line.size() == 1)
            TakeControl(line.front());
        else if (line.size() > 1)
            TakeEntry(line);
    }

private:
    void TakeControl(QChar control) {
        if (control == u'&')
            section_ = After(section_);
        if (control == u'&' || control == u'#')
            bitMode_ = false;
        if (control == u'/')
            bitMode_ = true;
    }

    // In bit mode the number stays that of the last entry outside it, of an earlier section too.
    void TakeEntry(const QString& line) {
        if (bitMode_) {
            const auto bit = static_cast<int>(WholeNumberValue(line.left(1)));
            Store(bit + 1, line.mid(1));
        } else {
            number_ = WholeNumberValue(line.left(numberWidth_));
            Store(0, line.mid(numberWidth_));
        }
    }

    void Store(int bitIndex, const QString& text) {
        switch (section_) {
        case Section::Flags:
            return tables_.gNicFlags.Store(kind_, number_, bitIndex, text);
        case Section::Memory:
            return tables_.gNicMemory.Store(kind_, number_, bitIndex, text);
        case Section::Inputs:
            return tables_.gNicInputs.Store(kind_, number_, bitIndex, text);
        case Section::OutputsAndImage:
            tables_.gNicOutputs.Store(kind_, number_, bitIndex, text);
            return tables_.gNicImage.Store(kind_, number_, bitIndex, text);
        case Section::Dropped:
            return;
        }
    }

    NameTables& tables_;
    NameKind kind_;
    int numberWidth_;
    Section section_ = Section::Flags;
    bool bitMode_ = false;
    qint64 number_ = 0;
};
} // namespace

void ReadNameFile(const QString& path, NameKind kind, int numberWidth, NameTables& tables) {
    TextReader reader(path);
    NameFileReading reading(tables, kind, numberWidth);
    while (!reader.AtEnd())
        reading.TakeLine(reader.InputItem());
}
