#include "SourceTexts.h"

#include "TextList.h"
#include <gtest/gtest.h>
#include <QDir>
#include <QDirIterator>
#include <QFile>
#include <QRegularExpression>

namespace {
// What may stand around a literal without adding to its text.
const QRegularExpression& Wrapping() {
    static const QRegularExpression wrapping(QStringLiteral(
        "QStringLiteral|QLatin1String|QLatin1Char|QString::fromLatin1|\\bQString\\b|_qs|"
        "\\btr\\b|\\bu8?\\b|[()+\\s]"));
    return wrapping;
}

class SourceReader {
public:
    explicit SourceReader(const QString& source) : source_(source) {}

    std::vector<SourceText> Read() {
        while (place_ < source_.size())
            ReadNext();
        EndExpression();
        return std::move(texts_);
    }

private:
    bool At(QLatin1String token) const {
        return QStringView(source_).mid(place_).startsWith(token);
    }
    QChar Here() const { return source_[place_]; }
    QChar Before() const { return place_ > 0 ? source_[place_ - 1] : QChar(u' '); }

    void ReadNext() {
        const QChar here = Here();
        if (At(QLatin1String("//")) || At(QLatin1String("#include")))
            SkipTo(QLatin1String("\n"));
        else if (At(QLatin1String("/*")))
            SkipTo(QLatin1String("*/"));
        else if (At(QLatin1String("R\"")))
            ReadRaw();
        else if (here == u'"' || (here == u'\'' && !PartsDigits()))
            ReadLiteral(here);
        else if (QStringLiteral(",;{}").contains(here))
            EndExpression();
        else
            between_ += here;
        ++place_;
    }

    // 10'000 or 0xAB'CD
    bool PartsDigits() const {
        return Before().isDigit() || (Before() >= u'A' && Before() <= u'F');
    }

    // Leaves the place at the last character of the token, or behind the source.
    void SkipTo(QLatin1String token) {
        const qsizetype found = source_.indexOf(token, place_);
        place_ = found < 0 ? source_.size() : found + token.size() - 1;
    }

    void ReadRaw() {
        const qsizetype begin = place_ + 2;
        const qsizetype open = source_.indexOf(u'(', begin);
        const QString close = u')' + source_.mid(begin, open - begin) + u'"';
        const qsizetype end = source_.indexOf(close, open);
        const qsizetype literal = place_;
        place_ = end + close.size() - 1;
        Add(literal, source_.mid(open + 1, end - open - 1));
    }

    void ReadLiteral(QChar quote) {
        const qsizetype literal = place_;
        QString text;
        while (++place_ < source_.size() && Here() != quote)
            text += Here() == u'\\' ? Escape() : QString(Here());
        Add(literal, text);
    }

    QString Escape() {
        switch ((++place_, Here()).unicode()) {
        case u'n':
            return QStringLiteral("\n");
        case u'r':
            return QStringLiteral("\r");
        case u't':
            return QStringLiteral("\t");
        case u'0':
            return QString(QChar(0));
        case u'x':
            return CodePoint(2);
        case u'u':
            return CodePoint(4);
        default:
            return Here();
        }
    }
    QString CodePoint(int digits) {
        const QChar character(source_.mid(place_ + 1, digits).toUShort(nullptr, 16));
        place_ += digits;
        return character;
    }

    void Add(qsizetype literal, const QString& text) {
        const bool apart = !between_.remove(Wrapping()).isEmpty();
        if (!open_)
            texts_.push_back({static_cast<int>(source_.left(literal).count(u'\n')) + 1, {}});
        else if (apart)
            texts_.back().text += variablePlace;
        texts_.back().text += text;
        open_ = true;
        between_.clear();
    }

    void EndExpression() {
        if (open_ && !between_.remove(Wrapping()).isEmpty())
            texts_.back().text += variablePlace;
        open_ = false;
        between_.clear();
    }

    const QString source_;
    qsizetype place_ = 0;
    std::vector<SourceText> texts_;
    QString between_;   // code since the last literal or the beginning of the expression
    bool open_ = false; // the last text may go on
};
} // namespace

std::vector<SourceText> TextsOfSource(const QString& source) {
    return SourceReader(source).Read();
}

QStringList SourceFiles(const QString& folder) {
    QStringList files;
    QDirIterator each(QStringLiteral(SOURCE_ROOT "/") + folder,
                      {QStringLiteral("*.cpp"), QStringLiteral("*.h")}, QDir::Files,
                      QDirIterator::Subdirectories);
    const QDir root(QStringLiteral(SOURCE_ROOT));
    while (each.hasNext())
        files.append(root.relativeFilePath(each.next()));
    files.sort();
    return files;
}

QString ReadSource(const QString& path) {
    QFile file(QStringLiteral(SOURCE_ROOT "/") + path);
    EXPECT_TRUE(file.open(QIODevice::ReadOnly)) << path.toStdString();
    return QString::fromUtf8(file.readAll());
}
