#include "foods/ui/SearchDialog.h"

#include "drawing/Style.h"
#include "foods/ui/frmNutInfo.h"
#include "foods/ui/ucSearchResults.h"
#include "toolkit/ButtonRow.h"
#include "toolkit/ucButton.h"
#include "toolkit/ucTitleFlat.h"

static constexpr QSize DialogSize(640, 520);

SearchDialog::SearchDialog(const QString& name, const QString& title, const QString& panelName,
                           QWidget* owner)
    : Dialog(name, title, owner) {
    Title()->setObjectName(QStringLiteral("ucTitleFlat1"));
    setFixedSize(DialogSize);
    BuildPanel(panelName);
    BuildDone();
}

void SearchDialog::BuildPanel(const QString& name) {
    const Style& style = TheStyle();
    const int below = style.buttonHeight + style.boxGap + style.nestEdge;
    panel_ = new ucSearchResults(this);
    panel_->setObjectName(name);
    panel_->setGeometry(Inner().adjusted(style.nestEdge, style.boxGap, -style.nestEdge, -below));
    connect(panel_, &ucSearchResults::FoodChosen, this, &SearchDialog::Choose);
    connect(panel_, &ucSearchResults::FoodExamined, this, &SearchDialog::Examine);
    connect(panel_, &ucSearchResults::MouseMove, this, [this] { cmdDone_->Reset(); });
}

void SearchDialog::BuildDone() {
    cmdDone_ = MakeButton(this, QStringLiteral("cmdDone"), QStringLiteral("Done"));
    LayButtonRow(Inner(), {cmdDone_});
    connect(cmdDone_, &ucButton::Click, this, &QDialog::accept);
}

QRect SearchDialog::BesideDone() const {
    QRect place = cmdDone_->geometry();
    place.setRight(place.left() - TheStyle().boxGap - 1);
    place.setLeft(Inner().left() + TheStyle().nestEdge);
    return place;
}

void SearchDialog::Choose(const QString& Meal, const ScaledFood& Item) {
    Q_EMIT FoodChosen(Meal, Item);
}

/// The owner of the facts is the window of the screen behind this dialog.
void SearchDialog::Examine(const ScaledFood& item) {
    frmNutInfo facts(parentWidget() ? parentWidget()->window() : nullptr);
    facts.showFood(item);
}
