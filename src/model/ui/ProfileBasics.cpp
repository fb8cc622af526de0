#include "model/ui/ProfileBasics.h"

#include "drawing/Style.h"
#include "runtime/Convert.h"
#include "runtime/Val.h"
#include "toolkit/Labels.h"
#include "toolkit/LineField.h"
#include "toolkit/RadioGroup.h"
#include "toolkit/ucBox.h"
#include "toolkit/ucRadio.h"

#include <QGridLayout>

#include <algorithm>
#include <span>

namespace {
constexpr int NumberWidth = 56;
constexpr int CaptionWidth = 100;
constexpr int RowGap = 22;
constexpr int Margin = 16;
constexpr int LastColumn = 5; // takes the space that is left

struct Choice {
    const char* caption;
    const char* note;
};
constexpr Choice Genders[] = {{"Female", ""}, {"Male", ""}};
constexpr Choice Activities[] = {
    {"Sedentary", "Mostly sitting, no regular exercise"},
    {"Low", "Light exercise on one to three days a week"},
    {"Medium", "Moderate exercise on three to five days a week"},
    {"High", "Hard exercise or physical work on most days"},
};

QString Text(const char* text) {
    return QString::fromUtf8(text);
}

/// A box that ignores its own width, so that the columns of the page are equally wide.
ucBox* MakeBox(QWidget* parent, const char* caption) {
    auto* box = new ucBox(Text(caption), parent);
    box->setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Preferred);
    return box;
}

template <class Layout> Layout* LayOut(ucBox* box) {
    auto* layout = new Layout(box);
    layout->setContentsMargins(Margin, TheStyle().headerHeight + Margin, Margin, Margin);
    return layout;
}

QLineEdit* MakeField(QWidget* parent, const char* name, const char* spoken, const char* tip) {
    auto* field = new LineField(parent);
    field->setObjectName(Text(name));
    field->setAccessibleName(Text(spoken));
    field->setToolTip(Text(tip));
    return field;
}

QLineEdit* MakeNumber(QWidget* parent, const char* name, const char* spoken, const char* tip) {
    QLineEdit* field = MakeField(parent, name, spoken, tip);
    field->setFixedWidth(NumberWidth);
    field->setAlignment(Qt::AlignRight);
    return field;
}

/// Adds a field with its unit behind it.
QLineEdit* AddNumber(QGridLayout* grid, QPoint place, const char* name, const char* spoken,
                     const char* tip, const char* unit) {
    QWidget* box = grid->parentWidget();
    QLineEdit* field = MakeNumber(box, name, spoken, tip);
    grid->addWidget(field, place.y(), place.x());
    const QString label = u"lbl" + Text(name).mid(3) + Text(unit);
    grid->addWidget(MakeLabel(box, label, Text(unit), TextRole::Quiet), place.y(), place.x() + 1);
    return field;
}

void AddCaptions(QGridLayout* grid) {
    int row = 0;
    for (const char* caption : {"User Name", "Age", "Height", "Current Weight", "Desired Weight"}) {
        const QString name = u"lbl" + Text(caption).remove(u' ');
        grid->addWidget(MakeLabel(grid->parentWidget(), name, Text(caption)), row++, 0);
    }
}

void AddNote(QGridLayout* grid) {
    QLabel* note = MakeLabel(
        grid->parentWidget(), QStringLiteral("lblNote"),
        QStringLiteral("Your recommended daily intake is worked out from these figures when the "
                       "profile is created. After that, your weight adjusts it if the preferences "
                       "say so."),
        TextRole::Quiet);
    note->setWordWrap(true);
    const int foot = grid->rowCount();
    grid->setRowStretch(foot, 1);
    grid->addWidget(note, foot, 0, 1, LastColumn + 1, Qt::AlignBottom);
}

