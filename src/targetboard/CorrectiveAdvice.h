#pragma once

#include <QString>

/// What the user is told to do about a last fault code, 0 to 255. Manuals and support desks quote
/// these texts, so they stay as they are to the letter.
QString CorrectiveAdvice(int code);
