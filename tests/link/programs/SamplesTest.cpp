#include "link/HexImage.h"
#include "link/programs/BoardFixture.h"
#include "link/TargetBoards.h"
#include <numeric>
#include <QDir>
#include <QFile>

namespace {
const QString samples = QStringLiteral(QUENTOR_SAMPLES);

QByteArray Content(const QString& name) {
    QFile file(samples + u'/' + name);
    EXPECT_TRUE(file.open(QIODevice::ReadOnly)) << name.toStdString();
    return file.readAll();
}

class SampleSet : public BoardTest, public testing::WithParamInterface<const char*> {
protected:
    QString Name(const char* extension) const {
        return QString::fromLatin1(GetParam()) + QString::fromLatin1(extension);
    }
};

int Sum(const QByteArray& bytes) {
    return std::accumulate(bytes.begin(), bytes.end(), 0, [](int sum, char byte) {
        return (sum + static_cast<std::uint8_t>(byte)) % 256;
    });
}
} // namespace

TEST_P(SampleSet, EveryLineEndsWithCrLf) {
    const QStringList names = QDir(samples).entryList({Name(".*")}, QDir::Files);
    EXPECT_GE(names.size(), 4);
    for (const QString& name : names) {
        const QByteArray text = Content(name);
        EXPECT_TRUE(text.endsWith("\r\n")) << name.toStdString();
        EXPECT_EQ(text.count('\n'), text.count("\r\n")) << name.toStdString();
    }
}

TEST_P(SampleSet, CheckByteOfEachRecordIsRight) {
    for (const QByteArray& record : Content(Name(".HEX")).split('\n'))
        EXPECT_EQ(Sum(QByteArray::fromHex(record.mid(1).trimmed())), 0) << record.toStdString();
}

TEST_P(SampleSet, ImageLiesInTheRangeOfItsBoardAndMakesTheChecksum) {
    const TargetBoard* model = FindTargetBoard(Content(Name(".hdn"))[0]);
    ASSERT_NE(model, nullptr);
    int sum = 0;
    const HexImage image(samples + u'/' + Name(".HEX"));
    for (const HexLine& record : image.Lines()) {
        if (record.kind != HexLine::Kind::Record)
            continue;
        const int address = record.address.toInt(nullptr, 16);
        EXPECT_GE(address, model->imageStart);
        EXPECT_LE(address + record.wire.size() - 3, model->imageStart + model->imageLength);
        sum = (sum + Sum(record.wire.mid(3))) % 256;
    }
    const QString rev = QString::fromLatin1(Content(Name(".rev"))).trimmed();
    EXPECT_EQ(ParseRevLine(rev).checksum, QString::number(sum));
    EXPECT_EQ(ParseRevLine(rev).ident, QString::fromLatin1(GetParam()));
}

TEST_P(SampleSet, GoesIntoItsBoard) {
    ConnectBoard(Content(Name(".hdn"))[0]);
    link.DownloadFile(samples + u'/' + Name(".hdn"));
    dialogs.ExpectBoxTitled(QStringLiteral("Program Download - [%1]").arg(Name("")),
                            MsgAnswer::Yes);
    ExpectBox(QStringLiteral("Program Download Complete!"), 64, QStringLiteral("Program Download"));
    link.DumpProgram();
    EXPECT_TRUE(Memory(identAddress, 8).startsWith(GetParam()));
}

INSTANTIATE_TEST_SUITE_P(All, SampleSet, testing::Values("PUMP1", "LINE2", "PRESS", "PANEL"));

TEST_F(BoardTest, SampleOfALimitSwitchBoardIsSentToTheOtherCommand) {
    dialogs.ExpectBoxTitled(QStringLiteral("PLS Program Download"), MsgAnswer::Ok);
    link.DownloadFile(samples + QStringLiteral("/CAM1.hdn"));
    EXPECT_FALSE(link.ValidProgram());
}
