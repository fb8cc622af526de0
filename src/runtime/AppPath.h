#pragma once

#include <QString>

/// The folder that holds the program and its files. A test sets its own.
QString ApplicationPath();
void SetApplicationPath(const QString& path);

/// The path of a file beside the program; works with and without a separator at the end of the
/// folder.
QString FileBeside(const QString& name);
