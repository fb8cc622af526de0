#pragma once

#include <QString>

/// Named text values that outlive a run: INI form, user scope (on Windows the registry key of the
/// same name). Reading fails to the empty text, writing to nothing.

/// The value cut at its first NUL and at 255 characters; empty where it is missing or unreadable.
QString GetRegValue(const QString& name);
void SetRegValue(const QString& name, const QString& value);
