#include "PLSViewUnderTest.h"

#include "controls/grid/Grid.h"
#include <QApplication>
#include <QLabel>
#include <QTest>
#include <QTimer>

PLSViewUnderTest::PLSViewUnderTest() {
    gHdnFile = HdnFile();
}

PLSViewUnderTest::~PLSViewUnderTest() {
    gHdnFile.clear();
}

void PLSViewUnderTest::Show(const char* extension, const std::function<void()>& whileUp,
                            QWidget* parent) {
    bool ran = false;
    frmPLSView view(dialogs_, parent);
    view_ = &view;
    QTimer::singleShot(0, &view, [&] {
        ran = true;
        QApplication::setActiveWindow(&view);
        EXPECT_TRUE(QTest::qWaitForWindowActive(&view));
        whileUp();
        view.accept();
    });
    view.ShowMe(folder_.Path("SET.") + extension);
    EXPECT_TRUE(ran);
    view_ = nullptr;
}

QWidget* PLSViewUnderTest::Part(const QString& name) {
    auto* part = view_->findChild<QWidget*>(name);
    EXPECT_NE(part, nullptr) << name.toStdString();
    return part;
}

bool PLSViewUnderTest::FrameIsShown(int index) {
    return Part(QStringLiteral("fraPLS(%1)").arg(index))->isVisible();
}

QString PLSViewUnderTest::Value(int index) {
    return view_->findChild<QLabel*>(QStringLiteral("lblPCFValue(%1)").arg(index))->text();
}

QStringList PLSViewUnderTest::Values(int first, int last) {
    QStringList values;
    for (int index = first; index <= last; ++index)
        values += Value(index);
    return values;
}

Grid& PLSViewUnderTest::Channels() {
    return *view_->findChild<Grid*>(QStringLiteral("fgPLSChannels"));
}

QString PLSViewUnderTest::Row(int row) {
    QStringList cells;
    for (int col = 0; col < Channels().Cols(); ++col)
        cells += Channels().TextMatrix(row, col);
    return cells.join(u'|');
}

QByteArray PLSViewUnderTest::StandardCHL() {
    return ":360\r\n:000\r\n"
           ":001:00:00:00GLUE GUN, LEFT       \r\n|010020\r\n|100130\r\n|350015\r\n"
           ":011:00:00:00REJECT GATE OF LINE 2\r\n"
           ":101:00:00:00CLUTCH               \r\n|000180\r\n%\r\n";
}
