#include "base/SerialPorts.h"

SerialPorts::~SerialPorts() = default;
