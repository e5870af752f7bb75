#include "FuzzTarget.h"

#include <cstdio>
#include <cstdlib>
#include <QCoreApplication>

std::vector<FuzzTarget>& FuzzTargets() {
    static std::vector<FuzzTarget> targets;
    return targets;
}

void PrepareFuzzing() {
    static int argumentCount = 1;
    static char programName[] = "fuzz";
    static char* arguments[] = {programName, nullptr};
    static const QCoreApplication application(argumentCount, arguments);
    qInstallMessageHandler([](QtMsgType, const QMessageLogContext&, const QString&) {});
}

void Require(bool holds, const char* rule) {
    if (holds)
        return;
    std::fprintf(stderr, "broken rule: %s\n", rule);
    std::abort();
}
