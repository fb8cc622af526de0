#include "store/Recordset.h"

#include "store/Connection.h"
#include "store/RowBuffer.h"
#include "store/StatementCache.h"
#include "store/StoreError.h"

#include <algorithm>
#include <map>

namespace {
[[noreturn]] void NoCurrentRow() {
    throw RuntimeError(ErrorNumber::NoCurrentRecord,
                       QStringLiteral("There is no current row: the result set is empty, or stands "
                                      "before its first or behind its last row."));
}

void AppendQuoted(QString& sql, const QString& name) {
    sql += u'"';
    sql += QString(name).replace(u'"', QLatin1String("\"\""));
    sql += u'"';
}

QString QuotedName(const QString& name) {
    QString quoted;
    AppendQuoted(quoted, name);
    return quoted;
}
} // namespace

/// All rows are read when the set is opened. In an updatable set column 0 of the buffer is the row
/// handle, hidden from callers.
struct Recordset::Impl {
    Connection* connection;
    QString table;
    std::shared_ptr<const Columns> columns;
    RowBuffer rows;
    int row = 0;
    bool gone = false; ///< the current row was deleted, and the next one has moved up to its place
    bool adding = false;
    std::map<int, QVariant> pending; ///< what Update will write, by column of the buffer

    Impl(Connection& on, const QString& source, bool updatable);
    int Hidden() const { return table.isEmpty() ? 0 : 1; }
    bool HasRow() const { return !gone && row >= 0 && row < rows.Count(); }
    int ColumnAt(int position) const;
    int ColumnNamed(const QString& name) const;
    QVariant Stored(int column) const;
    void RequireTable() const;
    void MoveTo(int target);
    void SetColumn(int column, const QVariant& value);
    QString PendingNames(QLatin1String separator) const;
    void BindPending(Prepared& statement) const;
    RowBuffer Write(Prepared& statement) const;
    void Insert();
    void Change();
    void Remove();
};

Recordset::Impl::Impl(Connection& on, const QString& source, bool updatable)
    : connection(&on) {
    const auto [statement, written] = on.Statements().Read(source, updatable);
    table = written;
    columns = statement.Shape();
    rows = RowBuffer(columns->Count());
    while (statement.Step())
        rows.Append(statement.Handle());
    statement.Reset();
}

int Recordset::Impl::ColumnAt(int position) const {
    const int column = position + Hidden();
    if (position < 0 || column >= columns->Count())
        throw RuntimeError(ErrorNumber::NoSuchColumn,
                           QStringLiteral("The result set has no column %1.").arg(position));
    return column;
}

int Recordset::Impl::ColumnNamed(const QString& name) const {
    const int column = columns->Find(name);
    if (column < Hidden())
        throw RuntimeError(ErrorNumber::NoSuchColumn,
                           QStringLiteral("The result set has no column \"%1\".").arg(name));
    return column;
}

QVariant Recordset::Impl::Stored(int column) const {
    const auto set = pending.find(column);
    if (set != pending.end())
        return set->second;
    if (adding)
        return {};
    if (!HasRow())
        NoCurrentRow();
    return rows.Value(row, column);
}

void Recordset::Impl::RequireTable() const {
    if (table.isEmpty())
        throw RuntimeError(ErrorNumber::CannotBeChanged,
                           QStringLiteral("The rows of this result set cannot be changed."));
}

void Recordset::Impl::MoveTo(int target) {
    adding = false;
    gone = false;
    pending.clear();
    row = std::clamp(target, -1, rows.Count());
}

void Recordset::Impl::SetColumn(int column, const QVariant& value) {
    RequireTable();
    if (!adding && !HasRow())
        NoCurrentRow();
    pending[column] = columns->Stored(column, value);
}

/// Each name with the separator behind it, but for the last.
QString Recordset::Impl::PendingNames(QLatin1String separator) const {
    QString names;
    for (const auto& [column, value] : pending) {
        if (!names.isEmpty())
            names += separator;
        AppendQuoted(names, columns->Name(column));
    }
    return names;
}

void Recordset::Impl::BindPending(Prepared& statement) const {
    int parameter = 0;
    for (const auto& [column, value] : pending)
        statement.Bind(++parameter, value);
}

/// Runs a statement that writes one row; this commits. Returns the stored row with its generated
/// keys and defaults, or nothing if there was no such row.
RowBuffer Recordset::Impl::Write(Prepared& statement) const {
    RowBuffer stored(columns->Count());
    while (statement.Step())
        stored.Append(statement.Handle());
    return stored;
}

