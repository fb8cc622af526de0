#pragma once

#include <QString>

/// The folder of the program, where its files stand. A test sets its own.
QString ApplicationPath();
void SetApplicationPath(const QString& path);

/// The file of that name beside the program, whether or not the path ends in a separator.
QString FileBeside(const QString& name);
