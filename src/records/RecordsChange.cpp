#include "records/RecordsChange.h"

#include "records/SnapshotMaking.h"
#include "records/Snapshots.h"
#include "records/UpgradeSnapshot.h"
#include "runtime/Attempt.h"
#include "runtime/Settings.h"
#include "store/Connection.h"

RecordsChange::RecordsChange(const RecordsFolder& folder, const QString& title)
    : folder_(folder)
    , lock_(folder) {
    UpgradeSnapshot::MakeIfNeeded(folder);
    try {
        Open();
        before_ = SnapshotMaking(folder, Snapshots(folder).Place())
                      .Make(SnapshotKind::Change, title, SnapshotMaking::Care::Quick);
        transaction_.emplace(UserDB());
    } catch (const RuntimeError&) {
        FoodDB().Close();
        UserDB().Close();
        throw;
    }
}

void RecordsChange::Open() {
    UserDB().Open(folder_.Users(), DatabaseKind::Users);
    FoodDB().OpenTogether(folder_.Foods(), DatabaseKind::Foods, UserDB());
}

RecordsChange::~RecordsChange() {
    transaction_.reset();
    FoodDB().Close();
    UserDB().Close();
    if (!committed_)
        Attempt([&] { Snapshots::Remove(before_); });
}

void RecordsChange::Set(const QString& setting, const QString& value) {
    if (GetRegValue(setting) != value)
        settings_[setting] = value;
}

/// From the commit on the change stands: what fails then must not look like a change that failed.
void RecordsChange::Commit() {
    transaction_->Commit();
    committed_ = true;
    for (auto setting = settings_.begin(); setting != settings_.end(); ++setting)
        SetRegValue(setting.key(), setting.value());
    Attempt([&] {
        NoteChange();
        Snapshots(folder_).Prune();
    });
}

/// Without the note the change cannot be taken back alone.
void RecordsChange::NoteChange() {
    const RecordsState after = RecordsState::Of(folder_);
    committed_ = after != before_.source || !settings_.isEmpty();
    if (!committed_)
        return;
    before_.change = {after, settings_};
    before_.WriteNote();
}
