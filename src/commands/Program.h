#pragma once

#include <QStringList>

#include <iosfwd>

/// Runs the program halvane-data: the first argument is its name, then come a command and its
/// options. Gives an ExitCode.
int RunCommand(const QStringList& arguments, std::ostream& out, std::ostream& error);
