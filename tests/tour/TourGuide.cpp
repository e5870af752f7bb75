#include "tour/TourGuide.h"

#include <algorithm>
#include <cstdio>
#include <QApplication>
#include <QDir>
#include <QFile>
#include <QMessageBox>
#include <QPainter>
#include <QPushButton>
#include <QTest>
#include <QTextDocumentFragment>
#include <utility>

namespace {
constexpr int lookInterval = 50; // milliseconds
constexpr int titleHeight = 24;  // pixels at 100 per cent

int Depth(const QWidget* window) {
    const QWidget* parent = window->parentWidget();
    return parent ? 1 + Depth(parent->window()) : 0;
}

// Windows from the bottom up: the main window, then the open boxes and dialogs, each above the
// window that it belongs to.
QList<QWidget*> WindowsOnScreen(QWidget& mainWindow) {
    QList<QWidget*> windows{&mainWindow};
    const QWidgetList topLevels = QApplication::topLevelWidgets();
    for (QWidget* window : topLevels)
        if (window != &mainWindow && window->isVisible() && window->windowType() != Qt::ToolTip)
            windows.append(window);
    std::stable_sort(
        windows.begin(), windows.end(),
        [](const QWidget* below, const QWidget* above) { return Depth(below) < Depth(above); });
    return windows;
}

// What a box says, as plain text: boxes with columns are set in rich text.
QString BoxText(const QMessageBox& box) {
    const QString text = Qt::mightBeRichText(box.text())
                             ? QTextDocumentFragment::fromHtml(box.text()).toPlainText()
                             : box.text();
    return QString(text).replace(u'\n', QLatin1String(" / "));
}

// A window as it stands on the screen: its own picture below a strip with its title, which the
// window system would draw.
QPixmap WithTitle(QWidget& window) {
    const QPixmap inside = window.grab();
    const qreal ratio = inside.devicePixelRatio();
    QPixmap picture(inside.width(), inside.height() + qRound(titleHeight * ratio));
    picture.setDevicePixelRatio(ratio);
    picture.fill(QApplication::palette().color(QPalette::Dark));
    QPainter painter(&picture);
    painter.setPen(QApplication::palette().color(QPalette::BrightText));
    painter.drawText(QRect(8, 0, window.width() - 16, titleHeight), Qt::AlignVCenter,
                     window.windowTitle());
    painter.drawPixmap(0, titleHeight, inside);
    return picture;
}

// A window whose title would stand above the screen is moved down, as a window system does.
QPoint BelowTop(QPoint place) {
    return {place.x(), std::max(place.y(), 0)};
}

QString ButtonText(const QPushButton& button) {
    return button.text().remove(u'&');
}

QPushButton* FindButton(QMessageBox& box, const QString& text) {
    const auto buttons = box.findChildren<QPushButton*>();
    for (QPushButton* button : buttons)
        if (ButtonText(*button) == text)
            return button;
    return nullptr;
}
} // namespace

TourGuide::TourGuide(QWidget& mainWindow, QString folder)
    : mainWindow_(mainWindow), folder_(std::move(folder)) {
    QDir().mkpath(folder_);
    timer_.setInterval(lookInterval);
    connect(&timer_, &QTimer::timeout, this, &TourGuide::Look);
}

void TourGuide::Stop(const QString& what, std::function<bool()> ready, std::function<void()> act,
                     double patience) {
    stops_.push_back({what, std::move(ready), std::move(act), patience});
}

void TourGuide::Expect(const QString& what, std::function<QString()> found, const QString& wanted) {
    Stop(
        QStringLiteral("%1 is \"%2\"").arg(what, wanted),
        [found = std::move(found), wanted] { return found() == wanted; }, [] {});
}

void TourGuide::Picture(const QString& name) {
    Stop(
        QStringLiteral("picture ") + name, [] { return true; },
        [this, name] { TakePicture(name); });
}

void TourGuide::AnswerBox(const QString& title, const QString& button, const QString& picture,
                          double patience) {
    const auto isUp = [title] { return OpenBox() && OpenBox()->windowTitle() == title; };
    if (!picture.isEmpty())
        Stop(
            QStringLiteral("box \"%1\" is up").arg(title), isUp,
            [this, picture] { TakePicture(picture); }, patience);
    Stop(
        QStringLiteral("box \"%1\": press %2").arg(title, button), isUp,
        [this, button] {
            QMessageBox* box = OpenBox();
            Say(QStringLiteral("    says: ") + BoxText(*box));
            QPushButton* found = FindButton(*box, button);
            if (!found) {
                Say(QStringLiteral("FAILED: the box has no such button"));
                Finish(1);
                return;
            }
            QTest::mouseClick(found, Qt::LeftButton);
        },
        patience);
}

QMessageBox* TourGuide::OpenBox() {
    return qobject_cast<QMessageBox*>(QApplication::activeModalWidget());
}

void TourGuide::Start() {
    waiting_.start();
    timer_.start();
}

// An act may open a modal box, whose event loop runs inside it. A timer does not fire again while
// its own handler runs, so the act is done from the event queue and the looking goes on meanwhile.
void TourGuide::Look() {
    if (stops_.empty()) {
        if (acting_ == 0)
            Finish(0);
        return;
    }
    const TourStop stop = stops_.front();
    if (stop.ready()) {
        stops_.pop_front();
        waiting_.restart();
        Say(stop.what);
        ++acting_;
        QMetaObject::invokeMethod(
            this,
            [this, act = stop.act] {
                act();
                --acting_;
            },
            Qt::QueuedConnection);
    } else if (waiting_.elapsed() > stop.patience * 1000) {
        Say(QStringLiteral("FAILED: not within %1 s: %2").arg(stop.patience).arg(stop.what));
        TakePicture(QStringLiteral("failed"));
        Finish(1);
    }
}

void TourGuide::TakePicture(const QString& name) {
    QPixmap picture = mainWindow_.grab();
    QPainter painter(&picture);
    const QList<QWidget*> windows = WindowsOnScreen(mainWindow_);
    for (QWidget* window : windows.mid(1)) {
        const QPoint place = window->pos() - mainWindow_.pos();
        if (window->windowType() == Qt::Popup || window->windowFlags() & Qt::FramelessWindowHint)
            painter.drawPixmap(place, window->grab());
        else
            painter.drawPixmap(BelowTop(place - QPoint(0, titleHeight)), WithTitle(*window));
    }
    painter.end();
    const QString file = QStringLiteral("%1/%2-%3.png")
                             .arg(folder_)
                             .arg(++pictures_, 2, 10, QLatin1Char('0'))
                             .arg(name);
    Say(picture.save(file) ? QStringLiteral("    picture ") + QDir(folder_).relativeFilePath(file)
                           : QStringLiteral("FAILED: cannot write ") + file);
}

void TourGuide::Say(const QString& line) {
    transcript_.append(line);
    std::printf("%s\n", line.toUtf8().constData());
    std::fflush(stdout);
}

void TourGuide::Finish(int result) {
    timer_.stop();
    Say(result == 0 ? QStringLiteral("The tour is complete.") : QStringLiteral("The tour FAILED."));
    QFile file(folder_ + QLatin1String("/transcript.txt"));
    if (file.open(QIODevice::WriteOnly))
        file.write(transcript_.join(u'\n').toUtf8() + '\n');
    QApplication::exit(result);
    // A failure may have left a modal box open: its loop ends with the program.
    const QWidgetList topLevels = QApplication::topLevelWidgets();
    for (QWidget* window : topLevels)
        if (window->isModal() && window->isVisible())
            window->close();
}
