#include "recipes/RecipeCard.h"

#include "foods/ElidedLabel.h"
#include "recipes/InstructionText.h"
#include "recipes/ucIngredients.h"
#include "toolkit/Labels.h"
#include "toolkit/SmoothedPrint.h"
#include "toolkit/Style.h"
#include "toolkit/ucAALBL.h"
#include "toolkit/ucButton.h"

#include <QFontMetricsF>
#include <QLineEdit>
#include <QPainter>
#include <QtMath>

namespace {

// Measures in pixels.
constexpr int margin = 18;
constexpr QRect nameLine(margin, 10, 0, 32); // as wide as the card lets it
constexpr int nameRule = 44;
constexpr int ruling = 27; // from one ruled line of the card to the next
constexpr int factsTop = nameRule + 4;
constexpr int columnLeft[] = {0, 262}; // from the left margin
constexpr int columnGap = 14;
constexpr int captionGap = 8;
constexpr int unitGap = 4;
constexpr int numberWidth = 56;
constexpr int blankWidth = 8; // where there is no number
constexpr int headingTop = factsTop + 2 * ruling + 4;
constexpr int headingHeight = 26;
constexpr int lowerMargin = 14;

struct FactRow {
    RecipeField field;
    const char* captionName;
    const char* caption;
    const char* unitName;
    const char* unit;
    int column;
    int line;
};

constexpr FactRow factRows[] = {
    {RecipeField::Yield, "Label1", "Recipe yield:", "Label2", "servings", 0, 0},
    {RecipeField::Time, "Label5", "Total Time:", "Label6", "minutes", 1, 0},
    {RecipeField::Serving, "Label3", "Serving size:", nullptr, nullptr, 0, 1},
};

const QList<QFont>& FontsOf(RecipeField field) {
    static const QList<QFont> name{TheStyle().cardTitle, TheStyle().screenTitle};
    static const QList<QFont> fact{TheStyle().strong};
    return field == RecipeField::Name ? name : fact;
}

ucAALBL* MakeHeading(QWidget* parent, const char* name, const char* caption) {
    auto* heading = new ucAALBL(parent);
    heading->setObjectName(QLatin1String(name));
    heading->SetFont(TheStyle().strong);
    heading->SetForeColor(TheStyle().heading);
    heading->SetBackColor(QColor());
    heading->SetCaption(QLatin1String(caption));
    return heading;
}

QRect LineAt(int left, int line, int width) {
    return {margin + left, factsTop + line * ruling, width, ruling};
}

int WidthOf(const ElidedLabel* label) {
    const QFontMetricsF metrics(SmoothedFont(TheStyle().strong));
    return qCeil(metrics.horizontalAdvance(label->text()));
}

/// In the middle of a line, at its left end, with the height it has.
void PlaceOn(const QRect& line, QWidget* control) {
    control->move(line.left(), line.top() + (line.height() - control->height()) / 2);
}

} // namespace

RecipeCard::RecipeCard(QWidget* parent)
    : QWidget(parent) {
    setObjectName(QStringLiteral("picRecCard"));
    setMouseTracking(true);
    AddName();
    AddFacts();
    AddInstructions();
    AddIngredients();
    SetEditing(false);
}

void RecipeCard::AddField(RecipeField field) {
    const auto index = static_cast<size_t>(field);
    const RecipeFieldInfo& info = RecipeFields()[index];
    const Style& style = TheStyle();
    labels_[index] = new ElidedLabel(this, QLatin1String(info.label));
    labels_[index]->SetLook(FontsOf(field), field == RecipeField::Name ? style.heading : style.ink);
    entries_[index] = new QLineEdit(this);
    entries_[index]->setObjectName(QLatin1String(info.entry));
    entries_[index]->setAccessibleName(QLatin1String(info.spoken));
    entries_[index]->resize(numberWidth, style.fieldHeight);
}

