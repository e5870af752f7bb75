#include "shell/Icons.h"

#include <QGuiApplication>
#include <QIconEngine>
#include <QPainter>
#include <QPalette>
#include <utility>

// Outside any namespace: resources of a static library must be brought in by name.
static void BringInIcons() {
    Q_INIT_RESOURCE(shell_icons);
}

namespace {
constexpr double fadedOpacity = 0.38;
constexpr int largestSmallIcon = 24; // pixels

// The picture without its colours and let through by the ground, light or dark.
QPixmap Faded(const QPixmap& picture) {
    const QImage drawn = picture.toImage().convertToFormat(QImage::Format_ARGB32);
    QImage faded(drawn.size(), QImage::Format_ARGB32);
    for (int y = 0; y < drawn.height(); ++y)
        for (int x = 0; x < drawn.width(); ++x) {
            const QRgb point = drawn.pixel(x, y);
            const int grey = qGray(point);
            faded.setPixel(x, y, qRgba(grey, grey, grey, qRound(fadedOpacity * qAlpha(point))));
        }
    return QPixmap::fromImage(faded);
}

// Draws an icon at the size that is wanted, faded while its command is disabled. Left to the style
// a disabled icon in mid tones is hardly told from an enabled one on a dark ground.
class ShellIconEngine final : public QIconEngine {
public:
    /// `small` is the drawing for few pixels; the other one where there is none of its own.
    explicit ShellIconEngine(QIcon drawn, QIcon small = {})
        : drawn_(std::move(drawn)), small_(std::move(small)) {}

    QIconEngine* clone() const override { return new ShellIconEngine(drawn_, small_); }
    QPixmap pixmap(const QSize& size, QIcon::Mode mode, QIcon::State) override {
        const bool isSmall = !small_.isNull() && size.height() <= largestSmallIcon;
        const QPixmap picture = (isSmall ? small_ : drawn_).pixmap(size, 1.0);
        return mode == QIcon::Disabled ? Faded(picture) : picture;
    }
    void paint(QPainter* painter, const QRect& rect, QIcon::Mode mode,
               QIcon::State state) override {
        const double ratio = painter->device()->devicePixelRatioF();
        painter->drawPixmap(rect, pixmap(rect.size() * ratio, mode, state));
    }

private:
    QIcon drawn_;
    QIcon small_;
};

QIcon DrawnIcon(const QString& name) {
    static const bool broughtIn = (BringInIcons(), true);
    Q_UNUSED(broughtIn);
    return QIcon(QStringLiteral(":/shell/icons/%1.svg").arg(name));
}

// The picture in one colour: what covers a pixel there covers it here.
QPixmap Tinted(QPixmap picture, const QColor& colour) {
    QPainter painter(&picture);
    painter.setCompositionMode(QPainter::CompositionMode_SourceIn);
    painter.fillRect(picture.rect(), colour);
    return picture;
}
} // namespace

QIcon ShellIcon(const QString& name) {
    return QIcon(new ShellIconEngine(DrawnIcon(name)));
}

QIcon ProgramIcon() {
    return QIcon(new ShellIconEngine(DrawnIcon(QStringLiteral("Quentor")),
                                     DrawnIcon(QStringLiteral("QuentorSmall"))));
}

QIcon ListIcon(const QString& name) {
    const QIcon drawn = DrawnIcon(name);
    const QColor onHighlight = QGuiApplication::palette().color(QPalette::HighlightedText);
    QIcon icon;
    for (const int size : {16, 24, 32, 48, 64}) {
        const QPixmap picture = drawn.pixmap(QSize(size, size), 1.0);
        icon.addPixmap(picture, QIcon::Normal);
        icon.addPixmap(Tinted(picture, onHighlight), QIcon::Selected);
    }
    return icon;
}
