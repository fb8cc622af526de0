#pragma once

#include <vector>

struct Imported;
struct PeerChoices;
struct PeerFile;

/// The tables that Lose It! exports: foods of a day, weights, own foods and recipes. They name no
/// unit of weight.
namespace LoseIt {
void Read(const std::vector<PeerFile>& files, const PeerChoices& choices, Imported& into);
} // namespace LoseIt
