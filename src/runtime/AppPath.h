#pragma once

#include <QString>

/// Where the program finds its files. Either everything stands in one folder with the program; or
/// the program is installed for all people of a machine: then the delivered files are in
/// ../share/halvane, for reading, and each person's records in that person's data folder.

/// The folder of the delivered files. A test sets its own, which then holds the records, too.
QString ApplicationPath();
void SetApplicationPath(const QString& path);

/// The folder of the records of the person who runs the program.
QString RecordsPath();

/// The path of a delivered file; works with and without a separator at the end of the folder.
QString FileBeside(const QString& name);
