#include "toolkit/Labels.h"

#include "drawing/SmoothedPrint.h"
#include "drawing/Style.h"

#include <QFontMetrics>
#include <QPainter>
#include <QStyle>

namespace {

struct RoleLook {
    QFont Style::*font;
    QColor Style::*ink;
};

/// By TextRole.
constexpr RoleLook RoleLooks[] = {
    {&Style::text, &Style::ink},
    {&Style::text, &Style::quietInk},
    {&Style::strong, &Style::ink},
    {&Style::small, &Style::quietInk},
    {&Style::screenTitle, &Style::heading},
    {&Style::cardTitle, &Style::heading},
};

const RoleLook& LookOf(TextRole role) {
    return RoleLooks[static_cast<int>(role)];
}

/// If the font is wider than planned, the line is shown smaller instead of cut.
class LineLabel : public QLabel {
public:
    using QLabel::QLabel;

protected:
    void paintEvent(QPaintEvent* event) override {
        const QFont fitting = FittingFont(font(), text(), contentsRect().width());
        if (wordWrap() || text().contains(u'\n') || fitting == font())
            return QLabel::paintEvent(event);
        QPainter painter(this);
        painter.setFont(fitting);
        style()->drawItemText(&painter, contentsRect(), int(alignment()), palette(), isEnabled(),
                              text(), foregroundRole());
    }
};

} // namespace

const QFont& FontOf(TextRole role) {
    return TheStyle().*LookOf(role).font;
}

const QColor& InkOf(TextRole role) {
    return TheStyle().*LookOf(role).ink;
}

int BalancedWidth(const QString& text, const QFont& font, int width) {
    const QFontMetrics metrics(font);
    const auto laid = [&](int place) {
        return metrics.boundingRect(QRect(0, 0, place, QWIDGETSIZE_MAX), Qt::TextWordWrap, text);
    };
    const int height = laid(width).height();
    int tooNarrow = 0;
    int enough = width;
    while (enough - tooNarrow > 1) {
        const int middle = (tooNarrow + enough) / 2;
        const QRect place = laid(middle);
        const bool fits = place.height() <= height && place.width() <= middle;
        (fits ? enough : tooNarrow) = middle;
    }
    return enough;
}

QLabel* MakeLabel(QWidget* parent, const QString& name, const QString& text, TextRole role) {
    auto* label = new LineLabel(text, parent);
    label->setObjectName(name);
    label->setTextFormat(Qt::PlainText);
    label->setFont(FontOf(role));
    label->setMouseTracking(true);
    QPalette inks = label->palette();
    inks.setColor(QPalette::Active, QPalette::WindowText, InkOf(role));
    inks.setColor(QPalette::Inactive, QPalette::WindowText, InkOf(role));
    inks.setColor(QPalette::Disabled, QPalette::WindowText, TheStyle().disabledInk);
    label->setPalette(inks);
    label->adjustSize();
    return label;
}
