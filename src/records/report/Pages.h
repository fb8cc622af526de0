#pragma once

#include <QPainter>
#include <QPdfWriter>

/// The pages of a PDF file, one after the other. The painter's origin is the upper left corner of
/// what a page holds between its margins; lengths are pixels, 96 to the inch. Each page has a foot
/// with a text and its number.
class Pages {
public:
    Pages(QIODevice& file, QPageSize::PageSizeId size, const QString& title, const QString& foot);

    QPainter& Painter() { return painter_; }
    int Width() const { return area_.width(); }
    int Height() const { return area_.height(); }

    int Y() const { return y_; } ///< where the next part begins
    int Room() const { return Height() - y_; }
    void Advance(int height) { y_ += height; }
    /// Begins a new page where the rest of this one is less high.
    void MakeRoom(int height);
    void Begin(); ///< a new page

    /// A line of text; advances.
    void Line(const QString& text, const QFont& font, const QColor& ink);
    void Heading(const QString& text); ///< of a part, with a rule
    /// A paragraph as wide as the page; advances.
    void Paragraph(const QString& text, const QFont& font, const QColor& ink);

private:
    void PaintFoot();

    QPdfWriter writer_;
    QRect area_;
    QPainter painter_;
    QString foot_;
    int number_ = 1;
    int y_ = 0;
};
