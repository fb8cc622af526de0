#pragma once

#include <QList>
#include <QString>

/// Replaces the contents of some database files by those of others, in one transaction over all of
/// them: after a kill or a power cut all files have their old contents, or all have the new ones.
namespace ContentReplacement {
struct File {
    QString path;
    QString by; ///< the file with the new contents; nobody may write it meanwhile
};

/// The files at `path` must have a rollback journal. Before the commit they are checked, and their
/// rows are counted.
void Run(const QList<File>& files);
} // namespace ContentReplacement
