#pragma once

#include <QString>

/// Makes the folder that the tour plays in: an application folder of its own with the support
/// files, the sample program sets and a recent list that names one of them.
class TourSetting {
public:
    /// Clears and fills `folder`. IsReady tells whether all could be copied.
    explicit TourSetting(const QString& folder);

    bool IsReady() const { return ready_; }
    QString ApplicationFolder() const { return folder_; }
    /// Path of a sample program set's file.
    QString Sample(const QString& name) const;
    /// Where the simulated board's terminal is linked, as the first port.
    QString PortLink() const;

private:
    bool CopyFolder(const QString& from, const QString& to);
    bool WriteRecentList();

    QString folder_;
    bool ready_ = false;
};
