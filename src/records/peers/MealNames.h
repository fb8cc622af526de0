#pragma once

#include "records/peers/Imported.h"
#include "records/peers/PeerChoices.h"

/// Other programs let a person name the meals. Each name is one of our four, by a person's choice
/// or by what it says; the rest are snacks.
namespace MealNames {
/// Puts the entry into one of our meals. A name that says none stays readable in the serving.
void Place(ImportedEntry& entry, const PeerChoices& choices, Imported& into);
} // namespace MealNames
