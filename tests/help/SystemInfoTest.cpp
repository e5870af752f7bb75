#include "help/SystemInfo.h"

#include "base/FileSystem.h"
#include "help/SystemRegistry.h"
#include "support/RecordedStarts.h"
#include "support/ScriptedDialogs.h"
#include "support/TestFolder.h"
#include <gtest/gtest.h>
#include <QMap>

namespace {
class ScriptedRegistry final : public SystemRegistry {
public:
    bool IsThere() const override { return there; }
    std::optional<RegistryValue> Read(const QString& root, const QString& key,
                                      const QString& name) const override {
        const QString path = root + u'\\' + key + u'\\' + name;
        return values.contains(path) ? std::optional(values.value(path)) : std::nullopt;
    }

    bool there = true;
    QMap<QString, RegistryValue> values;
};

const QString pathValue =
    QStringLiteral("HKEY_LOCAL_MACHINE\\SOFTWARE\\Microsoft\\Shared Tools\\MSINFO\\PATH");
const QString folderValue =
    QStringLiteral("HKEY_LOCAL_MACHINE\\SOFTWARE\\Microsoft\\Shared Tools Location\\MSINFO");

class SystemInfo : public testing::Test {
protected:
    void Start() {
        StartSysInfo({registry_, files_, tools_, dialogs_, [this] { ++reports_; }});
    }
    QString KeyValue(const RegistryValue& value) {
        registry_.values.insert(QStringLiteral("R\\K\\N"), value);
        QString text;
        EXPECT_TRUE(GetKeyValue(registry_, QStringLiteral("R"), QStringLiteral("K"),
                                QStringLiteral("N"), text));
        return text;
    }

    ScriptedRegistry registry_;
    FileSystem files_;
    RecordedStarts tools_;
    ScriptedDialogs dialogs_;
    TestFolder folder_;
    int reports_ = 0;
};
} // namespace

TEST_F(SystemInfo, ThePathOfTheToolIsStartedWithANormalWindow) {
    registry_.values.insert(pathValue, QStringLiteral("C:\\Common Files\\MSINFO32.EXE"));
    Start();
    ASSERT_EQ(tools_.commands.size(), 1);
    EXPECT_EQ(tools_.commands.first().toStdString(), "\"C:\\Common Files\\MSINFO32.EXE\"");
    EXPECT_EQ(tools_.styles.first(), 1);
    EXPECT_EQ(reports_, 0);
}

TEST_F(SystemInfo, TheFolderOfTheToolsIsTheSecondPlace) {
    folder_.Write(QStringLiteral("MSINFO32.EXE"), "tool");
    registry_.values.insert(folderValue, folder_.Path());
    Start();
    ASSERT_EQ(tools_.commands.size(), 1);
    EXPECT_EQ(tools_.commands.first(), folder_.Path() + QLatin1String("\\MSINFO32.EXE"));
}

TEST_F(SystemInfo, AFolderWithoutTheToolIsNoTool) {
    registry_.values.insert(folderValue, folder_.Path());
    dialogs_.ExpectBox("System Information Is Unavailable At This Time", MsgStyle::Plain, "Quentor",
                       MsgAnswer::Ok);
    Start();
    EXPECT_TRUE(tools_.commands.isEmpty());
}

TEST_F(SystemInfo, ARegistryWithoutTheToolGivesTheBox) {
    dialogs_.ExpectBox("System Information Is Unavailable At This Time", MsgStyle::Plain, "Quentor",
                       MsgAnswer::Ok);
    Start();
    EXPECT_EQ(reports_, 0);
}

TEST_F(SystemInfo, ASystemWithoutARegistryGivesTheReport) {
    registry_.there = false;
    registry_.values.insert(pathValue, QStringLiteral("tool"));
    Start();
    EXPECT_EQ(reports_, 1);
    EXPECT_TRUE(tools_.commands.isEmpty());
}

TEST_F(SystemInfo, AToolThatCannotBeStartedIsReported) {
    registry_.values.insert(pathValue, QStringLiteral("tool"));
    tools_.fails = true;
    dialogs_.ExpectBox("Error Number = 53\r\n\r\nFile not found", MsgStyle::Critical,
                       "StartSysInfo", MsgAnswer::Ok);
    Start();
}

TEST_F(SystemInfo, ValuesAreReadAsText) {
    EXPECT_EQ(KeyValue(QStringLiteral("C:\\Tools")).toStdString(), "C:\\Tools");
    EXPECT_EQ(KeyValue(QString(QStringLiteral("ab")) + QChar::Null).toStdString(), "ab");
    EXPECT_EQ(KeyValue(quint32{0x1f}).toStdString(), "&h1F");
    EXPECT_EQ(KeyValue(quint32{0xffffffff}).toStdString(), "&hFFFFFFFF");
    EXPECT_EQ(KeyValue(quint32{0}).toStdString(), "&h0");
    EXPECT_EQ(KeyValue(QByteArray("bin\0", 4)).toStdString(), "bin");
}

TEST_F(SystemInfo, AValueThatIsNotThereIsFalseAndEmpty) {
    QString text = QStringLiteral("old");
    EXPECT_FALSE(
        GetKeyValue(registry_, LocalMachine(), QStringLiteral("K"), QStringLiteral("N"), text));
    EXPECT_TRUE(text.isEmpty());
}

TEST_F(SystemInfo, OnlyWindowsHasARegistry) {
    const MachineRegistry machine;
    if (machine.IsThere())
        GTEST_SKIP() << "this system has one";
    EXPECT_FALSE(machine.Read(LocalMachine(), QStringLiteral("SOFTWARE"), QStringLiteral("x")));
}
