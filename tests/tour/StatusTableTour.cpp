#include "tour/StatusTableTour.h"

#include "controls/grid/Grid.h"
#include "shell/frmMDIMain.h"
#include "tour/BoardProcess.h"
#include "tour/Hand.h"
#include "tour/TourGuide.h"
#include "tour/TourSetting.h"
#include <array>
#include <memory>
#include <QCheckBox>
#include <QPushButton>

namespace {
// A variable as it is typed, and what its row shows of it: name, address, decimal, HEX, high and
// low bits. Below, what the same row shows offline, out of the data file.
struct Row {
    const char* typed;
    const char* live;
    const char* offline;
};

// The board's bytes are those of FixedValues; the file holds 1 at B520 and 0 below.
constexpr std::array<Row, 11> rows{{
    {"w100", "TENTHS|W100|300|12C|00000001|00101100", "TENTHS|W100|0|0|00000000|00000000"},
    {"w104", "FLOW|W104|995|3E3|00000011|11100011", "FLOW|W104|0|0|00000000|00000000"},
    {"d110", "VOLUME|D110|20005|4E25|01001110|00100101", "VOLUME|D110|0|0|00000000|00000000"},
    {"b114", "VALVES|B114|165|A5||10100101", "VALVES|B114|0|0||00000000"},
    {"b115.3", "DRAIN|B115.3|1|1||1", "DRAIN|B115.3|0|0||0"},
    {"f64", "RUN|F64|1|1||1", "RUN|F64|0|0||0"},
    {"73h", "STATE|73H|8|8||00001000", "STATE|73H|0|0||00000000"},
    {"x0", "|X0|18|12||00010010", "|X0|N/A|N/A|N/A|N/A"},
    {"y1", "PUMP1|Y1|237|ED||11101101", "PUMP1|Y1|N/A|N/A|N/A|N/A"},
    {"i10", "LEVELS|I10|90|5A||01011010", "LEVELS|I10|N/A|N/A|N/A|N/A"},
    {"b520", "LIMIT|B520|77|4D||01001101", "LIMIT|B520|1|1||00000001"},
}};

constexpr std::array fixedValues{
    "set 100 44 1",    // W100 = 300
    "set 104 227 3",   // W104 = 995
    "set 110 5 0 2 0", // D110 = 2 x 10000 + 5
    "set 114 165 8",   // B114, and bit 3 of B115 alone
    "set 40 1",        // F64
    "set 160 18 237",  // X0 and Y1
    "set 194 90",      // I10
    "set 520 77",      // B520, other than in the file
};

constexpr int firstRow = 2;
constexpr int decimal = 2;
constexpr int hexadecimal = 3;

Grid* TableGrid(frmMDIMain& window) {
    return window.findChild<Grid*>(QStringLiteral("fgStatus"));
}

QString Cell(frmMDIMain& window, int row, int col) {
    const Grid* grid = TableGrid(window);
    return grid ? grid->TextMatrix(row, col) : QString();
}

QString RowTexts(frmMDIMain& window, int row) {
    QStringList texts;
    for (int col = 0; col < 6; ++col)
        texts += Cell(window, row, col);
    return texts.join(u'|');
}

void Always(TourGuide& guide, const QString& what, std::function<void()> act) {
    guide.Stop(
        what, [] { return true; }, std::move(act));
}

void ClickControl(TourGuide& guide, frmMDIMain& window, const QString& what, const char* name) {
    Always(guide, what, [&window, name] {
        QApplication::setActiveWindow(&window);
        Hand::Click(window.findChild<QWidget*>(QLatin1String(name)));
    });
}

void ExpectBytes(TourGuide& guide, BoardProcess& board, const QString& what, const char* command,
                 const QString& wanted) {
    guide.Expect(
        what, [&board, command] { return board.Command(QLatin1String(command)); }, wanted);
}

void AddProgram(TourGuide& guide, frmMDIMain& window, const QString& set) {
    Always(guide, QStringLiteral("press the status table button"),
           [&window] { Hand::PressButton(window, "Status"); });
    ClickControl(guide, window, QStringLiteral("press Select Program"), "cmdSelectProgram");
    guide.Stop(
        QStringLiteral("choose PUMP1.hdn"),
        [] { return Hand::Modal() && Hand::Modal()->inherits("QFileDialog"); },
        [set] { Hand::ChooseFile(set); });
    guide.Stop(QStringLiteral("the dialog has gone"), &Hand::NothingModal, [] {});
}

void AddTyping(TourGuide& guide, frmMDIMain& window, BoardProcess& board) {
    Always(guide, QStringLiteral("start the machine, type addresses of all kinds"),
           [&window, &board] {
               board.Command(QStringLiteral("demo on"));
               Grid& grid = *TableGrid(window);
               Hand::ClickCell(grid, firstRow, 1);
               for (const Row& row : rows)
                   Hand::TypeInto(grid, QLatin1String(row.typed));
           });
    const auto seen = std::make_shared<QString>();
    guide.Stop(
        QStringLiteral("the last row has a value"),
        [&window] { return !Cell(window, firstRow + int(rows.size()) - 1, decimal).isEmpty(); },
        [&window, seen] { *seen = Cell(window, firstRow, decimal); });
    guide.Stop(
        QStringLiteral("W100 counts"),
        [&window, seen] { return Cell(window, firstRow, decimal).toInt() > seen->toInt() + 2; },
        [] {});
    ClickControl(guide, window, QStringLiteral("check View NicNames"), "chkViewNicNames");
    guide.Expect(
        QStringLiteral("the first name"), [&window] { return Cell(window, firstRow, 0); },
        QStringLiteral("TENTHS"));
    guide.Stop(QStringLiteral("nothing is over the table"), &Hand::NothingModal, [] {});
    guide.Picture(QStringLiteral("status-live"));
}

void AddKnownValues(TourGuide& guide, frmMDIMain& window, BoardProcess& board) {
    Always(guide, QStringLiteral("stop the machine, give it known values"), [&board] {
        board.Command(QStringLiteral("demo off"));
        for (const char* command : fixedValues)
            board.Command(QLatin1String(command));
    });
    for (int i = 0; i < int(rows.size()); ++i)
        guide.Expect(
            QStringLiteral("row %1").arg(i + 1),
            [&window, i] { return RowTexts(window, firstRow + i); },
            QLatin1String(rows.at(static_cast<std::size_t>(i)).live));
}

void AddEdits(TourGuide& guide, frmMDIMain& window, BoardProcess& board) {
    Always(guide, QStringLiteral("type 1234 as the decimal value of W100"), [&window] {
        Hand::ClickCell(*TableGrid(window), firstRow, decimal);
        Hand::TypeInto(*TableGrid(window), QStringLiteral("1234"));
    });
    ExpectBytes(guide, board, QStringLiteral("W100 in the board"), "show 100 2",
                QStringLiteral("100: 210 4"));
    Always(guide, QStringLiteral("type 3c as the HEX value of B114"), [&window] {
        Hand::ClickCell(*TableGrid(window), firstRow + 3, hexadecimal);
        Hand::TypeInto(*TableGrid(window), QStringLiteral("3c"));
    });
    ExpectBytes(guide, board, QStringLiteral("B114 in the board, and what is behind it"),
                "show 114 2", QStringLiteral("114: 60 8"));
    guide.Expect(
        QStringLiteral("row 1"), [&window] { return RowTexts(window, firstRow); },
        QStringLiteral("TENTHS|W100|1234|4D2|00000100|11010010"));
    guide.Expect(
        QStringLiteral("row 4"), [&window] { return RowTexts(window, firstRow + 3); },
        QStringLiteral("VALVES|B114|60|3C||00111100"));
}

void AddOffline(TourGuide& guide, frmMDIMain& window) {
    Always(guide, QStringLiteral("press F4"), [&window] { Hand::PressKey(window, Qt::Key_F4); });
    guide.Expect(
        QStringLiteral("panel 2"), [&window] { return Hand::Panel(window, 2); },
        QStringLiteral("OFFLINE"));
    ClickControl(guide, window, QStringLiteral("check View Offline Data"), "chkViewOffline");
    for (int i = 0; i < int(rows.size()); ++i)
        guide.Expect(
            QStringLiteral("row %1").arg(i + 1),
            [&window, i] { return RowTexts(window, firstRow + i); },
            QLatin1String(rows.at(static_cast<std::size_t>(i)).offline));
    ClickControl(guide, window, QStringLiteral("check View Descriptions"), "chkViewDescriptions");
    guide.Expect(
        QStringLiteral("the first description"), [&window] { return Cell(window, firstRow, 0); },
        QStringLiteral("Run time in tenths of a second"));
    guide.Stop(QStringLiteral("nothing is over the table"), &Hand::NothingModal, [] {});
    guide.Picture(QStringLiteral("status-offline"));
    Always(guide, QStringLiteral("press F3"), [&window] { Hand::PressKey(window, Qt::Key_F3); });
    guide.Expect(
        QStringLiteral("row 11"), [&window] { return Cell(window, firstRow + 10, decimal); },
        QStringLiteral("77"));
}
} // namespace

void AddStatusTable(TourGuide& guide, frmMDIMain& window, BoardProcess& board,
                    const TourSetting& setting) {
    AddProgram(guide, window, setting.Sample(QStringLiteral("PUMP1.hdn")));
    AddTyping(guide, window, board);
    AddKnownValues(guide, window, board);
    AddEdits(guide, window, board);
    AddOffline(guide, window);
}
