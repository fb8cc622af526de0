#pragma once

#include <QString>
#include <QTemporaryDir>

/// The journal that a killed process left beside a database file: a `-journal`, or the `-wal` of an
/// earlier version. The store would roll it into the file. But a journal does not name its file: if
/// somebody has put another copy in its place, the changes of two files would be mixed. So the
/// journal is tried on copies in a temporary folder first. The file itself is not touched.
class LeftJournal {
public:
    explicit LeftJournal(const QString& path);

    /// Also false if a journal holds nothing for the file.
    bool ChangesTheFile() const;
    /// Fails with ErrorNumber::JournalDoesNotFit, and names the files to move, if the journal
    /// belongs to another file or this cannot be decided.
    void RequireFit() const;
    QString Result() const; ///< the file as it will be with the journal taken in

private:
    bool IsThere(const char* ending) const;
    bool Fits(const char* ending) const;
    void Try();

    QString path_;
    QTemporaryDir folder_;
};
