#pragma once

#include <QTemporaryDir>

#include <optional>

class RecordsFolder;

/// Has a person's records open as `UserDB()` and `FoodDB()`, for reading alone, as long as it
/// lives.
///
/// The folder does not change and nobody waits: while another program has the records open, where a
/// file has an older version, or where a killed program left a journal, private copies are read.
class RecordsReading {
public:
    explicit RecordsReading(const RecordsFolder& folder);
    ~RecordsReading();
    RecordsReading(const RecordsReading&) = delete;
    RecordsReading& operator=(const RecordsReading&) = delete;

private:
    void OpenCopies(const RecordsFolder& folder);

    std::optional<QTemporaryDir> copies_;
};
