#include "support/LinkUnderTest.h"
#include <gtest/gtest.h>

// Boxes of the link that other tests put together from parts, here in one piece.

namespace {
class LinkBoxes : public testing::Test, protected LinkUnderTest {
protected:
    LinkBoxes() { GoOnline(); }

    void ExpectEntryAlert(const char* text) {
        dialogs.ExpectBox(QString::fromLatin1(text), MsgStyle::Critical,
                          QStringLiteral("ENTRY ALERT"), MsgAnswer::Ok);
    }
    /// A pulse train on a scale factor of 360 is refused with this text.
    void ExpectRefusedPulseTrain(qint16 on, qint16 off, qint16 start, const char* text) {
        constexpr int scaleFactor = 360;
        AcceptHandshake();
        port.Replies({scaleFactor % 256, scaleFactor / 256});
        dialogs.ExpectBox(QString::fromLatin1(text), MsgStyle::Exclamation,
                          QStringLiteral("PLS Pulse Train"), MsgAnswer::Ok);
        EXPECT_FALSE(link.PulseTrain(5, on, off, start));
    }
    void Write(const char* variable, const char* value) {
        link.RSWrite(QLatin1String(variable), QLatin1String(value));
    }
};
} // namespace

TEST_F(LinkBoxes, OfValuesThatAVariableCannotTake) {
    ExpectEntryAlert("Error:\rOnly Numerical Data Allowed.");
    Write("B100", "-1");
    ExpectEntryAlert("Error:\rEnter 0 or 1 Only.");
    Write("B100.3", "2");
    ExpectEntryAlert("Error:\rEntry out of Range (0-255).");
    Write("B100", "256");
    ExpectEntryAlert("Error:\rEntry out of Range (0-65,535).");
    Write("W100", "65536");
    ExpectEntryAlert("Error:\rEntry out of Range (0-655,359,999).");
    Write("D100", "655360000");
    EXPECT_TRUE(port.Sent().empty());
}

TEST_F(LinkBoxes, OfPulseTrainsThatDoNotFit) {
    ExpectRefusedPulseTrain(0, 360, 0,
                            "ON Division and OFF Division Must be Greater Than 0.\r\n\r\n"
                            "PLS Channel will not be Programmed.");
    ExpectRefusedPulseTrain(5, 2, 0,
                            "ON Division Plus OFF Division\r\nMust be a Multiple of 360.\r\n\r\n"
                            "PLS Channel will not be Programmed.");
    ExpectRefusedPulseTrain(256, 104, 0,
                            "ON Division or OFF Division Must be Less Than 255.\r\n\r\n"
                            "PLS Channel will not be Programmed.");
    ExpectRefusedPulseTrain(20, 100, 360,
                            "Start Position Must Not Be Greater Than 359.\r\n\r\n"
                            "PLS Channel will not be Programmed.");
}
