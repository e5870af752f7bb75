#include "bench/BrowserRow.h"

#include "bench/BenchFiles.h"
#include "bench/BenchProgram.h"
#include "bench/Median.h"
#include "bench/PaintWatch.h"
#include "shell/FileList.h"
#include "shell/frmMain.h"
#include "shell/ProgramTreeView.h"
#include <QCoreApplication>
#include <QDir>
#include <QKeyEvent>
#include <stdexcept>

namespace bench {

namespace {
constexpr double limit = 50; // milliseconds
constexpr int sets = 2500;   // of four files each
constexpr int selections = 41;

QString SetName(int number) {
    return QStringLiteral("SET%1").arg(number, 4, 10, QLatin1Char('0'));
}

void WriteSets(const QString& folder) {
    QDir().mkpath(folder);
    for (int number = 0; number < sets; ++number) {
        const QString base = folder + u'/' + SetName(number);
        WriteFile(base + QStringLiteral(".hdn"), "D\r\n");
        WriteFile(base + QStringLiteral(".lmn"), "ladder\r\n");
        WriteFile(base + QStringLiteral(".rev"), "SET:301\r\n");
        WriteFile(base + QStringLiteral(".HEX"), ":00000001FF\r\n");
    }
}

template <class Child>
Child& ChildOf(QWidget& parent) {
    auto* child = parent.findChild<Child*>();
    if (!child)
        throw std::runtime_error("a part of the browser is missing");
    return *child;
}

void PressDown(QWidget& widget) {
    QCoreApplication::postEvent(&widget,
                                new QKeyEvent(QEvent::KeyPress, Qt::Key_Down, Qt::NoModifier));
}
} // namespace

Row MeasureBrowser() {
    const QString startFolder = QDir::currentPath(); // the browser moves on to the folder it shows
    BenchProgram program;
    const QString folder = program.directory.filePath(QStringLiteral("sets"));
    WriteSets(folder);
    frmMain& browser = program.application.MainWindow().Browser();
    browser.RefreshFileList(folder + u'/' + SetName(0) + QStringLiteral(".hdn"));
    auto& files = ChildOf<FileList>(browser);
    auto& tree = ChildOf<ProgramTreeView>(browser);
    std::vector<double> times;
    for (int number = 1; number <= selections; ++number) {
        program.Run(0.02);
        const double seconds = SecondsUntilShown(
            *tree.viewport(), [&] { PressDown(files); },
            [&] {
                const QTreeWidgetItem* root = tree.topLevelItem(0);
                return root && root->childCount() > 0 && root->text(0).contains(SetName(number));
            });
        times.push_back(seconds * 1000);
    }
    QDir::setCurrent(startFolder);
    return RowOfLimit(QStringLiteral("ms to select a set of 10,000 files : limit"), Median(times),
                      limit);
}

} // namespace bench
