#pragma once

#include <vector>

struct Imported;
struct PeerChoices;
struct PeerFile;
struct TableMap;

/// A table of any layout, read as a person's map says.
namespace MappedTable {
void Read(const std::vector<PeerFile>& files, const TableMap& map, const PeerChoices& choices,
          Imported& into);
} // namespace MappedTable
