#pragma once

#include <vector>

struct Imported;
struct PeerChoices;
struct PeerFile;

/// The tables that MyFitnessPal exports: the sums of meals, and measurements. They name no foods
/// and no unit of weight.
namespace MyFitnessPal {
void Read(const std::vector<PeerFile>& files, const PeerChoices& choices, Imported& into);
} // namespace MyFitnessPal
