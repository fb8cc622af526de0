#pragma once

#include <QString>

/// Named text values that outlive a run; SettingTable.h lists them. They are in an INI file of the
/// user (on Windows: the registry key of the same name). A failed read returns an empty text; a
/// failed write is ignored.

/// The value, cut at its first NUL and at 255 characters.
QString GetRegValue(const QString& name);
void SetRegValue(const QString& name, const QString& value);
