#include "analysis/ui/ChartRow.h"

#include "analysis/charts/BarPainting.h"
#include "analysis/ui/ChartBar.h"
#include "analysis/ui/ChartLabel.h"
#include "analysis/ui/LedLabel.h"

ChartRow::ChartRow(int i, Nutrient nutrient, const Views& views)
    : lbl_(new ChartLabel(views.labels))
    , imgBar_(new ChartBar(views.bars))
    , lblVal_(new LedLabel(views.values)) {
    lbl_->setObjectName(QStringLiteral("lbl%1").arg(i));
    lbl_->SetCaption(QLatin1String(Info(nutrient).chartCaption));
    lbl_->SetSpokenValue([this] { return figure_ ? figure_->Spoken() : QString(); });
    imgBar_->setObjectName(QStringLiteral("imgBar%1").arg(i));
    imgBar_->setAccessibleName(lbl_->Caption());
    imgBar_->SetSpokenValue([this] { return figure_ ? figure_->Percent() : QString(); });
    lblVal_->setObjectName(QStringLiteral("lblVal%1").arg(i));
    for (ChartPiece* piece : std::initializer_list<ChartPiece*>{lbl_, imgBar_, lblVal_})
        piece->SetTip(
            [this] { return figure_ ? lbl_->Caption() + u": " + figure_->Spoken() : QString(); });
}

void ChartRow::SetFigure(const std::optional<NutrientFigure>& figure) {
    figure_ = figure;
    lbl_->TellValueChanged();
}

bool ChartRow::BarIsNarrow() const {
    return BarPainting::IsNarrow(imgBar_->Width());
}
