#include "toolkit/AtePane.h"

#include "drawing/Twips.h"
#include "runtime/Convert.h"
#include "toolkit/ucAte.h"
#include "toolkit/ucButtonA.h"
#include "toolkit/ucScroll.h"

#include <QApplication>

namespace {

constexpr int HeadingEdge = -15; // twips: the edges of headings lie outside the pane

} // namespace

AtePane::AtePane(QWidget* parent)
    : ScrollPane(parent) {
    picResultsPane()->installEventFilter(this);
    picResultsBox()->installEventFilter(this);
    ucAte* pattern = MakeLine();
    pattern->setObjectName(QStringLiteral("ucAte0"));
}

AtePane::Redraw::Redraw(AtePane& pane, bool resetPane)
    : pane_(pane)
    , resetPane_(resetPane) {
    pane_.Begin(resetPane);
}

AtePane::Redraw::~Redraw() {
    pane_.End(resetPane_);
}

/// Suspends painting instead of hiding the pane: hiding would move the focus out of it.
void AtePane::Begin(bool resetPane) {
    picResultsPane()->setUpdatesEnabled(false);
    used_ = 0;
    runningHeight_ = 0;
    headings_.clear();
    chain_.clear();
    if (resetPane)
        ResetPane();
}

void AtePane::End(bool resetPane) {
    KeepFocus();
    Release(used_ + 1);
    SizePane();
    ChainFocus();
    if (resetPane)
        ShowTop();
    picResultsPane()->setUpdatesEnabled(true);
}

/// If the focused line is scrolled out of view, the focus moves before the first line: a key must
/// not remove a line that the user cannot see.
void AtePane::ShowTop() {
    if (vsResultsPane()->Value() != 0)
        vsResultsPane()->SetValue(0);
    const QWidget* focus = QApplication::focusWidget();
    if (!focus || !picResultsPane()->isAncestorOf(focus))
        return;
    const QRect place(focus->mapTo(picResultsPane(), QPoint()), focus->size());
    if (place.bottom() >= FrameHeight())
        picResultsBox()->setFocus();
}

void AtePane::ClearList() {
    used_ = 0;
    Release(1);
}

void AtePane::Release(int from) {
    for (int i = from; i < rows_.size() && !rows_[i]->isHidden(); ++i) {
        rows_[i]->hide();
        rows_[i]->setObjectName(QString());
    }
}

ucAte* AtePane::MakeLine() {
    auto* line = new ucAte(picResultsPane());
    line->hide();
    connect(line, &ucAte::RemoveFood, this, &AtePane::RemoveFood);
    connect(line, &ucAte::MouseMove, this, &AtePane::LineMove);
    rows_ << line;
    return line;
}

ucAte* AtePane::NextLine() {
    ++used_;
    ucAte* line = used_ < rows_.size() ? rows_[used_] : MakeLine();
    if (line->isHidden()) {
        line->setObjectName("ucAte" + QString::number(used_));
        line->show();
    }
    return line;
}

void AtePane::showFood(const QString& FoodName, const QString& Serving, qint32 ID, double QTY,
                       int mostLines) {
    if (mostLines != Unlimited && used_ >= mostLines)
        return;
    ucAte* line = NextLine();
    line->SetFoodName(FoodName);
    line->SetServ(Serving);
    line->SetQTY("(x " + DecimalText(QTY) + u')');
    line->SetID(QString::number(ID));
    line->move(0, Twips::ToPixels(runningHeight_));
    chain_ << line->imgTrash();
    AddHeight(line);
}

void AtePane::PlaceHeading(QWidget* heading) {
    const int top = runningHeight_ == 0 ? HeadingEdge : runningHeight_;
    heading->move(Twips::ToPixels(HeadingEdge), Twips::ToPixels(top));
    heading->show();
    headings_ << heading;
    chain_ << heading;
    AddHeight(heading);
}

void AtePane::AddBlankLine() {
    AddHeight(rows_.first());
}

void AtePane::AddHeight(const QWidget* placed) {
    runningHeight_ += Twips::FromPixels(placed->height());
}

/// A list that fits is at the top, has no bar, and may use the room of the bar.
void AtePane::SizePane() {
    const int height = Twips::ToPixels(runningHeight_);
    const bool fits = FrameHeight() >= height;
    if (fits && vsResultsPane()->Value() != 0)
        ResetPane();
    picResultsPane()->resize(fits ? picResultsBox()->width() : PaneWidth(),
                             fits && fillsFrame_ ? FrameHeight() : height);
    FitWidths();
    if (fits)
        HideBar();
    else
        ShowBar();
}

void AtePane::FitWidths() {
    const int width = picResultsPane()->width();
    for (QWidget* heading : std::as_const(headings_))
        heading->resize(width, heading->height());
    for (int i = 1; i <= used_; ++i)
        rows_[i]->resize(width, rows_[i]->height());
}

/// The next line gets the focus of a removed one; if there is none, the last line gets it.
void AtePane::KeepFocus() {
    auto* trash = qobject_cast<ucButtonA*>(QApplication::focusWidget());
    if (!trash || rows_.indexOf(qobject_cast<ucAte*>(trash->parentWidget())) <= used_)
        return;
    QWidget* next = used_ > 0 ? rows_[used_]->imgTrash() : chain_.value(0);
    if (next)
        next->setFocus(trash->FocusShown() ? Qt::TabFocusReason : Qt::MouseFocusReason);
}

void AtePane::ChainFocus() {
    if (chain_ == lastChain_)
        return;
    QWidget* before = rows_.first()->imgTrash(); // hidden; it only marks the place in the tab order
    for (QWidget* stop : std::as_const(chain_)) {
        setTabOrder(before, stop);
        before = stop;
    }
    lastChain_ = chain_;
}

void AtePane::resizeEvent(QResizeEvent* event) {
    ScrollPane::resizeEvent(event);
    SizePane();
}

bool AtePane::eventFilter(QObject* watched, QEvent* event) {
    if (event->type() == QEvent::MouseMove) {
        Q_EMIT PaneMove(static_cast<const QMouseEvent*>(event));
        return true;
    }
    if (event->type() == QEvent::MouseButtonRelease) {
        LetGo(*static_cast<QWidget*>(watched), *static_cast<const QMouseEvent*>(event));
        return true;
    }
    if (event->type() == QEvent::MouseButtonPress)
        pressed_ = static_cast<const QMouseEvent*>(event)->button() == Qt::LeftButton;
    return ScrollPane::eventFilter(watched, event);
}

void AtePane::LetGo(const QWidget& over, const QMouseEvent& mouse) {
    const bool inside = over.rect().contains(mouse.position().toPoint());
    if (std::exchange(pressed_, false) && inside)
        Q_EMIT Click();
}
