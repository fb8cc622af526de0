#include "analysis/ui/ucGlance.h"

#include "analysis/LoggedSums.h"
#include "analysis/ui/PieChart.h"
#include "drawing/Style.h"
#include "runtime/Convert.h"
#include "toolkit/SpokenRole.h"
#include "toolkit/ucAALBL.h"

namespace {

// Pixels.
constexpr int Margin = 12;
constexpr int FirstLine = 10;
constexpr int LineHeight = 26;
constexpr int PieTop = FirstLine + 2 * LineHeight;
constexpr int UsualWidth = 230;
constexpr int UsualHeight = 312;

PieForm GlancePie() {
    PieForm form;
    form.size = QSize(108, 108);
    form.centre = QPointF(54, 54);
    form.radius = 48;
    form.coverWithoutData = false;
    form.noDataCaptions = {"Total Fat: --", "Protein: --", "Carbs: --"};
    form.ground = TheStyle().paper;
    form.background = 54;
    return form;
}

} // namespace

ucGlance::ucGlance(QWidget* parent)
    : QWidget(parent) {
    SetSpokenRole(this, QAccessible::Grouping);
    setAccessibleName(QStringLiteral("This month at a glance"));
    lblAvgCals_ = AddLine("lblAvgCals", QStringLiteral("Average daily calories:"), TheStyle().ink);
    Label1_ = AddLine("Label1", QStringLiteral("Caloric breakdown:"), TheStyle().quietInk);
    pie_ = new PieChart(GlancePie(), this);
    setMouseTracking(true);
    resize(sizeHint());
}

ucAALBL* ucGlance::AddLine(const char* name, const QString& caption, const QColor& ink) {
    auto* line = new ucAALBL(this);
    line->setObjectName(QLatin1String(name));
    line->SetBackColor(QColor());
    line->SetForeColor(ink);
    line->SetFont(TheStyle().text);
    line->SetCaption(caption);
    line->setMouseTracking(true);
    return line;
}

void ucGlance::UpdateGlance(QDate from, QDate to) {
    const std::optional<Nuts> average = LoggedSums::AverageEnergy({from, to});
    pie_->Show(EnergyShares::Of(average, EnergyShares::TooLarge::EachFrom999));
    if (average)
        lblAvgCals_->SetCaption("Average daily calories: " + DecimalText(average->Calories()));
}

QSize ucGlance::sizeHint() const {
    return {UsualWidth, UsualHeight};
}

void ucGlance::resizeEvent(QResizeEvent*) {
    lblAvgCals_->move(Margin, FirstLine);
    Label1_->move(Margin, FirstLine + LineHeight);
    pie_->setGeometry(0, PieTop, width(), height() - PieTop);
}
