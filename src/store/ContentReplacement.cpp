#include "store/ContentReplacement.h"

#include "store/RollbackJournal.h"
#include "store/StoreError.h"
#include "store/UnchangedFile.h"

#include <QFileInfo>
#include <QUrl>

#include <SQLiteCpp/SQLiteCpp.h>

#include <sqlite3.h>

namespace {
constexpr int BusyMilliseconds = 5000;

/// In the statements, L stands for the file that changes, and B for the one whose contents it gets.
/// The store keeps the text of a table and of an index with one blank between its first words.
/// Indexes are made before the rows are inserted: the store then copies both as they are. The index
/// of names is copied as the store itself does when it compacts a file: its tables like any others,
/// and what makes them an index as rows of the schema. So a damaged one does no harm.
constexpr const char* MadeStatements[] = {
    R"(SELECT 'DELETE FROM L.sqlite_schema WHERE name = ''FOODS_Trigrams''')",
    R"(SELECT 'DROP VIEW L."' || replace(name, '"', '""') || '"' FROM L.sqlite_schema
       WHERE type = 'view')",
    R"(SELECT 'DROP TABLE L."' || replace(name, '"', '""') || '"' FROM L.sqlite_schema
       WHERE type = 'table' AND name NOT LIKE 'sqlite^_%' ESCAPE '^')",
    R"(SELECT 'CREATE TABLE L.' || substr(sql, 14) FROM B.sqlite_schema
       WHERE type = 'table' AND name NOT LIKE 'sqlite^_%' ESCAPE '^' AND name <> 'FOODS_Trigrams'
       ORDER BY rowid)",
    R"(SELECT 'CREATE INDEX L.' || substr(sql, 14) FROM B.sqlite_schema
       WHERE type = 'index' AND sql LIKE 'CREATE INDEX %' ORDER BY rowid)",
    R"(SELECT 'CREATE UNIQUE INDEX L.' || substr(sql, 21) FROM B.sqlite_schema
       WHERE type = 'index' AND sql LIKE 'CREATE UNIQUE INDEX %' ORDER BY rowid)",
    R"(SELECT 'INSERT INTO L."' || replace(name, '"', '""') || '" SELECT * FROM B."' ||
              replace(name, '"', '""') || '"' FROM B.sqlite_schema
       WHERE type = 'table' AND name NOT LIKE 'sqlite^_%' ESCAPE '^' AND name <> 'FOODS_Trigrams')",
    R"(SELECT 'DELETE FROM L.sqlite_sequence' FROM L.sqlite_schema WHERE name = 'sqlite_sequence')",
    R"(SELECT 'INSERT INTO L.sqlite_sequence SELECT * FROM B.sqlite_sequence' FROM B.sqlite_schema
       WHERE name = 'sqlite_sequence')",
    R"(SELECT 'INSERT INTO L.sqlite_schema SELECT * FROM B.sqlite_schema WHERE name = ' ||
              quote(name) FROM B.sqlite_schema
       WHERE name = 'FOODS_Trigrams'
           OR (type = 'trigger' AND name LIKE 'FOODS^_Trigrams^_%' ESCAPE '^'))",
};

/// Each is true where both files have the same number of rows in a table.
constexpr auto Counts =
    R"(SELECT 'SELECT (SELECT count(*) FROM L."' || replace(name, '"', '""') ||
              '") = (SELECT count(*) FROM B."' || replace(name, '"', '""') || '")'
       FROM B.sqlite_schema WHERE type = 'table' AND name NOT LIKE 'sqlite^_%' ESCAPE '^'
           AND name <> 'FOODS_Trigrams')";

constexpr auto Reindexing =
    R"(SELECT 'REINDEX L."' || replace(name, '"', '""') || '"' FROM L.sqlite_schema
       WHERE type = 'index')";

struct Names {
    std::string live;
    std::string by;

    std::string In(std::string statement) const {
        for (const auto& [mark, name] : {std::pair{"L.", live + "."}, std::pair{"B.", by + "."}})
            for (size_t at = 0; (at = statement.find(mark, at)) != std::string::npos;
                 at += name.size())
                statement.replace(at, std::string_view(mark).size(), name);
        return statement;
    }
};

std::vector<std::string> Texts(SQLite::Database& database, const std::string& select) {
    std::vector<std::string> texts;
    SQLite::Statement statement(database, select);
    while (statement.executeStep())
        texts.push_back(statement.getColumn(0).getString());
    return texts;
}

void Attach(SQLite::Database& database, const std::string& address, const std::string& name) {
    SQLite::Statement attach(database, "ATTACH ? AS " + name);
    attach.bind(1, address);
    attach.exec();
}

bool IsSound(SQLite::Database& database, const Names& names) {
    return Texts(database, names.In("PRAGMA L.integrity_check(1)")) ==
           std::vector<std::string>{"ok"};
}

/// An index that lacks rows was copied as it was.
void MakeIndexesAnew(SQLite::Database& database, const Names& names) {
    for (const std::string& statement : Texts(database, names.In(Reindexing)))
        database.exec(statement);
}

void RequireSame(SQLite::Database& database, const Names& names) {
    if (!IsSound(database, names))
        MakeIndexesAnew(database, names);
    if (!IsSound(database, names))
        throw SQLite::Exception("the copied rows are not sound", SQLITE_CORRUPT);
    for (const std::string& equal : Texts(database, names.In(Counts)))
        if (database.execAndGet(equal).getInt() == 0)
            throw SQLite::Exception("some rows are missing in the copy", SQLITE_CORRUPT);
}

void Replace(SQLite::Database& database, const Names& names) {
    for (const char* made : MadeStatements)
        for (const std::string& statement : Texts(database, names.In(made)))
            database.exec(statement);
    const std::string version = database.execAndGet(names.In("PRAGMA B.user_version")).getString();
    database.exec(names.In("PRAGMA L.user_version = ") + version);
    RequireSame(database, names);
}

std::string LiveAddress(const QString& path) {
    return QUrl::fromLocalFile(QFileInfo(path).absoluteFilePath()).toEncoded().toStdString();
}

/// The first file is the main one of the connection, and the others are attached.
std::vector<Names> AttachAll(SQLite::Database& database,
                             const QList<ContentReplacement::File>& files) {
    std::vector<Names> all;
    for (const auto& [path, by] : files) {
        const std::string number = std::to_string(all.size());
        all.push_back({all.empty() ? "main" : "live" + number, "by" + number});
        if (all.size() > 1)
            Attach(database, LiveAddress(path), all.back().live);
        Attach(database, UnchangedFile::Address(by).toStdString(), all.back().by);
        RollbackJournal::SyncFully(database, all.back().live.c_str());
    }
    return all;
}
} // namespace

void ContentReplacement::Run(const QList<File>& files) {
    StoreError::Guarded(files.first().path, [&] {
        SQLite::Database database(LiveAddress(files.first().path),
                                  SQLite::OPEN_READWRITE | SQLite::OPEN_URI, BusyMilliseconds);
        const std::vector<Names> all = AttachAll(database, files);
        database.exec("PRAGMA writable_schema = ON"); // for the index of names
        SQLite::Transaction transaction(database, SQLite::TransactionBehavior::IMMEDIATE);
        for (const Names& names : all)
            Replace(database, names);
        transaction.commit();
    });
}
