#pragma once

#include <QPainter>

#include <functional>

class QPagedPaintDevice;

/// The pages of a PDF file or of a printer, one after the other. The painter's origin is the upper
/// left corner of what a page holds between its margins; lengths are pixels, 96 to the inch, and
/// the device must have that resolution. Each page has a foot with a text and its number.
class Pages {
public:
    static constexpr int DotsAnInch = 96;

    Pages(QPagedPaintDevice& device, const QString& foot);

    QPainter& Painter() { return painter_; }
    int Width() const { return area_.width(); }
    int Height() const { return area_.height(); }

    int Y() const { return y_; } ///< where the next part begins
    int Room() const { return Height() - y_; }
    void Advance(int height) { y_ += height; }
    /// Begins a new page where the rest of this one is less high.
    void MakeRoom(int height);
    void Begin(); ///< a new page

    /// False if the device cannot be written. Then nothing is painted.
    bool IsOpen() const { return painter_.isActive(); }

    // Each of these advances.
    void Line(const QString& text, const QFont& font, const QColor& ink); ///< one line of text
    void Heading(const QString& text);                      ///< of a part, with a rule
    void Rule(int width, int height, const QColor& colour); ///< seen in a preview of any size
    /// A paragraph as wide as the page, whole on one page.
    void Paragraph(const QString& text, const QFont& font, const QColor& ink);
    /// A text of any length. It goes on over the pages.
    void Flow(const QString& text, const QFont& font, const QColor& ink);
    /// A text, and one at the right of its first line; on one page if they fit. A long one at the
    /// right follows the other instead.
    void Row(const QString& left, const QString& right, const QFont& font, const QColor& ink);
    /// A heading and a picture, which paints from the painter's origin, on one page. A picture that
    /// is too large for a page is made smaller.
    void Figure(const QString& heading, QSize size, const std::function<void(QPainter&)>& paint);
    /// A heading that stays with at least one line of what follows.
    void HeadingOfLines(const QString& text);

private:
    /// What stands at the right of the first line, and how wide it is with its gap.
    struct Side {
        QString text;
        int width = 0;
    };
    void Lines(const QString& text, const Side& side, const QFont& font, const QColor& ink);
    void PaintRule(const QRect& place, const QColor& colour);
    void BeginPage();
    void PaintFoot();

    QPagedPaintDevice& device_;
    QRect area_;
    QPainter painter_;
    QString foot_;
    int number_ = 1;
    int y_ = 0;
};
