#include "base/RunTimeError.h"
#include "PdfPages.h"
#include "programset/SiblingBoxes.h"
#include "reports/modReport.h"
#include "reports/views/PrinterSurface.h"
#include "support/ExpectError.h"
#include "support/FileSizeLimit.h"
#include "support/OrdinaryUser.h"
#include "support/PrintText.h"
#include "support/VirtualClock.h"
#include <gtest/gtest.h>
#include <QDir>
#include <QFile>
#include <QPrinterInfo>
#include <QTemporaryDir>

namespace {
constexpr double margin = 0.25;    // of the paper, around the sheet
constexpr double placement = 0.03; // inches that a glyph may stand off its position

class NamedCells final : public ReportGrid {
public:
    explicit NamedCells(int rows) : rows_(rows) {}
    int Rows() const override { return rows_; }
    int Columns() const override { return 6; }
    QString Text(int row, int column) const override {
        return QStringLiteral("r%1c%2").arg(row).arg(column);
    }

private:
    int rows_;
};

class PdfReport : public testing::Test {
protected:
    std::vector<PdfPage> Print(int rows) {
        printer.UsePrinter({QString(), Path(), 1});
        PrintReport(printer, NamedCells(rows), clock, QStringLiteral("press"),
                    ReportKind::StatusTable);
        return ReadPdf(Path());
    }
    QString Path() const { return folder.filePath(QStringLiteral("report.pdf")); }
    static const PdfWord* Find(const PdfPage& page, const QString& text) {
        for (const PdfWord& word : page)
            if (word.text == text)
                return &word;
        return nullptr;
    }

    QTemporaryDir folder;
    VirtualClock clock;
    SystemPrinter printer;
};
} // namespace

TEST_F(PdfReport, AShortTableIsOnePage) {
    EXPECT_EQ(Print(12).size(), 1u);
    EXPECT_EQ(printer.DeviceName(), Path());
}

TEST_F(PdfReport, EveryPageHasHeaderHeadsAndFooter) {
    const std::vector<PdfPage> pages = Print(200);
    ASSERT_GT(pages.size(), 3u);
    const QString date = GeneralDate(clock.WallClock()).section(u' ', 0, 0);
    for (std::size_t i = 0; i < pages.size(); ++i) {
        EXPECT_NE(Find(pages[i], "press"), nullptr);
        EXPECT_NE(Find(pages[i], "r0c0"), nullptr);
        EXPECT_NE(Find(pages[i], "r1c5"), nullptr);
        EXPECT_NE(Find(pages[i], "Page"), nullptr);
        EXPECT_EQ(pages[i].back().text, QString::number(i + 1));
        EXPECT_NE(Find(pages[i], date), nullptr);
    }
}

TEST_F(PdfReport, ColumnsStandAtTheirInches) {
    const std::vector<PdfPage> pages = Print(5);
    ASSERT_EQ(pages.size(), 1u);
    for (int column = 0; column < 6; ++column) {
        const PdfWord* word = Find(pages[0], QStringLiteral("r2c%1").arg(column));
        ASSERT_NE(word, nullptr);
        EXPECT_NEAR(word->x, margin + 0.5 + column, placement);
    }
    EXPECT_NEAR(Find(pages[0], "Status")->y, margin + 0.1, 0.06);
}

TEST_F(PdfReport, ATableOf32000RowsLosesNoRowAtItsPageBreaks) {
    const std::vector<PdfPage> pages = Print(32000);
    int row = 2;
    for (const PdfPage& page : pages)
        for (const PdfWord& word : page)
            if (word.text == QStringLiteral("r%1c0").arg(row))
                ++row;
    EXPECT_EQ(row, 32000);
    EXPECT_EQ(pages.back().back().text, QString::number(pages.size()));
}

TEST_F(PdfReport, AFileThatCannotBeWrittenRaisesAnError) {
    printer.UsePrinter({QString(), folder.filePath(QStringLiteral("none/report.pdf")), 1});
    ExpectError(ErrorNumber::PathNotFound, [&] {
        PrintReport(printer, NamedCells(5), clock, QStringLiteral("press"), ReportKind::Trend);
    });
}

