#include "programset/ExtensionFamily.h"

#include <algorithm>
#include <array>

namespace {
struct Sibling {
    const char16_t* extension; // upper case
    const char16_t* label;     // empty: known to the system, but not listed
    NodeAction action;
};

constexpr std::array<Sibling, 14> family = {{
    {u"LIN", u"INIT", NodeAction::OpenSource},
    {u"LMN", u"MAIN", NodeAction::OpenSource},
    {u"LTD", u"TIMED", NodeAction::OpenSource},
    {u"LCM", u"CO-CPU", NodeAction::OpenSource},
    {u"LCF", u"CONFIG", NodeAction::OpenConfiguration},
    {u"ERR", u"ERROR", NodeAction::ShowErrors},
    {u"LTL", u"TITLE", NodeAction::EditTitle},
    {u"REV", u"REVISION", NodeAction::ShowRevision},
    {u"HEX", u"HEX", NodeAction::ShowFileData},
    {u"CHL", u"CHANNEL", NodeAction::ViewPLS},
    {u"PCF", u"PLS Config", NodeAction::ViewPLS},
    {u"LDT", u"DATA", NodeAction::None},
    {u"HDN", u"", NodeAction::None},
    {u"GBL", u"", NodeAction::None},
}};

const Sibling* FindSibling(const QString& extension) {
    const QString upper = extension.toUpper();
    const auto found = std::find_if(family.begin(), family.end(), [&upper](const Sibling& known) {
        return upper == QStringView(known.extension);
    });
    return found == family.end() ? nullptr : &*found;
}

bool IsDigit(QChar character) {
    return character >= u'0' && character <= u'9';
}

// User functions are numbered by the last two characters, whatever stands before them.
bool EndsInTwoDigits(const QString& text) {
    const qsizetype length = text.size();
    return length >= 2 && IsDigit(text[length - 1]) && IsDigit(text[length - 2]);
}

QString Label(const QString& name, const QString& extension) {
    return name + QStringLiteral(" (.") + extension + u')';
}
} // namespace

QString SiblingLabel(const QString& extension) {
    if (EndsInTwoDigits(extension))
        return Label(QStringLiteral("Ufunc") + extension.right(2), extension);
    const Sibling* known = FindSibling(extension);
    if (!known || *known->label == u'\0')
        return QString();
    return Label(QString::fromUtf16(known->label), extension);
}

NodeAction ActionOfNode(const QString& key) {
    if (EndsInTwoDigits(key))
        return NodeAction::OpenSource;
    const Sibling* known = FindSibling(key);
    return known ? known->action : NodeAction::None;
}
