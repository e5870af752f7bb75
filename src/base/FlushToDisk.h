#pragma once

class QFileDevice;

/// Takes what was written to an open file down to the disk itself. Returns false if any of it did
/// not get there. A file that is to replace another is flushed before it does: small contents
/// stay in memory until then, and a QSaveFile passes over what goes wrong in its own commit.
[[nodiscard]] bool FlushToDisk(QFileDevice& file);
