#pragma once

#include <QString>

#include <memory>

namespace SQLite {
class Database;
}
class StatementCache;

/// The kinds of database files; each has its own schema.
enum class DatabaseKind { Users, Foods };

/// An open database file, from start to quit. Every failure is a RuntimeError with a negative
/// number (the store's result code) and a description that names the file.
///
/// A committed row survives a kill and a power cut. Between commits the file is complete: a copy of
/// it is a backup, even while it is open.
class Connection {
public:
    enum State { Closed = 0, Opened = 1 };

    Connection();
    ~Connection();
    Connection(const Connection&) = delete;
    Connection& operator=(const Connection&) = delete;

    /// Opens a file that must exist, be sound, be writable, and have this schema version or an
    /// older one. An older schema is updated by numbered steps, each in a transaction. A refused
    /// file stays unchanged to the byte.
    void Open(const QString& path, DatabaseKind kind);
    /// Opens a file, whose schema version must be one that can be read, only for reading. Neither
    /// the file nor its folder changes.
    void OpenForReading(const QString& path, DatabaseKind kind);
    /// Adds a file to the database that `other` has open, at most one. If `other` only reads, so
    /// does this. A transaction then covers both files: a kill or a power cut leaves both old or
    /// both new.
    void OpenTogether(const QString& path, DatabaseKind kind, Connection& other);
    void Close(); ///< does nothing where it is not open
    State state() const;
    QString Path() const; ///< of the open file

    /// The underlying database: for the store itself, for tools and for tests.
    SQLite::Database& Raw();
    /// The prepared statements: for the store itself.
    StatementCache& Statements();

private:
    struct Database;
    struct Impl;
    Impl& Live() const;
    void Hold(const QString& path, std::unique_ptr<SQLite::Database> database);

    std::unique_ptr<Impl> impl_;
};

Connection& UserDB(); ///< users.mdb: profiles, reference intakes, logs, recipes
Connection& FoodDB(); ///< foods.mdb: the catalogue
