#include "foods/frmFoodSearch.h"

#include "foods/frmNutInfo.h"
#include "foods/ucSearchResults.h"
#include "toolkit/Style.h"
#include "toolkit/ucButton.h"
#include "toolkit/ucTitleFlat.h"

static constexpr QSize dialogSize(640, 520);

frmFoodSearch::frmFoodSearch(QWidget* owner)
    : Dialog(QStringLiteral("frmFoodSearch"), QStringLiteral("Food Search"), owner) {
    Title()->setObjectName(QStringLiteral("ucTitleFlat1"));
    setFixedSize(dialogSize);
    BuildSearch();
    BuildDone();
}

void frmFoodSearch::BuildSearch() {
    const Style& style = TheStyle();
    const int below = style.buttonHeight + style.boxGap + style.nestEdge;
    search_ = new ucSearchResults(this);
    search_->setObjectName(QStringLiteral("ucSearchResults1"));
    search_->setGeometry(Inner().adjusted(style.nestEdge, style.boxGap, -style.nestEdge, -below));
    connect(search_, &ucSearchResults::FoodChosen, this, &frmFoodSearch::FoodChosen);
    connect(search_, &ucSearchResults::FoodExamined, this, &frmFoodSearch::Examine);
    connect(search_, &ucSearchResults::MouseMove, this, [this] { cmdDone_->Reset(); });
}

void frmFoodSearch::BuildDone() {
    cmdDone_ = new ucButton(QStringLiteral("Done"), this);
    cmdDone_->setObjectName(QStringLiteral("cmdDone"));
    const QPoint corner = Inner().bottomRight() - QPoint(TheStyle().nestEdge, TheStyle().nestEdge);
    QRect place(QPoint(), cmdDone_->sizeHint());
    place.moveBottomRight(corner);
    cmdDone_->setGeometry(place);
    connect(cmdDone_, &ucButton::Click, this, &QDialog::accept);
}

/// The facts belong to the window behind this dialog, which is the home screen's.
void frmFoodSearch::Examine(const ScaledFood& item) {
    frmNutInfo facts(parentWidget() ? parentWidget()->window() : nullptr);
    facts.showFood(item);
}
