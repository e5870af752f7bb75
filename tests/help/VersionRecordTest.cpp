#include "base/VersionRecord.h"

#include <gtest/gtest.h>
#include <QFile>

TEST(VersionRecord, IsThatOfTheBuild) {
    const VersionRecord& record = ProgramVersion();
    EXPECT_EQ(record.title.toStdString(), "Quentor");
    EXPECT_EQ(record.Number().toStdString(), QUENTOR_PROJECT_VERSION);
    EXPECT_EQ(record.VersionText().toStdString(), "Version " QUENTOR_PROJECT_VERSION);
    EXPECT_FALSE(record.description.isEmpty());
}

TEST(VersionRecord, TheCopyrightIsThatOfTheLicence) {
    QFile licence(QStringLiteral(QUENTOR_SOURCE_FOLDER "/LICENSE"));
    ASSERT_TRUE(licence.open(QIODevice::ReadOnly));
    const QStringList lines = QString::fromUtf8(licence.readAll()).split(u'\n');
    EXPECT_TRUE(ProgramVersion().copyright.startsWith(QLatin1String("Copyright")));
    EXPECT_TRUE(lines.contains(ProgramVersion().copyright));
    EXPECT_EQ(ProgramVersion().company.toStdString(), "The Quentor developers");
}
