#pragma once

/// Whether the standard streams of the process lead to a terminal, with somebody before it. The
/// system's own question stands in this file alone.

/// Standard input: a question can be answered.
bool InputIsTerminal();
/// Standard error: what is shown there may be written over.
bool ErrorIsTerminal();
