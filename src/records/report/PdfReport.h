#pragma once

#include <QPageSize>

class QIODevice;
struct ReportFigures;

/// A report as pages to print.
namespace PdfReport {
void Write(QIODevice& file, const ReportFigures& figures, QPageSize::PageSizeId paper);
}
