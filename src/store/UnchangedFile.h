#pragma once

#include <QByteArray>
#include <QString>

#include <memory>

namespace SQLite {
class Database;
}

/// A database file that nobody writes while this lives, such as a copy. It is read without a lock
/// and without a journal, so that neither the file nor its folder changes. Every failure is a
/// RuntimeError that names the file.
class UnchangedFile {
public:
    /// A failure names the file `named`, which is `path` itself unless `path` is a private copy.
    explicit UnchangedFile(const QString& path, const QString& named = {});
    ~UnchangedFile();
    UnchangedFile(const UnchangedFile&) = delete;
    UnchangedFile& operator=(const UnchangedFile&) = delete;

    static QByteArray Address(const QString& path); ///< of the file, for ATTACH

    qint64 Number(const QByteArray& select); ///< the first value
    /// Fails unless every page and every row is sound. An index may lack rows: it can be made anew
    /// from its table.
    void RequireSoundRows();

private:
    QString named_;
    std::unique_ptr<SQLite::Database> database_;
};
