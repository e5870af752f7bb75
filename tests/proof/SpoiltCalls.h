#pragma once

#include <string>

/// What goes wrong at a call by which the program changes the disk.
enum class Spoil {
    DeviceFails,   ///< this call alone raises an input/output error and does nothing
    DiskStaysFull, ///< from this call on, none that needs room succeeds; a write takes half first
    KilledBefore,  ///< the process dies as by kill -9 before the call
    KilledAfter,   ///< and after it
};

std::string NameOf(Spoil how);

/// Counts, for as long as it lives, the calls by which this process changes the disk (open for
/// writing, write, flush to disk, link, rename, remove, make and remove a folder, set a time), and
/// spoils one of them. The calls of the libraries in use come by here too, since the names are
/// those of the system's own functions. One at a time may live.
class SpoiltCalls {
public:
    /// The `nth` call from now on is spoilt, counted from 1; 0 counts only.
    SpoiltCalls(int nth, Spoil how);
    ~SpoiltCalls();
    SpoiltCalls(const SpoiltCalls&) = delete;
    SpoiltCalls& operator=(const SpoiltCalls&) = delete;

    /// Calls so far, the spoilt one included.
    int Count() const;
    /// Files that so far got their name while something that was written was not flushed to the
    /// disk: after a power cut such a file can be there and be empty.
    int NamedUnflushed() const;
};

/// For as long as it lives the disk has no unnamed temporary files, like the file systems of memory
/// sticks: a new file has a name beside the old one until it takes its place.
class NamedTemporaries {
public:
    explicit NamedTemporaries(bool named);
    ~NamedTemporaries();
    NamedTemporaries(const NamedTemporaries&) = delete;
    NamedTemporaries& operator=(const NamedTemporaries&) = delete;
};
