#pragma once

class Pages;
struct ReportFigures;

/// Which days of the period were logged: a line of cells for each month.
namespace LoggedDaysGrid {
void Paint(Pages& pages, const ReportFigures& figures); ///< advances
}
