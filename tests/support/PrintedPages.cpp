#include "support/PrintedPages.h"

#include "drawing/Pages.h"
#include "drawing/StyleOnPaper.h"
#include "toolkit/print/PrintJob.h"

#include <QDir>
#include <QPdfWriter>
#include <QProcess>

namespace {

QByteArray OutputOf(const char* program, const QStringList& arguments) {
    QProcess process;
    process.start(QLatin1String(program), arguments);
    process.waitForFinished(-1);
    return process.readAllStandardOutput();
}

} // namespace

void PrintedPages::WritePdf(const PrintJob& job, const QString& file, QPageSize::PageSizeId paper) {
    const StyleOnPaper style;
    QPdfWriter writer(file);
    writer.setPageLayout({QPageSize(paper), QPageLayout::Portrait, QMarginsF()});
    writer.setResolution(Pages::DotsAnInch);
    Pages pages(writer, job.foot);
    job.paint(pages);
}

QStringList PrintedPages::TextOf(const QString& pdf) {
    QStringList texts = QString::fromUtf8(OutputOf("pdftotext", {QStringLiteral("-layout"), pdf,
                                                                 QStringLiteral("-")}))
                            .split(u'\f');
    texts.removeLast(); // behind the last page
    return texts;
}

QStringList PrintedPages::TextOf(const PrintJob& job, const QString& folder,
                                 QPageSize::PageSizeId paper) {
    const QString file = folder + "/printed.pdf";
    WritePdf(job, file, paper);
    return TextOf(file);
}

QStringList PrintedPages::PicturesOf(const QString& pdf, const QString& folder) {
    OutputOf("pdftoppm", {QStringLiteral("-r"), QStringLiteral("96"), QStringLiteral("-png"), pdf,
                          folder + "/page"});
    QStringList files;
    for (const QString& name : QDir(folder).entryList({QStringLiteral("page*.png")}))
        files << folder + u'/' + name;
    return files;
}
