#include "catalogue/CatalogueReport.h"

#include "foods/release/FoodColumns.h"

#include <QLocale>

#include <algorithm>

namespace {

using Foods = QList<CatalogueRow>;

QString Count(auto count) {
    return QLocale::c().toString(qlonglong(count));
}

QString Row(const QStringList& cells) {
    return u"| " + cells.join(QStringLiteral(" | ")) + u" |\n";
}

int CountIf(const Foods& foods, auto holds) {
    return int(std::ranges::count_if(foods, holds));
}

QString Introduction() {
    return QStringLiteral(
        "# The stock catalogue\n\n"
        "Written by `make_catalogue` together with `data/foods.tsv`; not edited by hand.\n\n"
        "The source is a release of the USDA National Nutrient Database for Standard Reference, a "
        "work of the United States government in the public domain. Foods stand in ascending order "
        "of the release's own number (`NDB_No`), and the keys are given in that order so that the "
        "last is 23508. Names are the full descriptions. An unknown value is left empty and is "
        "never 0. Numbers and texts are the release's own, to the character; only selenium is "
        "converted, from mcg to mg, by moving the decimal point.\n\n");
}

int FilledMeasures(const Catalogue& catalogue) {
    int filled = 0;
    for (const CatalogueRow& food : catalogue.Foods())
        filled += food.servings.filledMeasures;
    return filled;
}

QString RecordsOf(const char* file, int read, qsizetype mapped) {
    return Row({QLatin1String(file), Count(read), Count(mapped), Count(read - mapped)});
}

QString ListOrNone(const QStringList& list) {
    return list.isEmpty() ? QStringLiteral("none") : list.join(QStringLiteral(", "));
}

QString Valueless(const Catalogue& catalogue) {
    QStringList list;
    for (const CatalogueRow& food : catalogue.Valueless())
        list << food.number + u" (key " + QString::number(food.id) + u", \"" + food.name + u"\")";
    return list.isEmpty() ? ListOrNone(list)
                          : ListOrNone(list) +
                                u"; the keys stay unused, so that every other food keeps its own";
}

QString Records(const Catalogue& catalogue) {
    const auto foods = catalogue.Foods().size();
    return u"## Records\n\n| file | read | mapped | left |\n|---|---:|---:|---:|\n" +
           RecordsOf("ABBREV.txt", catalogue.Release().ValuesRead(), foods) +
           RecordsOf("FOOD_DES.txt", catalogue.Release().DescriptionsRead(), foods) +
           RecordsOf("WEIGHT.txt", catalogue.Release().WeightsRead(), FilledMeasures(catalogue)) +
           u"\nKeys: " + QString::number(catalogue.Foods().first().id) + u" to " +
           QString::number(catalogue.Foods().last().id) +
           u". Foods left because they have no full description: " +
           ListOrNone(catalogue.Release().Unnamed()) +
           u". Foods left because not one value is known: " + Valueless(catalogue) +
           u". The weights left "
           u"are measures that `ABBREV.txt` gives already, or further ones of "
           "foods that have two.\n\n";
}

QString Source(const FoodColumn& column) {
    QString source = QString::number(column.field);
    if (column.fallback)
        source += u", else " + QString::number(column.fallback);
    if (column.decimalShift)
        source += u", mcg to mg";
    return source;
}

QString Nutrients(const Catalogue& catalogue) {
    QString text = QStringLiteral(
        "## Nutrients\n\nFields are those of `ABBREV.txt` in the 51-field layout; amounts are for "
        "100 grams.\n\n| column | field | known | null |\n|---|---|---:|---:|\n");
    for (qsizetype i = 0; const FoodColumn& column : FoodColumns()) {
        const int nulls = CountIf(catalogue.Foods(), [i](const CatalogueRow& food) {
            return food.nutrients[i].isEmpty();
        });
        text += Row({QLatin1String(column.name), Source(column),
                     Count(catalogue.Foods().size() - nulls), Count(nulls)});
        ++i;
    }
    const int plain =
        CountIf(catalogue.Foods(), [](const CatalogueRow& food) { return food.plainFolate; });
    text += u"\nFolate is in dietary equivalents; for " + Count(plain) +
            u" foods only the total (field 27) is known and stands in.\n\n"
            "Fields not mapped: 2 (short description), 10 (sugars), 28 (folic acid), 29 (food "
            "folate), 31 (choline), 34 to 40 (other forms of vitamin A), 42 (vitamin K), 51 "
            "(refuse).\n\n";
    return text;
}

QString Filled(const Catalogue& catalogue) {
    QString text = QStringLiteral("| food | name | A | B |\n|---|---|---|---|\n");
    for (const CatalogueRow& food : catalogue.Foods())
        if (food.servings.filledMeasures)
            text += Row({food.number, food.name, food.servings.a.text, food.servings.b.text});
    return text;
}

QString ServingCounts(const Catalogue& catalogue) {
    QString text = QStringLiteral(
        "| measures | in `ABBREV.txt` | with those of `WEIGHT.txt` |\n|---|---:|---:|\n");
    for (const int wanted : {2, 1, 0}) {
        const int own = CountIf(catalogue.Foods(), [wanted](const CatalogueRow& food) {
            return food.servings.ownMeasures == wanted;
        });
        const int after = CountIf(catalogue.Foods(), [wanted](const CatalogueRow& food) {
            return food.servings.ownMeasures + food.servings.filledMeasures == wanted;
        });
        text += Row({QString::number(wanted), Count(own), Count(after)});
    }
    return text;
}

QString ServingSection(const Catalogue& catalogue) {
    const int secondOnly = CountIf(
        catalogue.Foods(), [](const CatalogueRow& food) { return food.servings.secondOnly; });
    return u"## Servings\n\nServing A is a food's first household measure, serving B its second. "
           "Where `ABBREV.txt` has fewer than two, further ones are taken from `WEIGHT.txt` in "
           "its sequence (amount, blank, measure). A food with one measure gets \"100 grams\" as "
           "B, a food without any gets it as A and has no B.\n\n" +
           ServingCounts(catalogue) + u"\nFoods with the second measure only, which is then A: " +
           Count(secondOnly) + u". Measures filled from `WEIGHT.txt`: " +
           Count(FilledMeasures(catalogue)) + u", for these foods:\n\n" + Filled(catalogue);
}

} // namespace

QString CatalogueReport(const Catalogue& catalogue) {
    return Introduction() + Records(catalogue) + Nutrients(catalogue) + ServingSection(catalogue);
}
