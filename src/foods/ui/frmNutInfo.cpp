#include "foods/ui/frmNutInfo.h"

#include "drawing/Style.h"
#include "drawing/Twips.h"
#include "foods/FormatNutrient.h"
#include "foods/ui/ElidedLabel.h"
#include "foods/ui/FactsPage.h"
#include "model/User.h"
#include "runtime/Convert.h"
#include "runtime/Format.h"
#include "runtime/RuntimeError.h"
#include "toolkit/print/Printing.h"
#include "toolkit/ucButton.h"
#include "toolkit/ucTitleFlat.h"

#include <QPainter>

#include <algorithm>
#include <array>

namespace {

// The thin lines, in twips: one under each row of the two blocks.
constexpr int LineLeft = 180;
constexpr int LineRight = 4685;
constexpr int RowStep = 255;
constexpr int HeadlineTop = 1700;
constexpr int HeadlineLines = 7;
constexpr int OthersTop = 3795;
constexpr int OthersLines = 11;

// In pixels.
constexpr QSize PanelSize(324, 494);
constexpr int CardBottom = 448;
constexpr int TitleHeight = 30;
constexpr int HeavyRule = 3;
constexpr int NameTop = 31, NameHeight = 22;
constexpr int ServingTop = 51, ServingHeight = 15;
constexpr int NameRuleTop = 67;
constexpr int HeadingTop = 69, HeadingHeight = 13;
constexpr int CaloriesTop = 82, CaloriesHeight = 15;
constexpr int OthersRuleTop = 224;
constexpr int AmountRight = 228;
constexpr int LeftColumnRight = 179;
constexpr int RightColumnLeft = 189;

struct Headline {
    Nutrient id;
    const char* percentLabel;
};
constexpr Headline Headlines[] = {
    {Nutrient::TotalFat, "lblPerFat"},
    {Nutrient::SatFat, "lblPerSatFat"},
    {Nutrient::Cholesterol, "lblPerCholesterol"},
    {Nutrient::Sodium, "lblPerSodium"},
    {Nutrient::Carbs, "lblPerCarbs"},
    {Nutrient::Fiber, "lblPerFiber"},
    {Nutrient::Protein, "lblPerProtein"},
};

/// Fills the left column first: it has room for the long captions.
constexpr int OthersRows = 12;
constexpr Nutrient Others[] = {
    Nutrient::MonoFat,   Nutrient::PolyFat,    Nutrient::Ash,       Nutrient::Calcium,
    Nutrient::Copper,    Nutrient::Folate,     Nutrient::Iron,      Nutrient::Magnesium,
    Nutrient::Manganese, Nutrient::Niacin,     Nutrient::Panto,     Nutrient::Phosphorus,
    Nutrient::Potassium, Nutrient::Riboflavin, Nutrient::Selenium,  Nutrient::Thiamin,
    Nutrient::VitaminA,  Nutrient::VitaminB12, Nutrient::VitaminB6, Nutrient::VitaminC,
    Nutrient::VitaminE,  Nutrient::Water,      Nutrient::Zinc,
};

constexpr auto NutrientsAbove = [] {
    std::array<Nutrient, std::size(Headlines) + 1> nutrients{Nutrient::Calories};
    std::ranges::transform(Headlines, nutrients.begin() + 1, &Headline::id);
    return nutrients;
}();
static_assert(HoldEachNutrientOnce({NutrientsAbove, Others}));

int Left() {
    return Twips::ToPixels(LineLeft);
}

int Right() {
    return Twips::ToPixels(LineRight);
}

/// The rectangle above the line of that row.
QRect RowPlace(int firstLine, int row, int left, int right) {
    const int top = Twips::ToPixels(firstLine + (row - 1) * RowStep) + 1;
    const int bottom = Twips::ToPixels(firstLine + row * RowStep);
    return {left, top, right - left, bottom - top};
}

/// Without a target there is no percentage.
QString Percentage(double amount, double target) {
    return target == 0 ? QStringLiteral("--") : Format(amount / target, NumberMask::Percent);
}

} // namespace

