#include "recipes/ui/RecipeCard.h"

#include "drawing/DevicePixels.h"
#include "drawing/Style.h"
#include "foods/ui/ElidedLabel.h"
#include "recipes/ui/InstructionText.h"
#include "recipes/ui/ucIngredients.h"
#include "toolkit/ucAALBL.h"
#include "toolkit/ucButton.h"

#include <QPainter>

namespace {

// Measures in pixels.
constexpr int Margin = 18;
constexpr QRect NameLine(Margin, 10, 0, 32); // as wide as the card lets it
constexpr int NameRule = 44;
constexpr int Ruling = 27; // from one ruled line of the card to the next
constexpr int FactsTop = NameRule + 4;
constexpr int SecondColumn = 262; // from the left margin
constexpr int ColumnGap = 14;
constexpr int HeadingTop = FactsTop + 2 * Ruling + 4;
constexpr int HeadingHeight = 26;
constexpr int HeadingGap = 4; // above the ingredients
constexpr int LowerMargin = 14;

ucAALBL* MakeHeading(QWidget* parent, const char* name, const char* caption) {
    auto* heading = new ucAALBL(parent);
    heading->setObjectName(QLatin1String(name));
    heading->SetFont(TheStyle().strong);
    heading->SetForeColor(TheStyle().heading);
    heading->SetBackColor(QColor());
    heading->SetCaption(QLatin1String(caption));
    return heading;
}

QRect LineAt(int left, int line, int right) {
    return {Margin + left, FactsTop + line * Ruling, right - left, Ruling};
}

} // namespace

RecipeCard::RecipeCard(QWidget* parent)
    : QWidget(parent) {
    setObjectName(QStringLiteral("picRecCard"));
    setAccessibleName(QStringLiteral("Recipe card"));
    setMouseTracking(true);
    AddName();
    AddFacts();
    AddInstructions();
    AddIngredients();
    SetEditing(false);
}

RecipeCard::~RecipeCard() = default;

CardField* RecipeCard::FieldOf(RecipeField field) const {
    return fields_[static_cast<size_t>(field)].get();
}

CardField* RecipeCard::AddField(RecipeField field, const CardField::Names& names) {
    fields_[static_cast<size_t>(field)] = std::make_unique<CardField>(this, names);
    return FieldOf(field);
}

void RecipeCard::AddName() {
    const Style& style = TheStyle();
    AddField(RecipeField::Name, {"aaRecipeName", "txtName", "Recipe name"})
        ->SetLook({style.cardTitle, style.screenTitle}, style.heading, style.title);
}

/// In reading order, which the Tab key follows.
void RecipeCard::AddFacts() {
    CardField* yield =
        AddField(RecipeField::Yield, {"lblRecYield", "txtYield", "Recipe yield in servings"});
    yield->AddCaption("Label1", "Recipe yield:");
    yield->AddUnit("Label2", "servings");
    CardField* time =
        AddField(RecipeField::Time, {"aaTotalTime", "txtTime", "Total time in minutes"});
    time->AddCaption("Label5", "Total Time:");
    time->AddUnit("Label6", "minutes");
    AddField(RecipeField::Serving, {"lblServingDesc", "txtServing", "Serving size"})
        ->AddCaption("Label3", "Serving size:");
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
    if (CardField* shown = FieldOf(field))
        shown->Show(text);
    else
        instructions_->SetText(text);
}

QString RecipeCard::ShownText(RecipeField field) const {
    const CardField* shown = FieldOf(field);
    return shown ? shown->Shown() : instructions_->Text();
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

void RecipeCard::SetEntries(const RecipeTexts& texts) {
    for (const RecipeFieldInfo& field : RecipeFields())
        if (CardField* entry = FieldOf(field.id))
            entry->SetEntry(texts[field.id]);
        else
            instructions_->SetText(texts[field.id]);
}

RecipeTexts RecipeCard::Entries() const {
    RecipeTexts texts;
    for (const RecipeFieldInfo& field : RecipeFields()) {
        const CardField* entry = FieldOf(field.id);
        texts[field.id] = entry ? entry->Entry() : instructions_->Text();
    }
    return texts;
}

void RecipeCard::FocusEntry(RecipeField field) {
    if (CardField* entry = FieldOf(field))
        entry->Focus();
    else
        instructions_->setFocus(Qt::OtherFocusReason);
}

void RecipeCard::SetEditing(bool editing) {
    for (const auto& field : fields_)
        if (field)
            field->SetEditing(editing);
    aaCals_->setVisible(!editing);
    cmdIngreds_->setVisible(editing);
    instructions_->SetReadOnly(!editing);
}

int RecipeCard::InnerWidth() const {
    return width() - 2 * Margin;
}

void RecipeCard::resizeEvent(QResizeEvent*) {
    PlaceName();
    PlaceFacts();
    PlaceInstructions();
    PlaceIngredients();
}

void RecipeCard::PlaceName() {
    FieldOf(RecipeField::Name)->Place(NameLine.adjusted(0, 0, InnerWidth(), 0), 0);
}

void RecipeCard::PlaceFacts() {
    CardField* yield = FieldOf(RecipeField::Yield);
    CardField* serving = FieldOf(RecipeField::Serving);
    CardField* time = FieldOf(RecipeField::Time);
    const int captions = qMax(yield->CaptionWidth(), serving->CaptionWidth());
    const int firstEnd = SecondColumn - ColumnGap;
    yield->Place(LineAt(0, 0, firstEnd), captions);
    time->Place(LineAt(SecondColumn, 0, InnerWidth()), time->CaptionWidth());
    serving->Place(LineAt(0, 1, firstEnd), captions);
    aaCals_->setGeometry(LineAt(SecondColumn, 1, InnerWidth()));
}

void RecipeCard::PlaceInstructions() {
    PlaceOnLine(QRect(Margin, HeadingTop, InnerWidth(), HeadingHeight), aaPrepare_);
    instructions_->setGeometry(Margin, HeadingTop + HeadingHeight, InnerWidth(),
                               instructions_->sizeHint().height());
}

void RecipeCard::PlaceIngredients() {
    const QRect above = instructions_->geometry();
    const QRect heading(Margin, above.bottom() + 1 + HeadingGap, above.width(), HeadingHeight);
    PlaceOnLine(heading, aaIngredientsLBL_);
    cmdIngreds_->move(heading.right() + 1 - cmdIngreds_->width(), heading.top());
    const int top = heading.bottom() + 1 + HeadingGap / 2;
    ucING_->setGeometry(Margin, top, above.width(), height() - LowerMargin - top);
}

void RecipeCard::paintEvent(QPaintEvent*) {
    const Style& style = TheStyle();
    QPainter painter(this);
    PaintArea(painter, rect(), style.paper);
    for (const int y : {FactsTop + Ruling, FactsTop + 2 * Ruling})
        PaintEdge(painter, QRect(Margin, y, width() - 2 * Margin, 1), Qt::TopEdge,
                  style.cardRuling);
    painter.fillRect(Margin, NameRule, width() - 2 * Margin, 2, style.cardLine);
    PaintFrame(painter, rect(), style.frame, style.boxRadius);
}

void RecipeCard::mouseMoveEvent(QMouseEvent*) {
    Q_EMIT MouseMove();
}
