#include "records/tables/TableKinds.h"

#include "records/tables/LoggedTables.h"
#include "records/tables/StoredTables.h"
#include "runtime/Dates.h"

#include <algorithm>

static constexpr TableKind Kinds[] = {
    {"log", "Log", true, LoggedTables::Log},
    {"days", "Days", true, LoggedTables::Days},
    {"weights", "Weights", true, StoredTables::Weights},
    {"foods", "Foods", false, StoredTables::Foods},
    {"recipes", "Recipes", false, StoredTables::Recipes},
    {"profile", "Profile", false, StoredTables::Profile},
};

std::span<const TableKind> TableKind::All() {
    return Kinds;
}

const TableKind& TableKind::Named(const std::string& name) {
    return *std::ranges::find(Kinds, name, &TableKind::name);
}

Period TableKind::Always() {
    return {Dates::First(), Dates::Last()};
}
