#include "analysis/ui/ucGlance.h"

#include "analysis/LoggedSums.h"
#include "analysis/ui/PieChart.h"
#include "runtime/Convert.h"
#include "toolkit/Style.h"
#include "toolkit/ucAALBL.h"

namespace {

// Pixels.
constexpr int margin = 12;
constexpr int firstLine = 10;
constexpr int lineHeight = 26;
constexpr int pieTop = firstLine + 2 * lineHeight;
constexpr int usualWidth = 230;
constexpr int usualHeight = 312;

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
    return {usualWidth, usualHeight};
}

void ucGlance::resizeEvent(QResizeEvent*) {
    lblAvgCals_->move(margin, firstLine);
    Label1_->move(margin, firstLine + lineHeight);
    pie_->setGeometry(0, pieTop, width(), height() - pieTop);
}
