#pragma once

#include <vector>

struct Imported;
struct PeerChoices;
struct PeerFile;

/// The backup of Waistline: foods, recipes, meals, and a diary that refers to them.
namespace Waistline {
void Read(const std::vector<PeerFile>& files, const PeerChoices& choices, Imported& into);
} // namespace Waistline
