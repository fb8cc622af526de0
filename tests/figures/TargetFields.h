#pragma once

class FigureLine;
class Nuts;

void AddTargets(FigureLine& line, const Nuts& targets); ///< all, in the stored order
/// Those that a new weight changes: energy, the macronutrients and the fats.
void AddEnergyTargets(FigureLine& line, const Nuts& targets);
