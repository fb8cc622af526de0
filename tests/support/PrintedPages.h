#pragma once

#include <QPageSize>
#include <QStringList>

struct PrintJob;

/// What a screen prints, without the dialogs.
namespace PrintedPages {
void WritePdf(const PrintJob& job, const QString& file,
              QPageSize::PageSizeId paper = QPageSize::Letter);
QStringList TextOf(const QString& pdf); ///< the text of each page
/// Both: writes the job into that folder.
QStringList TextOf(const PrintJob& job, const QString& folder,
                   QPageSize::PageSizeId paper = QPageSize::Letter);
/// Makes a picture of each page in that folder and gives their files, in order.
QStringList PicturesOf(const QString& pdf, const QString& folder);
} // namespace PrintedPages
