#include "fuzz/Merging.h"
#include "fuzz/Scratch.h"
#include "fuzz/Target.h"

#include "records/peers/MappedTable.h"
#include "records/peers/PeerFile.h"
#include "records/peers/TableMap.h"
#include "runtime/Attempt.h"

/// A map or its table is refused, or each row is taken soundly or listed.
void Fuzz(const std::string& bytes) {
    const QByteArrayList parts = Scratch::Parts(bytes, 2);
    const QString path = Scratch::Write(QStringLiteral("map.toml"), parts[0]);
    const PeerFile file{QStringLiteral("table"), {}, parts[1], true};
    Imported imported;
    const auto read = [&] {
        MappedTable::Read({file}, TableMap::Of(path), PeerChoices(), imported);
    };
    if (Attempt(read))
        Merging::Check(imported);
}
