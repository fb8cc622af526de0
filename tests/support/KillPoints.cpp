#include "support/KillPoints.h"

#include "store/Connection.h"
#include "store/NameIndex.h"

#include <QFile>

#include <SQLiteCpp/SQLiteCpp.h>

#include <sqlite3.h>

#include <gtest/gtest.h>

KillPoints::KillPoints(Connection& watched, const std::function<void()>& work)
    : path_(watched.Path()) {
    EXPECT_TRUE(copies_.isValid());
    sqlite3_update_hook(watched.Raw().getHandle(), OnRow, this);
    work();
    sqlite3_update_hook(watched.Raw().getHandle(), nullptr, nullptr);
    Copy();
}

/// The store writes rows of the index of names for itself, in the same transaction.
void KillPoints::OnRow(void* self, int, const char*, const char* table, long long) {
    if (!std::string_view(table).starts_with(NameIndex::Table))
        static_cast<KillPoints*>(self)->Copy();
}

void KillPoints::Copy() {
    const QString file = File(count_++);
    EXPECT_TRUE(QFile::copy(path_, file));
    const QLatin1String journal("-journal");
    if (QFile::exists(path_ + journal)) {
        EXPECT_TRUE(QFile::copy(path_ + journal, file + journal));
    }
}

QString KillPoints::File(int point) const {
    return copies_.filePath(QString::number(point));
}

void KillPoints::ForEach(const std::function<void(int, SQLite::Database&)>& visit) const {
    for (int point = 0; point < count_; ++point) {
        SQLite::Database left(File(point).toStdString(), SQLite::OPEN_READWRITE);
        EXPECT_EQ(left.execAndGet("PRAGMA integrity_check").getString(), "ok");
        visit(point, left);
    }
}
