#include "analysis/ui/DayCell.h"

#include "drawing/Pictures.h"
#include "drawing/Style.h"
#include "drawing/Twips.h"

#include <QKeyEvent>
#include <QPainter>

namespace {

// Twips.
constexpr double NumberPlace = 120;
constexpr double MarkSide = 45;
constexpr double MarkBottom = 30;

constexpr QSize MarkSize(18, 18);

class DayMark : public QWidget {
public:
    DayMark(const QString& name, const char* picture, QWidget* cell)
        : QWidget(cell)
        , picture_(QLatin1String(picture)) {
        setObjectName(name);
        setAttribute(Qt::WA_TransparentForMouseEvents);
        resize(MarkSize);
        hide();
    }

protected:
    void paintEvent(QPaintEvent*) override {
        QPainter painter(this);
        Pictures::Paint(painter, rect(), picture_);
    }

private:
    QString picture_;
};

} // namespace

DayCell::DayCell(int day, QWidget* picCalBG)
    : PaintedPanel(picCalBG)
    , imgFood_(new DayMark("imgFood" + QString::number(day), "food-mark", this))
    , imgScale_(new DayMark("imgScale" + QString::number(day), "scale-mark", this)) {
    setObjectName("picDay" + QString::number(day));
    setFont(TheStyle().control);
    setAttribute(Qt::WA_Hover);
}

void DayCell::SetMarks(bool food, bool scale) {
    imgFood_->setVisible(food);
    imgScale_->setVisible(scale);
}

void DayCell::Name(const QString& month) {
    const QLatin1String food(imgFood_->isHidden() ? "" : ", food logged");
    const QLatin1String weight(imgScale_->isHidden() ? "" : ", weight logged");
    setAccessibleName(month + u' ' + Caption() + food + weight);
}

void DayCell::resizeEvent(QResizeEvent*) {
    const int side = Twips::ToPixels(MarkSide);
    const int top = height() - MarkSize.height() - Twips::ToPixels(MarkBottom);
    imgFood_->move(side, top);
    imgScale_->move(width() - MarkSize.width() - side, top);
}

void DayCell::paintEvent(QPaintEvent*) {
    QPainter painter(this);
    const Style& style = TheStyle();
    if (underMouse())
        painter.fillRect(rect(), style.chosenDay.from);
    else
        Pictures::Paint(painter, rect(), QStringLiteral("day-cell"));
    const int place = Twips::ToPixels(NumberPlace);
    PrintCaption(painter, style.ink, QPointF(place, place));
    if (FocusShown())
        PaintFocusRing(painter, rect(), 0);
}

void DayCell::keyPressEvent(QKeyEvent* event) {
    if (IsPressKey(event))
        Activate();
    else
        PaintedPanel::keyPressEvent(event);
}
