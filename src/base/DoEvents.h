#pragma once

/// The one explicit yield: lets everything that is pending run, then returns. While it runs no
/// view loop is given a step. Never called between the bytes of an exchange.
void DoEvents();
