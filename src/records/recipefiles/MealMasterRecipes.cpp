#include "records/recipefiles/MealMasterRecipes.h"

#include "records/recipefiles/OldText.h"
#include "records/recipefiles/Yield.h"

#include <QRegularExpression>

namespace {
const QRegularExpression& StartLine() {
    static const QRegularExpression start(QStringLiteral("^(-----|MMMMM).*Meal-Master"),
                                          QRegularExpression::CaseInsensitiveOption);
    return start;
}

const QRegularExpression& EndLine() {
    static const QRegularExpression end(QStringLiteral("^(MMMMM[-\\s]*|-----[-\\s]*)$"));
    return end;
}

const QRegularExpression& TitleLine() {
    static const QRegularExpression title(QStringLiteral("^\\s{0,10}Title:\\s*(.*)$"));
    return title;
}

struct Ingredient {
    QString text;
    bool isHeading = false;
};

/// Columns of an ingredient, counted from 0.
constexpr qsizetype UnitColumn = 8;
constexpr qsizetype TextColumn = 11;
constexpr qsizetype LastOfOneColumn = 39;
constexpr qsizetype SecondColumns[] = {40, 41};

/// An amount, a unit of one or two letters, and a text, each in its columns.
const QRegularExpression& IngredientForm() {
    static const QRegularExpression form(
        QStringLiteral("^(?=.{7})([\\s\\d./]{7}) ([A-Za-z ]{2}) (\\S.*)$"));
    return form;
}

bool IsIngredient(const QString& line) {
    const QRegularExpressionMatch match = IngredientForm().match(line);
    static const QRegularExpression amount(QStringLiteral("^\\s*(\\d+ +)?[\\d./]*$"));
    return match.hasMatch() && amount.match(match.captured(1)).hasMatch();
}

/// "x" is an amount for each serving, and no unit.
QString Unit(const QString& code) {
    return code == QLatin1String("x") ? QString() : code;
}

/// Where the right column begins; -1 where the line has one column.
qsizetype SecondColumn(const QString& line) {
    for (const qsizetype at : SecondColumns)
        if (line.size() > at + TextColumn &&
            line.mid(LastOfOneColumn, at - LastOfOneColumn).trimmed().isEmpty() &&
            IsIngredient(line.mid(at)))
            return at;
    return -1;
}

/// A dash where the text begins continues the ingredient before.
void Append(QList<Ingredient>& column, const QString& cell) {
    const QString amount = cell.left(UnitColumn).simplified();
    const QString unit = Unit(cell.mid(UnitColumn, 2).trimmed());
    const QString text = cell.mid(TextColumn).trimmed();
    const bool continues = amount.isEmpty() && unit.isEmpty() && text.startsWith(u'-');
    if (continues && !column.isEmpty())
        column.last().text += u' ' + text.mid(1).trimmed();
    else
        column.append({QStringList{amount, unit, text}.join(u' ').simplified()});
}

/// One recipe, line by line.
class Reader {
public:
    void Take(const QString& line) {
        if (!TakeHead(line) && !TakeHeading(line) && !TakeIngredient(line))
            TakeDirection(line);
    }

    RecipeDraft Finish() {
        FlushColumns();
        for (const Ingredient& one : ingredients_)
            draft_.ingredients.append({one.text, std::nullopt, one.isHeading});
        draft_.values[RecipeField::Instructions] = directions_.join(u'\n').trimmed();
        return std::move(draft_);
    }

private:
    bool TakeHead(const QString& line) {
        static const QRegularExpression head(
            QStringLiteral("^\\s{0,10}(Title|Categories|Yield|Servings|Serves):\\s*(.*)$"));
        const QRegularExpressionMatch match = head.match(line);
        if (!match.hasMatch() || inDirections_)
            return false;
        const QString value = match.captured(2).trimmed();
        if (match.capturedView(1) == u"Title")
            draft_.values[RecipeField::Name] = value.simplified();
        else if (match.capturedView(1) != u"Categories")
            ReadYield(draft_, value);
        else if (!value.isEmpty() && value != QLatin1String("None"))
            draft_.remarks << QString(u"Category: " + value);
        return true;
    }

    /// Within the directions a heading is a line of them.
    bool TakeHeading(const QString& line) {
        static const QRegularExpression heading(
            QStringLiteral("^(?:MMMMM|-----)-*\\s*([^-\\s].*?)\\s*-*$"));
        const QRegularExpressionMatch match = heading.match(line);
        if (!match.hasMatch())
            return false;
        FlushColumns();
        if (inDirections_)
            directions_ << match.captured(1);
        else
            ingredients_.append({match.captured(1), true});
        return true;
    }

    bool TakeIngredient(const QString& line) {
        if (inDirections_ || !IsIngredient(line))
            return false;
        const qsizetype second = SecondColumn(line);
        Append(left_, second < 0 ? line : line.left(second));
        if (second >= 0)
            right_ << line.mid(second);
        return true;
    }

    void TakeDirection(const QString& line) {
        const QString text = line.trimmed();
        if (text.isEmpty() && directions_.isEmpty())
            return;
        inDirections_ = true;
        directions_ << (text.startsWith(u':') ? text.mid(1).trimmed() : text);
    }

    /// A group is read down its left column, then down its right one.
    void FlushColumns() {
        for (const QString& cell : right_)
            Append(left_, cell);
        ingredients_ << left_;
        left_.clear();
        right_.clear();
    }

    RecipeDraft draft_;
    QList<Ingredient> ingredients_;
    QList<Ingredient> left_;
    QStringList right_;
    QStringList directions_;
    bool inDirections_ = false;
};
} // namespace

bool MealMasterRecipes::IsFile(const QByteArray& bytes) {
    return bytes.contains("Meal-Master") || bytes.contains("MMMMM");
}

QList<RecipeDraft> MealMasterRecipes::Read(const QByteArray& bytes) {
    QList<RecipeDraft> recipes;
    std::optional<Reader> reader;
    const auto finish = [&] {
        if (reader)
            recipes << reader->Finish();
        reader.reset();
    };
    for (QString line : OldText(bytes).remove(u'\r').split(u'\n')) {
        const bool starts = StartLine().match(line).hasMatch();
        if (starts || (reader && EndLine().match(line).hasMatch()))
            finish();
        else if (!reader && TitleLine().match(line).hasMatch())
            reader.emplace().Take(line);
        else if (reader)
            reader->Take(line);
        if (starts)
            reader.emplace();
    }
    finish();
    recipes.removeIf([](const RecipeDraft& draft) {
        return draft.Name().isEmpty() && draft.ingredients.isEmpty();
    });
    return recipes;
}
