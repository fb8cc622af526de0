#include "recipes/ui/frmRecSearch.h"

#include "foods/ui/ucSearchResults.h"
#include "toolkit/Accessible.h"
#include "toolkit/Labels.h"

#include <QTimer>

static constexpr int NoticeTime = 2000; // milliseconds

frmRecSearch::frmRecSearch(QWidget* owner)
    : SearchDialog(QStringLiteral("frmRecSearch"), QStringLiteral("Add foods to recipe"),
                   QStringLiteral("ucSearch"), owner) {
    Panel()->SetRecipeMode(true);
    BuildNotice();
}

void frmRecSearch::BuildNotice() {
    lblInfo_ = MakeLabel(this, QStringLiteral("lblInfo"), QStringLiteral("Food added to recipe"),
                         TextRole::Strong);
    lblInfo_->setGeometry(BesideDone());
    lblInfo_->hide();
    tmrHider_ = new QTimer(this);
    tmrHider_->setObjectName(QStringLiteral("tmrHider"));
    tmrHider_->setInterval(NoticeTime);
    tmrHider_->setTimerType(Qt::PreciseTimer);
    connect(tmrHider_, &QTimer::timeout, this, &frmRecSearch::HideNotice);
}

void frmRecSearch::Choose(const QString& Meal, const ScaledFood& Item) {
    SearchDialog::Choose(Meal, Item);
    ShowNotice();
}

/// A timer that is running is not restarted.
void frmRecSearch::ShowNotice() {
    lblInfo_->show();
    TellAloud(lblInfo_);
    if (!tmrHider_->isActive())
        tmrHider_->start();
}

void frmRecSearch::HideNotice() {
    if (lblInfo_->isHidden())
        return;
    lblInfo_->hide();
    tmrHider_->stop();
}

void frmRecSearch::showEvent(QShowEvent* event) {
    SearchDialog::showEvent(event);
    if (parentWidget() && !event->spontaneous())
        move(parentWidget()->mapToGlobal(QPoint()));
}
