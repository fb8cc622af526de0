#include "commands/SnapshotFacts.h"

#include "records/Snapshot.h"

#include <QLocale>

namespace {
QString Size(const Snapshot& snapshot) {
    return QLocale::c().formattedDataSize(snapshot.Bytes(), 1, QLocale::DataSizeSIFormat);
}

QString Contents(const Snapshot& snapshot) {
    return snapshot.damaged ? QStringLiteral("damaged files") : snapshot.counts.Text();
}
} // namespace

QString SnapshotFacts::Line(int number, const Snapshot& snapshot) {
    constexpr int numberWidth = 4;
    constexpr int kindWidth = 10;
    constexpr int sizeWidth = 9;
    return QString::number(number).rightJustified(numberWidth) + "  " + snapshot.When() + "  " +
           snapshot.KindName().leftJustified(kindWidth) + Size(snapshot).rightJustified(sizeWidth) +
           "  " + snapshot.reason + ": " + Contents(snapshot);
}

QJsonObject SnapshotFacts::Json(const Snapshot& snapshot) {
    return {{"path", snapshot.path},
            {"moment", snapshot.moment.toString(Qt::ISODateWithMs)},
            {"kind", snapshot.KindName()},
            {"reason", snapshot.reason},
            {"damaged", snapshot.damaged},
            {"bytes", snapshot.Bytes()},
            {"counts", snapshot.counts.ToJson()}};
}
