#include "shell/BackgroundTimer.h"
#include "base/RunTimeError.h"
#include "session/BackgroundUpdate.h"
#include "support/gui/WholeWindow.h"
#include <QCoreApplication>
#include <QTimer>
#include <QTimerEvent>

namespace {
// Views that fail as often as the test wants.
class FailingView final : public ShellView {
public:
    QString ActiveChildName() const override { return {}; }
    bool IsViewVisible(const QString&) const override { return false; }
    QString SelectedProgramPath() const override { return {}; }
    void ShowSystemMessage(const QString&) override {
        ++ticks;
        if (error)
            throw RunTimeError(error);
    }
    int ticks = 0;
    int error = 0;
};

class TickErrors : public WholeWindow {
protected:
    void SetUp() override { Start(); }
    void TickOf(BackgroundTimer& timer, int error) {
        timer.SetEnabled(true);
        view_.error = error;
        QTimerEvent event(timer.Timer().timerId());
        QCoreApplication::sendEvent(&timer.Timer(), &event);
    }
    void ExpectError(const QString& text, std::function<void()> meanwhile = {}) {
        dialogs_.ExpectBox(text, MsgStyle::Critical, "Quentor", MsgAnswer::Ok,
                           std::move(meanwhile));
    }
    FailingView view_;
    const QString notFound_ = QStringLiteral("Error Number = 53\r\n\r\nFile not found");
    const QString overflow_ = QStringLiteral("Error Number = 6\r\n\r\nOverflow");
};
} // namespace

TEST_F(TickErrors, AreToldOnceAndNotTwiceASecond) {
    BackgroundUpdate update(Link(), Window().Mode(), dialogs_, view_);
    BackgroundTimer timer(update, dialogs_, nullptr);
    ExpectError(notFound_);
    TickOf(timer, ErrorNumber::FileNotFound);
    TickOf(timer, ErrorNumber::FileNotFound);
    EXPECT_EQ(view_.ticks, 2);
    ExpectError(overflow_);
    TickOf(timer, ErrorNumber::Overflow);
    TickOf(timer, 0);
    ExpectError(overflow_);
    TickOf(timer, ErrorNumber::Overflow);
}

TEST_F(TickErrors, HoldTheTickWhileTheirBoxIsUp) {
    BackgroundUpdate update(Link(), Window().Mode(), dialogs_, view_);
    BackgroundTimer timer(update, dialogs_, nullptr);
    ExpectError(notFound_, [&] {
        TickOf(timer, ErrorNumber::Overflow);
        EXPECT_EQ(view_.ticks, 1);
    });
    TickOf(timer, ErrorNumber::FileNotFound);
}
