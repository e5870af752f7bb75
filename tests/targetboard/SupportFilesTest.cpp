#include "base/TextFile.h"
#include "support/PrintText.h"
#include "targetboard/CorrectiveAdvice.h"
#include <gtest/gtest.h>
#include <map>
#include <QRegularExpression>

// The code files that ship with the application.

namespace {
std::map<QString, QString> Codes(const char* name) {
    std::map<QString, QString> codes;
    TextReader file(QStringLiteral(QUENTOR_SUPPORT_FOLDER "/") + name);
    while (!file.AtEnd()) {
        const QString code = file.InputItem();
        const QString description = file.InputItem();
        EXPECT_TRUE(codes.emplace(code, description).second) << "twice: " << code.toStdString();
    }
    return codes;
}

class SupportFile : public testing::TestWithParam<const char*> {};
} // namespace

TEST_P(SupportFile, HasCodesOfTwoUpperCaseHexadecimalDigitsWithADescriptionEach) {
    const QRegularExpression twoDigits("^[0-9A-F]{2}$");
    for (const auto& [code, description] : Codes(GetParam())) {
        EXPECT_TRUE(twoDigits.match(code).hasMatch()) << code.toStdString();
        EXPECT_FALSE(description.isEmpty()) << code.toStdString();
    }
}

// A code without a text would leave the text of another code on the screen beside it.
TEST_P(SupportFile, DescribesEveryCodeThatAByteCanHold) {
    const auto codes = Codes(GetParam());
    for (int code = 0; code < 256; ++code) {
        const QString key = QString::number(code, 16).toUpper().rightJustified(2, u'0');
        EXPECT_EQ(codes.count(key), 1U) << key.toStdString();
    }
}

TEST_P(SupportFile, IsPlainTextWithLinesEndedByCRLF) {
    QFile file(QStringLiteral(QUENTOR_SUPPORT_FOLDER "/") + GetParam());
    ASSERT_TRUE(file.open(QIODevice::ReadOnly));
    const QByteArray bytes = file.readAll();
    EXPECT_TRUE(bytes.endsWith("\r\n"));
    EXPECT_EQ(bytes.count('\n'), bytes.count("\r\n"));
    for (const char byte : bytes)
        EXPECT_TRUE(byte == '\r' || byte == '\n' || (byte >= ' ' && byte <= '~'));
}

INSTANTIATE_TEST_SUITE_P(Shipped, SupportFile,
                         testing::Values("FaultErrCodes.txt", "CommErrCodes.txt"));

TEST(FaultErrCodes, AgreesWithTheAdvice) {
    const auto codes = Codes("FaultErrCodes.txt");
    for (int code = 1; code < 256; ++code) {
        const QString key = QString::number(code, 16).toUpper().rightJustified(2, u'0');
        const QString text = codes.at(key);
        const bool isCoCpu = CorrectiveAdvice(code).startsWith("Replace CO-CPU");
        EXPECT_EQ(text.contains("CO-CPU"), isCoCpu) << key.toStdString();
        const bool isNone = CorrectiveAdvice(code) == "None";
        EXPECT_EQ(text == "No fault is known by this code", isNone) << key.toStdString();
    }
    EXPECT_TRUE(codes.at("42").contains("communication"));
    EXPECT_TRUE(codes.at("45").contains("sfunc09"));
    EXPECT_TRUE(codes.at("5C").contains("program"));
    EXPECT_TRUE(codes.at("5D").contains("Program"));
}
