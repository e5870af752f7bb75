#pragma once

#include <QString>

/// What the user is told to do about a last fault code, 0 to 255. The boards' fault codes fall into
/// ranges: 1 to 63 from a CO-CPU, 64 to 122 from the board itself, among them the link (42H), the
/// user program's own call (45H) and the program (5CH, 5DH); others mean no fault. Manuals and
/// support desks quote these texts, so they stay as they are to the letter.
QString CorrectiveAdvice(int code);
