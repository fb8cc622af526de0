#include "store/LeftJournal.h"

#include "store/FileBytes.h"
#include "store/FileHeader.h"
#include "store/StoreError.h"

#include <QDateTime>
#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QtEndian>

#include <SQLiteCpp/SQLiteCpp.h>

#include <algorithm>

#include <sqlite3.h>

namespace {
/// A commit writes the journal, then the file, and then removes the journal. It never takes longer
/// than this.
constexpr qint64 LongestCommit = 10'000;

constexpr const char* Endings[] = {"-journal", "-wal"};

bool CopyForTrial(const QString& from, const QString& to) {
    return QFile::copy(from, to) && QFile::setPermissions(to, QFile::ReadOwner | QFile::WriteOwner);
}

bool IsSound(const QString& path) {
    try {
        SQLite::Database database(path.toStdString(), SQLite::OPEN_READONLY);
        return database.execAndGet("PRAGMA integrity_check").getString() == "ok";
    } catch (const SQLite::Exception&) {
        return false;
    }
}

/// Time between the last write of the journal and the last write, move or copy of the file. Copying
/// cannot set this time back.
qint64 MillisecondsLater(const QString& path, const QString& journal) {
    return QFileInfo(journal).metadataChangeTime().msecsTo(QFileInfo(path).metadataChangeTime());
}

/// The file is at the change that the journal undoes, or just before it.
bool IsOfThisChange(const QString& path, const QString& result) {
    const quint32 ahead = FileHeader::Of(path).ChangeCount() - FileHeader::Of(result).ChangeCount();
    return ahead <= 1;
}

/// The lowest page number in a write-ahead log; the store copies pages in this order. Frames of an
/// earlier round of the log have other salts.
qint64 LowestPage(const QByteArray& log, qint64 pageSize) {
    constexpr qsizetype logHeader = 32, salts = 16, frameHeader = 24, frameSalts = 8,
                        saltLength = 8;
    qint64 lowest = 0;
    const qsizetype frame = frameHeader + pageSize;
    for (qsizetype at = logHeader; at + frame <= log.size(); at += frame) {
        const qint64 page = qFromBigEndian<quint32>(log.constData() + at);
        const auto ofFrame = QByteArrayView(log).sliced(at + frameSalts, saltLength);
        if (ofFrame == QByteArrayView(log).sliced(salts, saltLength) &&
            (lowest == 0 || page < lowest))
            lowest = page;
    }
    return lowest;
}

/// If a kill interrupted copying the log, the file is newer than its log, and its first copied page
/// matches. In another file that page differs.
bool IsBeingTakenIn(const QString& path, const QString& result, const QString& journal) {
    const qint64 size = FileHeader::Of(path).PageSize();
    const qint64 lowest = LowestPage(FileBytes::Of(journal), size);
    const qint64 place = (lowest - 1) * size;
    return lowest > 0 &&
           FileBytes::Of(path).mid(place, size) == FileBytes::Of(result).mid(place, size);
}

RuntimeError DoesNotFit(const QString& path, const QStringList& journals) {
    const QString file = QFileInfo(path).fileName();
    return {ErrorNumber::JournalDoesNotFit,
            QStringLiteral(
                "Halvane cannot tell whether %2 belongs to the file %1 beside it, and has changed "
                "nothing. The folder is %3.\n\nIf you have put a copy of %1 there: move %2 out of "
                "the folder and start again.\n\nIf you have not: make a copy of both, then move "
                "%2 out of the folder and back, and start again. If this message comes again, put "
                "your latest copy in the place of %1 and move %2 out of the folder.")
                .arg(file, journals.join(QStringLiteral(" and ")),
                     QDir::toNativeSeparators(QFileInfo(path).absolutePath()))};
}
} // namespace

LeftJournal::LeftJournal(const QString& path)
    : path_(path) {
    if (std::ranges::any_of(Endings, [this](const char* ending) { return IsThere(ending); }))
        Try();
}

bool LeftJournal::IsThere(const char* ending) const {
    return QFileInfo(path_ + QLatin1String(ending)).size() > 0;
}

QString LeftJournal::Result() const {
    return folder_.filePath(QStringLiteral("trial.mdb"));
}

/// Opening and closing rolls the journal in. The checks of the result decide, not errors on the
/// way.
void LeftJournal::Try() {
    bool copied = CopyForTrial(path_, Result());
    for (const char* ending : Endings)
        if (IsThere(ending))
            copied &= CopyForTrial(path_ + QLatin1String(ending), Result() + QLatin1String(ending));
    if (!copied)
        throw StoreError::Make(SQLITE_CANTOPEN, path_,
                               QStringLiteral("its journal cannot be copied for a check"));
    try {
        SQLite::Database database(Result().toStdString(), SQLite::OPEN_READWRITE);
        database.execAndGet("SELECT count(*) FROM sqlite_schema");
    } catch (const SQLite::Exception&) {
        return;
    }
}

bool LeftJournal::ChangesTheFile() const {
    return QFile::exists(Result()) && FileBytes::Of(Result()) != FileBytes::Of(path_);
}

bool LeftJournal::Fits(const char* ending) const {
    const qint64 later = MillisecondsLater(path_, path_ + QLatin1String(ending));
    if (ending == Endings[0])
        return IsOfThisChange(path_, Result()) && later <= LongestCommit;
    return FileHeader::Of(path_).HasWriteAheadLog() &&
           (later <= 0 || IsBeingTakenIn(path_, Result(), path_ + QLatin1String(ending)));
}

void LeftJournal::RequireFit() const {
    const bool sound = IsSound(Result());
    QStringList strange;
    for (const char* ending : Endings)
        if (IsThere(ending) && !(sound && Fits(ending)))
            strange << QFileInfo(path_).fileName() + QLatin1String(ending);
    if (!strange.isEmpty())
        throw DoesNotFit(path_, strange);
}
