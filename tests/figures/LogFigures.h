#pragma once

#include "figures/Records.h"
#include "figures/ShownFigures.h"

#include <vector>

class CaseLine;
class ScaledFood;

/// The logs of a run, one after the other: each made line by line, by the routines that the screens
/// use, and shown line by line.
class LogFigures {
public:
    /// Does what the line says. False: this is no line of a log.
    bool Take(const CaseLine& line);
    ShownFigures& Shown() { return shown_; }

private:
    struct Step;
    static const std::vector<Step>& Steps();

    void Begin(const CaseLine& line);
    void AddFood(const CaseLine& line);
    void AddRecipe(const CaseLine& line);
    void AddIngredient(const CaseLine& line);
    void ShowCard(const CaseLine& line);
    void EditTarget(const CaseLine& line);
    void Weigh(const CaseLine& line);
    void Eat(const CaseLine& line);
    void Examine(const CaseLine& line);
    void ShowDay(const CaseLine& line);
    void ShowMonth(const CaseLine& line);
    void ShowPeriod(const CaseLine& line);
    void ShowTables(const CaseLine& line);
    void ShowReport(const CaseLine& line);

    /// Fields from `first` on: food or recipe, its place, serving, quantity.
    ScaledFood Chosen(const CaseLine& line, int first) const;

    Records records_;
    ShownFigures shown_;
    std::vector<qint32> foods_, recipes_;
};
