#include "records/recipefiles/MarkdownRecipes.h"

#include "model/Nutrients.h"
#include "records/recipefiles/DurationText.h"
#include "records/recipefiles/IngredientLabel.h"
#include "records/recipefiles/MarkdownCell.h"
#include "records/recipefiles/Yield.h"
#include "runtime/Convert.h"

#include <QRegularExpression>

#include <algorithm>

namespace {
constexpr QLatin1String Ingredients("Ingredients");
constexpr QLatin1String Instructions("Instructions");
constexpr QLatin1String Amounts("Amounts");

// ---- writing ----

/// A line of the instructions that looks like a heading is no heading.
QString PlainLine(const QString& line) {
    const bool isMark = line.startsWith(u'#') || line.startsWith(u'\\');
    return isMark ? QString(u'\\' + line) : line;
}

QString Paragraphs(const QString& text) {
    QStringList lines;
    for (const QString& line : text.split(u'\n'))
        lines << PlainLine(line);
    return lines.join(u'\n');
}

QString Heading(QLatin1String title) {
    return u"## " + title + u"\n\n";
}

QString Line(QLatin1String caption, const QVariant& value) {
    return value.isNull() ? QString() : QString(caption + MarkdownCell::Written(value) + u'\n');
}

QString AmountTable(const RecipeDraft& draft) {
    QStringList header{QStringLiteral("Quantity"), QStringLiteral("Serving"),
                       QStringLiteral("Food")};
    for (const Nutrient id : StoredOrder())
        header << QLatin1String(Info(id).factsCaption);
    QString table = MarkdownCell::Row(header) + u'\n' +
                    MarkdownCell::Row(QStringList(header.size(), QStringLiteral("---"))) + u'\n';
    for (const IngredientLine& line : draft.ingredients) {
        QStringList cells;
        for (const QVariant& value :
             QVariantList{line.finished->quantity, line.finished->serving, line.finished->name} +
                 line.finished->amounts)
            cells << MarkdownCell::Written(value);
        table += MarkdownCell::Row(cells) + u'\n';
    }
    return table;
}

QString Written(const RecipeDraft& draft) {
    QString text = u"# " + MarkdownCell::Written(draft.values[RecipeField::Name]) + u"\n\n";
    text += Line(QLatin1String("Yield: "), draft.values[RecipeField::Yield]);
    text += Line(QLatin1String("Serving: "), draft.values[RecipeField::Serving]);
    text += Line(QLatin1String("Minutes: "), draft.values[RecipeField::Time]);
    if (!draft.ingredients.isEmpty()) {
        text += u'\n' + Heading(Ingredients);
        for (const IngredientLine& line : draft.ingredients)
            text += u"- " + line.text + u'\n';
    }
    if (const QVariant& instructions = draft.values[RecipeField::Instructions];
        !instructions.isNull())
        text += u'\n' + Heading(Instructions) + Paragraphs(instructions.toString()) + u'\n';
    text += u'\n' + Heading(Amounts) + AmountTable(draft);
    return text;
}

// ---- reading ----

QString TitleOf(const QString& line, QLatin1String mark) {
    return line.mid(mark.size()).trimmed();
}

bool IsOneOf(const QString& title, std::initializer_list<const char*> names) {
    return std::ranges::any_of(names, [&](const char* name) {
        return title.compare(QLatin1String(name), Qt::CaseInsensitive) == 0;
    });
}

/// The text of a section, without the blank line at each end.
QString Body(QStringList lines) {
    if (!lines.isEmpty() && lines.first().isEmpty())
        lines.removeFirst();
    if (!lines.isEmpty() && lines.last().isEmpty())
        lines.removeLast();
    for (QString& line : lines)
        if (line.startsWith(u'\\'))
            line.remove(0, 1);
    return lines.join(u'\n') + QLatin1String(""); // not null
}

/// A number alone is kept as it is, also 0.
QVariant Minutes(const QString& text) {
    const QVariant number = MarkdownCell::Number(text);
    const auto minutes = MinutesOf(text);
    return number.isNull() && minutes ? QVariant(*minutes) : number;
}

void ReadYields(RecipeDraft& draft, const QString& text) {
    const QVariant number = MarkdownCell::Number(text);
    if (number.isNull())
        ReadYield(draft, text);
    else
        draft.values[RecipeField::Yield] = number;
}

void ReadHead(RecipeDraft& draft, const QString& line) {
    static const QRegularExpression head(
        QStringLiteral("^[-*\\s]*\\**(\\w[\\w ]{0,20}?)\\**:\\**\\s*(.*)$"));
    const QRegularExpressionMatch match = head.match(line);
    const QString name = match.captured(1);
    const QString value = match.captured(2);
    if (!match.hasMatch() || value.isEmpty())
        draft.remarks << line.trimmed();
    else if (IsOneOf(name, {"Serving"}))
        draft.values[RecipeField::Serving] = MarkdownCell::Text(value);
    else if (IsOneOf(name, {"Minutes", "Time", "Total time"}) && !Minutes(value).isNull())
        draft.values[RecipeField::Time] = Minutes(value);
    else if (IsOneOf(name, {"Yield", "Servings", "Serves", "Makes"}))
        ReadYields(draft, value);
    else
        draft.remarks << line.trimmed();
}

void ReadIngredientLines(RecipeDraft& draft, const QStringList& lines) {
    static const QRegularExpression bullet(QStringLiteral("^\\s*(?:[-*+]|\\d{1,3}[.)])\\s+"));
    for (QString line : lines) {
        const bool isHeading = line.startsWith(u'#');
        if (line.remove(bullet).trimmed().isEmpty())
            continue;
        draft.ingredients.append(
            {isHeading ? line.remove(u'#').trimmed() : line.trimmed(), std::nullopt, isHeading});
    }
}

std::optional<FinishedIngredient> Finished(const QStringList& cells) {
    constexpr int named = 3;
    if (cells.size() != named + NutrientCount)
        return std::nullopt;
    FinishedIngredient ingredient{MarkdownCell::Text(cells[2]),
                                  MarkdownCell::Text(cells[1]),
                                  MarkdownCell::Number(cells[0]),
                                  {}};
    for (const QString& cell : cells.mid(named))
        ingredient.amounts << MarkdownCell::Number(cell);
    return ingredient;
}

/// The table counts where it has a row for each line of the ingredients.
void ReadAmounts(RecipeDraft& draft, const QStringList& lines) {
    constexpr qsizetype header = 2;
    QList<IngredientLine> finished;
    for (const QString& line : lines.filter(QRegularExpression(QStringLiteral("^\\|"))).mid(header))
        if (const auto ingredient = Finished(MarkdownCell::CellsOf(line)))
            finished.append({IngredientLabel(*ingredient), ingredient});
    draft.isOwn = finished.size() == draft.ingredients.size();
    if (draft.isOwn)
        draft.ingredients = finished;
}

void ReadSection(RecipeDraft& draft, const QString& title, const QStringList& lines) {
    QVariant& instructions = draft.values[RecipeField::Instructions];
    if (title.isEmpty()) {
        for (const QString& line : lines)
            if (!line.trimmed().isEmpty())
                ReadHead(draft, line);
    } else if (IsOneOf(title, {"Ingredients"}))
        ReadIngredientLines(draft, lines);
    else if (title == Amounts)
        ReadAmounts(draft, lines);
    else if (IsOneOf(title, {"Instructions", "Directions", "Method", "Preparation", "Steps"}))
        instructions = Body(lines);
    else
        draft.remarks << QString(title + u":\n" + Body(lines));
}

RecipeDraft ReadOne(const QStringList& lines) {
    RecipeDraft draft;
    draft.values[RecipeField::Name] =
        MarkdownCell::Text(TitleOf(lines.first(), QLatin1String("#")));
    QString title;
    QStringList section;
    for (const QString& line : lines.mid(1)) {
        if (!line.startsWith(QLatin1String("## "))) {
            section << line;
            continue;
        }
        ReadSection(draft, title, section);
        title = TitleOf(line, QLatin1String("##"));
        section.clear();
    }
    ReadSection(draft, title, section);
    return draft;
}

bool BeginsRecipe(const QString& line) {
    return line == QLatin1String("#") || line.startsWith(QLatin1String("# "));
}
} // namespace

QList<RecipeDraft> MarkdownRecipes::Read(const QString& text) {
    QStringList lines = text.split(u'\n');
    if (lines.first().endsWith(u'\r'))
        lines = QString(text).replace(QLatin1String("\r\n"), QLatin1String("\n")).split(u'\n');
    QList<RecipeDraft> recipes;
    QStringList one;
    for (const QString& line : lines) {
        if (BeginsRecipe(line) && !one.isEmpty())
            recipes << ReadOne(one);
        if (BeginsRecipe(line))
            one.clear();
        if (BeginsRecipe(line) || !one.isEmpty())
            one << line;
    }
    if (!one.isEmpty())
        recipes << ReadOne(one);
    return recipes;
}

QString MarkdownRecipes::Write(const QList<RecipeDraft>& recipes) {
    QStringList texts;
    for (const RecipeDraft& draft : recipes)
        texts << Written(draft);
    return texts.join(u'\n');
}
