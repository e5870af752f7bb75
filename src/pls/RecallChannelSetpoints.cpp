#include "pls/RecallChannelSetpoints.h"

#include "base/Dialogs.h"
#include "link/RSComm.h"
#include "session/Globals.h"
#include <optional>
#include <utility>

namespace {
constexpr int mostSetpoints = 2048; // a cycle of 4096 divisions has no room for more
constexpr int edgesOfSetpoint = 2;

enum class RecallEnd { Setpoint, NoEdge, BoardRefused, LinkFailed };

// Puts the edges that the board gives together to setpoints. Edges before the first ON are the end
// of a setpoint that comes last.
class EdgeReader {
public:
    EdgeReader(qint16 channel, RSComm& link) : channel_(channel), link_(link) {}

    RecallEnd NextSetpoint() {
        for (int counter = 0; counter < edgesOfSetpoint; ++counter) {
            if (!link_.RecallChannel(channel_))
                return link_.CommError() ? RecallEnd::LinkFailed : RecallEnd::BoardRefused;
            const qint16 position = link_.ChannelRecallPos();
            if (link_.ChannelRecallState() == RecallState::OnEdge) {
                if (!seenOn_)
                    counter = 0;
                seenOn_ = true;
                pair_.on = position;
            } else if (link_.ChannelRecallState() != RecallState::OffEdge) {
                return RecallEnd::NoEdge;
            } else if (seenOn_) {
                pair_.off = position;
            }
        }
        return RecallEnd::Setpoint;
    }
    const Setpoint& Pair() const { return pair_; }

private:
    const qint16 channel_;
    RSComm& link_;
    Setpoint pair_;
    bool seenOn_ = false;
};

// Exchanges each place with every later one of a lower ON; those of equal ON keep their places.
void SortByOn(SetpointList& setpoints) {
    for (qsizetype place = 0; place < setpoints.size(); ++place)
        for (qsizetype later = place + 1; later < setpoints.size(); ++later)
            if (setpoints[later].on < setpoints[place].on)
                std::swap(setpoints[later], setpoints[place]);
}

void ReportRefusal(Dialogs& dialogs, qint16 octalName) {
    dialogs.MsgBox(QStringLiteral("Unable to Recall Channel CH%1").arg(octalName),
                   MsgStyle::Information, QStringLiteral("Channel Recall"));
}

// Nothing when the link failed.
std::optional<SetpointList> Recalled(qint16 channel, RSComm& link, Dialogs& dialogs,
                                     const RecallLabel& label) {
    const qint16 octalName = RSComm::Dec2Octal(channel);
    EdgeReader edges(channel, link);
    SetpointList setpoints;
    qint16 wrapMark = gPLS.ScaleFactor; // no position: the first setpoint's ON takes its place
    while (setpoints.size() <= mostSetpoints) {
        switch (edges.NextSetpoint()) {
        case RecallEnd::LinkFailed:
            return std::nullopt;
        case RecallEnd::BoardRefused:
            ReportRefusal(dialogs, octalName);
            return SetpointList{Setpoint{}};
        case RecallEnd::NoEdge:
            setpoints.append(Setpoint{});
            return setpoints;
        case RecallEnd::Setpoint:
            break;
        }
        if (edges.Pair().on == wrapMark)
            break;
        if (label)
            label(QStringLiteral("Recalling CH%1 Setpoint: %2")
                      .arg(QString::number(octalName), QString::number(setpoints.size())));
        setpoints.append(edges.Pair());
        wrapMark = setpoints.front().on;
    }
    return setpoints;
}
} // namespace

void RecallChannelSetpoints(qint16 Channel, RSComm& link, Dialogs& dialogs,
                            const RecallLabel& ProgressLabel) {
    std::optional<SetpointList> setpoints = Recalled(Channel, link, dialogs, ProgressLabel);
    if (!setpoints)
        return;
    if (setpoints->isEmpty()) // the board gave the wrap mark at once
        setpoints->append(Setpoint{});
    SortByOn(*setpoints);
    gPLS.Chan.at(static_cast<std::size_t>(Channel)) = *setpoints;
}
