#include "shell/StatusPanels.h"

#include "base/Clock.h"
#include <QLocale>
#include <QPainter>
#include <QRegularExpression>
#include <QStatusBar>
#include <QStyle>

namespace {
constexpr int panelMargin = 3; // pixels around a text

const QColor lampOn(0x2f, 0x9e, 0x5f);
const QColor lampOff(0x8a, 0x92, 0x9a);

struct PanelTexts {
    const char* key;
    const char* initialText;
    const char* toolTip;
    int stretch;
};

constexpr std::array<PanelTexts, 4> panelTexts = {{
    {"STATUS", "System Message:", "System Status Display Messages", 1},
    {"MODE", "OFFLINE", "Communications Mode", 0},
    {"DATE", "", "Current Date", 0},
    {"TIME", "", "Current Time", 0},
}};

// The short time of the locale, to the minute.
QString TimeFormat() {
    static const QRegularExpression seconds(QStringLiteral("[:.]?s{1,2}"));
    return QLocale().timeFormat(QLocale::ShortFormat).remove(seconds);
}
} // namespace

StatusPanel::StatusPanel(QWidget* parent) : QLabel(parent) {
    setTextFormat(Qt::PlainText);
    setFrameStyle(QFrame::StyledPanel | QFrame::Sunken);
    setMargin(panelMargin);
}

void StatusPanel::SetLamp(bool lit) {
    lamp_ = lit;
    updateGeometry();
    update();
}

int StatusPanel::LampWidth() const {
    return lamp_ ? fontMetrics().xHeight() * 2 : 0;
}

QSize StatusPanel::sizeHint() const {
    return QLabel::sizeHint() + QSize(LampWidth(), 0);
}

QSize StatusPanel::minimumSizeHint() const {
    const QSize hint = QLabel::minimumSizeHint() + QSize(LampWidth(), 0);
    return sizePolicy().horizontalPolicy() == QSizePolicy::Ignored ? QSize(0, hint.height()) : hint;
}

void StatusPanel::mouseDoubleClickEvent(QMouseEvent*) {
    Q_EMIT DoubleClicked();
}

void StatusPanel::paintEvent(QPaintEvent*) {
    QPainter painter(this);
    drawFrame(&painter);
    QRect place = contentsRect().marginsRemoved({panelMargin, 0, panelMargin, 0});
    if (lamp_) {
        painter.setRenderHint(QPainter::Antialiasing);
        painter.setPen(Qt::NoPen);
        painter.setBrush(*lamp_ ? lampOn : lampOff);
        const int radius = fontMetrics().xHeight() / 2;
        painter.drawEllipse(QPoint(place.left() + radius, place.center().y() + 1), radius, radius);
        place.setLeft(place.left() + LampWidth());
    }
    const QString shown = fontMetrics().elidedText(text(), Qt::ElideRight, place.width());
    style()->drawItemText(&painter, place, static_cast<int>(alignment()), palette(), isEnabled(),
                          shown, foregroundRole());
}

StatusPanels::StatusPanels(QStatusBar& bar, Clock& clock)
    : QObject(&bar), clock_(clock), nextMinute_(this) {
    bar.setObjectName(QStringLiteral("sbrMain"));
    bar.setAccessibleName(QStringLiteral("Status bar"));
    for (int panel = systemMessage; panel <= time; ++panel)
        AddPanel(bar, panel,
                 QString::fromLatin1(panelTexts[static_cast<std::size_t>(panel - 1)].initialText));
    ShowMode(false);
    panels_[mode - 1]->setMinimumWidth(panels_[mode - 1]->sizeHint().width());
    nextMinute_.setObjectName(QStringLiteral("nextMinute"));
    nextMinute_.setSingleShot(true);
    connect(&nextMinute_, &QTimer::timeout, this, &StatusPanels::ShowDateAndTime);
    ShowDateAndTime();
}

void StatusPanels::AddPanel(QStatusBar& bar, int panel, const QString& text) {
    const PanelTexts& texts = panelTexts[static_cast<std::size_t>(panel - 1)];
    auto* label = new StatusPanel(&bar);
    label->setObjectName(QStringLiteral("sbrMain(%1)").arg(panel));
    label->setProperty("key", QString::fromLatin1(texts.key));
    label->setText(text);
    label->setToolTip(QString::fromLatin1(texts.toolTip));
    label->setAccessibleDescription(QString::fromLatin1(texts.toolTip));
    if (texts.stretch > 0)
        label->setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Preferred);
    bar.addPermanentWidget(label, texts.stretch);
    connect(label, &StatusPanel::DoubleClicked, this,
            [this, panel] { Q_EMIT PanelDoubleClicked(panel); });
    panels_[static_cast<std::size_t>(panel - 1)] = label;
}

void StatusPanels::SetText(int panel, const QString& text) {
    panels_[static_cast<std::size_t>(panel - 1)]->setText(text);
}

QString StatusPanels::Text(int panel) const {
    return panels_[static_cast<std::size_t>(panel - 1)]->text();
}

void StatusPanels::ShowMode(bool online) {
    SetText(mode, online ? QStringLiteral("ONLINE") : QStringLiteral("OFFLINE"));
    panels_[mode - 1]->SetLamp(online);
}

void StatusPanels::ShowDateAndTime() {
    const QDateTime now = clock_.WallClock();
    SetText(date, QLocale().toString(now.date(), QLocale::ShortFormat));
    SetText(time, QLocale().toString(now.time(), TimeFormat()));
    constexpr int minute = 60 * 1000;
    nextMinute_.start(minute - now.time().msecsSinceStartOfDay() % minute);
}
