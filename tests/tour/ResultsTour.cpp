#include "tour/ResultsTour.h"

#include "base/TextFile.h"
#include "controls/grid/Grid.h"
#include "shell/frmMDIMain.h"
#include "tour/Hand.h"
#include "tour/TourGuide.h"
#include "tour/TourSetting.h"
#include <QAction>
#include <QPlainTextEdit>

namespace {
void Always(TourGuide& guide, const QString& what, std::function<void()> act) {
    guide.Stop(
        what, [] { return true; }, std::move(act));
}

void Trigger(TourGuide& guide, frmMDIMain& window, const char* entry) {
    Always(guide, QStringLiteral("choose %1").arg(QLatin1String(entry)),
           [&window, entry] { window.Commands().Action(QLatin1String(entry))->trigger(); });
}

void ChoosePUMP1(TourGuide& guide, const TourSetting& setting) {
    const QString set = setting.Sample(QStringLiteral("PUMP1.hdn"));
    guide.Stop(
        QStringLiteral("choose PUMP1.hdn"),
        [] { return Hand::Modal() && Hand::Modal()->inherits("QFileDialog"); },
        [set] { Hand::ChooseFile(set); });
}

void WriteErrors(const QString& path) {
    TextWriter file(path);
    for (const char* line : {"COMPILER REPORT", "PROGRAM: PUMP1", "", "  41  OUT Y1",
                             "      ERROR 12: point is driven twice", "  87  LOD B115.9",
                             "      ERROR 31: a byte has bits 0 to 7", "", "2 ERRORS"})
        file.PrintText(QLatin1String(line));
    file.Close();
}

QString ShownErrors(frmMDIMain& window) {
    QWidget* view = window.Children().View(QStringLiteral("frmViewResults"));
    auto* text = view ? view->findChild<QPlainTextEdit*>() : nullptr;
    return text ? text->toPlainText().section(u'\n', 0, 0) : QString();
}
} // namespace

void AddResults(TourGuide& guide, frmMDIMain& window, const TourSetting& setting) {
    Always(guide, QStringLiteral("the compiler left its errors"),
           [&setting] { WriteErrors(setting.Sample(QStringLiteral("PUMP1.err"))); });
    Trigger(guide, window, "mnuViewCompileErrors");
    ChoosePUMP1(guide, setting);
    guide.Expect(
        QStringLiteral("the first line"), [&window] { return ShownErrors(window); },
        QStringLiteral("COMPILER REPORT"));
    guide.Picture(QStringLiteral("results"));
    Always(guide, QStringLiteral("close the results"),
           [&window] { window.Children().Hide(QStringLiteral("frmViewResults")); });
    Always(guide, QStringLiteral("open the documentation, whose entry is hidden"),
           [&window] { window.Commands().Run(QStringLiteral("mnuEditVarDoc")); });
    ChoosePUMP1(guide, setting);
    guide.Stop(
        QStringLiteral("the variables are listed"),
        [] { return Hand::Modal() && Hand::Modal()->objectName() == QStringLiteral("frmEditDoc"); },
        [] {});
    guide.Picture(QStringLiteral("variable-documentation"));
    Always(guide, QStringLiteral("close it"), [] { Hand::ClickInModal(QStringLiteral("cmdOk")); });
    guide.Stop(QStringLiteral("it has gone"), &Hand::NothingModal, [] {});
}
