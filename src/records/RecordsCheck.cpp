#include "records/RecordsCheck.h"

#include "records/NameIndexCheck.h"
#include "records/RecordsChange.h"
#include "records/RecordsReading.h"
#include "records/RowChecks.h"
#include "records/SchemaCheck.h"
#include "records/Snapshots.h"
#include "records/SoundRecords.h"
#include "runtime/RuntimeError.h"
#include "store/Connection.h"
#include "store/StoreError.h"

#include <QFileInfo>

#include <SQLiteCpp/SQLiteCpp.h>

#include <future>

namespace {
SQLite::Database ForReading(const QString& path) {
    return {path.toStdString(), SQLite::OPEN_READONLY | SQLite::OPEN_NOMUTEX};
}

/// What the store says of pages and indexes. An index is made of its table, so it can be made anew.
QList<Finding> Integrity(const QString& path) {
    SQLite::Database database = ForReading(path);
    SQLite::Statement check(database, "PRAGMA integrity_check(20)");
    const QString file = QFileInfo(path).fileName();
    QList<Finding> findings;
    while (check.executeStep()) {
        const QString said = QString::fromStdString(check.getColumn(0).getString());
        if (said == u"ok")
            return {};
        const bool index = said.contains(u"index ") && !said.contains(u"btree");
        findings << Finding{file,
                            "damage inside the file: " + said,
                            0,
                            {},
                            index ? QStringLiteral("Searches may miss rows.")
                                  : QStringLiteral("Rows may be lost."),
                            QStringLiteral("Bring back a snapshot (`backups`, `restore`)."),
                            index ? QStringLiteral("REINDEX") : QString()};
    }
    return findings;
}

QList<Finding> Contents(const QString& path, DatabaseKind kind, const QString& today) {
    SQLite::Database database = ForReading(path);
    SchemaCheck::Result schema = SchemaCheck::Run(database, kind);
    if (schema.canBeRead)
        schema.findings << RowChecks::Run(database, kind, today);
    return schema.findings;
}

QList<Finding> Names(const QString& path) {
    SQLite::Database database = ForReading(path);
    return NameIndexCheck::Run(database);
}

/// An error of the store inside a file that could be opened is a finding, too.
template <class Check> QList<Finding> Guarded(const QString& path, Check check) {
    try {
        return StoreError::Guarded(path, check);
    } catch (const RuntimeError& failure) {
        return {Finding{QFileInfo(path).fileName(),
                        failure.Description(),
                        0,
                        {},
                        QStringLiteral("Rows may be lost."),
                        QStringLiteral("Bring back a snapshot (`backups`, `restore`).")}};
    }
}

template <class Check> std::future<QList<Finding>> Started(const QString& path, Check check) {
    return std::async(std::launch::async,
                      [path, check] { return Guarded(path, [&] { return check(path); }); });
}
} // namespace

RecordsCheck::RecordsCheck(const RecordsFolder& records, QDate today)
    : records_(records) {
    try {
        const RecordsReading reading(records_);
        CheckOpen(today);
    } catch (const RuntimeError& failure) {
        if (!SoundRecords::MeansDamage(failure, records_))
            throw;
        AddDamage(failure.Description());
    }
}

/// The pages of both files and the rows of both are looked through at the same time.
void RecordsCheck::CheckOpen(QDate today) {
    struct File {
        QString path;
        DatabaseKind kind;
    };
    const File files[] = {{UserDB().Path(), DatabaseKind::Users},
                          {FoodDB().Path(), DatabaseKind::Foods}};
    const QString day = today.toString(Qt::ISODate);
    std::vector<std::future<QList<Finding>>> parts;
    for (const File& file : files)
        parts.push_back(Started(file.path, Integrity));
    for (const File& file : files)
        parts.push_back(Started(file.path, [&day, kind = file.kind](const QString& path) {
            return Contents(path, kind, day);
        }));
    parts.push_back(Started(FoodDB().Path(), Names));
    for (std::future<QList<Finding>>& part : parts)
        findings_ << part.get();
    if (findings_.isEmpty())
        counts_ = RecordsCounts::Of(RecordsFolder(QFileInfo(files[0].path).path()));
}

void RecordsCheck::AddDamage(const QString& problem) {
    const Snapshots snapshots(records_);
    const auto sound = snapshots.NewestSound();
    findings_ << Finding{records_.Path(),
                         problem,
                         0,
                         {},
                         QStringLiteral("Halvane cannot start."),
                         sound
                             ? QStringLiteral("`restore %1` brings back %2.")
                                   .arg(QString::number(snapshots.NumberOf(*sound)), sound->Title())
                             : QStringLiteral("There is no snapshot. Put a copy of yours in its "
                                              "place.")};
}

QList<Finding> RecordsCheck::Repair() const {
    QList<Finding> repairs = findings_;
    repairs.removeIf([](const Finding& finding) { return finding.repair.isEmpty(); });
    if (repairs.isEmpty())
        return repairs;
    RecordsChange change(records_, QStringLiteral("check --repair"));
    StoreError::Guarded(UserDB().Path(), [&] {
        for (const Finding& finding : std::as_const(repairs))
            UserDB().Raw().exec(finding.repair.toStdString());
    });
    change.Commit();
    return repairs;
}
