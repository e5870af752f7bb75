#include "link/PortSettings.h"
#include "base/RunTimeError.h"
#include "support/LinkUnderTest.h"
#include <gtest/gtest.h>
#include <QDir>

namespace {
class PortSettingsFile : public testing::Test, protected LinkUnderTest {
protected:
    PortSettings Read(const QByteArray& text) {
        WriteFile(QStringLiteral("Support/RSPort.cfg"), text);
        return ReadPortSettings(link.CommSettingsFile());
    }
    void ExpectRead(const QByteArray& text, int port_, int baud) {
        const PortSettings settings = Read(text);
        EXPECT_EQ(settings.port, port_) << text.toStdString();
        EXPECT_EQ(settings.baud, baud) << text.toStdString();
    }
};
} // namespace

TEST_F(PortSettingsFile, BothWrittenFormsReadAlike) {
    ExpectRead("1,9600\r\n", 1, 9600);
    ExpectRead("1, 9600 \r\n", 1, 9600);
    ExpectRead("7,19200\r\n", 7, 19200);
    ExpectRead("7, 19200 \r\n", 7, 19200);
    ExpectRead(" 7 ,\t19200", 7, 19200);
    ExpectRead("7\n19200\n", 7, 19200);
}

TEST_F(PortSettingsFile, APortOutsideTheRangeBecomesTheNearest) {
    ExpectRead("0,9600", 1, 9600);
    ExpectRead("-5,9600", 1, 9600);
    ExpectRead("99,9600", 99, 9600);
    ExpectRead("100,9600", 99, 9600);
    ExpectRead("99999999999999999999,9600", 99, 9600);
}

TEST_F(PortSettingsFile, AnyOtherBaudBecomes9600) {
    ExpectRead("200,4800", 99, 9600);
    ExpectRead("1,115200", 1, 9600);
    ExpectRead("1,,", 1, 9600);
}

TEST_F(PortSettingsFile, TextThatIsNoNumberIs0) {
    ExpectRead("COM3,fast", 1, 9600);
    ExpectRead(QByteArray("\x00\xFF,\x01", 4), 1, 9600);
}

TEST_F(PortSettingsFile, AMissingValueIsAnError) {
    for (const char* text : {"7", "7,", "7\r\n", "\r\n"}) {
        try {
            Read(text);
            ADD_FAILURE() << text;
        } catch (const RunTimeError& error) {
            EXPECT_EQ(error.Number(), 62) << text;
        }
    }
}

TEST_F(PortSettingsFile, DefaultsAreWrittenIntoAFolderThatIsMade) {
    EXPECT_TRUE(PortSettingsMissing(link.CommSettingsFile()));
    WriteDefaultPortSettings(link.CommSettingsFile());
    EXPECT_FALSE(PortSettingsMissing(link.CommSettingsFile()));
    EXPECT_EQ(FileContent(QStringLiteral("support/rsport.cfg")), "1,9600\r\n");
}

TEST_F(PortSettingsFile, AnEmptyFileCountsAsMissing) {
    WriteFile(QStringLiteral("Support/RSPort.cfg"), "");
    EXPECT_TRUE(PortSettingsMissing(link.CommSettingsFile()));
    WriteFile(QStringLiteral("Support/RSPort.cfg"), " ");
    EXPECT_FALSE(PortSettingsMissing(link.CommSettingsFile()));
}

TEST_F(PortSettingsFile, AFolderInItsPlaceIsNotMissingAndCannotBeRead) {
    QDir().mkpath(link.CommSettingsFile());
    EXPECT_FALSE(PortSettingsMissing(link.CommSettingsFile()));
    EXPECT_THROW(ReadPortSettings(link.CommSettingsFile()), RunTimeError);
}

TEST_F(PortSettingsFile, AnExistingSupportFolderOfOtherCaseIsUsed) {
    WriteFile(QStringLiteral("support/HD2000.dat"), "");
    WriteDefaultPortSettings(link.CommSettingsFile());
    EXPECT_EQ(QDir(directory.path()).entryList(QDir::Dirs | QDir::NoDotAndDotDot),
              QStringList{QStringLiteral("support")});
}
