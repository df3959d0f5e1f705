#pragma once
// Backups of the progress file in the Backups folder beside it: one before every rewrite and
// one at the first start of each day, named by date and time, the newest ten kept.

#include "core/date_value.h"

#include <string>

namespace tessera {

inline constexpr const char* BackupFolder = "Backups";
inline constexpr int BackupsKept = 10;

// The backup's path for a moment: Backups/TesseraConfig 2026-11-19 09-00-00.MS, so that the
// names sort by time.
std::string BackupName(DateValue now);

// Copies the progress file into Backups and drops all but the newest ten; false when the copy
// could not be written. A missing or empty progress file needs none.
bool BackupProgressFile(DateValue now);

// At start-up: a backup unless one was made on this day already.
bool BackupOnFirstStartOfDay(DateValue now);

// A progress file no save could have written: a length that is no multiple of 940, or a header
// that cannot be right. An empty file is a first run, not damage.
bool ProgressFileDamaged(const std::string& bytes);

// The newest backup that is not damaged; empty when there is none.
std::string NewestGoodBackup();

// Puts the backup in the place of the progress file, whole or not at all.
bool RestoreBackup(const std::string& backup);

} // namespace tessera
