#pragma once

#include "controls/entry/EntryRules.h"
#include <functional>
#include <optional>
#include <QObject>
#include <QString>
#include <vector>

class Dialogs;
class EntryUpDown;
class QFocusEvent;
class QLineEdit;
class QWidget;

/// The numeric entries of one view at work: text boxes with an up-down of the same index. Enter
/// moves on, Escape restores, a second Escape leaves for the hidden button cmdDefault. A text that
/// is not accepted is told to the user by a box, and the entry keeps the focus with its old value.
/// An entry counts as left when the focus goes elsewhere in the program; another window in front
/// or a menu is no leaving. Nothing is signalled for what the user did not accept.
class NumericEntries : public QObject {
    Q_OBJECT
public:
    /// Title of the refusal box of an entry.
    using TitleOf = std::function<QString(int index)>;

    /// Entries 0 to `count` - 1 are added later. `dialogs` shows the refusals; `cmdDefault` is the
    /// hidden button that takes the focus (see MakeDefaultButton). Both must outlive the object.
    NumericEntries(int count, Dialogs& dialogs, QWidget& cmdDefault, TitleOf titleOf,
                   QObject* parent = nullptr);

    /// Takes an entry in; box and up-down must outlive the object or die with the view.
    void Add(int index, QLineEdit& box, EntryUpDown& upDown);
    /// Enables or disables box and up-down. An entry that is disabled while the user is in it is
    /// left without taking what was typed.
    void SetEnabled(int index, bool enabled);
    /// A text was refused and its entry does not have the focus back yet: clicks that came with
    /// the leaving do not count.
    bool Refuses() const { return refused_.has_value(); }

Q_SIGNALS:
    /// The entry got the focus.
    void Entered(int index);
    /// The entry was left with a text that is within its range.
    void Accepted(int index, const QString& text);
    /// The up-down changed the text; the focus is at cmdDefault.
    void Stepped(int index, const QString& text);
    /// The entry was left without taking what was typed.
    void Abandoned(int index);

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    struct Pair {
        QLineEdit* box = nullptr;
        EntryUpDown* upDown = nullptr;
    };

    std::optional<int> IndexOf(const QObject* object) const;
    Pair& At(int index) { return pairs_[static_cast<std::size_t>(index)]; }
    void GotFocus(int index, bool byMouse);
    bool KeyPressed(int index, int key);
    void EscapePressed(int index);
    void LostFocus(int index);
    void ShowRefusal();
    void UpDownChanged(int index);
    void LeaveForDefault();

    Dialogs& dialogs_;
    QWidget& cmdDefault_;
    TitleOf titleOf_;
    EntryRules rules_;
    std::vector<Pair> pairs_;
    std::optional<int> refused_;
    bool leavesUnchecked_ = false;
};

/// Whether a change of the focus is one between the controls of the program: another window in
/// front or a menu is no leaving of an entry.
bool IsWithinProgram(const QFocusEvent& event);

class QPushButton;
/// Makes the hidden default button of a view: no part of the tab order and too small to be seen,
/// but able to hold the focus. Enter on it does nothing.
QPushButton* MakeDefaultButton(QWidget& view);
