#include "controls/QtDialogs.h"

#include "base/RunTimeError.h"
#include "base/ViewLoop.h"
#include <functional>
#include <gtest/gtest.h>
#include <QAbstractButton>
#include <QApplication>
#include <QComboBox>
#include <QDialogButtonBox>
#include <QDir>
#include <QFile>
#include <QFileDialog>
#include <QInputDialog>
#include <QLineEdit>
#include <QMessageBox>
#include <QPrintDialog>
#include <QPushButton>
#include <QTemporaryDir>
#include <QTest>
#include <QTimer>

namespace {
/// Runs `action` on the modal view as soon as the next one is up.
template <typename View>
void WhenUp(std::function<void(View&)> action) {
    QTimer::singleShot(0, qApp, [action = std::move(action)] {
        auto* view = qobject_cast<View*>(QApplication::activeModalWidget());
        if (view)
            action(*view);
        else
            WhenUp<View>(action);
    });
}

int ErrorOf(const std::function<void()>& call) {
    try {
        call();
    } catch (const RunTimeError& error) {
        return error.Number();
    }
    return 0;
}
} // namespace

TEST(NameFilters, TakeLabelAndPatternInBothLetterCases) {
    EXPECT_EQ(NameFilters("Halden Files(*.hdn)|*.hdn|"), QStringList{"Halden Files (*.hdn *.HDN)"});
    const QStringList two = NameFilters("Status Tables (*.tbl)|*.tbl|All Files|*.*|");
    EXPECT_EQ(two.join(u'|').toStdString(), "Status Tables (*.tbl *.TBL)|All Files (*.*)");
    EXPECT_TRUE(NameFilters(QString()).isEmpty());
}

TEST(QtDialogs, ABoxShowsTextTitleAndButtonsAndHoldsTheLoops) {
    QtDialogs dialogs;
    WhenUp<QMessageBox>([](QMessageBox& box) {
        EXPECT_EQ(box.text().toStdString(), "First\n\n<b>Second</b>");
        EXPECT_EQ(box.textFormat(), Qt::PlainText);
        EXPECT_EQ(box.windowTitle().toStdString(), "Title");
        EXPECT_EQ(box.icon(), QMessageBox::Information);
        EXPECT_EQ(box.buttons().size(), 3);
        EXPECT_TRUE(ViewLoopHold::AnyHeld());
        QWidget* no = box.button(QMessageBox::No);
        QTest::mouseClick(no, Qt::LeftButton);
    });
    EXPECT_EQ(
        dialogs.MsgBox("First\r\n\r\n<b>Second</b>", MsgStyle::YesNoCancelInformation, "Title"),
        MsgAnswer::No);
    EXPECT_FALSE(ViewLoopHold::AnyHeld());
}

TEST(QtDialogs, EnterTakesTheDefaultButton) {
    QtDialogs dialogs;
    WhenUp<QMessageBox>([](QMessageBox& box) { QTest::keyClick(&box, Qt::Key_Return); });
    EXPECT_EQ(dialogs.MsgBox("Replace?", MsgStyle::YesNoExclamationSecond, "Create"),
              MsgAnswer::No);
}

TEST(QtDialogs, EscapeCancels) {
    QtDialogs dialogs;
    WhenUp<QMessageBox>([](QMessageBox& box) { QTest::keyClick(&box, Qt::Key_Escape); });
    EXPECT_EQ(dialogs.MsgBox("Again?", MsgStyle::CriticalRetryCancel, "Link"), MsgAnswer::Cancel);
    WhenUp<QMessageBox>([](QMessageBox& box) { QTest::keyClick(&box, Qt::Key_Escape); });
    EXPECT_EQ(dialogs.MsgBox("Done.", MsgStyle::Information, "Link"), MsgAnswer::Ok);
}

TEST(QtDialogs, AnInputBoxGivesTheTextOrNothing) {
    QtDialogs dialogs;
    WhenUp<QInputDialog>([](QInputDialog& box) {
        auto* entry = box.findChild<QLineEdit*>();
        EXPECT_EQ(entry->text().toStdString(), "Old");
        entry->selectAll();
        QTest::keyClicks(entry, "New");
        QTest::keyClick(entry, Qt::Key_Return);
    });
    EXPECT_EQ(dialogs.InputBox("Enter Program Title.", "A.LTL", "Old").toStdString(), "New");
    WhenUp<QInputDialog>([](QInputDialog& box) { box.reject(); });
    EXPECT_TRUE(dialogs.InputBox("Enter Program Title.", "A.LTL", "Old").isEmpty());
}

