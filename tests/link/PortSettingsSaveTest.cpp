#include "link/PortSettings.h"

#include "base/ApplicationFolder.h"
#include "base/RunTimeError.h"
#include <gtest/gtest.h>
#include <QDir>
#include <QFile>
#include <QTemporaryDir>

namespace {
class PortSettingsSaveTest : public testing::Test {
protected:
    QString Path(const QString& relative) const { return folder_.filePath(relative); }
    void MakeFolder(const QString& name) const { QDir(folder_.path()).mkpath(name); }
    void Make(const QString& relative, const QByteArray& bytes) const {
        QFile file(Path(relative));
        ASSERT_TRUE(file.open(QIODevice::WriteOnly));
        file.write(bytes);
    }
    QByteArray Bytes(const QString& relative) const {
        QFile file(Path(relative));
        return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray("(missing)");
    }
    PortSettings Load(const QByteArray& bytes) const {
        Make(u"RSPort.cfg"_qs, bytes);
        return LoadPortSettings(Path(u"RSPort.cfg"_qs));
    }

    QTemporaryDir folder_;
};
} // namespace

TEST_F(PortSettingsSaveTest, FileOf7And19200ShowsThem) {
    const PortSettings settings = Load("7,19200\r\n");
    EXPECT_EQ(settings.port, 7);
    EXPECT_EQ(settings.baud, 19200);
}

TEST_F(PortSettingsSaveTest, FileOf200And4800ShowsPort99And9600) {
    const PortSettings settings = Load("200,4800\r\n");
    EXPECT_EQ(settings.port, 99);
    EXPECT_EQ(settings.baud, 9600);
}

TEST_F(PortSettingsSaveTest, PortBelow1Becomes1) {
    EXPECT_EQ(Load("-3, 9600 ").port, 1);
    EXPECT_EQ(Load("garbage,9600").port, 1);
    EXPECT_EQ(Load("99999999999999999999,9600").port, 99);
}

TEST_F(PortSettingsSaveTest, MissingOrEmptyFileShowsPort1And9600) {
    EXPECT_EQ(LoadPortSettings(Path(u"RSPort.cfg"_qs)).port, 1);
    EXPECT_EQ(Load("").port, 1);
    EXPECT_EQ(Load("").baud, 9600);
}

TEST_F(PortSettingsSaveTest, FileWithoutABaudRaises) {
    try {
        Load("7");
        FAIL() << "no error";
    } catch (const RunTimeError& error) {
        EXPECT_EQ(error.Number(), 62);
    }
}

TEST_F(PortSettingsSaveTest, SpeedIsWrittenInTheFreeFormat) {
    SavePortSettings(Path(u"Support/RSPort.cfg"_qs), {1, 9600});
    EXPECT_EQ(Bytes(u"Support/RSPort.cfg"_qs), "1, 9600 \r\n");
    SavePortSettings(Path(u"Support/RSPort.cfg"_qs), {99, 19200});
    EXPECT_EQ(Bytes(u"Support/RSPort.cfg"_qs), "99, 19200 \r\n");
}

TEST_F(PortSettingsSaveTest, WrittenFileReadsAlike) {
    const QString path = Path(u"Support/RSPort.cfg"_qs);
    SavePortSettings(path, {42, 19200});
    EXPECT_EQ(LoadPortSettings(path).port, 42);
    EXPECT_EQ(LoadPortSettings(path).baud, 19200);
    WriteDefaultPortSettings(path);
    EXPECT_EQ(Bytes(u"Support/RSPort.cfg"_qs), "1,9600\r\n");
    EXPECT_EQ(LoadPortSettings(path).port, 1);
}

TEST_F(PortSettingsSaveTest, FileInTheWayOfTheFolderRaises) {
    Make(u"Support"_qs, "x");
    EXPECT_THROW(SavePortSettings(Path(u"Support/RSPort.cfg"_qs), {1, 9600}), RunTimeError);
}

TEST_F(PortSettingsSaveTest, Port1GivesZeroInTheThreeCopies) {
    for (const char* tools : {"TGT51", "TGT96", "LMT51"})
        MakeFolder(QLatin1String(tools));
    WriteToolPortFiles(ApplicationFolder(folder_.path()), 1);
    for (const char* tools : {"TGT51", "TGT96", "LMT51"})
        EXPECT_EQ(Bytes(QLatin1String(tools) + u"/HALDEN.SFG"_qs), "0\r\n");
}

TEST_F(PortSettingsSaveTest, WithoutLMT51OnlyTheOtherTwoCopiesAreWritten) {
    MakeFolder(u"TGT51"_qs);
    MakeFolder(u"TGT96"_qs);
    WriteToolPortFiles(ApplicationFolder(folder_.path()), 99);
    EXPECT_EQ(Bytes(u"TGT51/HALDEN.SFG"_qs), "98\r\n");
    EXPECT_EQ(Bytes(u"TGT96/HALDEN.SFG"_qs), "98\r\n");
    EXPECT_EQ(QDir(folder_.path()).entryList(QDir::AllEntries | QDir::NoDotAndDotDot).size(), 2);
}

TEST_F(PortSettingsSaveTest, ToolFoldersAndCopiesAreFoundInAnyLetterCase) {
    MakeFolder(u"tgt51"_qs);
    MakeFolder(u"Lmt51"_qs);
    Make(u"tgt51/halden.sfg"_qs, "7\r\n");
    WriteToolPortFiles(ApplicationFolder(folder_.path()), 3);
    EXPECT_EQ(Bytes(u"tgt51/halden.sfg"_qs), "2\r\n");
    EXPECT_EQ(Bytes(u"Lmt51/HALDEN.SFG"_qs), "2\r\n");
    EXPECT_EQ(QDir(Path(u"tgt51"_qs)).entryList(QDir::Files).size(), 1);
}

TEST_F(PortSettingsSaveTest, PlainFileOfAToolFoldersNameIsNoFolder) {
    Make(u"TGT51"_qs, "x");
    WriteToolPortFiles(ApplicationFolder(folder_.path()), 3);
    EXPECT_EQ(Bytes(u"TGT51"_qs), "x");
}

TEST(PortText, IsANumberWithin1To99) {
    for (const char* text : {"1", "99", " 7 ", "42"})
        EXPECT_TRUE(IsPortText(QLatin1String(text))) << text;
    for (const char* text : {"", "0", "100", "-1", "seven", "7x", "99.5"})
        EXPECT_FALSE(IsPortText(QLatin1String(text))) << text;
}

TEST(PortText, IsHeldWithin1To99) {
    EXPECT_EQ(PortOfText(u"7"_qs), 7);
    EXPECT_EQ(PortOfText(u"0"_qs), 1);
    EXPECT_EQ(PortOfText(u"1000"_qs), 99);
    EXPECT_EQ(PortOfText(QString()), 1);
}
