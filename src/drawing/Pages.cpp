#include "drawing/Pages.h"

#include "drawing/SmoothedPrint.h"
#include "drawing/Style.h"

#include <QPagedPaintDevice>
#include <QTextLayout>
#include <QtMath>

#include <algorithm>
#include <utility>
#include <vector>

namespace {
constexpr int Margin = 45;
constexpr int FootHeight = 24;
constexpr int HeadingSpace = 10; ///< above a heading
constexpr int HeadingHeight = 20;
constexpr int HeadingFoot = 4; ///< below a heading
constexpr int HeadingRoom = HeadingSpace + HeadingHeight + HeadingFoot;
constexpr int RowGap = 16; ///< between the texts of a row

/// A word that is longer than a line is broken.
QTextOption Wrapping() {
    QTextOption option;
    option.setWrapMode(QTextOption::WrapAtWordBoundaryOrAnywhere);
    return option;
}

/// Lines may end as on any system.
QStringList ParagraphsOf(QString text) {
    text.replace(QLatin1String("\r\n"), QLatin1String("\n"));
    text.replace(u'\r', u'\n');
    text.replace(QChar::ParagraphSeparator, u'\n');
    return text.split(u'\n');
}

std::vector<QTextLine> LinesOf(QTextLayout& layout, int width) {
    std::vector<QTextLine> lines;
    layout.setTextOption(Wrapping());
    layout.beginLayout();
    for (QTextLine line = layout.createLine(); line.isValid(); line = layout.createLine()) {
        line.setLineWidth(width);
        lines.push_back(line);
    }
    layout.endLayout();
    return lines;
}

int HeightOf(const std::vector<QTextLine>& lines) {
    int height = 0;
    for (const QTextLine& line : lines)
        height += qCeil(line.height());
    return height;
}
} // namespace

Pages::Pages(QPagedPaintDevice& device, const QString& foot)
    : device_(device)
    , area_(device.pageLayout()
                .fullRectPixels(DotsAnInch)
                .adjusted(Margin, Margin, -Margin, -Margin - FootHeight))
    , painter_(&device)
    , foot_(foot) {
    if (IsOpen())
        BeginPage();
}

/// A preview forgets the place at each new page.
void Pages::BeginPage() {
    painter_.setTransform(QTransform::fromTranslate(area_.left(), area_.top()));
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
    device_.newPage();
    ++number_;
    y_ = 0;
    BeginPage();
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
    PaintRule(QRect(0, place.bottom(), Width(), 1), TheStyle().headerEdge);
    Advance(HeadingHeight + HeadingFoot);
}

void Pages::Rule(int width, int height, const QColor& colour) {
    PaintRule(QRect(0, y_, width, height), colour);
    Advance(height);
}

/// Smoothed: in a preview that is smaller than the page, a thin rule could fall between the pixels.
void Pages::PaintRule(const QRect& place, const QColor& colour) {
    painter_.save();
    painter_.setRenderHint(QPainter::Antialiasing);
    painter_.fillRect(place, colour);
    painter_.restore();
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

void Pages::HeadingOfLines(const QString& text) {
    MakeRoom(HeadingRoom + QFontMetrics(TheStyle().reading).height());
    Heading(text);
}

void Pages::Flow(const QString& text, const QFont& font, const QColor& ink) {
    Lines(text, {}, font, ink);
}

void Pages::Row(const QString& left, const QString& right, const QFont& font, const QColor& ink) {
    const int width = QFontMetrics(font, &device_).horizontalAdvance(right) + RowGap;
    if (width > Width() / 2)
        Lines(left + u", " + right, {}, font, ink);
    else
        Lines(left, {right, width}, font, ink);
}

void Pages::Lines(const QString& text, const Side& side, const QFont& font, const QColor& ink) {
    Side right = side;
    for (const QString& paragraph : ParagraphsOf(text)) {
        QTextLayout layout(paragraph, font, &device_);
        const std::vector<QTextLine> lines = LinesOf(layout, Width() - side.width);
        if (!right.text.isEmpty())
            MakeRoom(HeightOf(lines));
        for (const QTextLine& line : lines) {
            const int height = qCeil(line.height());
            MakeRoom(height);
            painter_.setFont(font);
            painter_.setPen(ink);
            painter_.drawText(QRect(0, y_, Width(), height), Qt::AlignRight | Qt::AlignVCenter,
                              std::exchange(right.text, QString()));
            line.draw(&painter_, QPointF(0, y_) - line.position());
            Advance(height);
        }
    }
}

void Pages::Figure(const QString& heading, QSize size,
                   const std::function<void(QPainter&)>& paint) {
    const double scale = std::min(
        {1.0, double(Width()) / size.width(), double(Height() - HeadingRoom) / size.height()});
    const int height = qCeil(size.height() * scale);
    MakeRoom(HeadingRoom + height);
    Heading(heading);
    painter_.save();
    painter_.translate(0, y_);
    painter_.scale(scale, scale);
    paint(painter_);
    painter_.restore();
    Advance(height);
}
