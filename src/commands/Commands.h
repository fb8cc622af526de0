#pragma once

class Session;

namespace CLI {
class App;
}

/// Each adds one command with its options and its help to the program. When the program is called
/// with that command, it tells the session what to do.
namespace Commands {
void AddBackup(CLI::App& program, Session& session);
void AddBackups(CLI::App& program, Session& session);
void AddCheck(CLI::App& program, Session& session);
void AddCopyDay(CLI::App& program, Session& session);
void AddCopyMeal(CLI::App& program, Session& session);
void AddExport(CLI::App& program, Session& session);
void AddFoods(CLI::App& program, Session& session);
void AddImport(CLI::App& program, Session& session);
void AddLog(CLI::App& program, Session& session);
void AddRecipes(CLI::App& program, Session& session);
void AddReport(CLI::App& program, Session& session);
void AddRestore(CLI::App& program, Session& session);
void AddSearch(CLI::App& program, Session& session);
void AddShow(CLI::App& program, Session& session);
void AddTable(CLI::App& program, Session& session);
void AddUndo(CLI::App& program, Session& session);
void AddWeigh(CLI::App& program, Session& session);
void AddWhy(CLI::App& program, Session& session);

inline constexpr void (*All[])(CLI::App& program, Session& session) = {
    AddBackup, AddBackups, AddCheck, AddCopyDay, AddCopyMeal, AddExport,
    AddFoods,  AddImport,  AddLog,   AddRecipes, AddReport,   AddRestore,
    AddSearch, AddShow,    AddTable, AddUndo,    AddWeigh,    AddWhy};
} // namespace Commands
