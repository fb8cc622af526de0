#pragma once

class Command;
class Session;

/// Each adds one command with its options and its help to the program. When the program is called
/// with that command, it tells the session what to do.
namespace Commands {
void AddBackup(const Command& program, Session& session);
void AddBackups(const Command& program, Session& session);
void AddCheck(const Command& program, Session& session);
void AddCopyDay(const Command& program, Session& session);
void AddCopyMeal(const Command& program, Session& session);
void AddExport(const Command& program, Session& session);
void AddFoods(const Command& program, Session& session);
void AddImport(const Command& program, Session& session);
void AddLog(const Command& program, Session& session);
void AddRecipes(const Command& program, Session& session);
void AddReport(const Command& program, Session& session);
void AddRestore(const Command& program, Session& session);
void AddSearch(const Command& program, Session& session);
void AddShow(const Command& program, Session& session);
void AddTable(const Command& program, Session& session);
void AddUndo(const Command& program, Session& session);
void AddWeigh(const Command& program, Session& session);
void AddWhy(const Command& program, Session& session);

inline constexpr void (*All[])(const Command& program, Session& session) = {
    AddBackup, AddBackups, AddCheck, AddCopyDay, AddCopyMeal, AddExport,
    AddFoods,  AddImport,  AddLog,   AddRecipes, AddReport,   AddRestore,
    AddSearch, AddShow,    AddTable, AddUndo,    AddWeigh,    AddWhy};
} // namespace Commands
