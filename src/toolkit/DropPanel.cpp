#include "toolkit/DropPanel.h"

#include "drawing/DevicePixels.h"
#include "drawing/Style.h"
#include "drawing/Twips.h"
#include "runtime/RuntimeError.h"
#include "toolkit/ControlInterface.h"
#include "toolkit/DropItem.h"

#include <QApplication>
#include <QPainter>
#include <QScrollBar>
#include <QWheelEvent>
#include <QtMath>

#include <limits>

namespace {

constexpr int ItemHeight = 20; // pixels
constexpr int FirstTop = 45;   // twips
constexpr int EndRoom = 45;    // twips
constexpr int LargeChange = 500;
constexpr int SmallChange = 100;
constexpr int GreatestMax = std::numeric_limits<qint16>::max();
constexpr int FrameWidth = 1;

/// Its children are the items, whatever surfaces lie between. It has the name of its drop-down.
class ListInterface : public ControlInterface {
public:
    using ControlInterface::ControlInterface;

    QString text(QAccessible::Text kind) const override {
        return kind == QAccessible::Name ? parent()->text(kind) : QString();
    }
    int childCount() const override { return Panel()->Count(); }
    QAccessibleInterface* child(int index) const override {
        if (index < 0 || index >= childCount())
            return nullptr;
        return QAccessible::queryAccessibleInterface(
            const_cast<DropItem*>(&Panel()->Item(index + 1)));
    }
    int indexOfChild(const QAccessibleInterface* child) const override {
        for (int i = 0; i < childCount(); ++i)
            if (&Panel()->Item(i + 1) == child->object())
                return i;
        return -1;
    }

private:
    const DropPanel* Panel() const { return static_cast<const DropPanel*>(object()); }
};

QWidget* MakeSurface(QWidget* parent) {
    auto* surface = new QWidget(parent);
    surface->setMouseTracking(true);
    return surface;
}

} // namespace

DropPanel::DropPanel(QWidget* parent)
    : DrawnControl(parent)
    , view_(MakeSurface(this))
    , picItemList_(MakeSurface(view_))
    , vsResults_(new QScrollBar(Qt::Vertical, this)) {
    setObjectName(QStringLiteral("picBox"));
    setMouseTracking(true);
    picItemList_->setObjectName(QStringLiteral("picItemList"));
    vsResults_->setObjectName(QStringLiteral("vsResults"));
    vsResults_->setAccessibleName(QStringLiteral("Scroll"));
    vsResults_->setFocusPolicy(Qt::NoFocus);
    vsResults_->setContextMenuPolicy(Qt::NoContextMenu);
    vsResults_->setPageStep(LargeChange);
    vsResults_->setSingleStep(SmallChange);
    vsResults_->hide();
    connect(vsResults_, &QScrollBar::valueChanged, this,
            [this](int value) { picItemList_->move(0, Twips::ToPixels(-value)); });
    Load(QString(), QString())->hide();
    resize(width(), Twips::ToPixels(panelHeight_));
}

DropItem* DropPanel::Load(const QString& caption, const QString& tag) {
    auto* item = new DropItem(caption, tag, picItemList_);
    const int index = int(items_.size());
    const int top = Twips::ToPixels(FirstTop) + (index - 1) * ItemHeight;
    item->setObjectName("lblItem" + QString::number(index));
    item->setGeometry(0, top, picItemList_->width(), ItemHeight);
    connect(item, &DropItem::Click, this, [this, index] { Q_EMIT Picked(index); });
    connect(item, &DropItem::MouseMove, this, [this, index] { Q_EMIT Hovered(index); });
    items_.push_back(item);
    return item;
}

void DropPanel::AddItem(const QString& caption, qint32 tag) {
    Load(caption, QString::number(tag))->show();
    listHeight_ = LastBottom() + EndRoom;
    vsResults_->setValue(0);
    SetUpBar();
    PlaceItems();
}

const DropItem& DropPanel::Item(int index) const {
    if (index < 1 || index >= int(items_.size()))
        throw RuntimeError(ErrorNumber::NoSuchElement,
                           "Control array element '" + QString::number(index) + "' doesn't exist");
    return *items_[size_t(index)];
}

int DropPanel::Lit() const {
    for (int i = 1; i <= Count(); ++i)
        if (Item(i).IsLit())
            return i;
    return 0;
}

int DropPanel::Find(const QString& word, int from) const {
    for (int step = 0; step < Count(); ++step) {
        const int index = (from - 1 + step) % Count() + 1;
        if (Item(index).Caption().startsWith(word, Qt::CaseInsensitive))
            return index;
    }
    return 0;
}

int DropPanel::LastBottom() const {
    const QRect last = items_.back()->geometry();
    return Twips::FromPixels(last.top() + last.height());
}

void DropPanel::SetPanelHeight(int height) {
    panelHeight_ = LastBottom() < height ? LastBottom() + EndRoom : height;
    resize(width(), Twips::ToPixels(panelHeight_));
    SetUpBar();
    PlaceItems();
}

/// The bar counts in 16 bits: the end of a list too long for that cannot be reached.
void DropPanel::SetUpBar() {
    vsResults_->setRange(0, qBound(0, listHeight_ - panelHeight_, GreatestMax));
    vsResults_->setVisible(listHeight_ > panelHeight_);
}

void DropPanel::PlaceItems() {
    const bool barShown = vsResults_->isVisibleTo(this);
    const int width = view_->width() - (barShown ? vsResults_->width() : 0);
    picItemList_->resize(width, Twips::ToPixels(listHeight_));
    for (DropItem* item : items_)
        item->resize(width, item->height());
}

void DropPanel::Bring(int index) {
    const QRect place = items_[size_t(index)]->geometry();
    const int top = Twips::FromPixels(place.top());
    const int bottom = Twips::FromPixels(place.bottom() + 1) + EndRoom;
    if (top < vsResults_->value())
        vsResults_->setValue(top);
    else if (bottom > vsResults_->value() + panelHeight_)
        vsResults_->setValue(bottom - panelHeight_);
}

void DropPanel::Hilite(int index) {
    for (int i = 1; i < int(items_.size()); ++i)
        items_[size_t(i)]->SetLit(i == index);
}

void DropPanel::Choose(int index) {
    for (int i = 1; i < int(items_.size()); ++i)
        items_[size_t(i)]->SetChosen(i == index);
}

QAccessibleInterface* DropPanel::MakeAccessible() {
    return new ListInterface(this);
}

void DropPanel::resizeEvent(QResizeEvent*) {
    const QRect inner = rect().adjusted(FrameWidth, FrameWidth, -FrameWidth, -FrameWidth);
    const int barWidth = TheStyle().scrollWidth;
    view_->setGeometry(inner);
    vsResults_->setGeometry(inner.right() + 1 - barWidth, inner.top(), barWidth, inner.height());
    PlaceItems();
}

void DropPanel::paintEvent(QPaintEvent*) {
    QPainter painter(this);
    painter.fillRect(rect(), TheStyle().listItem);
    PaintFrame(painter, rect(), TheStyle().frame);
}

void DropPanel::wheelEvent(QWheelEvent* event) {
    if (vsResults_->isVisibleTo(this))
        QApplication::sendEvent(vsResults_, event);
    event->accept();
}
