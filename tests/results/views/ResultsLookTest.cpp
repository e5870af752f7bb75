#include "controls/grid/Grid.h"
#include "results/KeptPrinter.h"
#include "results/ResultsText.h"
#include "results/views/frmEditDoc.h"
#include "results/views/frmViewResults.h"
#include "session/Globals.h"
#include "support/gui/ModalView.h"
#include "support/ScriptedDialogs.h"
#include "support/TestFolder.h"
#include "support/VirtualClock.h"
#include <QDir>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QScrollBar>
#include <QTest>

// Both views, light and dark: nothing may be cut. With the variable QUENTOR_PICTURES set to a
// folder the views are saved there as pictures.

namespace {
QPalette DarkPalette() {
    QPalette dark(QColor(45, 45, 48));
    dark.setColor(QPalette::Base, QColor(30, 30, 30));
    for (const auto role : {QPalette::Text, QPalette::WindowText, QPalette::ButtonText})
        dark.setColor(role, QColor(230, 230, 230));
    return dark;
}

class ResultsLook : public testing::TestWithParam<bool>, public ResultsHost {
protected:
    ResultsLook() {
        if (GetParam())
            QApplication::setPalette(DarkPalette());
        gHdnFile = folder.Path("PUMP.hdn");
    }
    ~ResultsLook() override {
        QApplication::setPalette(QPalette());
        gHdnFile.clear();
        gResultsText.clear();
        gResultsShown.clear();
    }
    void UnloadResults() override {}

    static void Save(QWidget& view, const char* name) {
        const QString pictures = qEnvironmentVariable("QUENTOR_PICTURES");
        if (!pictures.isEmpty())
            view.grab().save(
                QDir(pictures).filePath(QString("%1-%2-%3.png")
                                            .arg(QLatin1String(name), GetParam() ? "dark" : "light")
                                            .arg(qRound(100 * view.devicePixelRatioF()))));
    }
    static void ExpectButtonsWhole(const QWidget& view) {
        for (const auto* button : view.findChildren<QPushButton*>())
            if (button->isVisible() && button->objectName() != "cmdDefault") {
                EXPECT_GE(button->width(), button->minimumSizeHint().width());
                EXPECT_GE(button->height(), button->minimumSizeHint().height());
                EXPECT_TRUE(view.rect().contains(button->geometry()))
                    << button->objectName().toStdString();
            }
    }

    TestFolder folder;
    ScriptedDialogs dialogs;
    VirtualClock clock;
    KeptPrinter printer;
};
} // namespace

TEST_P(ResultsLook, Results) {
    folder.Write("PUMP.err", "Ladder compiler 3.10     PUMP.LMN\r\n2 errors\r\n\r\n"
                             "Line   Block  Error\r\n  12       3  Undefined variable W9000\r\n"
                             " 117      21  Missing end of branch\r\n");
    folder.Write("PUMP.gbl",
                 "Global search      B100\r\n2 places\r\n\r\n"
                 "File\tBlock\tElement\r\nPUMP.LMN\t3\tcontact\r\nPUMP.U07\t1\tcoil\r\n");
    frmViewResults view({dialogs, clock, printer, *this});
    view.resize(view.sizeHint());
    view.DisplayResults(ResultsMode::CompileErrors);
    view.show();
    ASSERT_TRUE(QTest::qWaitForWindowActive(&view));
    Save(view, "results-errors");
    ExpectButtonsWhole(view);
    view.DisplayResults(ResultsMode::NewSearch);
    QCoreApplication::processEvents();
    Save(view, "results-search");
    ExpectButtonsWhole(view);
    view.resize(view.minimumSizeHint());
    QCoreApplication::processEvents();
    ExpectButtonsWhole(view);
}

TEST_P(ResultsLook, VariableDocumentation) {
    folder.Write("PUMP.nam", "0005START\r\n0012STOP\r\n&\r\n0100COUNT\r\n/\r\n3DONE\r\n&\r\n"
                             "0010PRESS\r\n");
    folder.Write("PUMP.doc", "0005Starts the pump\r\n&\r\n0100Parts made since the last reset of "
                             "the counter\r\n&\r\n0010Foot switch of the press\r\n");
    frmEditDoc view(dialogs);
    view.InitializeVar(folder.Path("PUMP"));
    InModalView("frmEditDoc", [&](QWidget&) {
        QCoreApplication::processEvents();
        Save(view, "editdoc");
        ExpectButtonsWhole(view);
        auto* table = PartOf<Grid>(view, "fgEditDoc");
        const QFontMetrics metrics = table->fontMetrics();
        for (int column = 0; column < 3; ++column)
            EXPECT_GT(table->columnWidth(column),
                      metrics.horizontalAdvance(table->TextMatrix(0, column)) + 4);
        EXPECT_GT(table->columnWidth(0), metrics.horizontalAdvance("B8175.7") + 8);
        EXPECT_FALSE(table->horizontalScrollBar()->isVisible());
        view.close();
    });
    view.exec();
}

INSTANTIATE_TEST_SUITE_P(Schemes, ResultsLook, testing::Bool(),
                         [](const auto& scheme) { return scheme.param ? "Dark" : "Light"; });
