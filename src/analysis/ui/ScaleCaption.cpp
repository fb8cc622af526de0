#include "analysis/ui/ScaleCaption.h"

#include "drawing/Style.h"
#include "toolkit/SpokenRole.h"

#include <QPainter>

ScaleCaption::ScaleCaption(QWidget* parent)
    : QWidget(parent) {
    SetSpokenRole(this, QAccessible::StaticText);
    setFont(TheStyle().small);
}

void ScaleCaption::SetCaption(const QString& caption) {
    caption_ = caption;
    setAccessibleName(caption);
    update();
}

void ScaleCaption::SetMarks(const QList<int>& marks) {
    marks_ = marks;
    update();
}

void ScaleCaption::paintEvent(QPaintEvent*) {
    QPainter painter(this);
    painter.setPen(TheStyle().quietInk);
    const QStringList figures = caption_.split(u' ', Qt::SkipEmptyParts);
    for (qsizetype i = 0; i < qMin(figures.size(), marks_.size()); ++i) {
        const int reach = fontMetrics().horizontalAdvance(figures[i]);
        const QRect place(marks_[i] - reach, 0, 2 * reach + 1, height());
        painter.drawText(place, Qt::AlignCenter, figures[i]);
    }
}
