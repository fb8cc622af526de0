#include "tour/PrintWalk.h"

#include "support/PrintedPages.h"
#include "tour/Guide.h"

#include "analysis/ui/frmReport.h"
#include "foods/ui/frmNutInfo.h"
#include "intake/ui/frmDay.h"
#include "recipes/ui/frmRecipeManager.h"
#include "toolkit/print/PrintJob.h"

#include <QTemporaryDir>
#include <QTest>

PrintWalk::PrintWalk(Guide& guide)
    : guide_(guide) {}

void PrintWalk::Day() {
    QWidget* screen = guide_.Window(QStringLiteral("frmDay"));
    Preview(screen->window(), QStringLiteral("print-preview-day"));
    ShowPages(static_cast<frmDay*>(screen)->Printed(), QStringLiteral("printed-day"));
}

void PrintWalk::Report() {
    QWidget* screen = guide_.Window(QStringLiteral("frmReport"));
    Preview(screen->window(), QStringLiteral("print-preview-report"));
    ShowPages(static_cast<frmReport*>(screen)->Printed(), QStringLiteral("printed-report"));
}

void PrintWalk::Recipe() {
    QWidget* screen = guide_.Window(QStringLiteral("frmRecipeManager"));
    Preview(screen->window(), QStringLiteral("print-preview-recipe"));
    ShowPages(static_cast<frmRecipeManager*>(screen)->Printed().value(),
              QStringLiteral("printed-recipe"));
}

void PrintWalk::Facts(QWidget* facts) {
    Preview(facts, QStringLiteral("print-preview-facts"));
    ShowPages(static_cast<frmNutInfo*>(facts)->Printed(), QStringLiteral("printed-facts"));
}

void PrintWalk::Preview(QWidget* window, const QString& picture) {
    guide_.TakeInput(window);
    guide_.ForeseeNext(QStringLiteral("printPreview"), [this, picture](QWidget* preview) {
        guide_.Picture(preview, picture);
        preview->close();
    });
    QWidget* focus = window->focusWidget();
    QTest::keyClick(focus ? focus : window, Qt::Key_P, Qt::ControlModifier);
    guide_.Settle();
}

void PrintWalk::ShowPages(const PrintJob& job, const QString& picture) {
    const QTemporaryDir folder;
    const QString pdf = folder.filePath(QStringLiteral("job.pdf"));
    PrintedPages::WritePdf(job, pdf);
    const QStringList pages = PrintedPages::PicturesOf(pdf, folder.path());
    guide_.Check(!pages.isEmpty(), QStringLiteral("pages of ") + job.title);
    for (const QString& page : pages)
        guide_.Save(QPixmap(page), picture);
}
