#include "records/report/Pages.h"

#include "drawing/SmoothedPrint.h"
#include "drawing/Style.h"

namespace {
constexpr int DotsAnInch = 96;
constexpr int Margin = 45;
constexpr int FootHeight = 24;
constexpr int HeadingSpace = 10; ///< above a heading
constexpr int HeadingHeight = 20;

QPageLayout Layout(QPageSize::PageSizeId size) {
    return {QPageSize(size), QPageLayout::Portrait, QMarginsF()};
}
} // namespace

Pages::Pages(QIODevice& file, QPageSize::PageSizeId size, const QString& title, const QString& foot)
    : writer_(&file)
    , area_(Layout(size)
                .paintRectPixels(DotsAnInch)
                .adjusted(Margin, Margin, -Margin, -Margin - FootHeight))
    , foot_(foot) {
    writer_.setPageLayout(Layout(size));
    writer_.setResolution(DotsAnInch);
    writer_.setTitle(title);
    writer_.setCreator(QStringLiteral("Halvane"));
    painter_.begin(&writer_);
    painter_.translate(area_.topLeft());
    PaintFoot();
}

void Pages::PaintFoot() {
    const QRect place(0, Height() + FootHeight / 2, Width(), FootHeight / 2 + 2);
    const QString number = QStringLiteral("Page %1").arg(number_);
    const QFont& font = TheStyle().small;
    painter_.setFont(font);
    painter_.setPen(TheStyle().quietInk);
    const double room = Width() - QFontMetricsF(font).horizontalAdvance(number) - FootHeight;
    painter_.drawText(place, Qt::AlignLeft | Qt::AlignBottom, FittingText(foot_, font, room));
    painter_.drawText(place, Qt::AlignRight | Qt::AlignBottom, number);
}

void Pages::Begin() {
    writer_.newPage();
    ++number_;
    y_ = 0;
    PaintFoot();
}

void Pages::MakeRoom(int height) {
    if (y_ > 0 && y_ + height > Height())
        Begin();
}

void Pages::Line(const QString& text, const QFont& font, const QColor& ink) {
    const int height = QFontMetrics(font).height();
    MakeRoom(height);
    painter_.setFont(font);
    painter_.setPen(ink);
    painter_.drawText(QRect(0, y_, Width(), height), Qt::AlignLeft | Qt::AlignVCenter,
                      FittingText(text, font, Width()));
    Advance(height);
}

void Pages::Heading(const QString& text) {
    if (y_ > 0)
        Advance(HeadingSpace);
    const QRect place(0, y_, Width(), HeadingHeight);
    painter_.setFont(TheStyle().title);
    painter_.setPen(TheStyle().heading);
    painter_.drawText(place, Qt::AlignLeft | Qt::AlignVCenter, text);
    painter_.fillRect(0, place.bottom(), Width(), 1, TheStyle().headerEdge);
    Advance(HeadingHeight + 4);
}

void Pages::Paragraph(const QString& text, const QFont& font, const QColor& ink) {
    const QRect place(0, y_, Width(), Height());
    const QRect needed = QFontMetrics(font).boundingRect(place, Qt::TextWordWrap, text);
    MakeRoom(needed.height());
    painter_.setFont(font);
    painter_.setPen(ink);
    painter_.drawText(QRect(0, y_, Width(), needed.height()), Qt::TextWordWrap, text);
    Advance(needed.height());
}
