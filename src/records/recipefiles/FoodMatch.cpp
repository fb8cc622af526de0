#include "records/recipefiles/FoodMatch.h"

#include "foods/FoodSearch.h"
#include "foods/Quantity.h"
#include "foods/SearchTerms.h"
#include "records/recipefiles/IngredientText.h"
#include "store/Connection.h"
#include "store/Recordset.h"
#include "store/Schema.h"

#include <QRegularExpression>

#include <algorithm>
#include <array>

namespace {
constexpr qsizetype MostLetters = 500; // of a line that names a food
constexpr qsizetype MostWords = 8;
constexpr double LeastQuantity = 0.005;

/// What singular and plural have in common: "tomato" for "tomatoes".
QString Stem(const QString& word) {
    for (const char* ending : {"ies", "oes"})
        if (word.size() > 4 && word.endsWith(QLatin1String(ending)))
            return word.chopped(ending[0] == 'i' ? 3 : 2);
    const bool plural =
        word.size() > 3 && word.endsWith(u's') && !word.endsWith(QLatin1String("ss"));
    return plural ? word.chopped(1) : word;
}

QStringList Stems(const QStringList& words) {
    QStringList stems;
    for (const QString& word : words.first(std::min(words.size(), MostWords)))
        stems << Stem(word);
    return stems;
}

bool IsWordOf(const QString& stem, const QString& word) {
    static constexpr qsizetype longestEnding = 3;
    return word.startsWith(stem) && word.size() <= stem.size() + longestEnding;
}

bool IsOneOf(const QStringList& stems, const QString& word) {
    return std::ranges::any_of(stems, [&](const QString& stem) { return IsWordOf(stem, word); });
}

bool IsIn(const QString& stem, const QStringList& words) {
    return std::ranges::any_of(words, [&](const QString& word) { return IsWordOf(stem, word); });
}

/// How far a name is from the words of a line, the smallest first: words that it lacks, words of
/// the line that it does not begin with, and other words; then a raw food is better.
using Distance = std::array<qsizetype, 4>;

Distance DistanceOf(const QString& name, const QStringList& stems, const QStringList& details) {
    static const QRegularExpression others(QStringLiteral("[^\\p{L}\\p{N}-]+"));
    const QStringList words = name.toLower().split(others, Qt::SkipEmptyParts);
    const auto missing =
        std::ranges::count_if(stems, [&](const QString& stem) { return !IsIn(stem, words); });
    const auto firstOther =
        std::ranges::find_if_not(words, [&](const QString& word) { return IsOneOf(stems, word); });
    const auto begins = firstOther - words.begin();
    const auto more = std::ranges::count_if(words, [&](const QString& word) {
        return word != QLatin1String("raw") && !IsOneOf(stems, word) && !IsOneOf(details, word);
    });
    return {missing, -begins, more, words.contains(QLatin1String("raw")) ? 0 : 1};
}

void AddFound(FoodList& all, const QStringList& words) {
    const SearchTerms terms(words.join(u' '));
    for (const Food& food : FoodSearch::Find(terms, {false, true, true}))
        all.Add(food.FoodName, false, food.ID, food.ServA, food.ServB);
}

/// The search gives the first names of very many; those that begin with a word may be cut off.
void AddBeginning(FoodList& all, const QStringList& words) {
    for (const QString& first : words) {
        QString source = u"SELECT TOP 300 FoodName,ID,Serv_Desc_A,Serv_Desc_B FROM FOODS WHERE "
                         u"FoodName LIKE '" +
                         first + u"%' ";
        for (const QString& word : words)
            source += u"AND FoodName LIKE '%" + word + u"%' ";
        for (Recordset rows(FoodDB(), source + u"ORDER BY FoodName"); !rows.AtEnd();
             rows.MoveNext())
            if (rows[1].IsKey())
                all.Add(rows[0].Text(), false, rows[1].Integer(), rows[2].Value(), rows[3].Value());
    }
}

/// Foods with all the words; if there are none, with fewer of the first.
FoodList Candidates(QStringList stems) {
    FoodList all;
    for (; !stems.isEmpty() && all.Count() == 0; stems.removeFirst()) {
        AddBeginning(all, stems);
        AddFound(all, stems);
    }
    return all;
}

/// The nearest food first.
std::vector<Food> Sorted(const FoodList& foods, const IngredientText& text) {
    const QStringList stems = Stems(text.words);
    const QStringList details = Stems(text.details);
    std::vector<std::pair<Distance, const Food*>> sorted;
    for (const Food& food : foods)
        sorted.emplace_back(DistanceOf(food.FoodName, stems, details), &food);
    std::ranges::stable_sort(sorted, {}, &std::pair<Distance, const Food*>::first);
    std::vector<Food> all;
    for (const auto& [distance, food] : sorted)
        all.push_back(*food);
    return all;
}

struct Serving {
    QString letter;
    IngredientText text;
    std::optional<double> grams;
};

/// An own food has its weight in words only: "1 cup (81 g)".
std::optional<double> GramsInWords(const QString& text) {
    static const QRegularExpression brackets(QStringLiteral("\\(([^()]*)\\)$"));
    const QRegularExpressionMatch match = brackets.match(text);
    const IngredientText weight = IngredientText::Of(match.hasMatch() ? match.captured(1) : text);
    if (!weight.quantity || !weight.unit || weight.unit->sort != KitchenUnit::Sort::Mass)
        return std::nullopt;
    return *weight.quantity * weight.unit->size;
}

QList<Serving> ServingsOf(qint32 key) {
    const Recordset row(FoodDB(), u"SELECT * FROM foods WHERE ID = " + QString::number(key));
    QList<Serving> servings;
    for (const QString& letter : {QStringLiteral("A"), QStringLiteral("B")}) {
        const QString text = row[u"Serv_Desc_" + letter].Text();
        const double grams = row[u"Serv_GM_WT_" + letter].NumberOr(0);
        if (text.isEmpty())
            continue;
        const bool isStock = key <= Schema::LastStockFood;
        servings.append({letter, IngredientText::Of(text),
                         isStock && grams > 0 ? std::optional(grams) : GramsInWords(text)});
    }
    return servings;
}

std::optional<double> InServings(const IngredientText& line, const Serving& serving) {
    using enum KitchenUnit::Sort;
    const double count = serving.text.quantity.value_or(1);
    if (!line.quantity || count <= 0)
        return std::nullopt;
    if (line.unit && line.unit->sort == Mass)
        return serving.grams ? std::optional(*line.quantity * line.unit->size / *serving.grams)
                             : std::nullopt;
    const KitchenUnit* unit = serving.text.unit;
    if (line.unit && unit && line.unit->sort == Volume && unit->sort == Volume)
        return *line.quantity * line.unit->size / (count * unit->size);
    const bool countsTheSame = line.unit ? line.unit == unit : !unit || unit->sort == Piece;
    return countsTheSame ? std::optional(*line.quantity / count) : std::nullopt;
}

void FindQuantity(FoodMatch& match, const IngredientText& line) {
    for (const Serving& serving : ServingsOf(match.key)) {
        const auto quantity = InServings(line, serving);
        if (!quantity || *quantity < LeastQuantity || !Quantity::LogRefusal(*quantity).isEmpty())
            continue;
        match.serving = serving.letter;
        match.quantity = quantity;
        return;
    }
}
} // namespace

bool FoodMatch::Exists(qint32 key) {
    return FoodSearch::WithKey(key, false).has_value();
}

std::optional<FoodMatch> FoodMatch::Of(const QString& line) {
    const QList<FoodMatch> best = Best(line, 1);
    return best.isEmpty() ? std::nullopt : std::optional(best.first());
}

QList<FoodMatch> FoodMatch::Best(const QString& line, qsizetype most) {
    if (line.size() > MostLetters)
        return {};
    const IngredientText text = IngredientText::Of(line);
    QList<FoodMatch> best;
    for (const Food& food : Sorted(Candidates(Stems(text.words)), text)) {
        if (best.size() == most)
            break;
        if (std::ranges::find(best, food.ID, &FoodMatch::key) == best.end())
            FindQuantity(best.emplaceBack(FoodMatch{food.ID, food.FoodName}), text);
    }
    return best;
}
