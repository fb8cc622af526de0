#pragma once

#include <QString>

#include <memory>

namespace SQLite {
class Database;
}
class StatementCache;

/// The kinds of database file the program knows; each has its own schema.
enum class DatabaseKind { Users, Foods };

/// One open database file, alive from start to the quit path. Every failure is a RuntimeError with
/// a negative number (the store's result code) and a description that names the file.
///
/// A committed row survives a kill and a power cut, and outside a commit the file is whole by
/// itself: a copy of it is a backup, even while it is open.
class Connection {
public:
    enum State { Closed = 0, Opened = 1 };

    Connection();
    ~Connection();
    Connection(const Connection&) = delete;
    Connection& operator=(const Connection&) = delete;

    /// Opens a file that must exist, be sound, be writable and of this or an older schema version.
    /// An older schema is brought up to date by numbered steps, each in a transaction.
    /// A file that is refused is left as it was, to the byte.
    void Open(const QString& path, DatabaseKind kind);
    void Close(); ///< does nothing where it is not open
    State state() const;
    QString Path() const; ///< of the open file

    /// The underlying database; only for the store's own code, for tools and for tests.
    SQLite::Database& Raw();
    /// The prepared statements, for the store's own code.
    StatementCache& Statements();

private:
    struct Impl;
    Impl& Live() const;
    std::unique_ptr<Impl> impl_;
};

/// The two connections of the process.
Connection& UserDB(); ///< users.mdb: profiles, reference intakes, logs, recipes
Connection& FoodDB(); ///< foods.mdb: the catalogue
