#include "foods/ui/CustomFoodFields.h"

#include "runtime/Val.h"
#include "store/Recordset.h"
#include "toolkit/Labels.h"
#include "toolkit/LineField.h"
#include "toolkit/Style.h"

#include <QGridLayout>
#include <QPainter>

#include <cmath>

namespace {

// Measures in pixels.
constexpr int margin = 12;
constexpr int heavyRule = 3;
constexpr int ruleGap = 4;   // below it, beside the line gap
constexpr int columnGap = 6; // beside the gaps around it
constexpr int captionGap = 5;
constexpr int lineGap = 7;

// The grid: names, a rule, the hint, and the amounts in columns of caption, field and gap.
constexpr int nameRows = 2;
constexpr int ruleRow = nameRows;
constexpr int firstAmountRow = ruleRow + 2;
constexpr int gridColumns = 3;

/// Amounts count for a serving: a serving weighs what the other amounts of the catalogue are for.
constexpr double gramsOfServing = 100;

/// No serving of anything holds more: beyond it a day could not be summed any more.
constexpr double mostAmount = 1'000'000;

using enum Nutrient;

constexpr Nutrient headlines[] = {Calories,    TotalFat, SatFat, MonoFat, PolyFat,
                                  Cholesterol, Sodium,   Carbs,  Fiber,   Protein};
constexpr Nutrient minerals[] = {Ash,       Calcium,   Copper, Folate, Iron,
                                 Magnesium, Manganese, Niacin, Panto,  Phosphorus};
constexpr Nutrient others[] = {Potassium, Riboflavin, Selenium, Thiamin, VitaminA, VitaminB12,
                               VitaminB6, VitaminC,   VitaminE, Water,   Zinc};
static_assert(std::size(headlines) + std::size(minerals) + std::size(others) == NutrientCount);

TextRole RoleOf(Nutrient id, int column) {
    if (id == Calories)
        return TextRole::Strong;
    return column == 0 ? TextRole::Text : TextRole::Small;
}

QString Column(const NutrientInfo& nutrient) {
    return QString::fromLatin1(nutrient.profileColumn);
}

double Amount(const QLineEdit* field) {
    return std::abs(Val(field->text()));
}

bool HoldsRefusedCharacter(const QString& text) {
    return text.contains(u'^') || text.contains(u'~') || text.contains(u'"');
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
        amounts_[static_cast<size_t>(id)] = field;
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

CustomFoodFields::Problem CustomFoodFields::FirstProblem() const {
    const QString refused =
        QStringLiteral(" names cannot contain the special characters '~', '^' or \".");
    if (HoldsRefusedCharacter(txtFoodName_->text()))
        return {txtFoodName_, u"Food" + refused};
    if (HoldsRefusedCharacter(txtServing_->text()))
        return {txtServing_, u"Serving" + refused};
    if (txtFoodName_->text().isEmpty())
        return {txtFoodName_, QStringLiteral("Please give your custom food a name.")};
    if (txtServing_->text().isEmpty())
        return {txtServing_, QStringLiteral("Please give your custom food a serving size.")};
    return AmountProblem();
}

CustomFoodFields::Problem CustomFoodFields::AmountProblem() const {
    for (qsizetype i = nameRows; i < fields_.size(); ++i)
        if (QLineEdit* field = fields_[i]; Amount(field) > mostAmount)
            return {field, u"The amount of " + field->accessibleName() +
                               u" is too large. Please enter a number up to 1,000,000."};
    return {};
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

void CustomFoodFields::Fill(const Recordset& row) {
    txtFoodName_->setText(row[QStringLiteral("FoodName")].Text());
    txtServing_->setText(row[QStringLiteral("Serv_Desc_A")].Text());
    for (const NutrientInfo& nutrient : Nutrients())
        amounts_[static_cast<size_t>(nutrient.id)]->setText(row[Column(nutrient)].Text());
    for (QLineEdit* field : std::as_const(fields_))
        field->setCursorPosition(0);
}

void CustomFoodFields::Write(Recordset& row) const {
    row.Set(QStringLiteral("FoodName"), txtFoodName_->text());
    row.Set(QStringLiteral("Serv_Desc_A"), txtServing_->text());
    row.Set(QStringLiteral("Serv_GM_WT_A"), gramsOfServing);
    for (const NutrientInfo& nutrient : Nutrients())
        row.Set(Column(nutrient), Amount(amounts_[static_cast<size_t>(nutrient.id)]));
}

void CustomFoodFields::FieldLock(bool on) {
    for (QLineEdit* field : std::as_const(fields_))
        field->setEnabled(on);
}

void CustomFoodFields::ChooseName() {
    txtFoodName_->setFocus(Qt::OtherFocusReason);
    txtFoodName_->selectAll();
}

/// The heavy rule below the serving.
void CustomFoodFields::paintEvent(QPaintEvent*) {
    const QRect place = grid_->cellRect(ruleRow, 0);
    QPainter(this).fillRect(margin, place.top(), width() - 2 * margin, heavyRule, TheStyle().ink);
}
