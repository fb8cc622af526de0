#pragma once

#include <vector>

struct Imported;
struct PeerChoices;
struct PeerFile;

/// The tables that Cronometer exports: servings, the sums of days, and measurements.
namespace Cronometer {
void Read(const std::vector<PeerFile>& files, const PeerChoices& choices, Imported& into);
} // namespace Cronometer
