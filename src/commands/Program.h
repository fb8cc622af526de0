#pragma once

#include <QStringList>

#include <iosfwd>
#include <string>
#include <vector>

/// Runs the program halvane-data: the first argument is its name, then come a command and its
/// options. `keyboard` is where a person can answer questions; null where nobody can. Gives an
/// ExitCode.
int RunCommand(const QStringList& arguments, std::ostream& out, std::ostream& error,
               std::istream* keyboard = nullptr);

/// Whether the command of these arguments draws: it then needs an application with Qt Gui.
bool NeedsDrawing(const std::vector<std::string>& arguments);
