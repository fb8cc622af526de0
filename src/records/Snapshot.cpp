#include "records/Snapshot.h"

#include "records/Disk.h"
#include "records/SoundRecords.h"
#include "runtime/Attempt.h"
#include "runtime/RuntimeError.h"

#include <QFile>
#include <QFileInfo>
#include <QJsonDocument>
#include <QSysInfo>

namespace {
constexpr auto NoteName = "snapshot.json";
constexpr auto MomentInName = "yyyyMMdd'T'HHmmsszzz'Z'";

SnapshotKind KindOf(const QString& name) {
    for (const SnapshotKinds::Row& row : SnapshotKinds::Rows)
        if (name == QLatin1String(row.name))
            return row.kind;
    return SnapshotKind::Manual;
}

QJsonObject JsonOf(const Snapshot::Settings& settings) {
    QJsonObject json;
    for (auto setting = settings.begin(); setting != settings.end(); ++setting)
        json[setting.key()] = setting.value();
    return json;
}

Snapshot::Settings SettingsFrom(const QJsonObject& json) {
    Snapshot::Settings settings;
    for (auto setting = json.begin(); setting != json.end(); ++setting)
        settings[setting.key()] = setting.value().toString();
    return settings;
}

std::optional<Snapshot::Change> ChangeFrom(const QJsonObject& json) {
    if (json.isEmpty())
        return {};
    return Snapshot::Change{RecordsState::FromJson(json[u"after"].toObject()),
                            SettingsFrom(json[u"settings"].toObject())};
}

void ReadNote(Snapshot& snapshot, const QJsonObject& note) {
    snapshot.moment = QDateTime::fromString(note[u"moment"].toString(), Qt::ISODateWithMs);
    snapshot.kind = KindOf(note[u"kind"].toString());
    snapshot.reason = note[u"reason"].toString();
    snapshot.damaged = note[u"damaged"].toBool();
    snapshot.boot = note[u"boot"].toString();
    snapshot.counts = RecordsCounts::FromJson(note[u"counts"].toObject());
    snapshot.source = RecordsState::FromJson(note[u"source"].toObject());
    snapshot.settings = SettingsFrom(note[u"settings"].toObject());
    snapshot.change = ChangeFrom(note[u"change"].toObject());
}

/// A power cut can take the note of a snapshot that was made without a sync, and damage its files.
/// A disk may fail to read the note. The name of the folder remains.
void DescribeFiles(Snapshot& snapshot) {
    const QString name = QFileInfo(snapshot.path).fileName();
    snapshot.moment = QDateTime::fromString(name.section(u'-', 0, 0), QLatin1String(MomentInName));
    snapshot.moment.setTimeSpec(Qt::UTC);
    if (snapshot.moment.isValid()) {
        snapshot.kind = KindOf(name.section(u'-', -1));
        snapshot.reason = QStringLiteral("its note is lost");
    } else {
        snapshot.moment = QFileInfo(snapshot.Files().Users()).lastModified().toUTC();
        snapshot.reason = QStringLiteral("copied by hand");
    }
    Attempt([&] { snapshot.counts = RecordsCounts::Of(snapshot.Files()); });
}

bool HasBothFiles(const RecordsFolder& folder) {
    return QFile::exists(folder.Users()) && QFile::exists(folder.Foods());
}
} // namespace

std::optional<Snapshot> Snapshot::Read(const QString& path) {
    Snapshot snapshot;
    snapshot.path = path;
    QFile file(snapshot.Files().File(NoteName));
    if (file.open(QIODevice::ReadOnly))
        ReadNote(snapshot, QJsonDocument::fromJson(file.readAll()).object());
    if (snapshot.moment.isValid())
        return snapshot;
    if (!HasBothFiles(snapshot.Files()))
        return {};
    DescribeFiles(snapshot);
    return snapshot;
}

/// The note is written beside and moved, so that it is never half written.
void Snapshot::WriteNote() const {
    QJsonObject note{{"moment", moment.toString(Qt::ISODateWithMs)},
                     {"kind", KindName()},
                     {"reason", reason},
                     {"damaged", damaged},
                     {"boot", boot},
                     {"counts", counts.ToJson()},
                     {"source", source.ToJson()},
                     {"settings", JsonOf(settings)}};
    if (change)
        note[u"change"] =
            QJsonObject{{"after", change->after.ToJson()}, {"settings", JsonOf(change->settings)}};
    const QString name = Files().File(NoteName);
    Disk::Write(name + u".new", QJsonDocument(note).toJson());
    Disk::Move(name + u".new", name);
}

qint64 Snapshot::Bytes() const {
    qint64 bytes = 0;
    for (const RecordsFile& file : RecordsFiles)
        bytes += QFileInfo(Files().File(file.name)).size();
    return bytes;
}

QString Snapshot::KindName() const {
    return QLatin1String(SnapshotKinds::Of(kind).name);
}

QString Snapshot::FolderName() const {
    return moment.toString(QLatin1String(MomentInName)) + u'-' + KindName();
}

QString Snapshot::When() const {
    return moment.toLocalTime().toString(QStringLiteral("yyyy-MM-dd HH:mm:ss"));
}

QString Snapshot::Title() const {
    return "the snapshot of " + When() + " (" + reason + u')';
}

bool Snapshot::MayHaveLostBytes() const {
    return boot.isEmpty() || boot != QString::fromLatin1(QSysInfo::bootUniqueId());
}

void Snapshot::RequireSound() const {
    if (damaged)
        throw RuntimeError(ErrorNumber::FileAccess,
                           "In " + Title() + " the files are damaged. Choose another one.");
    SoundRecords::Require(Files());
}
