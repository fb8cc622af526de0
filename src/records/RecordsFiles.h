#pragma once

#include "store/Connection.h"

#include <array>

/// The database files of a person's records.
struct RecordsFile {
    const char* name;
    DatabaseKind kind;
};

inline constexpr std::array<RecordsFile, 2> RecordsFiles{
    {{"users.mdb", DatabaseKind::Users}, {"foods.mdb", DatabaseKind::Foods}}};