TEST(QtDialogs, TheOpenDialogStartsOnTheFileAndGivesIt) {
    QTemporaryDir folder;
    const QString path = folder.filePath("A.hdn");
    ASSERT_TRUE(QFile(path).open(QIODevice::WriteOnly));
    FileDialogRequest request;
    request.fileName = path;
    request.initDir = folder.path();
    request.filter = "Halden Files(*.hdn)|*.hdn|";
    request.flags = DialogFlag::FileMustExist;
    QtDialogs dialogs;
    WhenUp<QFileDialog>([&](QFileDialog& dialog) {
        EXPECT_EQ(dialog.directory(), QDir(folder.path()));
        EXPECT_EQ(dialog.selectedNameFilter().toStdString(), "Halden Files (*.hdn *.HDN)");
        EXPECT_TRUE(ViewLoopHold::AnyHeld());
        QTest::keyClick(dialog.findChild<QLineEdit*>(), Qt::Key_Return);
    });
    EXPECT_EQ(QFileInfo(dialogs.ShowOpen(request)), QFileInfo(path));
}

TEST(QtDialogs, CancelOfAFileDialogIsError32755) {
    QtDialogs dialogs;
    FileDialogRequest request;
    request.fileName = " ";
    WhenUp<QFileDialog>([](QFileDialog& dialog) {
        EXPECT_TRUE(dialog.findChild<QLineEdit*>()->text().trimmed().isEmpty());
        dialog.reject();
    });
    EXPECT_EQ(ErrorOf([&] { dialogs.ShowOpen(request); }), ErrorNumber::DialogCancel);
    WhenUp<QFileDialog>([](QFileDialog& dialog) { dialog.reject(); });
    EXPECT_EQ(ErrorOf([&] { dialogs.ShowSave(request); }), ErrorNumber::DialogCancel);
}

TEST(QtDialogs, ASaveAsksBeforeOverwritingOnlyWhenToldTo) {
    QtDialogs dialogs;
    FileDialogRequest request;
    WhenUp<QFileDialog>([](QFileDialog& dialog) {
        EXPECT_TRUE(dialog.testOption(QFileDialog::DontConfirmOverwrite));
        dialog.reject();
    });
    EXPECT_EQ(ErrorOf([&] { dialogs.ShowSave(request); }), ErrorNumber::DialogCancel);
    request.flags = DialogFlag::OverwritePrompt;
    WhenUp<QFileDialog>([](QFileDialog& dialog) {
        EXPECT_FALSE(dialog.testOption(QFileDialog::DontConfirmOverwrite));
        dialog.reject();
    });
    EXPECT_EQ(ErrorOf([&] { dialogs.ShowSave(request); }), ErrorNumber::DialogCancel);
}

TEST(SavedSuffix, IsThatOfTheFirstPatternIfItIsASingleOne) {
    EXPECT_EQ(SavedSuffix("Trend Data(*.tdt)|*.tdt|"), "tdt");
    EXPECT_EQ(SavedSuffix("All Files|*.*|"), QString());
    EXPECT_EQ(SavedSuffix("Tables|*.tbl;*.txt|"), QString());
    EXPECT_EQ(SavedSuffix(QString()), QString());
}

TEST(QtDialogs, ASavedNameGetsTheSuffixOfTheFilter) {
    const QTemporaryDir folder;
    WhenUp<QFileDialog>([&](QFileDialog& dialog) {
        dialog.findChild<QLineEdit*>(QStringLiteral("fileNameEdit"))
            ->setText(folder.filePath(QStringLiteral("press")));
        dialog.findChild<QDialogButtonBox*>()->button(QDialogButtonBox::Save)->click();
    });
    FileDialogRequest request;
    request.filter = QStringLiteral("Trend Data(*.tdt)|*.tdt|");
    QtDialogs dialogs;
    EXPECT_EQ(dialogs.ShowSave(request), folder.filePath(QStringLiteral("press.tdt")));
}

TEST(QtDialogs, ThePrintDialogOffersAPdfFileWhetherOrNotThereIsAPrinter) {
    const QTemporaryDir folder;
    const QString path = folder.filePath(QStringLiteral("report.pdf"));
    WhenUp<QPrintDialog>([&](QPrintDialog& dialog) {
        QComboBox* pdf = nullptr;
        for (QComboBox* list : dialog.findChildren<QComboBox*>())
            if (list->findText(QStringLiteral("Print to File (PDF)")) >= 0)
                pdf = list;
        ASSERT_NE(pdf, nullptr);
        pdf->setCurrentIndex(pdf->findText(QStringLiteral("Print to File (PDF)")));
        auto* file = dialog.findChild<QLineEdit*>(QStringLiteral("filename"));
        ASSERT_NE(file, nullptr);
        file->setText(path);
        dialog.findChild<QDialogButtonBox*>()->button(QDialogButtonBox::Ok)->click();
    });
    QtDialogs dialogs;
    const PrinterChoice choice = dialogs.ShowPrinter();
    EXPECT_EQ(choice.outputFile, path);
    EXPECT_TRUE(choice.printerName.isEmpty());
    EXPECT_EQ(choice.copies, 1);
}

TEST(QtDialogs, CancelOfThePrintDialogRaisesTheDialogsError) {
    WhenUp<QPrintDialog>([](QPrintDialog& dialog) { dialog.reject(); });
    QtDialogs dialogs;
    EXPECT_EQ(ErrorOf([&] { dialogs.ShowPrinter(); }), ErrorNumber::DialogCancel);
}
