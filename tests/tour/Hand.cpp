#include "tour/Hand.h"

#include "controls/grid/Grid.h"
#include "shell/frmMDIMain.h"
#include <QAbstractButton>
#include <QDialogButtonBox>
#include <QFileDialog>
#include <QLineEdit>
#include <QPushButton>
#include <QTest>
#include <QToolButton>

namespace Hand {

QString ModalTitle() {
    return Modal() ? Modal()->windowTitle() : QString();
}

QString ModalLabel(const QString& name) {
    const auto* label = InModal<QLabel>(name);
    return label ? label->text() : QString();
}

QString Panel(const frmMDIMain& window, int panel) {
    const auto* label = window.findChild<QLabel*>(QStringLiteral("sbrMain(%1)").arg(panel));
    return label ? label->text() : QStringLiteral("(no panel)");
}

QString BusyText() {
    return ModalLabel(QStringLiteral("lblWaitDisplay"));
}

void Click(QWidget* control) {
    if (!control)
        return;
    const bool button = qobject_cast<QPushButton*>(control) || qobject_cast<QToolButton*>(control);
    const QPoint middle = control->rect().center();
    const QPoint mark(control->height() / 2, middle.y());
    QTest::mouseClick(control, Qt::LeftButton, {}, button ? middle : mark);
}

void ClickInModal(const QString& name) {
    Click(InModal<QAbstractButton>(name));
}

void PressButton(const frmMDIMain& window, const char* key) {
    Click(window.findChild<QToolButton*>(QLatin1String(key)));
}

// A key goes to the active window, which the last box has been until now.
void PressKey(frmMDIMain& window, Qt::Key key) {
    QApplication::setActiveWindow(&window);
    QTest::keyClick(&window, key);
}

bool ClickRow(QAbstractItemView& list, const QString& text) {
    const QModelIndexList found =
        list.model()->match(list.model()->index(0, 0), Qt::DisplayRole, text, 1, Qt::MatchExactly);
    if (found.isEmpty())
        return false;
    list.scrollTo(found.front());
    QTest::mouseClick(list.viewport(), Qt::LeftButton, {}, list.visualRect(found.front()).center());
    return true;
}

void TypeOver(const QString& name, const QString& text) {
    auto* entry = InModal<QLineEdit>(name);
    if (!entry)
        return;
    QApplication::setActiveWindow(Modal());
    entry->setFocus();
    QTest::keyClick(entry, Qt::Key_A, Qt::ControlModifier);
    QTest::keyClicks(entry, text);
    QTest::keyClick(entry, Qt::Key_Return);
}

// The path goes in at once: typed key by key it would open the list of file names.
void ChooseFile(const QString& path) {
    auto* dialog = qobject_cast<QFileDialog*>(Modal());
    auto* entry = InModal<QLineEdit>(QStringLiteral("fileNameEdit"));
    auto* buttons = InModal<QDialogButtonBox>(QStringLiteral("buttonBox"));
    if (!dialog || !entry || !buttons)
        return;
    entry->setText(path);
    const bool saves = dialog->acceptMode() == QFileDialog::AcceptSave;
    Click(buttons->button(saves ? QDialogButtonBox::Save : QDialogButtonBox::Open));
}

void ClickCell(Grid& grid, int row, int col) {
    const QRect cell = grid.visualRect(grid.model()->index(row - grid.FixedRows(), col));
    QTest::mouseClick(grid.viewport(), Qt::LeftButton, {}, cell.center());
}

void TypeInto(Grid& grid, const QString& text) {
    QTest::keyClicks(&grid, text);
    QTest::keyClick(&grid, Qt::Key_Return);
}

} // namespace Hand
