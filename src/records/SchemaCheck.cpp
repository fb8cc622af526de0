#include "records/SchemaCheck.h"

#include "store/SchemaSteps.h"

#include <QStringList>

#include <SQLiteCpp/SQLiteCpp.h>

namespace {
constexpr auto Columns = "SELECT t.name || '.' || c.name FROM sqlite_schema AS t, "
                         "pragma_table_info(t.name) AS c WHERE t.type = 'table' AND "
                         "t.name NOT LIKE 'FOODS^_Trigrams%' ESCAPE '^'";
constexpr auto Indexes =
    "SELECT name, sql FROM sqlite_schema WHERE type = 'index' AND sql NOT NULL";

/// Rows that are delivered, and that the program needs.
struct Needed {
    DatabaseKind file;
    const char* where;
    const char* count;
    const char* problem;
    const char* meaning;
};
constexpr Needed NeededRows[] = {
    {DatabaseKind::Users, "RDI", "SELECT count(*) FROM RDI", "the reference intakes are missing",
     "No targets can be worked out."},
    {DatabaseKind::Foods, "FOODS", "SELECT count(*) FROM FOODS WHERE ID = 23508",
     "the last stock food, with the key 23508, is missing", "No food of your own can be made."},
};

/// Repairs run while the catalogue is open together with the diary, under this name.
constexpr auto CatalogueIndex = "CREATE INDEX together.";

constexpr auto Reinstall = "Install the program again, or bring back a snapshot (`backups`).";

QStringList Texts(SQLite::Database& database, const char* select, int column = 0) {
    QStringList texts;
    SQLite::Statement statement(database, select);
    while (statement.executeStep())
        texts << QString::fromStdString(statement.getColumn(column).getString());
    return texts;
}

bool Has(const QStringList& names, const QString& name) {
    return names.contains(name, Qt::CaseInsensitive);
}

void AddMissingColumns(SQLite::Database& database, SQLite::Database& wanted,
                       SchemaCheck::Result& result) {
    const QStringList there = Texts(database, Columns);
    for (const QString& column : Texts(wanted, Columns))
        if (!Has(there, column)) {
            result.canBeRead = false;
            result.findings << Finding{column,
                                       QStringLiteral("the column is missing"),
                                       0,
                                       {},
                                       QStringLiteral("Screens that read it fail."),
                                       QStringLiteral("Bring back a snapshot (`backups`, "
                                                      "`restore`).")};
        }
}

QString Made(QString statement, DatabaseKind kind) {
    if (kind == DatabaseKind::Foods)
        statement.replace(QLatin1String("CREATE INDEX "), QLatin1String(CatalogueIndex));
    return statement;
}

void AddMissingIndexes(SQLite::Database& database, SQLite::Database& wanted, DatabaseKind kind,
                       SchemaCheck::Result& result) {
    const QStringList there = Texts(database, Indexes);
    const QStringList names = Texts(wanted, Indexes);
    const QStringList statements = Texts(wanted, Indexes, 1);
    for (qsizetype i = 0; i < names.size(); ++i)
        if (!Has(there, names[i]))
            result.findings << Finding{names[i],
                                       QStringLiteral("the index is missing"),
                                       0,
                                       {},
                                       QStringLiteral("Lists and searches are slow."),
                                       {},
                                       Made(statements[i], kind)};
}

void AddMissingRows(SQLite::Database& database, DatabaseKind kind, SchemaCheck::Result& result) {
    for (const Needed& needed : NeededRows)
        if (needed.file == kind && database.execAndGet(needed.count).getInt() == 0)
            result.findings << Finding{
                QLatin1String(needed.where),   QLatin1String(needed.problem), 0, {},
                QLatin1String(needed.meaning), QLatin1String(Reinstall)};
}
/// A file that only reads may be older than the program.
SQLite::Database OfTheSameVersion(SQLite::Database& database, DatabaseKind kind) {
    const int version = database.execAndGet("PRAGMA user_version").getInt();
    SQLite::Database wanted(":memory:", SQLite::OPEN_READWRITE | SQLite::OPEN_CREATE);
    Schema::Migrate(wanted, kind, SchemaSteps().first(static_cast<size_t>(version)));
    return wanted;
}
} // namespace

SchemaCheck::Result SchemaCheck::Run(SQLite::Database& database, DatabaseKind kind) {
    SQLite::Database wanted = OfTheSameVersion(database, kind);
    Result result;
    AddMissingColumns(database, wanted, result);
    AddMissingIndexes(database, wanted, kind, result);
    if (result.canBeRead)
        AddMissingRows(database, kind, result);
    return result;
}
