#pragma once

#include <QString>

/// How long a job has run and about how long it still takes.
struct JobTime {
    QString passed;  ///< "0:07", "12:30", "1:02:03"
    QString remains; ///< likewise; empty while nothing sensible can be said
};

/// Times of a job that started at `start` and looks at the clock at `now` (both in seconds of one
/// clock), whose progress began at `first`, stands at `value` and ends at `max` (steps). What
/// remains is told from the pace so far, and only after a second of work and a step done.
JobTime TimeOfJob(double start, double now, qint32 first, qint32 value, qint32 max);

/// One line of both: "Time passed 0:07, about 0:53 left"; the second half only if it is known.
QString JobTimeText(const JobTime& time);
