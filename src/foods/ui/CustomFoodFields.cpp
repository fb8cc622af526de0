#include "foods/ui/CustomFoodFields.h"

#include "drawing/Style.h"
#include "toolkit/LineField.h"

#include <QGridLayout>
#include <QPainter>

namespace {

// Measures in pixels.
constexpr int Margin = 12;
constexpr int HeavyRule = 3;
constexpr int RuleGap = 4;   // below the rule, added to the line gap
constexpr int ColumnGap = 6; // added to the gaps on both sides
constexpr int CaptionGap = 5;
constexpr int LineGap = 7;

// The grid: names, a rule, the hint, and the amounts in columns of caption, field and gap.
constexpr int NameRows = 2;
constexpr int RuleRow = NameRows;
constexpr int FirstAmountRow = RuleRow + 2;
constexpr int GridColumns = 3;

using enum Nutrient;

constexpr Nutrient Headlines[] = {Calories,    TotalFat, SatFat, MonoFat, PolyFat,
                                  Cholesterol, Sodium,   Carbs,  Fiber,   Protein};
constexpr Nutrient Minerals[] = {Ash,       Calcium,   Copper, Folate, Iron,
                                 Magnesium, Manganese, Niacin, Panto,  Phosphorus};
constexpr Nutrient Others[] = {Potassium, Riboflavin, Selenium, Thiamin, VitaminA, VitaminB12,
                               VitaminB6, VitaminC,   VitaminE, Water,   Zinc};
static_assert(HoldEachNutrientOnce({Headlines, Minerals, Others}));

TextRole RoleOf(Nutrient id, int column) {
    if (id == Calories)
        return TextRole::Strong;
    return column == 0 ? TextRole::Text : TextRole::Small;
}

} // namespace

CustomFoodFields::CustomFoodFields(QWidget* parent)
    : QWidget(parent)
    , grid_(new QGridLayout(this)) {
    setObjectName(QStringLiteral("picFields"));
    setMouseTracking(true);
    grid_->setContentsMargins(Margin, Margin, Margin, Margin);
    grid_->setVerticalSpacing(LineGap);
    grid_->setHorizontalSpacing(CaptionGap);
    AddNames();
    AddHint();
    AddColumn(Headlines, 0);
    AddColumn(Minerals, 1);
    AddColumn(Others, 2);
    grid_->setRowStretch(grid_->rowCount(), 1);
}

void CustomFoodFields::AddNames() {
    txtFoodName_ = AddField("txtFoodName", "Food Name", TextRole::Strong);
    txtServing_ = AddField("txtServing", "Serving", TextRole::Strong);
    for (int row = 0; row < NameRows; ++row) {
        grid_->addWidget(captions_[row], row, 0);
        grid_->addWidget(fields_[row], row, 1, 1, -1);
    }
}

void CustomFoodFields::AddHint() {
    lblHint_ = MakeLabel(this, QStringLiteral("lblHint"),
                         QStringLiteral("Amounts in one serving. An empty field counts as 0."),
                         TextRole::Quiet);
    grid_->setRowMinimumHeight(RuleRow, HeavyRule + RuleGap);
    grid_->addWidget(lblHint_, RuleRow + 1, 0, 1, -1);
}

void CustomFoodFields::AddColumn(std::span<const Nutrient> nutrients, int column) {
    const int left = column * GridColumns;
    int row = FirstAmountRow;
    for (const Nutrient id : nutrients) {
        const NutrientInfo& nutrient = Info(id);
        QLineEdit* field = AddField(nutrient.textField, nutrient.editCaption, RoleOf(id, column));
        field->setAlignment(Qt::AlignRight);
        amounts_[id] = field;
        grid_->addWidget(captions_.last(), row, left);
        grid_->addWidget(field, row++, left + 1);
    }
    grid_->setColumnStretch(left + 1, 1);
    if (column > 0)
        grid_->setColumnMinimumWidth(left - 1, ColumnGap);
}

QLineEdit* CustomFoodFields::AddField(const char* name, const char* caption, TextRole role) {
    auto* field = new LineField(this);
    field->setObjectName(QString::fromLatin1(name));
    field->setAccessibleName(QString::fromLatin1(caption));
    field->setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Fixed);
    connect(field, &QLineEdit::textChanged, this, &CustomFoodFields::Changed);
    const QString label = u"lbl" + field->objectName().mid(3);
    captions_ << MakeLabel(this, label, field->accessibleName(), role);
    captions_.last()->setBuddy(field);
    fields_ << field;
    return field;
}

void CustomFoodFields::Clear() {
    for (QLineEdit* field : std::as_const(fields_))
        field->clear();
}

void CustomFoodFields::SetNew() {
    Clear();
    txtFoodName_->setText(QStringLiteral("New Food Name"));
    txtServing_->setText(QStringLiteral("Serving Size"));
}

void CustomFoodFields::Show(const CustomFood& food) {
    txtFoodName_->setText(food.name);
    txtServing_->setText(food.serving);
    for (QLineEdit* name : {txtFoodName_, txtServing_})
        name->setCursorPosition(0);
    amounts_.Show(food.amounts);
}

CustomFood CustomFoodFields::Entered() const {
    return {txtFoodName_->text(), txtServing_->text(), amounts_.Entered()};
}

void CustomFoodFields::FieldLock(bool on) {
    for (QLineEdit* field : std::as_const(fields_))
        field->setEnabled(on);
}

void CustomFoodFields::ChooseName() {
    txtFoodName_->setFocus(Qt::OtherFocusReason);
    txtFoodName_->selectAll();
}

void CustomFoodFields::FocusOn(const CustomFoodProblem& problem) {
    using enum CustomFoodProblem::Part;
    QLineEdit* field = problem.part == Name      ? txtFoodName_
                       : problem.part == Serving ? txtServing_
                                                 : amounts_[problem.nutrient];
    field->setFocus();
}

/// The heavy rule below the serving.
void CustomFoodFields::paintEvent(QPaintEvent*) {
    const QRect place = grid_->cellRect(RuleRow, 0);
    QPainter(this).fillRect(Margin, place.top(), width() - 2 * Margin, HeavyRule, TheStyle().ink);
}
