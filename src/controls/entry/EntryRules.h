#pragma once

#include <QString>
#include <vector>

/// What an up-down lets its entry hold, both ends included. 0 to 100 is the range of an up-down
/// that was given none.
struct EntryRange {
    int min = 0;
    int max = 100;
};

/// The rules of the numeric entries of one view, without its window: which text is accepted, what
/// Escape puts back, when Escape leaves. Entries are told by index, 0 to count - 1; they share one
/// flag, Escape pressed once. An index must be one of theirs.
class EntryRules {
public:
    /// What Escape does in an entry.
    struct Escape {
        QString text; ///< goes back into the entry
        bool leaves;  ///< the focus goes to the view's hidden button; else the text is selected
    };

    /// Rules of `count` entries, 1 or more; their indexes below are 0 to count - 1.
    explicit EntryRules(int count);

    /// Whether an entry may be left with this text: a whole number in plain digits within the
    /// range. Fractions and exponents are numbers too, but the link would send "12.5" as 125.
    static bool Accepts(const QString& text, EntryRange range);
    /// Message of a refusal: "Only a Number Between 1 and 32 can be Entered".
    static QString Refusal(EntryRange range);
    /// Number of an entry after its up-down went up or down by `difference`: from the number in
    /// the entry, or from `last` where there is none, held within the range.
    static int Stepped(const QString& text, int last, int difference, EntryRange range);

    /// The entry got the focus: its number is remembered.
    void GotFocus(int index, const QString& text);
    /// Any key but Escape, a step of the up-down, or the entry is left.
    void ForgetEscape() { escapePressed_ = false; }
    Escape EscapePressed(int index);
    /// The number that the entry held when it got the focus; "0" where there was none.
    QString Remembered(int index) const;

private:
    std::vector<qint64> remembered_;
    bool escapePressed_ = false;
};