void Recordset::Impl::Insert() {
    const auto others = qsizetype(pending.size()) - 1;
    const QString values = pending.empty()
                               ? QStringLiteral(" DEFAULT VALUES")
                               : u" (" + PendingNames(QLatin1String(",")) + u") VALUES (?" +
                                     QStringLiteral(",?").repeated(others) + u')';
    Prepared& statement = connection->Statements().Command(u"INSERT INTO " + QuotedName(table) +
                                                           values + u" RETURNING rowid, *");
    BindPending(statement);
    rows.Append(Write(statement));
    MoveTo(rows.Count() - 1);
}

void Recordset::Impl::Change() {
    if (pending.empty())
        return;
    Prepared& statement = connection->Statements().Command(
        u"UPDATE " + QuotedName(table) + u" SET " + PendingNames(QLatin1String("=?, ")) +
        u"=? WHERE rowid=? RETURNING rowid, *");
    BindPending(statement);
    statement.Bind(static_cast<int>(pending.size()) + 1, rows.Value(row, 0));
    const RowBuffer stored = Write(statement);
    if (stored.Count() == 0)
        NoCurrentRow();
    rows.Replace(row, stored);
    pending.clear();
}

void Recordset::Impl::Remove() {
    Prepared& statement = connection->Statements().Command(u"DELETE FROM " + QuotedName(table) +
                                                           u" WHERE rowid=? RETURNING rowid, *");
    statement.Bind(1, rows.Value(row, 0));
    if (Write(statement).Count() == 0)
        NoCurrentRow();
    rows.Erase(row);
    pending.clear();
    gone = true;
}

Recordset::Recordset() = default;

Recordset::Recordset(Connection& connection, const QString& source, CursorType cursor,
                     LockType lock) {
    Open(connection, source, cursor, lock);
}

Recordset::~Recordset() = default;
Recordset::Recordset(Recordset&&) noexcept = default;
Recordset& Recordset::operator=(Recordset&&) noexcept = default;

void Recordset::Open(Connection& connection, const QString& source, CursorType, LockType lock) {
    Close();
    impl_ = std::make_unique<Impl>(connection, source, lock != LockType::ReadOnly);
}

void Recordset::Close() {
    impl_.reset();
}

bool Recordset::IsOpen() const {
    return impl_ != nullptr;
}

Recordset::Impl& Recordset::Opened() const {
    if (!impl_)
        throw RuntimeError(ErrorNumber::NotOpen, QStringLiteral("The result set is not open."));
    return *impl_;
}

int Recordset::RecordCount() const {
    return Opened().rows.Count();
}

bool Recordset::AtStart() const {
    return Opened().rows.Count() == 0 || Opened().row < 0;
}

bool Recordset::AtEnd() const {
    const Impl& set = Opened();
    return set.rows.Count() == 0 || (!set.gone && set.row >= set.rows.Count());
}

void Recordset::MoveFirst() {
    Opened().MoveTo(0);
}

void Recordset::MoveLast() {
    Opened().MoveTo(Opened().rows.Count() - 1);
}

void Recordset::MoveNext() {
    Opened().MoveTo(Opened().gone ? Opened().row : Opened().row + 1);
}

void Recordset::MovePrevious() {
    Opened().MoveTo(Opened().row - 1);
}

int Recordset::FieldCount() const {
    return Opened().columns->Count() - Opened().Hidden();
}

QString Recordset::FieldName(int position) const {
    return Opened().columns->Name(Opened().ColumnAt(position));
}

Field Recordset::Read(int column) const {
    const Columns& columns = *Opened().columns;
    return {columns.Name(column), columns.Read(column, Opened().Stored(column))};
}

Field Recordset::operator[](int position) const {
    return Read(Opened().ColumnAt(position));
}

Field Recordset::operator[](const QString& name) const {
    return Read(Opened().ColumnNamed(name));
}

void Recordset::AddNew() {
    Impl& set = Opened();
    set.RequireTable();
    set.pending.clear();
    set.adding = true;
}

void Recordset::Set(int position, const QVariant& value) {
    Opened().SetColumn(Opened().ColumnAt(position), value);
}

void Recordset::Set(const QString& name, const QVariant& value) {
    Opened().SetColumn(Opened().ColumnNamed(name), value);
}

void Recordset::Update() {
    if (Opened().adding)
        Opened().Insert();
    else
        Opened().Change();
}

void Recordset::Delete() {
    Impl& set = Opened();
    set.RequireTable();
    if (set.adding || !set.HasRow())
        NoCurrentRow();
    set.Remove();
}
