#pragma once

#include "store/Columns.h"

#include <QByteArray>

#include <memory>

struct sqlite3;
struct sqlite3_stmt;

/// A prepared statement; its owner finalises it. Every failure is a RuntimeError that names the
/// file.
class Prepared {
public:
    /// Refuses a second statement and NUL characters.
    Prepared(sqlite3* database, const QString& path, const QByteArray& sql);
    ~Prepared();
    Prepared(const Prepared&) = delete;
    Prepared& operator=(const Prepared&) = delete;

    sqlite3_stmt* Handle() const { return statement_; }
    const std::shared_ptr<const Columns>& Shape() const { return columns_; }

    void Bind(int parameter, const QVariant& stored); ///< from 1
    /// For a function that asks for a pointer of this type, which must be a literal.
    void BindPointer(int parameter, void* pointer, const char* type);
    bool Step();  ///< true while there is a row
    void Reset(); ///< ready for the next run, its parameters null

private:
    void Check(int resultCode) const;

    sqlite3* database_;
    QString path_;
    sqlite3_stmt* statement_ = nullptr;
    std::shared_ptr<const Columns> columns_;
};
