#include "board/BoardModel.h"

#include <stdexcept>
#include <string>

namespace haldenboard {

namespace {

PlsLayout LayoutOf(int index) {
    switch (index) {
    case 55:
    case 62:
    case 63:
    case 64:
    case 67:
        return PlsLayout::Standard;
    case 69:
        return PlsLayout::Large;
    default:
        return PlsLayout::None;
    }
}

int MostChannelsOf(int index) {
    if (index == 64)
        return 32;
    if (index == 69)
        return 64;
    return LayoutOf(index) == PlsLayout::None ? 0 : 16;
}

void SetImageRange(BoardModel& model) {
    switch (model.index) {
    case 50:
        model.imageStart = 0x5000;
        model.imageLength = 0xB000;
        return;
    case 68:
        model.imageStart = 0x4000;
        model.imageLength = 0x8000;
        return;
    case 52:
    case 53:
    case 56:
        model.imageStart = 0x2000;
        model.imageLength = 0x2000;
        return;
    case 49:
    case 57:
        return;
    default:
        if (!model.IsPls()) {
            model.imageStart = 0x2000;
            model.imageLength = 0x6000;
        }
    }
}

uint16_t FirstOutputByteOf(int index) {
    if (index == 49)
        return 58;
    return index == 50 ? 160 : 49;
}

} // namespace

BoardModel ModelOfIndex(int index) {
    if (index < LowestModel || index > HighestModel)
        throw std::invalid_argument("no board model " + std::to_string(index) + " (49 to 69)");
    BoardModel model{};
    model.index = index;
    model.layout = LayoutOf(index);
    model.mostChannels = MostChannelsOf(index);
    model.hasClock = index == 54 || index == 65;
    model.firstOutputByte = FirstOutputByteOf(index);
    SetImageRange(model);
    return model;
}

} // namespace haldenboard