void RecipeCard::AddName() {
    AddField(RecipeField::Name);
    Entry(RecipeField::Name)->setFont(TheStyle().title);
}

void RecipeCard::AddFacts() {
    auto* fact = facts_.data();
    for (const FactRow& row : factRows) {
        fact->caption = MakeLabel(this, QLatin1String(row.captionName), QLatin1String(row.caption),
                                  TextRole::Quiet);
        AddField(row.field);
        fact->caption->setBuddy(Entry(row.field));
        if (row.unit)
            fact->unit = MakeLabel(this, QLatin1String(row.unitName), QLatin1String(row.unit));
        ++fact;
    }
    aaCals_ = new ElidedLabel(this, QStringLiteral("aaCals"));
    aaCals_->SetLook({TheStyle().strong}, TheStyle().ink);
    aaCals_->SetCaption(QStringLiteral("Calories:"));
}

void RecipeCard::AddInstructions() {
    aaPrepare_ = MakeHeading(this, "aaPrepare", "Preparation Instructions");
    instructions_ = new InstructionText(this);
    connect(instructions_, &InstructionText::MouseMove, this, &RecipeCard::MouseMove);
}

void RecipeCard::AddIngredients() {
    aaIngredientsLBL_ = MakeHeading(this, "aaIngredientsLBL", "Ingredients");
    cmdIngreds_ = new ucButton(QStringLiteral("Ingredients"), this);
    cmdIngreds_->setObjectName(QStringLiteral("cmdIngreds"));
    cmdIngreds_->setToolTip(QStringLiteral("Add ingredients to this recipe"));
    cmdIngreds_->setAccessibleDescription(cmdIngreds_->toolTip());
    connect(cmdIngreds_, &ucButton::Click, this, &RecipeCard::IngredientsAsked);
    ucING_ = new ucIngredients(this);
    ucING_->setObjectName(QStringLiteral("ucING"));
}

void RecipeCard::Clear() {
    ShowCalories(QString());
    for (const RecipeFieldInfo& field : RecipeFields())
        ShowText(field.id, QString());
    ClearIngredients();
}

void RecipeCard::ShowText(RecipeField field, const QString& text) {
    if (field == RecipeField::Instructions)
        return instructions_->SetText(text);
    Label(field)->SetCaption(text);
    PlaceFacts();
}

QString RecipeCard::ShownText(RecipeField field) const {
    return field == RecipeField::Instructions ? instructions_->Text() : Label(field)->text();
}

void RecipeCard::ShowCalories(const QString& caption) {
    aaCals_->SetCaption(caption);
}

void RecipeCard::ClearIngredients() {
    ucING_->ClearList();
}

void RecipeCard::ShowIngredients(qint32 recipeID) {
    ucING_->SetRecipeID(recipeID);
    ucING_->DisplayFoods(true);
}

void RecipeCard::SetEntry(RecipeField field, const QString& text) {
    if (field == RecipeField::Instructions)
        return instructions_->SetText(text);
    Entry(field)->setText(text);
    Entry(field)->setCursorPosition(0);
}

RecipeTexts RecipeCard::Entries() const {
    RecipeTexts texts;
    for (const RecipeFieldInfo& field : RecipeFields())
        texts[field.id] =
            field.id == RecipeField::Instructions ? instructions_->Text() : Entry(field.id)->text();
    return texts;
}

/// With all of it chosen, and its beginning in sight.
void RecipeCard::FocusEntry(RecipeField field) {
    if (field == RecipeField::Instructions)
        return instructions_->setFocus(Qt::OtherFocusReason);
    Entry(field)->setFocus(Qt::OtherFocusReason);
    Entry(field)->end(false);
    Entry(field)->home(true);
}

void RecipeCard::SetEditing(bool editing) {
    editing_ = editing;
    for (const RecipeFieldInfo& field : RecipeFields())
        if (field.id != RecipeField::Instructions) {
            Label(field.id)->setVisible(!editing);
            Entry(field.id)->setVisible(editing);
        }
    aaCals_->setVisible(!editing);
    cmdIngreds_->setVisible(editing);
    instructions_->SetReadOnly(!editing);
    PlaceFacts();
}

