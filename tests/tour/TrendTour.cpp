#include "tour/TrendTour.h"

#include "controls/grid/Grid.h"
#include "shell/frmMDIMain.h"
#include "tour/BoardProcess.h"
#include "tour/Hand.h"
#include "tour/TourGuide.h"
#include "tour/TourSetting.h"
#include <QAction>
#include <QCheckBox>
#include <QComboBox>
#include <QDialogButtonBox>
#include <QFile>
#include <QLineEdit>
#include <QMenu>
#include <QProcess>
#include <QPushButton>
#include <QTest>

namespace {
constexpr int liveSamples = 80;
constexpr int patience = 30; // seconds

void Always(TourGuide& guide, const QString& what, std::function<void()> act) {
    guide.Stop(
        what, [] { return true; }, std::move(act));
}

template <typename Control>
Control* InTrend(frmMDIMain& window, const char* name) {
    QWidget* view = window.Children().View(QStringLiteral("frmTrending"));
    return view ? view->findChild<Control*>(QLatin1String(name)) : nullptr;
}

void ClickInTrend(TourGuide& guide, frmMDIMain& window, const char* name) {
    Always(guide, QStringLiteral("click %1").arg(QLatin1String(name)), [&window, name] {
        QApplication::setActiveWindow(&window);
        Hand::Click(InTrend<QWidget>(window, name));
    });
}

QString Sample(frmMDIMain& window, int row, int column) {
    const Grid* grid = InTrend<Grid>(window, "fgTrend");
    return grid ? grid->TextMatrix(row, column) : QString();
}

// Lets the entry go through its list by its keys until the text stands in it.
void ChooseByKey(QComboBox* list, const QString& text) {
    list->setFocus();
    for (int entry = 0; entry < list->count() && list->currentText() != text; ++entry)
        QTest::keyClick(list, Qt::Key_Down);
}

void AddLiveTrend(TourGuide& guide, frmMDIMain& window, BoardProcess& board) {
    Always(guide, QStringLiteral("press the trend button"), [&window, &board] {
        board.Command(QStringLiteral("demo on"));
        Hand::PressButton(window, "Trend");
    });
    Always(guide, QStringLiteral("choose the board, type W104, choose 100 msec"), [&window] {
        ChooseByKey(InTrend<QComboBox>(window, "cboTargetBoard"), QStringLiteral("K2012"));
        auto* variable = InTrend<QComboBox>(window, "cboAddress");
        variable->setFocus();
        variable->lineEdit()->selectAll();
        QTest::keyClicks(variable, QStringLiteral("w104"));
        QTest::keyClick(variable, Qt::Key_Return);
        Hand::Click(InTrend<QWidget>(window, "optOptions(1)"));
        ChooseByKey(InTrend<QComboBox>(window, "cboOptions"), QStringLiteral("100 msec"));
    });
    ClickInTrend(guide, window, "chkLiveData");
    ClickInTrend(guide, window, "chkAcquire");
    guide.Stop(
        QStringLiteral("%1 samples").arg(liveSamples),
        [&window] { return !Sample(window, liveSamples, 2).isEmpty(); }, [] {}, patience);
    guide.Stop(
        QStringLiteral("the value moves"),
        [&window] { return Sample(window, 1, 2) != Sample(window, liveSamples, 2); }, [] {});
    Always(guide, QStringLiteral("point at the graph"), [&window] {
        auto* graph = InTrend<QWidget>(window, "picGraph");
        QTest::mouseMove(graph, {graph->width() / 4, graph->height() / 2});
    });
    guide.Picture(QStringLiteral("trend-live"));
}

void ChooseInPopup(TourGuide& guide, frmMDIMain& window, const char* entry, const QString& path) {
    Always(guide, QStringLiteral("choose %1").arg(QLatin1String(entry)),
           [&window, entry] { window.findChild<QAction*>(QLatin1String(entry))->trigger(); });
    guide.Stop(
        QStringLiteral("the file dialog"),
        [] { return Hand::Modal() && Hand::Modal()->inherits("QFileDialog"); },
        [path] { Hand::ChooseFile(path); });
    guide.Stop(QStringLiteral("the dialog has gone"), &Hand::NothingModal, [] {});
}

void AddSavedSample(TourGuide& guide, frmMDIMain& window, const TourSetting& setting) {
    const QString path = setting.ApplicationFolder() + QStringLiteral("/FLOW.tdt");
    ClickInTrend(guide, window, "chkAcquire");
    ChooseInPopup(guide, window, "mnuTrendingPopupSave", path);
    ClickInTrend(guide, window, "cmdClear");
    guide.Stop(
        QStringLiteral("the grid is empty"), [&window] { return Sample(window, 1, 2).isEmpty(); },
        [] {});
    ChooseInPopup(guide, window, "mnuTrendingPopupOpen", path);
    guide.Stop(
        QStringLiteral("the samples are back"),
        [&window] { return !Sample(window, liveSamples, 2).isEmpty(); }, [] {});
    ClickInTrend(guide, window, "cmdGraphData");
    guide.Picture(QStringLiteral("trend-saved"));
}

// In the system's print dialog: chooses the PDF file and presses Print.
void PrintToFile(const QString& path) {
    for (QComboBox* list : Hand::Modal()->findChildren<QComboBox*>())
        if (list->findText(QStringLiteral("Print to File (PDF)")) >= 0)
            list->setCurrentIndex(list->findText(QStringLiteral("Print to File (PDF)")));
    Hand::InModal<QLineEdit>(QStringLiteral("filename"))->setText(path);
    auto* buttons = Hand::Modal()->findChild<QDialogButtonBox*>();
    Hand::Click(buttons->button(QDialogButtonBox::Ok));
}

void AnswerPrintDialog(TourGuide& guide, const QString& path) {
    guide.Stop(
        QStringLiteral("the print dialog"),
        [] { return Hand::Modal() && Hand::Modal()->inherits("QPrintDialog"); },
        [path] { PrintToFile(path); });
}

// Pages of a PDF file as pictures beside those of the screen.
void ExpectPages(TourGuide& guide, const TourSetting& setting, const QString& pdf,
                 const QString& name) {
    const QString picture = setting.ApplicationFolder() + QStringLiteral("/../") + name;
    guide.Stop(
        QStringLiteral("the pages of ") + name,
        [pdf, picture] {
            if (!QFile::exists(pdf))
                return false;
            const int result = QProcess::execute(
                QStringLiteral("pdftoppm"),
                {QStringLiteral("-png"), QStringLiteral("-r"), QStringLiteral("80"), pdf, picture});
            return result == 0 && QFile::exists(picture + QStringLiteral("-1.png"));
        },
        [] {});
}

void AddPrinting(TourGuide& guide, frmMDIMain& window, const TourSetting& setting) {
    const QString folder = setting.ApplicationFolder();
    const QString trend = folder + QStringLiteral("/trend.pdf");
    Always(guide, QStringLiteral("choose Print Trending Data"), [&window] {
        window.findChild<QAction*>(QStringLiteral("mnuFilePrintTrendData"))->trigger();
    });
    guide.Stop(
        QStringLiteral("check both, press Setup"),
        [] { return Hand::ModalTitle() == QStringLiteral("Print -Trending"); },
        [] {
            Hand::ClickInModal(QStringLiteral("chkGraph"));
            Hand::ClickInModal(QStringLiteral("chkTrendData"));
            Hand::ClickInModal(QStringLiteral("cmdSetup"));
        });
    AnswerPrintDialog(guide, trend);
    guide.Stop(
        QStringLiteral("the file's path is shown"),
        [trend] { return Hand::ModalLabel(QStringLiteral("lblPrinter")) == trend; }, [] {});
    guide.Picture(QStringLiteral("trend-print"));
    Always(guide, QStringLiteral("press OK"), [] { Hand::ClickInModal(QStringLiteral("cmdOk")); });
    guide.Stop(QStringLiteral("printed"), &Hand::NothingModal, [] {});
    ExpectPages(guide, setting, trend, QStringLiteral("report-trend"));
    ExpectPages(guide, setting, folder + QStringLiteral("/trend-2.pdf"),
                QStringLiteral("report-graph"));
    const QString table = folder + QStringLiteral("/table.pdf");
    Always(guide, QStringLiteral("print the status table"), [&window] {
        Hand::PressButton(window, "Status");
        window.findChild<QAction*>(QStringLiteral("mnuFilePrintStatusTable"))->trigger();
    });
    AnswerPrintDialog(guide, table);
    guide.Stop(QStringLiteral("the table is printed"), &Hand::NothingModal, [] {});
    ExpectPages(guide, setting, table, QStringLiteral("report-table"));
}
} // namespace

void AddTrending(TourGuide& guide, frmMDIMain& window, BoardProcess& board,
                 const TourSetting& setting) {
    AddLiveTrend(guide, window, board);
    AddSavedSample(guide, window, setting);
    AddPrinting(guide, window, setting);
}
