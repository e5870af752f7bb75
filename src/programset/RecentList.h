#pragma once

#include <array>
#include <QString>

class ApplicationFolder;

/// The list of the last four program sets, newest first, and what its menu entries show.
class RecentList {
public:
    static constexpr int length = 4;

    /// Path of the list's file, which may not be there yet.
    static QString FileIn(const ApplicationFolder& folder);

    /// An empty list; no entry is shown.
    RecentList();

    /// Takes the list from its file: one item per entry, at most four, so that a path with a comma
    /// is cut there. An entry is shown for every item read, an empty one too. A missing file leaves
    /// the list as it is. Raises as TextReader.
    void Read(const QString& file);
    /// Writes four lines, empty ones for empty entries. Raises as TextWriter.
    void Write(const QString& file) const;

    /// Puts a set that was made or opened first. Nothing changes if it stands first already,
    /// letter case apart. Entries of up to four characters are moved without being shown.
    void UpdateRecentFile(const QString& hdnFile);

    /// Path of an entry, `index` 0 to 3, 0 the newest; may be empty and may name a lost file.
    const QString& Path(int index) const;
    /// "&1 " and the path, or "&1 Recent File" as long as nothing was put there.
    const QString& Caption(int index) const;
    /// Whether the menu shows the entry.
    bool Shown(int index) const;
    /// Whether the menu shows the separator above the entries.
    bool SeparatorShown() const { return separatorShown_; }
    /// The newest path if that file exists, else empty: the set in use at the start.
    QString ProgramAtStart() const;

private:
    struct Entry {
        QString path;
        QString caption;
        bool shown = false;
    };
    void Show(int index);

    std::array<Entry, length> entries_;
    bool separatorShown_ = false;
};
