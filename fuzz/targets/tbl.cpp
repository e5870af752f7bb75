#include "FuzzFile.h"
#include "link/ParsedAddress.h"
#include "link/VariableAddress.h"
#include "statustable/AddressEntry.h"
#include "statustable/CellTexts.h"
#include "statustable/NameTables.h"
#include "statustable/OfflineData.h"
#include "statustable/TableAddress.h"
#include "statustable/TableBoards.h"
#include "statustable/TableFile.h"

// The status table's .tbl file, and all that is done with an address that stands in it.

namespace {
constexpr qsizetype mostLookedAt = 32; // addresses of one file

void UseAddress(const QString& address, qint16 board) {
    static const NameTables names;
    static const OfflineData data;
    ValidAdd(address, board);
    const ParsedAddress parsed = ParseAddress(EquateAdd(address, board));
    Require(parsed.width == u'B' || parsed.width == u'W' || parsed.width == u'D',
            "every address has a width");
    Require(!parsed.isBit || parsed.mask != 0, "every bit has a mask");
    VariableToRead(address, board);
    NextAddress(address);
    Require(NameOfVariable(names, address, NameKind::NicName).isEmpty(), "no names, no name");
    OnlineCellTexts(address, QStringLiteral("655359999"));
    OfflineCellTexts(address, data);
    const QString pasted = PastedAddress(address, board);
    Require(pasted.size() <= address.size(), "a pasted address does not grow");
}

void Run(FuzzInput input) {
    static const FuzzFile file(QStringLiteral("S.tbl"));
    file.Put(input);
    Passes([&] {
        TableFile table;
        ReadTableFile(file.Path(), table);
        Require(table.addresses.size() <= TableFile::rowLimit, "no more rows than the limit");
        ListEntryOfBoard(table.board);
        for (const QString& address : table.addresses.mid(0, mostLookedAt))
            UseAddress(address, table.board);
    });
}

const RegisteredTarget target("tbl", Run);
} // namespace