frmNutInfo::frmNutInfo(QWidget* owner)
    : Dialog(QStringLiteral("frmNutInfo"), QStringLiteral("Details"), owner) {
    Title()->setObjectName(QStringLiteral("ucTitleFlat1"));
    Title()->setFixedHeight(TitleHeight);
    setFixedSize(PanelSize);
    BuildName();
    BuildCalories();
    BuildHeadlines();
    BuildOthers();
    BuildDone();
    Printing::AddTo(this, windowTitle(), [this] { return Printed(); });
}

void frmNutInfo::BuildName() {
    const Style& style = TheStyle();
    aaFoodName_ = new ElidedLabel(this, QStringLiteral("aaFoodName"));
    aaFoodName_->SetLook({style.screenTitle, style.strong}, style.heading);
    aaFoodName_->setGeometry(Left(), NameTop, Right() - Left(), NameHeight);
    const QRect serving(Left(), ServingTop, Right() - Left(), ServingHeight);
    const int caption = AddCaption(serving, QStringLiteral("lblServSize"),
                                   QStringLiteral("Serving Size"), TextRole::Quiet)
                            ->sizeHint()
                            .width();
    aaServSize_ = new ElidedLabel(this, QStringLiteral("aaServSize"));
    aaServSize_->SetLook({style.text, style.small}, style.ink);
    aaServSize_->setGeometry(serving.adjusted(caption + style.boxGap, 0, 0, 0));
}

void frmNutInfo::BuildCalories() {
    const QRect heading(Left(), HeadingTop, Right() - Left(), HeadingHeight);
    AddCaption(heading, QStringLiteral("lblAmount"), QStringLiteral("Amount Per Serving"),
               TextRole::Small);
    AddCaption(heading, QStringLiteral("lblDailyValue"), QStringLiteral("% Daily Value"),
               TextRole::Small)
        ->setAlignment(Qt::AlignRight | Qt::AlignVCenter);
    const int middle = (Left() + Right()) / 2;
    const QRect row(Left(), CaloriesTop, middle - Left() - TheStyle().boxGap, CaloriesHeight);
    AddAmount(row, Nutrient::Calories, TextRole::Strong);
    const QRect fat = row.translated(middle - Left() + TheStyle().boxGap, 0);
    AddCaption(fat, QStringLiteral("lblFatCalsCaption"), QStringLiteral("Calories from fat"),
               TextRole::Text);
    lblFatCals_ = AddFigure(fat, QStringLiteral("lblFatCals"), QStringLiteral("Calories from fat"));
}

void frmNutInfo::BuildHeadlines() {
    for (int row = 0; row < HeadlineCount; ++row) {
        AddAmount(RowPlace(HeadlineTop, row, Left(), AmountRight), Headlines[row].id,
                  TextRole::Text);
        const QRect place = RowPlace(HeadlineTop, row, AmountRight, Right());
        percents_[size_t(row)] =
            AddFigure(place, QString::fromLatin1(Headlines[row].percentLabel),
                      QLatin1String(Info(Headlines[row].id).factsCaption) + u", % Daily Value");
    }
}

void frmNutInfo::BuildOthers() {
    for (int i = 0; i < int(std::size(Others)); ++i) {
        const bool inLeft = i < OthersRows;
        AddAmount(RowPlace(OthersTop, i % OthersRows, inLeft ? Left() : RightColumnLeft,
                           inLeft ? LeftColumnRight : Right()),
                  Others[i], TextRole::Small);
    }
}

void frmNutInfo::BuildDone() {
    cmdDone_ = new ucButton(QStringLiteral("Done"), this);
    cmdDone_->setObjectName(QStringLiteral("cmdDone"));
    QRect place(QPoint(), cmdDone_->sizeHint());
    place.moveBottomRight({Right() - 1, height() - TheStyle().boxGap - 2});
    cmdDone_->setGeometry(place);
    connect(cmdDone_, &ucButton::Click, this, &QDialog::accept);
}

QLabel* frmNutInfo::AddCaption(const QRect& place, const QString& name, const QString& text,
                               TextRole role) {
    QLabel* caption = MakeLabel(this, name, text, role);
    caption->setGeometry(place);
    return caption;
}

