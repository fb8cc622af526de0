#include "records/OwnRecords.h"

#include "foods/delivery/DeliveredDatabases.h"
#include "foods/delivery/WriteText.h"
#include "records/Disk.h"
#include "records/RecordsLock.h"
#include "records/Snapshots.h"
#include "records/UpgradeSnapshot.h"
#include "runtime/AppPath.h"
#include "runtime/Attempt.h"

#include <QFile>
#include <QFileInfo>

#include <algorithm>

namespace {
/// Empty where there is none.
QByteArray DeliveryIn(const QString& folder) {
    QFile file(RecordsFolder(folder).Delivery());
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

void KeepFromOthers(const QString& folder) {
    QFile::setPermissions(folder, QFile::ReadOwner | QFile::WriteOwner | QFile::ExeOwner);
}
} // namespace

OwnRecords::OwnRecords()
    : OwnRecords(RecordsFolder(RecordsPath()), ApplicationPath()) {}

OwnRecords::OwnRecords(RecordsFolder records, QString delivered)
    : records_(std::move(records))
    , delivered_(std::move(delivered)) {}

void OwnRecords::MakeFolder() const {
    const QFileInfo folder(records_.Path());
    if (folder.exists() || records_.Path() == delivered_)
        return;
    Disk::MakeFolders(folder.filePath());
    KeepFromOthers(folder.path()); // the snapshots, too
    KeepFromOthers(folder.filePath());
}

void OwnRecords::Update() const {
    if (AreCurrent())
        return;
    if (IsFirstStart())
        Deliver();
    else if (AreThere())
        Attempt([&] { Deliver(); });
}

const RecordsFolder& OwnRecords::Ready() const {
    if (AreCurrent())
        return records_;
    MakeFolder();
    if (AreThere())
        Attempt([&] { UpdateAlone(); });
    else
        UpdateAlone();
    return records_;
}

bool OwnRecords::AreCurrent() const {
    if (records_.Path() == delivered_)
        return true;
    const QByteArray delivery = DeliveryIn(delivered_);
    return !delivery.isEmpty() && DeliveryIn(records_.Path()) == delivery;
}

bool OwnRecords::AreThere() const {
    return std::ranges::all_of(RecordsFiles, [&](const RecordsFile& file) {
        return QFile::exists(records_.File(file.name));
    });
}

/// Also after a kill in the first start, and for records that were copied there before it.
bool OwnRecords::IsFirstStart() const {
    return !QFile::exists(records_.Delivery()) && Snapshots(records_).All().isEmpty();
}

void OwnRecords::Deliver() const {
    DeliveredDatabases(delivered_).Update(records_.Path());
    WriteText(records_.Delivery(), QString::fromLatin1(DeliveryIn(delivered_)));
}

void OwnRecords::UpdateAlone() const {
    const RecordsLock lock(records_);
    UpgradeSnapshot::MakeIfNeeded(records_);
    Update();
}
