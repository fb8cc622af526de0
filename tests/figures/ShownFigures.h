#pragma once

#include <QDate>

#include <memory>

class QWidget;
class ScaledFood;

/// Prints what the charts and panels of the program show. They are the same for all logs of a run:
/// some keep what they showed before.
class ShownFigures {
public:
    ShownFigures();
    ~ShownFigures();

    void PrintMeasures(); ///< those that the platform and the layout decide

    void PrintFacts(const ScaledFood& food);
    void PrintDay(QDate day);
    void PrintMonth(QDate from, QDate to);
    void PrintPeriod(QDate from, QDate to); ///< bars, pie and line of the report

private:
    struct Charts;
    void PrintAverages(QDate from, QDate to);
    void PrintBreakdown(QDate from, QDate to);
    void PrintWeights(QDate from, QDate to);

    std::unique_ptr<Charts> charts_;
};
