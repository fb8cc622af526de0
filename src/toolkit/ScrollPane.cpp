#include "toolkit/ScrollPane.h"

#include "drawing/Style.h"
#include "drawing/Twips.h"
#include "runtime/Round.h"
#include "toolkit/ucScroll.h"

#include <QApplication>
#include <QWheelEvent>
#include <QtMath>

namespace {

constexpr int TwipsPerValue = 10;
constexpr int LargeStep = 100;
constexpr int SmallStep = 20;

QWidget* MakeSurface(QWidget* parent, const char* name) {
    auto* surface = new QWidget(parent);
    surface->setObjectName(QLatin1String(name));
    surface->setMouseTracking(true);
    surface->setAutoFillBackground(true);
    surface->setBackgroundRole(QPalette::Base);
    QPalette ground = surface->palette();
    ground.setColor(QPalette::Base, TheStyle().paper);
    surface->setPalette(ground);
    return surface;
}

} // namespace

ScrollPane::ScrollPane(QWidget* parent)
    : QWidget(parent)
    , box_(MakeSurface(this, "picResultsBox"))
    , pane_(MakeSurface(box_, "picResultsPane"))
    , bar_(new ucScroll(this)) {
    setMouseTracking(true);
    bar_->setObjectName(QStringLiteral("vsResultsPane"));
    bar_->setAccessibleName(QStringLiteral("Scroll"));
    bar_->SetMin(0);
    bar_->SetValue(0);
    bar_->hide();
    connect(bar_, &ucScroll::Change, this, &ScrollPane::OnBarChange);
    connect(qApp, &QApplication::focusChanged, this, &ScrollPane::FollowFocus);
}

/// A child that is destroyed later than this class still moves the focus.
ScrollPane::~ScrollPane() {
    disconnect(qApp, nullptr, this, nullptr);
}

int ScrollPane::FrameHeight() const {
    return box_->height();
}

int ScrollPane::PaneWidth() const {
    return box_->width() - TheStyle().scrollWidth;
}

void ScrollPane::ResetPane() {
    pane_->setGeometry(0, 0, PaneWidth(), FrameHeight());
    lastValue_ = 0;
    bar_->SetValue(0);
    Q_EMIT Scrolled();
}

void ScrollPane::SetPaneHeight(int pixels) {
    pane_->resize(PaneWidth(), pixels);
}

void ScrollPane::ShowBar() {
    const double over = Twips::FromPixels(pane_->height() - FrameHeight());
    bar_->SetMin(0);
    bar_->SetMax(Round(over / TwipsPerValue));
    bar_->SetLargeChange(LargeStep);
    bar_->SetSmallChange(SmallStep);
    bar_->SetValue(bar_->Value());
    bar_->show();
    bar_->raise();
}

void ScrollPane::HideBar() {
    bar_->hide();
}

void ScrollPane::OnBarChange(int value) {
    if (value == lastValue_)
        return;
    lastValue_ = value;
    pane_->move(0, Twips::ToPixels(-TwipsPerValue * value));
    Q_EMIT Scrolled();
}

void ScrollPane::EnsureVisible(const QRect& place) {
    if (!bar_->isVisibleTo(this))
        return;
    const int top = -pane_->y();
    const double valuesPerPixel = double(Twips::FromPixels(1)) / TwipsPerValue;
    if (place.top() < top)
        bar_->SetValue(qFloor(place.top() * valuesPerPixel));
    else if (place.bottom() >= top + FrameHeight())
        bar_->SetValue(qCeil((place.bottom() + 1 - FrameHeight()) * valuesPerPixel));
}

/// A mouse press does not scroll: the pressed control would slip away before the release.
void ScrollPane::FollowFocus(QWidget*, QWidget* now) {
    if (QGuiApplication::mouseButtons() == Qt::NoButton && now && pane_->isAncestorOf(now))
        EnsureVisible(QRect(now->mapTo(pane_, QPoint()), now->size()));
}

void ScrollPane::resizeEvent(QResizeEvent*) {
    const int barWidth = TheStyle().scrollWidth;
    box_->setGeometry(rect());
    bar_->setGeometry(width() - barWidth, 0, barWidth, height());
    const bool barShown = bar_->isVisibleTo(this);
    const bool overflows = barShown && pane_->height() > FrameHeight();
    pane_->resize(PaneWidth(), overflows ? pane_->height() : FrameHeight());
    if (overflows) {
        ShowBar();
    } else if (barShown) {
        HideBar();
        ResetPane();
    }
    Q_EMIT Scrolled();
}

void ScrollPane::wheelEvent(QWheelEvent* event) {
    if (bar_->isVisibleTo(this))
        bar_->Wheel(event);
    else
        event->ignore();
}
