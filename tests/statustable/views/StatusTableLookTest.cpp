#include "TableUnderTest.h"
#include <gtest/gtest.h>
#include <QApplication>
#include <QDir>
#include <QFontDatabase>
#include <QPixmap>
#include <QTest>

namespace {
QPalette DarkPalette() {
    QPalette dark(QColor(45, 45, 48));
    dark.setColor(QPalette::Base, QColor(30, 30, 30));
    dark.setColor(QPalette::Text, QColor(230, 230, 230));
    dark.setColor(QPalette::WindowText, QColor(230, 230, 230));
    dark.setColor(QPalette::ButtonText, QColor(230, 230, 230));
    dark.setColor(QPalette::Highlight, QColor(42, 130, 218));
    dark.setColor(QPalette::HighlightedText, Qt::white);
    return dark;
}

double Luminance(const QColor& color) {
    return 0.2126 * color.redF() + 0.7152 * color.greenF() + 0.0722 * color.blueF();
}

// Darkest and brightest point of a cell, apart from its edge.
double Contrast(TableUnderTest& table, int row, int col) {
    Grid& grid = table.view->StatusGrid();
    const QRect cell = grid.visualRect(grid.model()->index(row - 2, col)).adjusted(3, 3, -3, -3);
    const QImage image = grid.viewport()->grab(cell).toImage();
    double darkest = 1;
    double brightest = 0;
    for (int y = 0; y < image.height(); ++y)
        for (int x = 0; x < image.width(); ++x) {
            const double luminance = Luminance(image.pixelColor(x, y));
            darkest = std::min(darkest, luminance);
            brightest = std::max(brightest, luminance);
        }
    return brightest - darkest;
}

class StatusTableLook : public testing::TestWithParam<bool> {
protected:
    StatusTableLook() {
        if (GetParam())
            QApplication::setPalette(DarkPalette());
        table = std::make_unique<TableUnderTest>();
        table->ChooseBoard(49);
        table->Fill({"B100", "B100.3", "W102", "D104", "F17", "X30", "", "64H"});
        table->Connect();
        for (const int address : {100, 102, 103, 104, 105, 106, 49, 34})
            table->boardPort.board.Poke(static_cast<std::uint16_t>(address),
                                        static_cast<std::uint8_t>(address * 3));
        table->RunPasses();
    }
    ~StatusTableLook() override {
        table.reset();
        QApplication::setPalette(QPalette());
    }

    std::unique_ptr<TableUnderTest> table;
};
} // namespace

TEST_P(StatusTableLook, ValuesAndChangedValuesStayReadable) {
    table->alarms.Pass(GridModel::markTime + 100);
    EXPECT_GT(Contrast(*table, 2, 2), 0.5);
    table->boardPort.board.Poke(100, 99);
    table->Until([this] { return table->Cell(2, 2) == "99"; });
    EXPECT_GT(Contrast(*table, 2, 2), 0.4);
    table->view->StatusGrid().SetCell(5, 1);
    table->Type("B1");
    const QString folder = qEnvironmentVariable("QUENTOR_PICTURES");
    if (!folder.isEmpty())
        table->view->grab().save(
            QDir(folder).filePath(QString("statustable-%1-%2.png")
                                      .arg(GetParam() ? "dark" : "light")
                                      .arg(qRound(100 * table->view->devicePixelRatioF()))));
}

INSTANTIATE_TEST_SUITE_P(LightAndDark, StatusTableLook, testing::Bool());

// As much as a screen of 640 by 400 leaves to the view.
TEST(StatusTableInASmallWindow, ShowsEveryControlWhole) {
    const TableUnderTest table;
    const QSize small(620, 300);
    table.view->resize(small);
    QCoreApplication::processEvents();
    EXPECT_EQ(table.view->size(), small);
    for (const char* name :
         {"cmdSelectProgram", "cboTargetBoard", "chkViewNicNames", "chkViewDescriptions",
          "chkViewOffline", "fgStatus", "cmdNewTable", "cmdOpenTable", "cmdSaveTable",
          "cmdSaveTableAs", "chkAutoIncrement"}) {
        const auto& control = table.Find<QWidget>(name);
        const QRect place(control.mapTo(table.view.get(), QPoint(0, 0)), control.size());
        EXPECT_TRUE(table.view->rect().contains(place)) << name;
        EXPECT_GE(place.width(), control.minimumSizeHint().width()) << name;
    }
}
