#include "tour/ProgramSetTour.h"

#include "shell/frmMDIMain.h"
#include "tour/BoardProcess.h"
#include "tour/Hand.h"
#include "tour/TourGuide.h"
#include "tour/TourSetting.h"
#include <QAction>
#include <QComboBox>
#include <QDir>
#include <QFile>
#include <QLineEdit>
#include <QListView>
#include <QMenu>
#include <QPushButton>
#include <QTest>

namespace {
void Always(TourGuide& guide, const QString& what, std::function<void()> act) {
    guide.Stop(
        what, [] { return true; }, std::move(act));
}

void Choose(frmMDIMain& window, const char* entry) {
    window.Commands().Action(QLatin1String(entry))->trigger();
}

// Names of the files of a set, in name order, parted by blanks.
QString FilesOfSet(const TourSetting& setting, const QString& base) {
    const QDir folder(QFileInfo(setting.Sample(base)).path());
    return folder
        .entryList({base + QLatin1String(".*")}, QDir::Files, QDir::Name | QDir::IgnoreCase)
        .join(u' ');
}

bool SelectSet(frmMDIMain& window, const QString& file) {
    auto* list = window.findChild<QListView*>(QStringLiteral("filFileList"));
    return list && Hand::ClickRow(*list, file);
}

void OpenPopup(frmMDIMain& window, const QString& file) {
    SelectSet(window, file);
    auto* list = window.findChild<QListView*>(QStringLiteral("filFileList"));
    const QPoint place = list->visualRect(list->currentIndex()).center();
    QContextMenuEvent event(QContextMenuEvent::Mouse, place, list->viewport()->mapToGlobal(place));
    QApplication::sendEvent(list->viewport(), &event);
}

QString EnabledIn(frmMDIMain& window, const char* entry) {
    return window.Commands().Action(QLatin1String(entry))->isEnabled() ? QStringLiteral("enabled")
                                                                       : QStringLiteral("disabled");
}

// Opens the popup of a set, looks whether the download of a program is offered, and closes it.
void AddPopup(TourGuide& guide, frmMDIMain& window, const QString& file, const QString& picture,
              const QString& downloadProgram) {
    Always(guide, QStringLiteral("right click on ") + file,
           [&window, file] { OpenPopup(window, file); });
    guide.Stop(
        QStringLiteral("the popup is up"),
        [] { return QApplication::activePopupWidget() != nullptr; }, [] {});
    guide.Expect(
        QStringLiteral("Download Program"),
        [&window] { return EnabledIn(window, "mnuFileListPopupDownloadProg"); }, downloadProgram);
    guide.Picture(picture);
    Always(guide, QStringLiteral("press Escape"),
           [] { QTest::keyClick(QApplication::activePopupWidget(), Qt::Key_Escape); });
}

// Without Return, which would copy at once.
void TypeDestination() {
    if (auto* destination = Hand::InModal<QLineEdit>(QStringLiteral("txtDestination"))) {
        destination->selectAll();
        QTest::keyClicks(destination, QStringLiteral("SPARE.hdn"));
    }
}

void AddCopy(TourGuide& guide, frmMDIMain& window, const TourSetting& setting) {
    Always(guide, QStringLiteral("select LINE2.hdn, choose Save Halden Program As"), [&window] {
        SelectSet(window, QStringLiteral("LINE2.hdn"));
        Choose(window, "mnuFileSaveAs");
    });
    guide.Stop(
        QStringLiteral("the copy view is up"),
        [] { return Hand::Modal() && Hand::Modal()->objectName() == QLatin1String("frmCopyFile"); },
        &TypeDestination);
    guide.Picture(QStringLiteral("copy"));
    Always(guide, QStringLiteral("press Copy"),
           [] { Hand::ClickInModal(QStringLiteral("cmdCopy")); });
    guide.Expect(
        QStringLiteral("the copy"),
        [&setting] { return FilesOfSet(setting, QStringLiteral("SPARE")); },
        QStringLiteral("SPARE.HDN SPARE.HEX SPARE.LTL SPARE.REV"));
    guide.Stop(
        QStringLiteral("the copying has ended: press Ok"),
        [] {
            auto* copy = Hand::InModal<QPushButton>(QStringLiteral("cmdCopy"));
            return copy && copy->isEnabled();
        },
        [] { Hand::ClickInModal(QStringLiteral("cmdCancel")); });
    guide.Stop(QStringLiteral("the copy view has gone"), &Hand::NothingModal, [] {});
}

void AddRename(TourGuide& guide, frmMDIMain& window, const TourSetting& setting) {
    Always(guide, QStringLiteral("select the copy, choose Rename in its popup"), [&window] {
        SelectSet(window, QStringLiteral("SPARE.HDN"));
        Choose(window, "mnuFileListPopupRename");
    });
    guide.Expect(QStringLiteral("the input box"), &Hand::ModalTitle, QStringLiteral("Rename"));
    guide.Picture(QStringLiteral("rename"));
    Always(guide, QStringLiteral("type LINE3 and Return"),
           [] { Hand::TypeOver(QString(), QStringLiteral("LINE3")); });
    guide.Expect(
        QStringLiteral("the set under its new name"),
        [&setting] { return FilesOfSet(setting, QStringLiteral("LINE3")); },
        QStringLiteral("LINE3.HDN LINE3.HEX LINE3.LTL LINE3.REV"));
    guide.Expect(
        QStringLiteral("what is left under the old one"),
        [&setting] { return FilesOfSet(setting, QStringLiteral("SPARE")); }, QString());
}

void NameNewSet() {
    if (auto* boards = Hand::InModal<QComboBox>(QStringLiteral("cboNew")))
        boards->setCurrentText(QStringLiteral("K2024"));
    Hand::TypeOver(QStringLiteral("txtNew"), QStringLiteral("READBACK"));
}

// Type, the byte count and the first address of each line are checked: 8 KiB from 2000H on.
QString UploadVerdict(const QString& path) {
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly))
        return QStringLiteral("no file");
    const QByteArrayList lines = file.readAll().split('\n');
    for (int line = 0; line < 512; ++line) {
        const QByteArray head = ":10" + QByteArray::number(0x2000 + line * 16, 16).toUpper() + "00";
        if (lines.size() < 514 || !lines[line].startsWith(head) || lines[line].size() != 42)
            return QStringLiteral("line %1 is another").arg(line + 1);
    }
    return lines[512].trimmed() == ":00000001FF" ? QStringLiteral("whole")
                                                 : QStringLiteral("without its end");
}

