#pragma once

#include "records/RecordsFolder.h"

#include <functional>
#include <span>

/// Where a routine works.
struct RoutineGround {
    RecordsFolder records;
    QString files; ///< a folder with what routines read: documents and tables
};

/// A routine of the program that writes a person's records.
struct WritingRoutine {
    const char* name;
    bool isOfWindow; ///< the files are open as in the window; otherwise it opens them itself
    int commits;     ///< in so many steps the records go from before to after
    std::function<void(const RoutineGround&)> prepare; ///< may be empty
    std::function<void(const RoutineGround&)> run;
};

namespace WritingRoutines {
std::span<const WritingRoutine> All();
/// Makes the records on which every routine can run, and the files that they read.
void MakeGround(const RoutineGround& ground);
void OpenAsWindow(const RoutineGround& ground); ///< and takes the first user
} // namespace WritingRoutines
