#include "base/Terminal.h"

#include <cstdio>
#include <QtGlobal>
#ifdef Q_OS_WIN
#include <io.h>
#else
#include <unistd.h>
#endif

namespace {
bool IsTerminal(std::FILE* stream) {
#ifdef Q_OS_WIN
    return _isatty(_fileno(stream)) != 0;
#else
    return isatty(fileno(stream)) != 0;
#endif
}
} // namespace

bool InputIsTerminal() {
    return IsTerminal(stdin);
}

bool ErrorIsTerminal() {
    return IsTerminal(stderr);
}
