#pragma once

#include <QtGlobal>

/// A run of byte addresses, both ends included; empty if the last is below the first.
struct AddressRange {
    qint16 first;
    qint16 last;

    /// Number of its bytes; 0 or less of an empty run.
    qint32 Count() const { return last - first + 1; }
    /// Whether the byte lies in the run; any number may be asked for.
    bool Contains(qint32 address) const { return address >= first && address <= last; }
};

/// What a model's data memory looks like to a transfer.
struct DataImage {
    AddressRange standard; ///< what a transfer moves unless the user says otherwise
    AddressRange file;     ///< the addresses that the data file holds, two characters each
    AddressRange skipped;  ///< what a download leaves alone; empty (last < first) where nothing
    /// A download takes the pair of each address from the file; without it the file's first pair
    /// goes to the first address of the range, whatever that is.
    bool pairsByAddress;
};

/// The image of a board index: 50 (K2012) and 68 (R6500) have large ones of their own, all others
/// the same one of bytes 70 to 219. The figures are those of the boards' memory maps.
const DataImage& DataImageOf(qint16 boardIndex);
