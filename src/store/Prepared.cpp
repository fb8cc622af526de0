#include "store/Prepared.h"

#include "store/StoreError.h"

#include <algorithm>

#include <sqlite3.h>

namespace {
bool IsBlank(const char* tail, const char* end) {
    return std::all_of(
        tail, end, [](char at) { return at == ';' || at == ' ' || (at >= '\t' && at <= '\r'); });
}
} // namespace

Prepared::Prepared(sqlite3* database, const QString& path, const QByteArray& sql)
    : database_(database)
    , path_(path) {
    // The store stops at a NUL and would ignore the rest.
    if (sql.contains('\0'))
        throw StoreError::Make(SQLITE_ERROR, path, QStringLiteral("it holds a NUL character"));
    const char* tail = nullptr;
    Check(sqlite3_prepare_v2(database, sql.constData(), static_cast<int>(sql.size()), &statement_,
                             &tail));
    if (statement_ == nullptr)
        throw StoreError::Make(SQLITE_ERROR, path, QStringLiteral("it is empty"));
    if (!IsBlank(tail, sql.constEnd())) {
        sqlite3_finalize(statement_);
        throw StoreError::Make(SQLITE_ERROR, path,
                               QStringLiteral("there is more than one statement"));
    }
    columns_ = std::make_shared<const Columns>(statement_);
}

Prepared::~Prepared() {
    sqlite3_finalize(statement_);
}

void Prepared::Bind(int parameter, const QVariant& stored) {
    switch (stored.typeId()) {
    case QMetaType::UnknownType:
        Check(sqlite3_bind_null(statement_, parameter));
        break;
    case QMetaType::Double:
    case QMetaType::Float:
        Check(sqlite3_bind_double(statement_, parameter, stored.toDouble()));
        break;
    case QMetaType::QString: {
        const QByteArray text = stored.toString().toUtf8();
        Check(sqlite3_bind_text64(statement_, parameter, text.constData(),
                                  static_cast<sqlite3_uint64>(text.size()), SQLITE_TRANSIENT,
                                  SQLITE_UTF8));
        break;
    }
    default:
        Check(sqlite3_bind_int64(statement_, parameter, stored.toLongLong()));
    }
}

void Prepared::BindPointer(int parameter, void* pointer, const char* type) {
    Check(sqlite3_bind_pointer(statement_, parameter, pointer, type, nullptr));
}

bool Prepared::Step() {
    const int result = sqlite3_step(statement_);
    if (result != SQLITE_ROW && result != SQLITE_DONE)
        Check(result);
    return result == SQLITE_ROW;
}

void Prepared::Reset() {
    sqlite3_reset(statement_);
    sqlite3_clear_bindings(statement_);
}

void Prepared::Check(int resultCode) const {
    if (resultCode != SQLITE_OK)
        throw StoreError::From(database_, path_);
}
