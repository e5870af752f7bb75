#include "Controls.h"
#include "ViewsUnderTest.h"
#include <QAbstractButton>
#include <QAction>
#include <QGroupBox>
#include <QKeySequence>
#include <QLabel>
#include <QMap>
#include <QMenuBar>
#include <QTabBar>

// The underlined letters of a view: none may mean two things. A letter that two controls share is
// not lost, pressing it again goes on to the other; yet the user has to look.

namespace {
// Every letter that is live, with what it belongs to.
class Letters {
public:
    void Add(const QString& caption, const std::string& owner) {
        const QKeySequence letter = QKeySequence::mnemonic(caption);
        if (!letter.isEmpty())
            owners_[letter.toString()].push_back(owner);
    }
    void AddControlsOf(const QWidget& view);
    void AddMenus(const QMenuBar& bar) {
        for (const QAction* menu : bar.actions())
            if (menu->isVisible())
                Add(menu->text(), "menu " + menu->text().toStdString());
    }
    QStringList Shared() const {
        QStringList shared;
        for (auto letter = owners_.begin(); letter != owners_.end(); ++letter)
            if (letter->size() > 1)
                shared << letter.key();
        return shared;
    }

private:
    QMap<QString, std::vector<std::string>> owners_;
};

void Letters::AddControlsOf(const QWidget& view) {
    for (const QWidget* control : view.findChildren<QWidget*>()) {
        if (!control->isVisible() || !control->isEnabled())
            continue;
        const std::string name = Controls::NameOf(control);
        if (const auto* button = qobject_cast<const QAbstractButton*>(control))
            Add(button->text(), name);
        else if (const auto* label = qobject_cast<const QLabel*>(control); label && label->buddy())
            Add(label->text(), name);
        else if (const auto* frame = qobject_cast<const QGroupBox*>(control))
            Add(frame->title(), name);
        else if (const auto* tabs = qobject_cast<const QTabBar*>(control))
            for (int tab = 0; tab < tabs->count(); ++tab)
                Add(tabs->tabText(tab), name);
    }
}

// Captions that are what they are.
QStringList KnownSharedLetters(const std::string& view) {
    if (view == "StatusTable")
        return {QStringLiteral("Alt+S")}; // the menu and the table, both "Status Table"
    return {};
}

class Mnemonics : public EveryView {};
} // namespace

TEST_P(Mnemonics, NoLetterMeansTwoThings) {
    LookAtView([this](QWidget& view) {
        Letters letters;
        letters.AddControlsOf(view);
        if (view.window() == &Window())
            letters.AddMenus(*Window().menuBar());
        EXPECT_EQ(letters.Shared(), KnownSharedLetters(GetParam().name));
    });
}

INSTANTIATE_TEST_SUITE_P(Views, Mnemonics, testing::ValuesIn(ViewCases()),
                         [](const auto& view) { return std::string(view.param.name); });
