#pragma once

#include <QString>
#include <QStringList>

enum class TextCoding { Utf8, Latin1 };

/// The lines of a text file without their line ends. Fails if it cannot be read.
QStringList ReadLines(const QString& path, TextCoding coding);
