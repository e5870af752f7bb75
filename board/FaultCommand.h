#pragma once

#include "board/FaultPlan.h"

#include <string_view>
#include <vector>

namespace haldenboard {

/// Carries out what follows the word "fault" in a command:
///   [always] lost|doubled|reset|sum|exit [N]
///   [always] late SECONDS [N]
///   [always] wrong MASK [N]
///   [always] garbage BYTE... [at N]
///   silence
///   random SEED KIND=CHANCE...   (lost late lateby doubled wrong garbage reset)
/// N counts replies from now, 1 the next. "always" makes it last from there on.
/// @throws TextError for anything else; the plan is then as it was
void OrderFault(FaultPlan& plan, const std::vector<std::string_view>& words);

} // namespace haldenboard
