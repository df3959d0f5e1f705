#include "core/progress_backups.h"

#include "core/progress_file.h"
#include "core/records.h"
#include "platform/file_system.h"

#include <QDateTime>

#include <algorithm>
#include <cctype>
#include <cmath>

namespace tessera {

namespace {

constexpr const char* BackupPrefix = "TesseraConfig ";
constexpr const char* BackupSuffix = ".MS";

std::string Stamp(DateValue now, const char* format) {
    const QDateTime origin(QDate(1899, 12, 30), QTime(0, 0), Qt::UTC);
    const auto seconds = static_cast<qint64>(std::llround(now * 86400.0));
    return origin.addSecs(seconds).toString(QString::fromLatin1(format)).toStdString();
}

bool IsBackup(const std::string& name) {
    return name.starts_with(BackupPrefix) && name.ends_with(BackupSuffix);
}

std::vector<std::string> Backups() {
    std::vector<std::string> names;
    for (const std::string& name : Files().list(BackupFolder))
        if (IsBackup(name))
            names.push_back(name); // sorted, so oldest first
    return names;
}

std::string InFolder(const std::string& name) {
    return std::string(BackupFolder) + '/' + name;
}

// A log date as every save writes it: month-day-year with dashes.
bool LooksLikeDate(const std::string& text) {
    if (text.size() != 10 || text[2] != '-' || text[5] != '-')
        return false;
    for (const std::size_t i : {0, 1, 3, 4, 6, 7, 8, 9})
        if (std::isdigit(static_cast<unsigned char>(text[i])) == 0)
            return false;
    return true;
}

// Slots fill from the first and are never cleared; a used one has a date and a code of 1 to 12.
bool LogPossible(const ProgressHeader& header) {
    bool freeSeen = false;
    for (int slot = 1; slot <= LogSlotCount; ++slot) {
        if (header.LogDates[slot][0] == '\0') {
            freeSeen = true;
            continue;
        }
        const int code = header.LogCodes[slot];
        if (freeSeen || code < 1 || code > TakeCounterCount ||
            !LooksLikeDate(header.LogDates[slot]))
            return false;
    }
    return true;
}

} // namespace

std::string BackupName(DateValue now) {
    return InFolder(BackupPrefix + Stamp(now, "yyyy-MM-dd HH-mm-ss") + BackupSuffix);
}

bool BackupProgressFile(DateValue now) {
    const std::string bytes = Files().read(ProgressFile).value_or(std::string());
    if (bytes.empty())
        return true;
    if (!Files().makeFolder(BackupFolder) || !WriteWhole(Files(), BackupName(now), bytes))
        return false;
    const std::vector<std::string> names = Backups();
    for (std::size_t i = 0; i + BackupsKept < names.size(); ++i)
        Files().remove(InFolder(names[i]));
    return true;
}

bool BackupOnFirstStartOfDay(DateValue now) {
    const std::string today = BackupPrefix + Stamp(now, "yyyy-MM-dd ");
    for (const std::string& name : Backups())
        if (name.starts_with(today))
            return true;
    return BackupProgressFile(now);
}

bool ProgressFileDamaged(const std::string& bytes) {
    if (bytes.size() % RecordSize != 0)
        return true;
    if (bytes.empty())
        return false;
    RecordBytes first{};
    std::copy_n(bytes.begin(), RecordSize, first.begin());
    const ProgressHeader header = DecodeHeader(first);
    const bool recordsWithoutUser = header.isFirstRun() && bytes.size() > RecordSize;
    return header.PassingGrade > 100 || recordsWithoutUser || !LogPossible(header);
}

std::string NewestGoodBackup() {
    std::vector<std::string> names = Backups();
    std::reverse(names.begin(), names.end()); // the newest first
    for (const std::string& name : names) {
        const std::optional<std::string> bytes = Files().read(InFolder(name));
        if (bytes && !bytes->empty() && !ProgressFileDamaged(*bytes))
            return InFolder(name);
    }
    return {};
}

bool RestoreBackup(const std::string& backup) {
    const std::optional<std::string> bytes = Files().read(backup);
    return bytes && WriteWhole(Files(), ProgressFile, *bytes, NewProgressFile, RecordSize);
}

} // namespace tessera