// The line is not paced meanwhile: 8 KiB would take 34 seconds at 9600 baud.
void AddUpload(TourGuide& guide, frmMDIMain& window, BoardProcess& board,
               const TourSetting& setting) {
    const QString title = QStringLiteral("Program Upload [READBACK]");
    Always(guide, QStringLiteral("choose Upload PLC/PLS Program"), [&window, &board] {
        board.Command(QStringLiteral("unpaced"));
        Choose(window, "mnuFileUploadProgram");
    });
    guide.Stop(
        QStringLiteral("the view for the name is up"),
        [] { return Hand::Modal() && Hand::Modal()->objectName() == QLatin1String("frmNewFile"); },
        [] {});
    guide.Picture(QStringLiteral("new-set"));
    Always(guide, QStringLiteral("choose K2024, type READBACK and Return"), &NameNewSet);
    guide.AnswerBox(title, QStringLiteral("Yes"), QStringLiteral("upload-program-question"));
    guide.AnswerBox(QStringLiteral("Program Upload"), QStringLiteral("OK"),
                    QStringLiteral("upload-program-complete"), 60.0);
    guide.Stop(QStringLiteral("the view has gone"), &Hand::NothingModal,
               [&board] { board.Command(QStringLiteral("baud 9600")); });
    guide.Expect(
        QStringLiteral("the uploaded image"),
        [&setting] { return UploadVerdict(setting.Sample(QStringLiteral("READBACK.hex"))); },
        QStringLiteral("whole"));
}

void AddPortSettings(TourGuide& guide, frmMDIMain& window) {
    Always(guide, QStringLiteral("choose Comm Port"),
           [&window] { Choose(window, "mnuEditCommPort"); });
    guide.Expect(QStringLiteral("the dialog"), &Hand::ModalTitle,
                 QStringLiteral("Comm Port Settings"));
    guide.Picture(QStringLiteral("port-settings"));
    Always(guide, QStringLiteral("press Cancel"),
           [] { Hand::ClickInModal(QStringLiteral("cmdCancel")); });
    guide.Stop(QStringLiteral("the dialog has gone"), &Hand::NothingModal, [] {});
}
} // namespace

void AddProgramSets(TourGuide& guide, frmMDIMain& window, BoardProcess& board,
                    const TourSetting& setting) {
    AddPopup(guide, window, QStringLiteral("PUMP1.hdn"), QStringLiteral("popup-plc"),
             QStringLiteral("enabled"));
    AddPopup(guide, window, QStringLiteral("CAM1.hdn"), QStringLiteral("popup-pls"),
             QStringLiteral("disabled"));
    AddCopy(guide, window, setting);
    AddRename(guide, window, setting);
    AddUpload(guide, window, board, setting);
    AddPortSettings(guide, window);
}
