#include "app/TimingViews.h"

#include "app/Application.h"
#include "controls/grid/Grid.h"
#include "pls/views/frmTiming.h"

namespace {
QString ViewName() {
    return QStringLiteral("frmTiming");
}
} // namespace

TimingViews::TimingViews(const Platform& platform, RSComm& link, ViewLoopRunner& loops,
                         JobRunner& runner, frmMDIMain& window)
    : window_(window), activation_(window.Children(), ViewName(), [this] {
          if (view_)
              view_->Activate();
      }) {
    window_.Children().Register(ViewName(), [this, platform, &link, &loops, &runner] {
        return MakeView(platform, link, loops, runner);
    });
    window_.Commands().Handle(QStringLiteral("mnuToolsPLSProgramming"), [this] { ShowTiming(); });
}

QWidget* TimingViews::MakeView(const Platform& platform, RSComm& link, ViewLoopRunner& loops,
                               JobRunner& runner) {
    view_ = new frmTiming({link, window_.Mode(), platform.dialogs, loops, runner,
                           [this] { return window_.SelectedProgramPath(); }});
    return view_;
}

void TimingViews::ShowTiming() {
    window_.Children().Show(ViewName());
    if (view_ && view_->ChannelGrid().isEnabled())
        view_->ChannelGrid().setFocus();
}

TimingView TimingViews::View() {
    TimingView view;
    view.visible = [this] { return window_.Children().IsVisible(ViewName()); };
    view.firstPassOnline = [this] { return view_ && view_->gFirstPassOnline(); };
    view.displayChannels = [this] {
        if (view_)
            view_->DisplayPLSChannels();
    };
    view.uploadComplete = [this] {
        if (view_)
            view_->SetPLSUploadComplete();
    };
    view.board = [this] {
        const bool shown = view_ && window_.Children().IsVisible(ViewName());
        return shown ? std::optional(view_->SelectedBoard()) : std::nullopt;
    };
    return view;
}
