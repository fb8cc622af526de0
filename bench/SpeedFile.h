#pragma once

#include <QString>

#include <optional>

/// What a run has measured, in its order, and the machine that it ran on. `speed.py` makes a table
/// of the file, and compares two of them.
namespace SpeedFile {
/// Takes `--json=FILE` out of the arguments. Without it nothing is written.
void TakeArgument(int& count, char** arguments);
/// Without a limit, what is measured has an aim alone.
void Add(const QString& work, const QString& unit, double ours, std::optional<double> limit,
         double aim);
void Write();
} // namespace SpeedFile
