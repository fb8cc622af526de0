#include "analysis/ui/ChartRow.h"

#include "analysis/ui/ChartBar.h"
#include "analysis/ui/ChartLabel.h"
#include "analysis/ui/LedLabel.h"
#include "runtime/Convert.h"
#include "runtime/Format.h"

namespace {
constexpr int HiddenUpTo = 15;     ///< twips: a bar no wider is not shown
constexpr double NoTarget = 0.001; ///< divisor where the target is 0
} // namespace

ChartRow::ChartRow(int i, Nutrient nutrient, const char* unit, const Views& views)
    : nutrient_(nutrient)
    , unit_(unit)
    , lbl_(new ChartLabel(views.labels))
    , imgBar_(new ChartBar(views.bars))
    , lblVal_(new LedLabel(views.values)) {
    lbl_->setObjectName(QStringLiteral("lbl%1").arg(i));
    lbl_->SetCaption(QLatin1String(Info(nutrient).chartCaption));
    lbl_->SetSpokenValue([this] { return SpokenValue(); });
    imgBar_->setObjectName(QStringLiteral("imgBar%1").arg(i));
    imgBar_->setAccessibleName(lbl_->Caption());
    imgBar_->SetSpokenValue([this] { return SpokenPercent(); });
    lblVal_->setObjectName(QStringLiteral("lblVal%1").arg(i));
}

void ChartRow::SetFigure(double value, double rdi) {
    figure_ = Figure{value, rdi};
    lbl_->TellValueChanged();
}

void ChartRow::ClearFigure() {
    figure_.reset();
    lbl_->TellValueChanged();
}

QString ChartRow::SpokenValue() const {
    if (!figure_)
        return {};
    const QString value = DecimalText(numFix(figure_->value)) + u' ' + QLatin1String(unit_);
    const QString percent = SpokenPercent();
    return percent.isEmpty() ? value : QString(value + u", " + percent);
}

QString ChartRow::SpokenPercent() const {
    if (!figure_ || figure_->rdi == 0)
        return {};
    return Format(figure_->value / figure_->rdi, NumberMask::Percent);
}

bool ChartRow::BarIsNarrow() const {
    return imgBar_->Width() <= HiddenUpTo;
}

double ChartRow::numFix(double value) {
    if (value == 0)
        return 0;
    const auto mask = value < 100 ? NumberMask::UpToTwoDecimals : NumberMask::Thousands;
    return PlainNumber(Format(value, mask)).toDouble() + 0.0; // no sign on zero
}

double ChartRow::PartOfTarget(double value, double rdi) {
    return value / (rdi == 0 ? NoTarget : rdi);
}
