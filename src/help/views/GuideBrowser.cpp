#include "help/views/GuideBrowser.h"

#include "help/GuidePages.h"
#include <algorithm>
#include <QEvent>
#include <QImage>
#include <QTextFrame>
#include <QTextTable>

namespace {
constexpr int cellPadding = 4; // pixels
constexpr int narrowest = 160; // pixels that a picture keeps
constexpr int pageMargin = 14; // pixels around the page
constexpr int darkest = 128;   // lightness below which a ground is dark

QUrl GuideUrl() {
    return QUrl(QStringLiteral("qrc") + GuideFolder());
}

bool IsDark(const QPalette& palette) {
    return palette.color(QPalette::Base).lightness() < darkest;
}

QColor LinkColour(const QPalette& palette) {
    return IsDark(palette) ? QColor(0x8a, 0xc4, 0xff) : QColor(0x1a, 0x5f, 0xa8);
}
} // namespace

GuideBrowser::GuideBrowser(QWidget* parent) : QTextBrowser(parent) {
    setOpenExternalLinks(false);
    document()->setDocumentMargin(pageMargin);
    QPalette colours = palette();
    colours.setColor(QPalette::Inactive, QPalette::Highlight,
                     colours.color(QPalette::Active, QPalette::Highlight));
    colours.setColor(QPalette::Inactive, QPalette::HighlightedText,
                     colours.color(QPalette::Active, QPalette::HighlightedText));
    setPalette(colours);
    // The browser still tells the old source while it announces the new one.
    connect(this, &QTextBrowser::sourceChanged, this, [this](const QUrl& url) {
        page_ = GuidePageOfFile(url.fileName());
        Style();
        Q_EMIT PageChanged();
    });
}

void GuideBrowser::ShowPage(int page) {
    if (page != Page() && page >= 0 && page < static_cast<int>(GuidePages().size()))
        setSource(GuideUrl().resolved(QUrl(GuidePages()[static_cast<std::size_t>(page)].file)));
}

QString GuideBrowser::PlainText(int page) {
    QTextDocument document;
    document.setMarkdown(GuideText(page));
    return document.toPlainText();
}

QVariant GuideBrowser::loadResource(int type, const QUrl& name) {
    if (type != QTextDocument::ImageResource)
        return QTextBrowser::loadResource(type, name);
    return FittedPicture(name);
}

// Never wider than the page, never bigger than drawn, and with as many pixels as the screen has.
QVariant GuideBrowser::FittedPicture(const QUrl& name) const {
    QImage picture(u':' + GuideUrl().resolved(name).path());
    if (picture.isNull())
        return QVariant();
    const int room = std::max(narrowest, viewport()->width() - 2 * pageMargin);
    const int width = std::min(room, picture.width());
    const int pixels = static_cast<int>(width * devicePixelRatioF());
    picture.convertTo(QImage::Format_ARGB32_Premultiplied); // few colours would be dithered
    if (pixels < picture.width())
        picture = picture.scaledToWidth(pixels, Qt::SmoothTransformation);
    picture.setDevicePixelRatio(static_cast<double>(picture.width()) / width);
    return picture;
}

void GuideBrowser::FitPicture(const QUrl& name) {
    document()->addResource(QTextDocument::ImageResource, name, FittedPicture(name));
}

void GuideBrowser::FitPictures() {
    for (QTextBlock block = document()->begin(); block.isValid(); block = block.next()) {
        for (auto piece = block.begin(); !piece.atEnd(); ++piece) {
            const QTextImageFormat picture = piece.fragment().charFormat().toImageFormat();
            if (picture.isValid() && !picture.name().isEmpty())
                FitPicture(document()->baseUrl().resolved(QUrl(picture.name())));
        }
    }
    document()->markContentsDirty(0, document()->characterCount());
}

void GuideBrowser::resizeEvent(QResizeEvent* event) {
    QTextBrowser::resizeEvent(event);
    FitPictures();
}

void GuideBrowser::changeEvent(QEvent* event) {
    QTextBrowser::changeEvent(event);
    if (event->type() == QEvent::PaletteChange)
        Style();
}

void GuideBrowser::Style() {
    document()->setUndoRedoEnabled(false);
    StyleLinks();
    StyleTables();
}

void GuideBrowser::StyleLinks() {
    QTextCharFormat link;
    link.setForeground(LinkColour(palette()));
    for (QTextBlock block = document()->begin(); block.isValid(); block = block.next()) {
        for (auto piece = block.begin(); !piece.atEnd(); ++piece) {
            if (!piece.fragment().charFormat().isAnchor())
                continue;
            QTextCursor cursor(document());
            cursor.setPosition(piece.fragment().position());
            cursor.setPosition(piece.fragment().position() + piece.fragment().length(),
                               QTextCursor::KeepAnchor);
            cursor.mergeCharFormat(link);
        }
    }
}

void GuideBrowser::StyleTables() {
    for (QTextFrame* frame : document()->rootFrame()->childFrames()) {
        auto* table = qobject_cast<QTextTable*>(frame);
        if (!table)
            continue;
        QTextTableFormat format = table->format();
        format.setCellPadding(cellPadding);
        format.setCellSpacing(0);
        format.setBorder(1);
        format.setBorderCollapse(true);
        format.setBorderBrush(palette().color(QPalette::Disabled, QPalette::Text));
        format.setBorderStyle(QTextFrameFormat::BorderStyle_Solid);
        table->setFormat(format);
    }
}
