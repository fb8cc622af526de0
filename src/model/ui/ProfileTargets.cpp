#include "model/ui/ProfileTargets.h"

#include "drawing/Style.h"
#include "toolkit/Labels.h"
#include "toolkit/LineField.h"
#include "toolkit/ucBox.h"

#include <QGridLayout>

namespace {
constexpr int NumberWidth = 66;
constexpr int Margin = 12;
constexpr int LineGap = 15; // so that the longest group fills its box

using enum Nutrient;

constexpr Nutrient Energy[] = {Calories, TotalFat, SatFat,  PolyFat, MonoFat, Cholesterol,
                               Carbs,    Fiber,    Protein, Ash,     Water};
constexpr Nutrient Minerals[] = {Sodium, Potassium, Calcium, Phosphorus, Magnesium,
                                 Iron,   Zinc,      Copper,  Manganese,  Selenium};
constexpr Nutrient Vitamins[] = {VitaminA,  Thiamin, Riboflavin, Niacin,   Panto,
                                 VitaminB6, Folate,  VitaminB12, VitaminC, VitaminE};
static_assert(HoldEachNutrientOnce({Energy, Minerals, Vitamins}));
} // namespace

ProfileTargets::ProfileTargets(QWidget* parent)
    : QWidget(parent) {
    setObjectName(QStringLiteral("picAdvanced"));
    setMouseTracking(true);
    auto* row = new QHBoxLayout(this);
    row->setContentsMargins(0, 0, 0, 0);
    row->setSpacing(TheStyle().boxGap);
    row->addWidget(MakeGroup("Energy and Macronutrients", Energy), 1);
    row->addWidget(MakeGroup("Minerals", Minerals), 1);
    row->addWidget(MakeGroup("Vitamins", Vitamins), 1);
}

QWidget* ProfileTargets::MakeGroup(const char* caption, std::span<const Nutrient> nutrients) {
    auto* box = new ucBox(QString::fromLatin1(caption), this);
    box->setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Preferred);
    auto* grid = new QGridLayout(box);
    grid->setContentsMargins(Margin, TheStyle().headerHeight + Margin, Margin, Margin);
    grid->setVerticalSpacing(LineGap);
    grid->setColumnStretch(0, 1);
    int line = 0;
    for (Nutrient id : nutrients) {
        const NutrientInfo& nutrient = Info(id);
        const QString label = u"lbl" + QString::fromLatin1(nutrient.textField).mid(3);
        grid->addWidget(MakeLabel(box, label, QString::fromLatin1(nutrient.editCaption)), line, 0);
        grid->addWidget(MakeField(box, nutrient), line++, 1);
    }
    grid->setRowStretch(line, 1);
    return box;
}

QLineEdit* ProfileTargets::MakeField(QWidget* box, const NutrientInfo& nutrient) {
    auto* field = new LineField(box);
    field->setObjectName(QString::fromLatin1(nutrient.textField));
    field->setAccessibleName(QString::fromLatin1(nutrient.editCaption));
    field->setFixedWidth(NumberWidth);
    field->setAlignment(Qt::AlignRight);
    fields_[nutrient.id] = field;
    return field;
}
