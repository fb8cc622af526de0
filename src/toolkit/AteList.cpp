#include "toolkit/AteList.h"

#include "runtime/Attempt.h"
#include "toolkit/AtePane.h"
#include "toolkit/MousePointer.h"

AteList::AteList(int edge, QWidget* parent)
    : DrawnControl(parent)
    , pane_(new AtePane(this))
    , edge_(edge) {
    connect(pane_, &AtePane::RemoveFood, this, &AteList::RemoveFood);
    InitControls();
}

void AteList::InitControls() {
    pane_->setGeometry(rect().adjusted(edge_, edge_, -edge_, -edge_));
}

void AteList::resizeEvent(QResizeEvent*) {
    InitControls();
}

/// The pointer is normal again before the host is told.
void AteList::RemoveFood(qint32 key) {
    MousePointer::SetBusy();
    const bool removed = Attempt([&] { RemoveRow(key); });
    MousePointer::SetNormal();
    if (removed)
        Q_EMIT FoodRemoved();
}
