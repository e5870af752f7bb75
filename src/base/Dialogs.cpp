#include "base/Dialogs.h"

Dialogs::~Dialogs() = default;