/// Assistive tools read the figure, then the caption as its description.
QLabel* frmNutInfo::AddFigure(const QRect& place, const QString& name, const QString& caption) {
    QLabel* figure = MakeLabel(this, name, {}, TextRole::Strong);
    figure->setAlignment(Qt::AlignRight | Qt::AlignVCenter);
    figure->setAccessibleDescription(caption);
    figure->setGeometry(place);
    return figure;
}

void frmNutInfo::AddAmount(const QRect& place, Nutrient id, TextRole captionRole) {
    const QString name = QString::fromLatin1(Info(id).factsLabel);
    AddCaption(place, name + u"Caption", QString::fromLatin1(Info(id).factsCaption), captionRole);
    amounts_[size_t(id)] = AddFigure(place, name, QString::fromLatin1(Info(id).factsCaption));
}

void frmNutInfo::showFood(const ScaledFood& item) {
    try {
        Fill(item);
    } catch (const RuntimeError&) {
        close();
        return;
    }
    ShowModal();
}

void frmNutInfo::Fill(const ScaledFood& item) {
    aaFoodName_->SetCaption(item.Text(QStringLiteral("foodname")));
    aaServSize_->SetCaption(item.Text(QStringLiteral("serving")) + u" (X " +
                            DecimalText(item.Amount(QStringLiteral("QTY"))) + u")");
    for (const NutrientInfo& nutrient : Nutrients())
        amounts_[size_t(nutrient.id)]->setText(
            FormatNutrient(item.Amount(QString::fromLatin1(nutrient.logColumn))));
    lblFatCals_->setText(
        FormatNutrient(item.Amount(QStringLiteral("TotalFat")) * KcalPerGram::Fat));
    FillPercents(item);
    CapFatCalories();
}

void frmNutInfo::FillPercents(const ScaledFood& item) {
    const Nuts& targets = User::Current().RDIs;
    for (size_t row = 0; row < percents_.size(); ++row) {
        const Nutrient id = Headlines[row].id;
        const double amount = item.Amount(QString::fromLatin1(Info(id).logColumn));
        percents_[row]->setText(Percentage(amount, targets[id]));
    }
}

/// The calories of a food are rounded, so those of its fat can be slightly higher.
void frmNutInfo::CapFatCalories() {
    const QString calories = amounts_[size_t(Nutrient::Calories)]->text();
    if (WholeNumber(lblFatCals_->text()) > WholeNumber(calories))
        lblFatCals_->setText(calories);
}

FactsPage frmNutInfo::Page() const {
    const auto row = [this](Nutrient id) {
        return FactsPage::Row{QLatin1String(Info(id).factsCaption), amounts_[size_t(id)]->text()};
    };
    FactsPage page{aaFoodName_->text(),
                   aaServSize_->text(),
                   {row(Nutrient::Calories), {"Calories from fat", lblFatCals_->text()}},
                   {}};
    for (size_t i = 0; i < percents_.size(); ++i) {
        page.headlines.push_back(row(Headlines[i].id));
        page.headlines.back().percent = percents_[i]->text();
    }
    for (const Nutrient id : Others)
        page.others.push_back(row(id));
    return page;
}

PrintJob frmNutInfo::Printed() const {
    return {aaFoodName_->text(), QStringLiteral("Nutrition facts"),
            [page = Page()](Pages& paper) { page.Paint(paper); }};
}

void frmNutInfo::paintEvent(QPaintEvent* event) {
    Dialog::paintEvent(event);
    const Style& style = TheStyle();
    const QRect inner = Inner();
    QPainter painter(this);
    painter.fillRect(inner.left(), inner.top(), inner.width(), CardBottom - inner.top(),
                     style.paper);
    painter.fillRect(inner.left(), CardBottom, inner.width(), 1, style.rule);
    for (const int top : {NameRuleTop, OthersRuleTop})
        painter.fillRect(Left(), top, Right() - Left(), HeavyRule, style.ink);
    for (const auto& [first, count] :
         {std::pair(HeadlineTop, HeadlineLines), std::pair(OthersTop, OthersLines)})
        for (int line = 0; line < count; ++line)
            painter.fillRect(Left(), Twips::ToPixels(first + line * RowStep), Right() - Left(), 1,
                             style.factsRule);
}
