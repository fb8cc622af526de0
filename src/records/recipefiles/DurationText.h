#pragma once

#include <QString>

#include <optional>

/// Minutes of "PT1H30M", "P0DT0H35M", "1 hr 10 min" or "40 minutes". None for what says no time, or
/// none at all.
std::optional<double> MinutesOf(const QString& text);
