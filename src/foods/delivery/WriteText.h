#pragma once

#include <QString>

/// Writes the file in UTF-8, completely or not at all.
void WriteText(const QString& path, const QString& text);
