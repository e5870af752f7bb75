#include "base/MSComm.h"

MSComm::~MSComm() = default;
