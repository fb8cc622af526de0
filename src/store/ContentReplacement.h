#pragma once

#include <QList>
#include <QString>

/// Replaces all that some database files hold by what other files hold, in one transaction over all
/// of them: after a kill or a power cut every file is as before, or every file is as after.
namespace ContentReplacement {
struct File {
    QString path;
    QString by; ///< nobody may write it meanwhile
};

/// The files at `path` must have a rollback journal. Before the commit they are checked, and their
/// rows are counted.
void Run(const QList<File>& files);
} // namespace ContentReplacement
