#pragma once

#include <QTextBrowser>
#include <QUrl>

/// The page of the guide: Markdown from the program's resources, with pictures that fit the width
/// and with tables and links that can be read on light and dark grounds.
class GuideBrowser : public QTextBrowser {
    Q_OBJECT
public:
    explicit GuideBrowser(QWidget* parent = nullptr);

    /// Shows a page of the guide by its position from 0; nothing happens if it is shown already or
    /// is none.
    void ShowPage(int page);
    /// Position of the page that is shown; -1 before the first.
    int Page() const { return page_; }

    /// Text of a page, character for character as it stands in the document that shows it.
    static QString PlainText(int page);

Q_SIGNALS:
    /// Another page is shown, by whatever way.
    void PageChanged();

protected:
    QVariant loadResource(int type, const QUrl& name) override;
    void resizeEvent(QResizeEvent* event) override;
    void changeEvent(QEvent* event) override;

private:
    void Style();
    void StyleLinks();
    void StyleTables();
    void FitPicture(const QUrl& name);
    void FitPictures();
    QVariant FittedPicture(const QUrl& name) const;

    int page_ = -1;
};
