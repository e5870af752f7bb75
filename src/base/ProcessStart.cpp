#include "base/ProcessStart.h"

#include "base/RunTimeError.h"
#include "base/Siblings.h"
#include <QProcess>

ProcessStart::~ProcessStart() = default;

QString CommandWord(const QString& word) {
    const QString quoted = QString(word).replace(u'"', QLatin1String("\"\"\""));
    return word.contains(u' ') ? u'"' + quoted + u'"' : quoted;
}

// The platform decides about windows of other programs, so the style is only a wish.
void SystemProcessStart::Shell(const QString& command, int /*windowStyle*/) {
    QStringList words = QProcess::splitCommand(command);
    if (words.isEmpty())
        throw RunTimeError(ErrorNumber::InvalidProcedureCall);
    const QString program = OnDisk(words.takeFirst());
    if (!QProcess::startDetached(program, words))
        throw RunTimeError(ErrorNumber::FileNotFound);
}
