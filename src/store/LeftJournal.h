#pragma once

#include <QString>
#include <QTemporaryDir>

/// The journal that a killed process left beside a database file: a `-journal`, or the `-wal` of an
/// earlier version. The store rolls whatever lies there into the file, and a journal does not name
/// its file: a copy that was put in the place of the file would be mixed with changes of another.
/// So the journal is tried on copies in a temporary folder first. The file is never touched.
class LeftJournal {
public:
    explicit LeftJournal(const QString& path);

    /// False also where a journal lies there that holds nothing for the file.
    bool ChangesTheFile() const;
    /// Fails with StoreError::JournalDoesNotFit, and says which files to set aside, where the
    /// journal is not of this file or where that cannot be told.
    void RequireFit() const;
    QString Result() const; ///< the file as it will be with the journal taken in

private:
    bool IsThere(const char* ending) const;
    bool Fits(const char* ending) const;
    void Try();

    QString path_;
    QTemporaryDir folder_;
};
