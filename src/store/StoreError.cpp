#include "store/StoreError.h"

#include <QDir>

#include <sqlite3.h>

namespace {
struct Wording {
    int code;
    const char* text; ///< %1 is the file, %2 what the store says
};

constexpr Wording Wordings[] = {
    {SQLITE_ERROR, "The store cannot carry out a statement on %1: %2."},
    {SQLITE_PERM, "Access to the file %1 is denied. Allow reading and writing it."},
    {SQLITE_BUSY, "Another program is using the file %1. Close that program and try again."},
    {SQLITE_LOCKED, "The file %1 is in use. Try again."},
    {SQLITE_NOMEM, "There is not enough memory to work on the file %1."},
    {SQLITE_READONLY, "The file %1 cannot be written. Allow writing to it and to its folder."},
    {SQLITE_IOERR, "The file %1 cannot be read or written: %2. Check the disk that it is on."},
    {SQLITE_CORRUPT, "The file %1 is damaged: %2. Put a sound copy in its place."},
    {SQLITE_FULL, "The disk that holds the file %1 is full. Make room on it."},
    {SQLITE_CANTOPEN, "The file %1 cannot be opened: %2."},
    {SQLITE_CONSTRAINT, "A row of the file %1 is refused: %2."},
    {SQLITE_TOOBIG, "A value is too large for the file %1."},
    {SQLITE_AUTH, "A result set of the file %1 only reads rows: %2."},
    {SQLITE_NOTADB, "The file %1 is not what the program needs there: %2. "
                    "Put the delivered file or a copy of yours in its place."},
};

QString TextFor(int code) {
    for (const Wording& wording : Wordings)
        if (wording.code == code)
            return QString::fromLatin1(wording.text);
    return QStringLiteral("The store failed on the file %1: %2.");
}

/// The store may quote a statement, and so a text of any length that somebody typed.
QString Shortened(const QString& detail) {
    constexpr qsizetype longest = 80;
    return detail.size() <= longest ? detail : detail.left(longest) + u"...";
}
} // namespace

RuntimeError StoreError::Make(int resultCode, const QString& path, const QString& detail) {
    const int code = resultCode & 0xFF;
    const QString text = TextFor(code);
    const QString file = QDir::toNativeSeparators(path);
    return {-code, text.contains(QLatin1String("%2")) ? text.arg(file, Shortened(detail))
                                                      : text.arg(file)};
}

RuntimeError StoreError::From(const SQLite::Exception& failure, const QString& path) {
    return Make(failure.getErrorCode(), path, QString::fromUtf8(failure.what()));
}

RuntimeError StoreError::From(sqlite3* database, const QString& path) {
    return Make(sqlite3_errcode(database), path, QString::fromUtf8(sqlite3_errmsg(database)));
}
