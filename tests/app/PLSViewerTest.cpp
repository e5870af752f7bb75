#include "session/Globals.h"
#include "shell/frmMain.h"
#include "support/gui/ModalView.h"
#include "support/gui/WholeWindow.h"
#include <QLabel>
#include <QPushButton>
#include <QTest>

// The files of a limit switch set, opened from the browser's tree.

namespace {
class PLSViewer : public WholeWindow {
protected:
    void SetUp() override {
        WriteSetFile("CAM.hdn", "7\r\n");
        WriteSetFile("CAM.pcf", "163603012100005020030350004012000000000000000000%\r\n");
        WriteSetFile("CAM.CHL", ":360\r\n:000\r\n:001:00:00:00GLUE\r\n|010020\r\n%\r\n");
        Start();
        GoToSets();
        Window().Browser().dirDirList_Change();
        ClickSet("CAM.hdn");
    }

    void ExpectView(const QString& node, const std::function<void(QWidget&)>& look) {
        int shown = 0;
        InModalView("frmPLSView", [&](QWidget& view) {
            ++shown;
            EXPECT_EQ(view.windowTitle().toStdString(), "CAM - K2041");
            look(view);
            QTest::mouseClick(PartOf<QPushButton>(view, "cmdOk"), Qt::LeftButton);
        });
        DoubleClickNode(node);
        EXPECT_EQ(shown, 1);
    }
};
} // namespace

TEST_F(PLSViewer, TheConfigurationFileOpensInTheViewer) {
    ExpectView("PLS Config (.pcf)", [](QWidget& view) {
        EXPECT_EQ(PartOf<QLabel>(view, "lblPCFValue(18)")->text().toStdString(), "30-350");
        EXPECT_TRUE(PartOf<QWidget>(view, "fraPLS(1)")->isVisible());
    });
}

TEST_F(PLSViewer, TheChannelFileOpensInTheViewerAndLeavesGPLSAlone) {
    gPLS = PLSRecord();
    gPLS.Channels = 32;
    const PLSRecord before = gPLS;
    ExpectView("CHANNEL (.CHL)",
               [](QWidget& view) { EXPECT_TRUE(PartOf<QWidget>(view, "fraPLS(2)")->isVisible()); });
    EXPECT_EQ(gPLS, before);
    gPLS = PLSRecord();
}
