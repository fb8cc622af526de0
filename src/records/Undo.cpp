#include "records/Undo.h"

#include "records/Restoring.h"
#include "records/Snapshots.h"
#include "runtime/Attempt.h"
#include "runtime/RuntimeError.h"
#include "runtime/Settings.h"

namespace {
/// Newest first. One without a change is of a command that was killed before it changed anything.
QList<Snapshot> Changes(const Snapshots& snapshots) {
    QList<Snapshot> changes;
    for (const Snapshot& snapshot : snapshots.All())
        if (snapshot.kind == SnapshotKind::Change && snapshot.change)
            changes << snapshot;
    return changes;
}

void RequireUnchangedSince(const Snapshot& last, const RecordsFolder& records) {
    if (RecordsState::Of(records) == last.change->after)
        return;
    const int number = Snapshots(records).NumberOf(last);
    throw RuntimeError(ErrorNumber::CannotBeChanged,
                       QStringLiteral("The records have changed since \"%1\", so it cannot be "
                                      "taken back alone. `restore %2` brings back all as it was "
                                      "before it.")
                           .arg(last.reason, QString::number(number)));
}

/// The settings as they were before the change; one that has changed again since stays.
Snapshot::Settings SettingsBefore(const Snapshot& last) {
    Snapshot::Settings before;
    const Snapshot::Settings& changed = last.change->settings;
    for (auto setting = changed.begin(); setting != changed.end(); ++setting)
        if (GetRegValue(setting.key()) == setting.value())
            before[setting.key()] = last.settings.value(setting.key());
    return before;
}

/// After this the records are as the change before has left them, and it can be taken back next.
void StandBehind(Snapshot previous, const Snapshot& last, const RecordsFolder& records) {
    if (previous.change->after != last.source)
        return;
    previous.change->after = RecordsState::Of(records);
    previous.WriteNote();
}
} // namespace

Undo::Result Undo::Last(const RecordsFolder& records) {
    Restoring restoring(records);
    const QList<Snapshot> changes = Changes(Snapshots(records));
    if (changes.isEmpty())
        throw RuntimeError(ErrorNumber::CannotBeChanged,
                           QStringLiteral("There is no change of a command to take back."));
    const Snapshot& last = changes.first();
    RequireUnchangedSince(last, records);
    if (last.MayHaveLostBytes())
        last.RequireSound();
    const Snapshot replaced =
        restoring.PutChecked(last, SettingsBefore(last), "before undo of " + last.reason);
    // From here on the change is taken back: what fails must not look as if it were not.
    if (changes.size() > 1)
        Attempt([&] { StandBehind(changes[1], last, records); });
    Attempt([&] { Snapshots::Remove(last); });
    return {last.reason, last.moment, replaced};
}