TEST_F(PdfReport, ADocumentThatIsNotEndedLeavesTheOldFileAlone) {
    QFile old(Path());
    ASSERT_TRUE(old.open(QIODevice::WriteOnly) && old.write("the report of before") > 0);
    old.close();
    printer.UsePrinter({QString(), Path(), 1});
    {
        const auto document = printer.OpenDocument(PaperOrientation::Portrait);
        document->Print(QStringLiteral("half a page"));
    }
    ASSERT_TRUE(old.open(QIODevice::ReadOnly));
    EXPECT_EQ(old.readAll(), QByteArray("the report of before"));
}

TEST_F(PdfReport, FurtherDocumentsStandBesideTheFirst) {
    const std::size_t pages = Print(200).size();
    ASSERT_GT(pages, 1u);
    for (const char* beside : {"report-2.pdf", "report-3.pdf"}) {
        PrintReport(printer, NamedCells(5), clock, QStringLiteral("press"), ReportKind::Trend);
        EXPECT_EQ(ReadPdf(folder.filePath(QLatin1String(beside))).size(), 1u) << beside;
    }
    EXPECT_EQ(ReadPdf(Path()).size(), pages);
}

TEST_F(PdfReport, AFullDiskRaisesAnErrorAndLeavesTheOldFileAlone) {
    const std::size_t pages = Print(5).size();
    printer.UsePrinter({QString(), Path(), 1});
    ExpectError(ErrorNumber::DiskFull, [&] {
        const FileSizeLimit full(4096);
        PrintReport(printer, NamedCells(2000), clock, QStringLiteral("press"), ReportKind::Trend);
    });
    EXPECT_EQ(ReadPdf(Path()).size(), pages);
}

TEST_F(PdfReport, AFolderInThePlaceOfTheFileRaisesAnErrorAndStays) {
    ASSERT_TRUE(QDir(folder.path()).mkdir(QStringLiteral("report.pdf")));
    printer.UsePrinter({QString(), Path(), 1});
    ExpectError(ErrorNumber::PathFileAccess, [&] {
        PrintReport(printer, NamedCells(5), clock, QStringLiteral("press"), ReportKind::Trend);
    });
    EXPECT_TRUE(QFileInfo(Path()).isDir());
}

TEST_F(PdfReport, AFolderThatMayNotBeWrittenRaisesAnError) {
    constexpr auto look = QFile::ReadOwner | QFile::ExeOwner | QFile::ReadOther | QFile::ExeOther;
    ASSERT_TRUE(QFile::setPermissions(folder.path(), look));
    printer.UsePrinter({QString(), Path(), 1});
    {
        const OrdinaryUser user;
        if (!user.Possible())
            GTEST_SKIP() << "root cannot take the rights of an ordinary user here";
        ExpectError(ErrorNumber::PathFileAccess, [&] {
            PrintReport(printer, NamedCells(5), clock, QStringLiteral("press"), ReportKind::Trend);
        });
    }
    QFile::setPermissions(folder.path(), look | QFile::WriteOwner);
    EXPECT_FALSE(QFileInfo::exists(Path()));
}

TEST_F(PdfReport, APrinterThatIsNotThereRaisesAnErrorAndPrintsNowhereElse) {
    printer.UsePrinter({QStringLiteral("printer that was taken away"), QString(), 1});
    ExpectError(ErrorNumber::DeviceUnavailable, [&] {
        PrintReport(printer, NamedCells(5), clock, QStringLiteral("press"), ReportKind::Trend);
    });
}

TEST_F(PdfReport, WithoutAnyPrinterADocumentRaisesAnError) {
    if (!QPrinterInfo::defaultPrinterName().isEmpty())
        GTEST_SKIP() << "this computer has a printer";
    EXPECT_EQ(printer.DeviceName(), QString());
    ExpectError(ErrorNumber::DeviceUnavailable, [&] {
        PrintReport(printer, NamedCells(5), clock, QStringLiteral("press"), ReportKind::Trend);
    });
}

TEST_F(PdfReport, AFailureThatWasSwallowedIsToldAtTheEndOfTheDocument) {
    printer.UsePrinter({QStringLiteral("printer that was taken away"), QString(), 1});
    const auto document = printer.OpenDocument(PaperOrientation::Landscape);
    ExpectError(ErrorNumber::DeviceUnavailable, [&] { document->Line(0, 0, 100, 100); });
    ExpectError(ErrorNumber::DeviceUnavailable, [&] { document->EndDoc(); });
}