int RecipeCard::InnerWidth() const {
    return width() - 2 * margin;
}

void RecipeCard::resizeEvent(QResizeEvent*) {
    PlaceName();
    PlaceFacts();
    PlaceInstructions();
    PlaceIngredients();
}

void RecipeCard::PlaceName() {
    const QRect place = nameLine.adjusted(0, 0, InnerWidth(), 0);
    Label(RecipeField::Name)->setGeometry(place);
    Entry(RecipeField::Name)->resize(place.width(), TheStyle().fieldHeight);
    PlaceOn(place, Entry(RecipeField::Name));
}

void RecipeCard::PlaceFacts() {
    for (size_t index = 0; index < facts_.size(); ++index)
        PlaceFact(index);
    const int left = columnLeft[1];
    aaCals_->setGeometry(LineAt(left, 1, InnerWidth() - left));
}

/// A unit follows what stands before it: the number on its label, or its field.
void RecipeCard::PlaceFact(size_t index) {
    const FactRow& row = factRows[index];
    const auto [caption, unit] = facts_[index];
    const int left = columnLeft[row.column];
    const int right = row.column == 0 ? columnLeft[1] - columnGap : InnerWidth();
    QRect line = LineAt(left, row.line, right - left);
    PlaceOn(line, caption);
    line.setLeft(line.left() + CaptionWidth(row.column) + captionGap);
    if (unit)
        line.setRight(line.right() - unit->width() - unitGap);
    ElidedLabel* label = Label(row.field);
    const int width = qBound(unit ? blankWidth : 0, WidthOf(label), line.width());
    label->setGeometry(line.left(), line.top(), width, ruling);
    QLineEdit* entry = Entry(row.field);
    entry->resize(unit ? numberWidth : line.width(), TheStyle().fieldHeight);
    PlaceOn(line, entry);
    if (unit)
        PlaceOn(line.translated((editing_ ? entry->width() : label->width()) + unitGap, 0), unit);
}

int RecipeCard::CaptionWidth(int column) const {
    int width = 0;
    for (size_t index = 0; index < facts_.size(); ++index)
        if (factRows[index].column == column)
            width = qMax(width, facts_[index].caption->width());
    return width;
}

void RecipeCard::PlaceInstructions() {
    PlaceOn(QRect(margin, headingTop, InnerWidth(), headingHeight), aaPrepare_);
    instructions_->setGeometry(margin, headingTop + headingHeight, InnerWidth(),
                               instructions_->sizeHint().height());
}

void RecipeCard::PlaceIngredients() {
    const QRect above = instructions_->geometry();
    const QRect heading(margin, above.bottom() + 1 + unitGap, above.width(), headingHeight);
    PlaceOn(heading, aaIngredientsLBL_);
    cmdIngreds_->move(heading.right() + 1 - cmdIngreds_->width(), heading.top());
    const int top = heading.bottom() + 1 + 2;
    ucING_->setGeometry(margin, top, above.width(), height() - lowerMargin - top);
}

void RecipeCard::paintEvent(QPaintEvent*) {
    const Style& style = TheStyle();
    QPainter painter(this);
    painter.fillRect(rect(), style.paper);
    painter.setPen(style.cardRuling);
    for (const int y : {factsTop + ruling, factsTop + 2 * ruling})
        painter.drawLine(margin, y, width() - margin - 1, y);
    painter.fillRect(margin, nameRule, width() - 2 * margin, 2, style.cardLine);
    painter.setPen(style.frame);
    painter.drawRoundedRect(QRectF(rect()).adjusted(.5, .5, -.5, -.5), style.boxRadius,
                            style.boxRadius);
}

void RecipeCard::mouseMoveEvent(QMouseEvent*) {
    Q_EMIT MouseMove();
}
