#include "ViewUnderTest.h"

#include <QApplication>
#include <QTimer>

ViewUnderTest::ViewUnderTest(int model)
    : BoardUnderTest(model), view(link, mode, clock, dialogs, folder, loops) {
    for (const int address : {8175, 8176, 8177, 8178, 8179})
        Poke(address, 0);
    Poke(8180, 5);
    Poke(8191, 17);
}

void ViewUnderTest::Show(const std::function<void()>& whileUp) {
    bool ran = false;
    QTimer::singleShot(0, &view, [&] {
        ran = true;
        QApplication::setActiveWindow(&view);
        EXPECT_TRUE(QTest::qWaitForWindowActive(&view));
        whileUp();
        view.accept();
    });
    view.InitializeForm(hdnFile);
    EXPECT_TRUE(ran);
}

void ViewUnderTest::Until(const std::function<bool()>& test) {
    EXPECT_TRUE(QTest::qWaitFor(
        [&] {
            loops.Wake(); // no test waits for a loop that rests
            return test();
        },
        5000));
}

void ViewUnderTest::UntilPolled() {
    std::vector<int> read;
    TakeRead();
    Until([&] {
        const std::vector<int> more = TakeRead();
        read.insert(read.end(), more.begin(), more.end());
        return std::count(read.begin(), read.end(), 43017) >= 2;
    });
}

QLineEdit* ViewUnderTest::Entry(int index) {
    return Find<QLineEdit>(QStringLiteral("txtSetup(%1)").arg(index));
}

QString ViewUnderTest::TextOf(int position) {
    return Find<QPlainTextEdit>(QStringLiteral("txtTargetBoard(%1)").arg(position))->toPlainText();
}

void ViewUnderTest::ClickTab(int index) {
    auto* tabs = Find<QTabBar>(QStringLiteral("tabTargetBoard"));
    QTest::mouseClick(tabs, Qt::LeftButton, Qt::NoModifier, tabs->tabRect(index).center());
}

void ViewUnderTest::ClickArrow(int index, const char* name) {
    auto* arrows = Find<QWidget>(QStringLiteral("updSetup(%1)").arg(index));
    QTest::mouseClick(arrows->findChild<QToolButton*>(name), Qt::LeftButton);
}
