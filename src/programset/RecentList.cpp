#include "programset/RecentList.h"

#include "base/ApplicationFolder.h"
#include "base/FileSystem.h"
#include "base/TextFile.h"

namespace {
constexpr qsizetype longestNotShown = 4; // characters: no path of a set is as short as ".hdn"

QString CaptionOf(int index, const QString& path) {
    return u'&' + QString::number(index + 1) + u' ' + path;
}
} // namespace

QString RecentList::FileIn(const ApplicationFolder& folder) {
    return folder.Path(QStringLiteral("support/HD2000.dat"));
}

RecentList::RecentList() {
    for (int index = 0; index < length; ++index)
        entries_[index].caption = CaptionOf(index, QStringLiteral("Recent File"));
}

void RecentList::Show(int index) {
    entries_[index].caption = CaptionOf(index, entries_[index].path);
    entries_[index].shown = true;
}

void RecentList::Read(const QString& file) {
    if (!FileSystem().FileExists(file))
        return;
    TextReader reader(file);
    for (int index = 0; index < length && !reader.AtEnd(); ++index) {
        entries_[index].path = reader.InputItem();
        separatorShown_ = true;
        Show(index);
    }
}

void RecentList::Write(const QString& file) const {
    TextWriter writer(file);
    for (const Entry& entry : entries_)
        writer.PrintText(entry.path);
    writer.Close();
}

void RecentList::UpdateRecentFile(const QString& hdnFile) {
    if (entries_[0].path.toUpper() == hdnFile.toUpper())
        return;
    separatorShown_ = true;
    for (int index = length - 1; index > 0; --index) {
        entries_[index].path = entries_[index - 1].path;
        if (entries_[index].path.size() > longestNotShown)
            Show(index);
    }
    entries_[0].path = hdnFile;
    Show(0);
}

const QString& RecentList::Path(int index) const {
    return entries_.at(index).path;
}

const QString& RecentList::Caption(int index) const {
    return entries_.at(index).caption;
}

bool RecentList::Shown(int index) const {
    return entries_.at(index).shown;
}

QString RecentList::ProgramAtStart() const {
    return FileSystem().FileExists(entries_[0].path) ? entries_[0].path : QString();
}
