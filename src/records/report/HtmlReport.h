#pragma once

#include <QByteArray>

struct ReportFigures;

/// A report as one HTML file, which loads nothing and prints well. All texts of the records are
/// escaped.
namespace HtmlReport {
QByteArray Of(const ReportFigures& figures);
}
