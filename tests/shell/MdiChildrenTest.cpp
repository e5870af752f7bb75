#include "session/Globals.h"
#include "shell/ChildView.h"
#include "shell/frmMain.h"
#include "support/gui/WholeWindow.h"
#include <QAction>
#include <QLabel>
#include <QMdiSubWindow>
#include <QTest>

namespace {
/// A view that counts what it is told.
class CountingView : public QWidget, public ChildView {
public:
    explicit CountingView(const QString& name) {
        setObjectName(name);
        setFocusPolicy(Qt::StrongFocus);
    }
    void Form_Activate() override { ++activated; }
    void Form_Deactivate() override { ++deactivated; }
    void Form_Resize() override { ++resized; }
    QSize sizeHint() const override { return QSize(400, 300); }
    int activated = 0;
    int deactivated = 0;
    int resized = 0;
};

class Children : public WholeWindow {
protected:
    void SetUp() override {
        Start();
        GoToSets();
        Window().Children().Hide("frmStatusTable"); // start-up has shown it
        for (const char* name : {"frmViewResults", "frmTrending"})
            Window().Children().Register(name, [this, name] {
                ++made_;
                return new CountingView(QString::fromLatin1(name));
            });
    }
    CountingView* View(const char* name) {
        return dynamic_cast<CountingView*>(Window().Children().View(QString::fromLatin1(name)));
    }
    QMdiSubWindow* Frame(const char* name) {
        return qobject_cast<QMdiSubWindow*>(View(name)->parentWidget());
    }
    bool BrowserIsLowest() {
        const QWidget* frame = Window().Browser().parentWidget();
        for (const QObject* child : frame->parentWidget()->children()) {
            if (qobject_cast<const QMdiSubWindow*>(child))
                return child == frame; // children stand from the lowest up
        }
        return false;
    }
    int made_ = 0;
};
} // namespace

TEST_F(Children, AViewIsMadeAtItsFirstUseAndKept) {
    EXPECT_EQ(made_, 0);
    Window().Children().Show("frmViewResults");
    Window().Children().Hide("frmViewResults");
    EXPECT_FALSE(Window().IsViewVisible("frmViewResults"));
    Window().Children().Show("frmViewResults");
    EXPECT_TRUE(Window().IsViewVisible("frmViewResults"));
    EXPECT_EQ(made_, 1);
}

TEST_F(Children, AnUnknownViewIsNotShown) {
    Window().Children().Show("frmNowhere");
    EXPECT_FALSE(Window().IsViewVisible("frmNowhere"));
    EXPECT_EQ(Window().ActiveChildName().toStdString(), "frmMain");
}

TEST_F(Children, TheBrowserStaysTheLowest) {
    Window().Children().Show("frmViewResults");
    EXPECT_TRUE(BrowserIsLowest());
    ClickSet("PUMP.hdn");
    EXPECT_EQ(Window().ActiveChildName().toStdString(), "frmMain");
    EXPECT_TRUE(BrowserIsLowest());
    EXPECT_FALSE(Window().Browser().parentWidget()->close());
    EXPECT_TRUE(Window().Browser().isVisible());
}

TEST_F(Children, ViewsAreToldOfActivation) {
    Window().Children().Show("frmViewResults");
    EXPECT_EQ(View("frmViewResults")->activated, 1);
    Window().Children().Show("frmTrending");
    EXPECT_EQ(View("frmViewResults")->deactivated, 1);
    EXPECT_EQ(View("frmTrending")->activated, 1);
    EXPECT_EQ(Window().ActiveChildName().toStdString(), "frmTrending");
}

TEST_F(Children, ClosingTheActiveViewActivatesAnother) {
    Window().Children().Show("frmViewResults");
    Frame("frmViewResults")->close();
    EXPECT_EQ(Window().ActiveChildName().toStdString(), "frmMain");
    EXPECT_EQ(View("frmViewResults")->deactivated, 1);
}

TEST_F(Children, TheActiveViewChangesTheCommands) {
    EXPECT_FALSE(Entry("mnuEditCopy")->isVisible());
    Window().Children().Show("frmStatusTable");
    EXPECT_TRUE(Entry("mnuEditCopy")->isVisible());
    EXPECT_TRUE(Entry("mnuFilePrintStatusTable")->isVisible());
    ClickSet("PUMP.hdn");
    EXPECT_FALSE(Entry("mnuEditCopy")->isVisible());
    EXPECT_EQ(gPrintContext, PrintContext::Browser);
}

TEST_F(Children, AResizeReachesTheBrowserAndVisibleViewsOnly) {
    Window().Children().Show("frmViewResults");
    Window().Children().Show("frmTrending");
    Window().Children().Hide("frmTrending");
    const int before = View("frmViewResults")->resized;
    Window().resize(900, 600);
    QCoreApplication::processEvents();
    EXPECT_GT(View("frmViewResults")->resized, before);
    EXPECT_EQ(View("frmTrending")->resized, 0);
    const QWidget* frame = Window().Browser().parentWidget();
    EXPECT_EQ(frame->size(), frame->parentWidget()->size());
}

TEST_F(Children, BeforeTheFirstActivationAResizeReachesNobody) {
    Window().Children().Show("frmViewResults");
    Window().Browser().gFormLoaded = false;
    Window().resize(900, 600);
    EXPECT_EQ(View("frmViewResults")->resized, 0);
}

TEST_F(Children, AViewOpensBesideTheListsOfTheBrowser) {
    Window().resize(1280, 800);
    QCoreApplication::processEvents();
    Window().Children().Show("frmViewResults");
    const QRect view(Frame("frmViewResults")->mapTo(&Window(), QPoint(0, 0)),
                     Frame("frmViewResults")->size());
    for (const char* list : {"dirDirList", "filFileList", "trvHDNList"}) {
        const auto* widget = Find<QWidget>(list);
        const QRect place(widget->mapTo(&Window(), QPoint(0, 0)), widget->size());
        EXPECT_FALSE(view.intersects(place)) << list;
    }
}
