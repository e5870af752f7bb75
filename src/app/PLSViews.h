#pragma once

#include <QString>

class frmMDIMain;
struct Platform;

/// The views of limit switch sets, joined to the browser.
class PLSViews {
public:
    /// Both must outlive the object.
    PLSViews(const Platform& platform, frmMDIMain& window);

private:
    void ShowPLSFile(const QString& path);

    const Platform& platform_;
    frmMDIMain& window_;
};
