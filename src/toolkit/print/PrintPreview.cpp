#include "toolkit/print/PrintPreview.h"

#include "drawing/Pages.h"
#include "drawing/Style.h"
#include "drawing/StyleOnPaper.h"
#include "runtime/Counted.h"
#include "runtime/Seams.h"
#include "toolkit/ButtonRow.h"
#include "toolkit/Labels.h"
#include "toolkit/SpokenRole.h"
#include "toolkit/ucButton.h"
#include "toolkit/ucRadio.h"

#include <QFile>
#include <QGraphicsPathItem>
#include <QGraphicsView>
#include <QLocale>
#include <QPrintDialog>
#include <QPrintPreviewWidget>
#include <QScrollBar>
#include <QShortcut>

namespace {

constexpr QSize PreviewSize(800, 560); ///< leaves room for the bar of a desktop of 800 by 600
constexpr int CountWidth = 90;         ///< of the number of pages

struct Paper {
    const char* caption;
    QPageSize::PageSizeId size;
};
constexpr std::array<Paper, 2> Papers{{{"Letter", QPageSize::Letter}, {"A4", QPageSize::A4}}};

/// The paper that is usual where the person lives.
size_t UsualPaper() {
    return QLocale::system().measurementSystem() == QLocale::MetricSystem ? 1 : 0;
}

/// Nothing else tells that the disk is full.
bool IsWhole(const QString& pdf) {
    constexpr int Ending = 16;
    QFile file(pdf);
    return file.open(QIODevice::ReadOnly) && file.seek(file.size() - Ending) &&
           file.readAll().contains("%%EOF");
}

/// The preview paints a black shadow at two sides of a page. An area in the colour of the ground
/// covers it; its inner edge is the edge of the paper.
void CoverShadow(QGraphicsItem* page, QSizeF paper) {
    QPainterPath around;
    around.addRect(page->boundingRect());
    around.addRect(QRectF(QPointF(), paper));
    auto* cover = new QGraphicsPathItem(around, page);
    cover->setBrush(TheStyle().scrollSlot);
    cover->setPen(Qt::NoPen);
}

/// The view takes the keyboard for what it shows. Tools are told a name, so the role comes first.
void TellView(QGraphicsView& view) {
    view.viewport()->setFocusPolicy(Qt::NoFocus);
    SetSpokenRole(&view, QAccessible::Pane);
    view.setAccessibleName(QStringLiteral("Preview of the pages"));
    for (QScrollBar* bar : {view.verticalScrollBar(), view.horizontalScrollBar()})
        bar->setAccessibleName(QStringLiteral("Scroll the pages"));
}

/// The platform may make a file name of it.
QString DocumentName(QString title) {
    return title.replace(u'/', u'-').replace(u'\\', u'-');
}

} // namespace

PrintPreview::PrintPreview(PrintJob job, QWidget* owner)
    : Dialog(QStringLiteral("printPreview"), QStringLiteral("Print"), owner)
    , job_(std::move(job))
    , printer_(QPrinter::ScreenResolution) {
    setFixedSize(PreviewSize);
    SetUpPrinter();
    AddPapers();
    AddPages(AddButtons());
    UsePaper(UsualPaper());
}

void PrintPreview::SetUpPrinter() {
    printer_.setDocName(DocumentName(job_.title));
    printer_.setCreator(QStringLiteral("Halvane"));
    printer_.setResolution(Pages::DotsAnInch);
    printer_.setFullPage(true);
}

QRect PrintPreview::AddButtons() {
    auto* print = MakeButton(this, QStringLiteral("cmdPrint"), QStringLiteral("Print..."));
    auto* done = MakeButton(this, QStringLiteral("cmdDone"), QStringLiteral("Done"));
    print->SetMainAction(true);
    print->setFocus();
    connect(print, &ucButton::Click, this, &PrintPreview::Print);
    connect(done, &ucButton::Click, this, &QDialog::reject);
    connect(new QShortcut(QKeySequence::Print, this), &QShortcut::activated, this,
            &PrintPreview::Print);
    const QRect above = LayButtonRow(Inner(), {print, done});
    PlacePapers({above.left(), print->y()}, print->height());
    return above;
}

