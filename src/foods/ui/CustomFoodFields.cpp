#include "foods/ui/CustomFoodFields.h"

#include "toolkit/LineField.h"
#include "toolkit/Style.h"

#include <QGridLayout>
#include <QPainter>

namespace {

// Measures in pixels.
constexpr int margin = 12;
constexpr int heavyRule = 3;
constexpr int ruleGap = 4;   // below the rule, added to the line gap
constexpr int columnGap = 6; // added to the gaps on both sides
constexpr int captionGap = 5;
constexpr int lineGap = 7;

// The grid: names, a rule, the hint, and the amounts in columns of caption, field and gap.
constexpr int nameRows = 2;
constexpr int ruleRow = nameRows;
constexpr int firstAmountRow = ruleRow + 2;
constexpr int gridColumns = 3;

using enum Nutrient;

constexpr Nutrient headlines[] = {Calories,    TotalFat, SatFat, MonoFat, PolyFat,
                                  Cholesterol, Sodium,   Carbs,  Fiber,   Protein};
constexpr Nutrient minerals[] = {Ash,       Calcium,   Copper, Folate, Iron,
                                 Magnesium, Manganese, Niacin, Panto,  Phosphorus};
constexpr Nutrient others[] = {Potassium, Riboflavin, Selenium, Thiamin, VitaminA, VitaminB12,
                               VitaminB6, VitaminC,   VitaminE, Water,   Zinc};
static_assert(HoldEachNutrientOnce({headlines, minerals, others}));

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
    grid_->setContentsMargins(margin, margin, margin, margin);
    grid_->setVerticalSpacing(lineGap);
    grid_->setHorizontalSpacing(captionGap);
    AddNames();
    AddHint();
    AddColumn(headlines, 0);
    AddColumn(minerals, 1);
    AddColumn(others, 2);
    grid_->setRowStretch(grid_->rowCount(), 1);
}

void CustomFoodFields::AddNames() {
    txtFoodName_ = AddField("txtFoodName", "Food Name", TextRole::Strong);
    txtServing_ = AddField("txtServing", "Serving", TextRole::Strong);
    for (int row = 0; row < nameRows; ++row) {
        grid_->addWidget(captions_[row], row, 0);
        grid_->addWidget(fields_[row], row, 1, 1, -1);
    }
}

void CustomFoodFields::AddHint() {
    lblHint_ = MakeLabel(this, QStringLiteral("lblHint"),
                         QStringLiteral("Amounts in one serving. An empty field counts as 0."),
                         TextRole::Quiet);
    grid_->setRowMinimumHeight(ruleRow, heavyRule + ruleGap);
    grid_->addWidget(lblHint_, ruleRow + 1, 0, 1, -1);
}

void CustomFoodFields::AddColumn(std::span<const Nutrient> nutrients, int column) {
    const int left = column * gridColumns;
    int row = firstAmountRow;
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
        grid_->setColumnMinimumWidth(left - 1, columnGap);
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
    const QRect place = grid_->cellRect(ruleRow, 0);
    QPainter(this).fillRect(margin, place.top(), width() - 2 * margin, heavyRule, TheStyle().ink);
}
