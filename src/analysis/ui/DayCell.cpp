#include "analysis/ui/DayCell.h"

#include "toolkit/Pictures.h"
#include "toolkit/Style.h"
#include "toolkit/Twips.h"

#include <QKeyEvent>
#include <QPainter>

namespace {

// Twips.
constexpr double numberPlace = 120;
constexpr double markSide = 45;
constexpr double markBottom = 30;

constexpr QSize markSize(18, 18);

class DayMark : public QWidget {
public:
    DayMark(const QString& name, const char* picture, QWidget* cell)
        : QWidget(cell)
        , picture_(QLatin1String(picture)) {
        setObjectName(name);
        setAttribute(Qt::WA_TransparentForMouseEvents);
        resize(markSize);
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
    QString name = month + u' ' + Caption();
    if (!imgFood_->isHidden())
        name += QStringLiteral(", food logged");
    if (!imgScale_->isHidden())
        name += QStringLiteral(", weight logged");
    setAccessibleName(name);
}

void DayCell::resizeEvent(QResizeEvent*) {
    const int side = Twips::ToPixels(markSide);
    const int top = height() - markSize.height() - Twips::ToPixels(markBottom);
    imgFood_->move(side, top);
    imgScale_->move(width() - markSize.width() - side, top);
}

void DayCell::paintEvent(QPaintEvent*) {
    QPainter painter(this);
    const Style& style = TheStyle();
    if (underMouse())
        painter.fillRect(rect(), style.chosenDay.from);
    else
        Pictures::Paint(painter, rect(), QStringLiteral("day-cell"));
    const int place = Twips::ToPixels(numberPlace);
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