void PrintPreview::PlacePapers(QPoint place, int height) {
    for (QWidget* control : {static_cast<QWidget*>(opPaper_[0]), static_cast<QWidget*>(opPaper_[1]),
                             static_cast<QWidget*>(lblPages_)}) {
        control->move(place.x(), place.y() + (height - control->height()) / 2);
        place.rx() += control->width() + TheStyle().nestEdge;
    }
}

void PrintPreview::AddPapers() {
    for (size_t i = 0; i < Papers.size(); ++i) {
        opPaper_[i] = new ucRadio(QLatin1String(Papers[i].caption), this);
        opPaper_[i]->setObjectName(QStringLiteral("opPaper%1").arg(i));
        opPaper_[i]->setAccessibleDescription(QStringLiteral("Paper"));
        opPaper_[i]->resize(opPaper_[i]->sizeHint());
        connect(opPaper_[i], &ucRadio::Click, this, [this, i] { UsePaper(i); });
    }
    lblPages_ = MakeLabel(this, QStringLiteral("lblPages"), {}, TextRole::Quiet);
    lblPages_->resize(CountWidth, TheStyle().fieldHeight);
}

/// The keys for larger and smaller are those of the platform.
void PrintPreview::AddPages(const QRect& place) {
    pages_ = new QPrintPreviewWidget(&printer_, this);
    pages_->setObjectName(QStringLiteral("pages"));
    pages_->setGeometry(place);
    pages_->fitToWidth();
    auto* view = pages_->findChild<QGraphicsView*>();
    TellView(*view);
    view->setBackgroundBrush(TheStyle().scrollSlot);
    connect(pages_, &QPrintPreviewWidget::paintRequested, this,
            [this](QPrinter* device) { PaintOn(*device); });
    connect(pages_, &QPrintPreviewWidget::previewChanged, this, [this] { ShowMadePages(); });
    connect(new QShortcut(QKeySequence::ZoomIn, this), &QShortcut::activated, pages_,
            [this] { pages_->zoomIn(); });
    connect(new QShortcut(QKeySequence::ZoomOut, this), &QShortcut::activated, pages_,
            [this] { pages_->zoomOut(); });
}

/// The preview makes its pages anew each time.
void PrintPreview::ShowMadePages() {
    lblPages_->setText(Counted(pages_->pageCount(), "page", "pages"));
    const QSizeF paper = printer_.pageLayout().fullRectPixels(printer_.resolution()).size();
    for (QGraphicsItem* item : pages_->findChild<QGraphicsView*>()->items())
        if (!item->parentItem() && item->childItems().isEmpty())
            CoverShadow(item, paper);
}

void PrintPreview::UsePaper(size_t paper) {
    for (size_t i = 0; i < Papers.size(); ++i)
        opPaper_[i]->SetValue(i == paper);
    printer_.setPageSize(QPageSize(Papers[paper].size));
    pages_->updatePreview();
}

void PrintPreview::Print() {
    QPrintDialog dialog(&printer_, this);
    dialog.setObjectName(QStringLiteral("printDialog"));
    dialog.setOption(QAbstractPrintDialog::PrintPageRange, false);
    if (dialog.exec() != QDialog::Accepted)
        return;
    if (PaintOn(printer_) && HasWritten())
        return accept();
    ShowAlert(QStringLiteral("The pages could not be printed. Please choose another printer or "
                             "another file."),
              this);
}

bool PrintPreview::HasWritten() const {
    return printer_.outputFormat() != QPrinter::PdfFormat || IsWhole(printer_.outputFileName());
}

/// Nothing is shown while the style is that of pages.
bool PrintPreview::PaintOn(QPrinter& device) const {
    const StyleOnPaper style;
    Pages pages(device, job_.foot);
    if (!pages.IsOpen())
        return false;
    job_.paint(pages);
    return true;
}
