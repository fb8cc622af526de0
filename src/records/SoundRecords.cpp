#include "records/SoundRecords.h"

#include "records/RecordsFiles.h"
#include "records/RecordsFolder.h"
#include "runtime/RuntimeError.h"
#include "store/FileCheck.h"
#include "store/UnchangedFile.h"

#include <QFile>

#include <algorithm>
#include <future>

#include <sqlite3.h>

namespace {
void RequireFile(const RecordsFolder& folder, const RecordsFile& file) {
    FileCheck::Untouched(folder.File(file.name), file.kind);
    UnchangedFile(folder.File(file.name)).RequireSoundRows();
}

bool IsMissing(const RecordsFolder& folder, const RecordsFile& file) {
    return !QFile::exists(folder.File(file.name));
}
} // namespace

/// The catalogue is checked beside the diary: together they take the time of the longer one.
void SoundRecords::Require(const RecordsFolder& folder) {
    auto second = std::async(std::launch::async, [&] { RequireFile(folder, RecordsFiles.back()); });
    RequireFile(folder, RecordsFiles.front());
    second.get();
}

bool SoundRecords::MeansDamage(const RuntimeError& failure, const RecordsFolder& folder) {
    constexpr int damage[] = {-SQLITE_CORRUPT, -SQLITE_NOTADB, ErrorNumber::JournalDoesNotFit};
    const bool missing = std::ranges::any_of(
        RecordsFiles, [&](const RecordsFile& file) { return IsMissing(folder, file); });
    return std::ranges::count(damage, failure.Number()) > 0 ||
           (failure.Number() == -SQLITE_CANTOPEN && missing);
}
