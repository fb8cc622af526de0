#include "records/peers/PeerTables.h"

#include "runtime/RuntimeError.h"

void PeerTables::LeaveOut(PeerTable& table, const QString& reason, Imported& into) {
    while (table.Next())
        into.LeaveOut(table.Here(), reason);
}

/// A member of a zip file that is no table does not keep anybody from the others.
std::optional<PeerTable> PeerTables::Opened(const PeerFile& file) const {
    try {
        return std::optional<PeerTable>(std::in_place, file, numbers_);
    } catch (const RuntimeError& broken) {
        if (!file.isMember)
            throw;
        into_.Refuse({file.name, {}, {}}, broken.Description());
        return std::nullopt;
    }
}

void PeerTables::TellUnknown(const PeerFile& file) const {
    if (!file.isMember)
        throw RuntimeError(ErrorNumber::TypeMismatch,
                           file.name + " is not a table that " + program_ +
                               " exports: its header names other columns.");
    into_.LeaveOut({file.name, {}, {}}, QStringLiteral("It holds nothing that is kept here."));
}
