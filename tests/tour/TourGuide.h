#pragma once

#include <deque>
#include <functional>
#include <QElapsedTimer>
#include <QObject>
#include <QString>
#include <QTimer>

class QWidget;
class QMessageBox;

/// Leads through the real program as a user would: waits until something is on the screen, then
/// clicks or types. Looks twenty times a second from a timer, so that it goes on inside message
/// boxes and modal views as well.
class TourGuide : public QObject {
    Q_OBJECT
public:
    /// Pictures and the transcript go to `folder`, which is made if needed.
    TourGuide(QWidget& mainWindow, QString folder);

    /// Adds a stop: once `ready` is true, `act` is done and the tour goes on. A stop that is not
    /// ready within `patience` seconds fails the tour. `what` stands in the transcript.
    void Stop(const QString& what, std::function<bool()> ready, std::function<void()> act,
              double patience = 20.0);
    /// Adds a stop that checks: `found` must become equal to `wanted`.
    void Expect(const QString& what, std::function<QString()> found, const QString& wanted);
    /// Adds a stop that takes a picture of what is on the screen, boxes included.
    void Picture(const QString& name);
    /// Adds a stop that waits for a message box with this title and presses one of its buttons.
    /// With a picture name, takes the picture before.
    void AnswerBox(const QString& title, const QString& button, const QString& picture = {},
                   double patience = 20.0);

    /// Runs the stops and leaves the event loop with 0, or with 1 at the first failure.
    void Start();

private:
    void Look();
    void TakePicture(const QString& name);
    void Say(const QString& line);
    void Finish(int result);
    static QMessageBox* OpenBox();

    struct TourStop {
        QString what;
        std::function<bool()> ready;
        std::function<void()> act;
        double patience;
    };

    QWidget& mainWindow_;
    QString folder_;
    std::deque<TourStop> stops_;
    QTimer timer_;
    QElapsedTimer waiting_;
    QStringList transcript_;
    int acting_ = 0; // acts that have not returned
    int pictures_ = 0;
};
