#include "core/OwnSnapshots.h"

#include "core/FailureText.h"
#include "records/SnapshotMaking.h"
#include "records/Snapshots.h"
#include "records/UpgradeSnapshot.h"
#include "runtime/AppPath.h"
#include "runtime/Seams.h"
#include "runtime/SettingTable.h"
#include "runtime/Settings.h"

#include <QEvent>
#include <QThread>
#include <QTimer>
#include <QWidget>

namespace {
constexpr auto Told = "FAILED";

/// Why the files could not be kept before they were updated. At that time no window can say it.
QString& FailureBeforeUpgrade() {
    static QString failure;
    return failure;
}

/// What failed in the step; empty if nothing did.
template <class Step> QString FailureIn(Step step) {
    try {
        step();
        return {};
    } catch (const std::exception& failure) {
        return FailureText::Description(failure);
    }
}

void MakeOfTheDay(const RecordsFolder& records) {
    const Snapshots snapshots(records);
    if (snapshots.HasDailyOf(QDate::currentDate()))
        return;
    SnapshotMaking(records, snapshots.Place())
        .Make(SnapshotKind::Daily, QStringLiteral("first start of the day"));
    snapshots.Prune();
}
} // namespace

OwnSnapshots::OwnSnapshots(QWidget* window)
    : QObject(window) {
    window->installEventFilter(this);
}

OwnSnapshots::~OwnSnapshots() {
    if (thread_)
        thread_->wait();
}

void OwnSnapshots::BeforeUpgrade() {
    FailureBeforeUpgrade() =
        FailureIn([] { UpgradeSnapshot::MakeIfNeeded(RecordsFolder(RecordsPath())); });
}

bool OwnSnapshots::eventFilter(QObject* watched, QEvent* event) {
    if (event->type() == QEvent::Paint) {
        watched->removeEventFilter(this);
        QTimer::singleShot(0, this, &OwnSnapshots::Start);
    }
    return false;
}

void OwnSnapshots::Start() {
    const auto failure = std::make_shared<QString>(FailureBeforeUpgrade());
    const RecordsFolder records(RecordsPath());
    thread_.reset(QThread::create([failure, records] {
        const QString ofTheDay = FailureIn([&] { MakeOfTheDay(records); });
        if (failure->isEmpty())
            *failure = ofTheDay;
    }));
    connect(thread_.get(), &QThread::finished, this, [this, failure] { Tell(*failure); });
    thread_->start(QThread::LowPriority);
}

void OwnSnapshots::Tell(const QString& failure) const {
    const bool told = GetRegValue(Settings::Snapshots) == QLatin1String(Told);
    if (told != failure.isEmpty())
        return;
    SetRegValue(Settings::Snapshots, failure.isEmpty() ? QString() : QLatin1String(Told));
    if (!failure.isEmpty())
        ShowAlert("Halvane cannot make a snapshot. " + failure +
                      " You can go on: what you enter is saved.",
                  parent());
}
