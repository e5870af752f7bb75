#include "jobs/JobProgress.h"

JobProgress::~JobProgress() = default;
