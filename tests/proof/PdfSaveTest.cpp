#include "base/RunTimeError.h"
#include "FilesOfRun.h"
#include "reports/modReport.h"
#include "reports/ReportPrinter.h"
#include "reports/views/PrinterSurface.h"
#include "SpoiltCalls.h"
#include "support/VirtualClock.h"
#include <gtest/gtest.h>
#include <QTemporaryDir>

// A report that is printed into a PDF file meets each fault at each call that changes the disk.

namespace {
constexpr int mostCalls = 1000;

class Cells final : public ReportGrid {
public:
    int Rows() const override { return 600; } // a file of many writes
    int Columns() const override { return 6; }
    QString Text(int row, int) const override { return QString::number(row); }
};

class PdfFault : public testing::TestWithParam<Spoil> {
protected:
    void Print() const {
        SystemPrinter printer;
        printer.UsePrinter({QString(), folder_.filePath(name_), 1});
        PrintReport(printer, Cells(), VirtualClock(), QStringLiteral("press"),
                    ReportKind::StatusTable);
    }
    bool Kills() const {
        return GetParam() == Spoil::KilledBefore || GetParam() == Spoil::KilledAfter;
    }
    /// Spoils the `nth` call; returns whether there was one.
    bool PrintSpoilt(int nth) const {
        MakeFiles(folder_.path(), {{name_, old_}});
        int calls = 0;
        const auto work = [&] {
            const SpoiltCalls spoilt(nth, GetParam());
            try {
                Print();
            } catch (const RunTimeError&) {
                calls = spoilt.Count();
                throw;
            }
            calls = spoilt.Count();
        };
        if (Kills())
            return !RunsToItsEnd(work);
        bool raised = false;
        try {
            work();
        } catch (const RunTimeError&) {
            raised = true;
        }
        EXPECT_EQ(raised, FilesBelow(folder_.path()).at(name_) == old_);
        return calls >= nth;
    }
    void ExpectOldOrWhole() const {
        const QByteArray now = FilesBelow(folder_.path()).at(name_);
        const bool whole = now.startsWith("%PDF-") && now.trimmed().endsWith("%%EOF");
        EXPECT_TRUE(now == old_ || (whole && now.size() == wholeSize_)) << now.size();
    }

    const QString name_ = QStringLiteral("report.pdf");
    const QByteArray old_ = "an old report";
    QTemporaryDir folder_{FastFolder()};
    const qsizetype wholeSize_ = [this] {
        Print();
        return FilesBelow(folder_.path()).at(name_).size(); // dates in it are as long each time
    }();
};
} // namespace

TEST_P(PdfFault, AtAnyCallLeavesTheOldReportOrAWholeNewOne) {
    int nth = 1;
    for (; nth < mostCalls && PrintSpoilt(nth) && !HasFailure(); ++nth)
        ExpectOldOrWhole();
    EXPECT_GE(nth, 4);
    EXPECT_LT(nth, mostCalls);
}

TEST_P(PdfFault, TheReportIsOnTheDiskBeforeItTakesItsName) {
    const SpoiltCalls none(0, GetParam());
    Print();
    EXPECT_EQ(none.NamedUnflushed(), 0);
    EXPECT_GE(none.Count(), 4);
}

INSTANTIATE_TEST_SUITE_P(Spoils, PdfFault,
                         testing::Values(Spoil::DeviceFails, Spoil::DiskStaysFull,
                                         Spoil::KilledBefore, Spoil::KilledAfter),
                         [](const auto& how) { return NameOf(how.param); });
