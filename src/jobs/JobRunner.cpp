#include "jobs/JobRunner.h"

JobRunner::~JobRunner() = default;
