#pragma once

#include "monkey/Action.h"

/// Which input may change which table, as a list of rules. A change without a rule is a finding.
namespace Explanations {
enum class Change { Added, Changed, Removed };

/// Whether the action, or the screen that it has brought to the front, may do that to the table.
bool Covers(const Action& action, const QString& front, Change change, const QString& table);
} // namespace Explanations
