#include "analysis/DailyRow.h"

#include "analysis/BarGrid.h"
#include "analysis/ChartBar.h"
#include "analysis/ChartLabel.h"
#include "runtime/Convert.h"
#include "runtime/Format.h"
#include "toolkit/Style.h"
#include "toolkit/Twips.h"

namespace {

const QString Leader = QStringLiteral(".......................");
const QString EmptyValue = QStringLiteral("..............................0");

// Pixels.
constexpr int LabelLeft = 7;
constexpr int RowHeight = 14;
constexpr int FirstTop = 2;

// Twips, below the top of the row's label.
constexpr int BarDrop = 45;
constexpr int ValueDrop = 15;

constexpr int HiddenUpTo = 15;     ///< twips: a bar no wider is not shown
constexpr int RightMargin = 30;    ///< twips
constexpr double NoTarget = 0.001; ///< divisor where the target is 0

} // namespace

DailyRow::DailyRow(int i, Nutrient nutrient, const Views& views)
    : nutrient_(nutrient)
    , lbl_(new ChartLabel(views.labels))
    , imgBar_(new ChartBar(views.bars))
    , lblVal_(new ChartLabel(views.values)) {
    lbl_->setObjectName(QStringLiteral("lbl%1").arg(i));
    lbl_->SetCaption(QLatin1String(Info(nutrient).chartCaption));
    lbl_->setGeometry(LabelLeft, Top(i), views.labels->width() - LabelLeft,
                      RowHeight + Twips::ToPixels(ValueDrop));
    lbl_->SetSpokenValue([this] { return SpokenValue(); });
    imgBar_->setObjectName(QStringLiteral("imgBar%1").arg(i));
    imgBar_->setAccessibleName(lbl_->Caption());
    imgBar_->move(Twips::ToPixels(BarGrid::Origin), Top(i) + Twips::ToPixels(BarDrop));
    imgBar_->SetSpokenValue([this] { return Percent(); });
    lblVal_->setObjectName(QStringLiteral("lblVal%1").arg(i));
    lblVal_->move(0, Top(i) + Twips::ToPixels(ValueDrop));
}

int DailyRow::Top(int i) {
    return FirstTop + (i - 1) * RowHeight;
}

void DailyRow::Show(double value, double rdi) {
    value_ = value;
    rdi_ = rdi;
    SetBar(barWidth(value_, rdi_, imgBar_->parentWidget()->width()));
    lblVal_->SetCaption(Leader + ValueText());
    lbl_->TellValueChanged();
}

void DailyRow::ShowNothing() {
    value_ = 0;
    SetBar(0);
    lblVal_->SetCaption(EmptyValue);
    lbl_->TellValueChanged();
}

void DailyRow::SetBar(double width) {
    imgBar_->SetWidth(width);
    imgBar_->setHidden(width <= HiddenUpTo);
}

void DailyRow::FitBar() {
    const double width = barWidth(value_, rdi_, imgBar_->parentWidget()->width());
    if (width != imgBar_->Width())
        SetBar(width);
}

void DailyRow::FitValue() {
    lblVal_->resize(lblVal_->sizeHint());
}

void DailyRow::SetLit(bool lit) {
    const QColor& colour = lit ? TheStyle().barRowHover : TheStyle().barRowText;
    lbl_->SetForeColor(colour);
    lblVal_->SetForeColor(colour);
    imgBar_->SetHilited(lit);
}

QString DailyRow::ValueText() const {
    return DecimalText(numFix(value_)) + u' ' + QLatin1String(Info(nutrient_).unit);
}

QString DailyRow::Percent() const {
    return rdi_ == 0 ? QString() : Format(value_ / rdi_, NumberMask::Percent);
}

QString DailyRow::SpokenValue() const {
    const QString percent = Percent();
    return percent.isEmpty() ? ValueText() : QString(ValueText() + u", " + percent);
}

double DailyRow::numFix(double value) {
    if (value == 0)
        return 0;
    const auto mask = value < 100 ? NumberMask::UpToTwoDecimals : NumberMask::Thousands;
    return PlainNumber(Format(value, mask)).toDouble() + 0.0; // no sign on zero
}

double DailyRow::barWidth(double value, double rdi, int viewWidth) {
    const double width = Twips::PerPixel() * 100 * (value / (rdi == 0 ? NoTarget : rdi));
    const int end = Twips::FromPixels(viewWidth) - RightMargin;
    if (static_cast<float>(end) < static_cast<float>(width + BarGrid::Origin))
        return qMax(0, end - BarGrid::Origin);
    return qMax(0.0, width);
}