void AddRadios(ucBox* box, const QString& stem, std::span<const Choice> choices,
               std::span<ucRadio*> radios) {
    auto* column = LayOut<QVBoxLayout>(box);
    column->setSpacing(0);
    for (size_t i = 0; i < radios.size(); ++i) {
        radios[i] = new ucRadio(Text(choices[i].caption), box);
        radios[i]->setObjectName(stem + QString::number(i));
        column->addWidget(radios[i], 0, Qt::AlignLeft);
        if (*choices[i].note) {
            QLabel* note = MakeLabel(box, u"lbl" + radios[i]->objectName(), Text(choices[i].note),
                                     TextRole::Quiet);
            note->setIndent(radios[i]->layoutRects().caption.left());
            column->addWidget(note);
            radios[i]->setAccessibleDescription(note->text());
        }
        column->addSpacing(TheStyle().boxGap);
    }
    column->addStretch();
    RadioGroup::Join(radios);
}
} // namespace

ProfileBasics::ProfileBasics(QWidget* parent)
    : QWidget(parent) {
    setObjectName(QStringLiteral("picCover"));
    setMouseTracking(true);
    auto* columns = new QHBoxLayout(this);
    columns->setContentsMargins(0, 0, 0, 0);
    columns->setSpacing(TheStyle().boxGap);
    columns->addWidget(MakePersonBox(), 1);
    auto* choices = new QVBoxLayout;
    choices->addWidget(MakeGenderBox());
    choices->addWidget(MakeActivityBox(), 1);
    columns->addLayout(choices, 1);
}

QWidget* ProfileBasics::MakePersonBox() {
    auto* box = MakeBox(this, "Profile");
    auto* grid = LayOut<QGridLayout>(box);
    grid->setHorizontalSpacing(TheStyle().boxGap);
    grid->setVerticalSpacing(RowGap);
    grid->setColumnMinimumWidth(0, CaptionWidth);
    grid->setColumnStretch(LastColumn, 1);
    AddCaptions(grid);
    txtUserName_ =
        MakeField(box, "txtUserName", "User Name", "Enter the user name you'd like to use");
    grid->addWidget(txtUserName_, 0, 1, 1, LastColumn);
    txtAge_ = AddNumber(grid, {1, 1}, "txtAge", "Age", "Enter your age in years", "Years");
    txtFeet_ = AddNumber(grid, {1, 2}, "txtFeet", "Height, Feet", "Enter your height", "Feet");
    txtInches_ =
        AddNumber(grid, {3, 2}, "txtInches", "Height, Inches", "Enter your height", "Inches");
    txtWeight_ = AddNumber(grid, {1, 3}, "txtWeight", "Current Weight",
                           "Enter your current weight in pounds", "Pounds");
    txtDWeight_ = AddNumber(grid, {1, 4}, "txtDWeight", "Desired Weight",
                            "Enter your desired weight in pounds", "Pounds");
    AddNote(grid);
    return box;
}

QWidget* ProfileBasics::MakeGenderBox() {
    auto* box = MakeBox(this, "Gender");
    AddRadios(box, QStringLiteral("opGender"), Genders, opGender_);
    return box;
}

QWidget* ProfileBasics::MakeActivityBox() {
    auto* box = MakeBox(this, "Activity Level");
    AddRadios(box, QStringLiteral("opAct"), Activities, opAct_);
    return box;
}

void ProfileBasics::Show(const Profile& profile) {
    txtUserName_->setText(profile.userName);
    txtAge_->setText(DecimalText(profile.age));
    txtFeet_->setText(profile.feet);
    txtInches_->setText(DecimalText(profile.inches));
    txtWeight_->setText(DecimalText(profile.currentWeight));
    txtDWeight_->setText(DecimalText(profile.desiredWeight));
    RadioGroup::Select(opGender_, profile.gender);
    RadioGroup::Select(opAct_, profile.activityLevel);
}

Profile ProfileBasics::Entered() const {
    Profile entered;
    entered.userName = txtUserName_->text();
    entered.age = Val(txtAge_->text());
    entered.feet = txtFeet_->text();
    entered.inches = Val(txtInches_->text());
    entered.currentWeight = Val(txtWeight_->text());
    entered.desiredWeight = Val(txtDWeight_->text());
    entered.gender = RadioGroup::Selected(opGender_);
    entered.activityLevel = RadioGroup::Selected(opAct_);
    return entered;
}

void ProfileBasics::FocusFirst() {
    txtUserName_->setFocus(Qt::TabFocusReason);
}
