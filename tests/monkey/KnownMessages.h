#pragma once

#include <QString>

/// What the program may say.
namespace KnownMessages {
bool HasAlert(const QString& text);
} // namespace KnownMessages
