#pragma once

#include <QString>

/// The text of a file that does not say its encoding: UTF-8 where it is sound, else the code page
/// of DOS (437) if it has bytes that only that page uses for letters, else that of Windows (1252).
QString OldText(const QByteArray& bytes);
