#pragma once

#include "analysis/Period.h"
#include "records/tables/RecordsTable.h"

#include <memory>
#include <span>

/// The tables that the records can be written as. Those of a person are of the current user.
struct TableKind {
    const char* name;
    const char* title;
    bool hasDays; ///< its rows belong to days, and a period can be chosen
    std::unique_ptr<RecordsTable> (*make)(const Period& period);

    static std::span<const TableKind> All();
    static const TableKind& Named(const std::string& name); ///< it must be one of them
    static Period Always();
};
