#pragma once

#include <vector>

struct Imported;
struct PeerChoices;
struct PeerFile;

/// The export of OpenNutriTracker: what was eaten, as JSON or CSV, weights and recipes.
namespace OpenNutriTracker {
void Read(const std::vector<PeerFile>& files, const PeerChoices& choices, Imported& into);
} // namespace OpenNutriTracker
