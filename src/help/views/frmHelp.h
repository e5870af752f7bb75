#pragma once

#include "help/GuideSearch.h"
#include <QStringList>
#include <QWidget>
#include <vector>

class GuideBrowser;
class QBoxLayout;
class QLabel;
class QLineEdit;
class QListWidget;
class QToolButton;

/// The user guide in a window of its own: contents, the page, back and forward, and a search over
/// all pages. It is not modal, so that it can be read beside the view that it explains.
class frmHelp final : public QWidget {
    Q_OBJECT
public:
    frmHelp();

    /// Shows the page that explains a view ("frmTrending") and brings the window to the front.
    void ShowView(const QString& view);

protected:
    void keyPressEvent(QKeyEvent* event) override;

private:
    // frmHelpForm.cpp
    void BuildForm();
    QBoxLayout* Tools();
    QWidget* Lists();
    QToolButton* Tool(const char* name, const QString& text, const QString& tip);
    void ConnectParts();
    void AddKeys();
    void FillContents();

    // frmHelp.cpp
    void PageShown();
    void Search();
    void ShowHit(int hit);
    void NextHit();
    void PreviousHit();
    void MarkHits();
    void ShowCount();

    QStringList texts_; // plain text of each page
    std::vector<GuideHit> hits_;
    int hit_ = -1; // the one gone to; -1 before the first

    QToolButton* cmdBack_ = nullptr;
    QToolButton* cmdForward_ = nullptr;
    QToolButton* cmdPreviousHit_ = nullptr;
    QToolButton* cmdNextHit_ = nullptr;
    QLineEdit* txtSearch_ = nullptr;
    QLabel* lblHits_ = nullptr;
    QListWidget* lstContents_ = nullptr;
    QWidget* foundPane_ = nullptr;
    QListWidget* lstHits_ = nullptr;
    GuideBrowser* txtGuide_ = nullptr;
};
