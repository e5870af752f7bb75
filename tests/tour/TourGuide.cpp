#include "tour/TourGuide.h"

#include <cstdio>
#include <QApplication>
#include <QDir>
#include <QFile>
#include <QMessageBox>
#include <QPainter>
#include <QPushButton>
#include <QTest>
#include <utility>

namespace {
constexpr int lookInterval = 50; // milliseconds

// Windows from the bottom up: the main window, then the open boxes and dialogs.
QList<QWidget*> WindowsOnScreen(QWidget& mainWindow) {
    QList<QWidget*> windows{&mainWindow};
    const QWidgetList topLevels = QApplication::topLevelWidgets();
    for (QWidget* window : topLevels)
        if (window != &mainWindow && window->isVisible() && window->windowType() != Qt::ToolTip)
            windows.append(window);
    return windows;
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
    Stop(QStringLiteral("%1 is \"%2\"").arg(what, wanted),
         [found = std::move(found), wanted] { return found() == wanted; }, [] {});
}

void TourGuide::Picture(const QString& name) {
    Stop(
        QStringLiteral("picture ") + name, [] { return true; }, [this, name] { TakePicture(name); });
}

void TourGuide::AnswerBox(const QString& title, const QString& button, const QString& picture) {
    const auto isUp = [title] { return OpenBox() && OpenBox()->windowTitle() == title; };
    if (!picture.isEmpty())
        Stop(QStringLiteral("box \"%1\" is up").arg(title), isUp,
             [this, picture] { TakePicture(picture); });
    Stop(QStringLiteral("box \"%1\": press %2").arg(title, button), isUp, [this, button] {
        QMessageBox* box = OpenBox();
        Say(QStringLiteral("    says: ") + box->text().replace(QLatin1String("\n"), QLatin1String(" / ")));
        QPushButton* found = FindButton(*box, button);
        if (!found) {
            Say(QStringLiteral("FAILED: the box has no such button"));
            Finish(1);
            return;
        }
        QTest::mouseClick(found, Qt::LeftButton);
    });
}

QMessageBox* TourGuide::OpenBox() {
    return qobject_cast<QMessageBox*>(QApplication::activeModalWidget());
}

void TourGuide::Start() {
    waiting_.start();
    timer_.start();
}

// An act that opens a modal box runs an event loop inside itself: the timer goes on looking there,
// but the stop it belongs to is already taken from the list.
void TourGuide::Look() {
    if (stops_.empty()) {
        if (!acting_)
            Finish(0);
        return;
    }
    const TourStop stop = stops_.front();
    if (stop.ready()) {
        stops_.pop_front();
        waiting_.restart();
        Say(stop.what);
        acting_ = true;
        stop.act();
        acting_ = false;
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
    for (QWidget* window : windows.mid(1))
        painter.drawPixmap(window->pos() - mainWindow_.pos(), window->grab());
    painter.end();
    const QString file =
        QStringLiteral("%1/%2-%3.png").arg(folder_).arg(++pictures_, 2, 10, QLatin1Char('0')).arg(name);
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
