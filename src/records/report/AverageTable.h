#pragma once

#include <QSize>

class QPainter;
struct ReportFigures;

/// The table of an average logged day: for each nutrient the amount, the target, the percent as a
/// bar and as a number, and the coverage.
namespace AverageTable {
QSize Size();
void Paint(QPainter& painter, const ReportFigures& figures); ///< from the painter's origin
} // namespace AverageTable
