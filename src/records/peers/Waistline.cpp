#include "records/peers/Waistline.h"

#include "foods/Quantity.h"
#include "records/peers/PeerFile.h"
#include "records/peers/PeerJson.h"
#include "records/peers/PeerReading.h"
#include "records/peers/PeerValues.h"
#include "records/text/JsonInput.h"
#include "runtime/Convert.h"

#include <QHash>

namespace {
using enum Nutrient;

/// Energy in kilojoules and salt count where a food has nothing better. The last three are of older
/// versions.
constexpr AmountColumn Amounts[] = {
    {"calories", Calories, Unit::Kilocalorie},
    {"kilojoules", Calories, Unit::Kilojoule},
    {"fat", TotalFat, Unit::Gram},
    {"saturated-fat", SatFat, Unit::Gram},
    {"monounsaturated-fat", MonoFat, Unit::Gram},
    {"polyunsaturated-fat", PolyFat, Unit::Gram},
    {"carbohydrates", Carbs, Unit::Gram},
    {"fiber", Fiber, Unit::Gram},
    {"proteins", Protein, Unit::Gram},
    {"sodium", Sodium, Unit::Milligram},
    {"salt", Sodium, Unit::GramOfSalt},
    {"cholesterol", Cholesterol, Unit::Milligram},
    {"potassium", Potassium, Unit::Milligram},
    {"calcium", Calcium, Unit::Milligram},
    {"phosphorus", Phosphorus, Unit::Milligram},
    {"iron", Iron, Unit::Milligram},
    {"magnesium", Magnesium, Unit::Milligram},
    {"zinc", Zinc, Unit::Milligram},
    {"copper", Copper, Unit::Milligram},
    {"manganese", Manganese, Unit::Milligram},
    {"vitamin-b1", Thiamin, Unit::Milligram},
    {"vitamin-b2", Riboflavin, Unit::Milligram},
    {"vitamin-pp", Niacin, Unit::Milligram},
    {"pantothenic-acid", Panto, Unit::Milligram},
    {"vitamin-b6", VitaminB6, Unit::Milligram},
    {"vitamin-c", VitaminC, Unit::Milligram},
    {"vitamin-e", VitaminE, Unit::Milligram},
    {"vitamin-a", VitaminA, Unit::RetinolEquivalent},
    {"vitamin-b9", Folate, Unit::Microgram},
    {"vitamin-b12", VitaminB12, Unit::Microgram},
    {"selenium", Selenium, Unit::Microgram},
    {"carbs", Carbs, Unit::Gram},
    {"protein", Protein, Unit::Gram},
};

struct OwnNutrient {
    const char* name;
    Nutrient nutrient;
};
/// A person may add nutrients with units of their own.
constexpr OwnNutrient OwnNutrients[] = {{"water", Water}, {"ash", Ash}};

/// Kilojoules are the calories in another unit.
const QStringList& KnownNames() {
    static const QStringList names = [] {
        QStringList all{QStringLiteral("kilojoules")};
        for (const AmountColumn& column : Amounts)
            all << QString::fromUtf8(column.name);
        for (const OwnNutrient& own : OwnNutrients)
            all << QString::fromUtf8(own.name);
        return all;
    }();
    return names;
}

const QJsonArray& DefaultMeals() {
    static const QJsonArray names{"Breakfast", "Lunch", "Dinner", "Snacks"};
    return names;
}

[[noreturn]] void Refuse(const QString& reason) {
    throw RuntimeError(ErrorNumber::TypeMismatch, reason);
}

double Positive(const QJsonValue& value, double otherwise, const char* what) {
    const double number = PeerJson::Number(value).value_or(otherwise);
    if (!(number > 0))
        Refuse(QLatin1String(what) + " is not above 0.");
    return number;
}

/// A food or a recipe of the file: what it holds in its portion.
struct Dish {
    QString name;
    QString unit;
    double portion = 1;
    NutrientAmounts amounts;
    bool isQuickAdd = false;
};
using Dishes = QHash<QString, Dish>;

class Reader : PeerReading {
public:
    Reader(const QString& file, const QJsonObject& backup, const PeerChoices& choices,
           Imported& into)
        : PeerReading(choices, into)
        , file_(file)
        , backup_(backup)
        , settings_(backup[u"settings"].toObject()) {}

    void Read() {
        ForEach(u"foodList", [this](const auto& food, const auto& at) { TakeFood(food, at); });
        ForEach(u"recipes", [this](const auto& recipe, const auto& at) {
            Remember(recipe, recipes_);
            TakeRecipe(recipe, at);
        });
        ForEach(u"meals", [this](const auto& meal, const auto& at) { TakeRecipe(meal, at); });
        ForEach(u"diary", [this](const auto& day, const auto& at) { TakeDay(day, at); });
    }

private:
    template <class Take> void ForEach(QStringView key, Take take) {
        const Origin where{file_, key.toString(), {}};
        PeerJson::ForEach(backup_[key].toArray(), where, into_, take);
    }

    NutrientAmounts AmountsOf(const QJsonObject& nutrition) const {
        NutrientAmounts amounts;
        for (const AmountColumn& column : Amounts)
            rules_.Take(amounts, column, PeerJson::Number(nutrition[QLatin1String(column.name)]));
        const QJsonObject units = settings_[u"nutriments"][u"units"].toObject();
        for (const auto& [name, nutrient] : OwnNutrients)
            if (const auto unit = Units::Named(units[QLatin1String(name)].toString()))
                rules_.Take(amounts, {name, nutrient, *unit},
                            PeerJson::Number(nutrition[QLatin1String(name)]));
        PeerJson::TellOthers(nutrition, KnownNames(), into_);
        return amounts;
    }

    const Dish& Remember(const QJsonObject& object, Dishes& dishes) const {
        Dish dish;
        const QString brand = PeerJson::Text(object[u"brand"]);
        const QString name = PeerValues::Name(PeerJson::Text(object[u"name"]));
        dish.name = brand.isEmpty() ? name : PeerValues::Line(name + ", " + brand);
        dish.unit = PeerValues::Line(PeerJson::Text(object[u"unit"]));
        dish.portion = Positive(object[u"portion"], 1, "The portion");
        dish.amounts = AmountsOf(object[u"nutrition"].toObject());
        dish.isQuickAdd = object[u"barcode"].toString() == u"quick-add";
        return *dishes.insert(PeerJson::Text(object[u"id"]), dish);
    }

    void TakeFood(const QJsonObject& object, const Origin& origin) {
        const Dish& food = Remember(object, foods_);
        if (food.isQuickAdd)
            return into_.LeaveOut(origin, QStringLiteral("It stands for energy without a food."));
        if (object[u"archived"].toBool())
            return into_.LeaveOut(origin, QStringLiteral("It was put into the archive."));
        into_.foods.push_back(
            {origin, {food.name, Portion(food.portion, food.unit), food.amounts}});
    }

    static QString Portion(double portion, const QString& unit) {
        return PeerValues::Line(DecimalText(portion) + u' ' + unit);
    }

    /// A meal is a group of foods that are logged together, as a recipe is.
    void TakeRecipe(const QJsonObject& object, const Origin& origin) {
        ImportedRecipe recipe{origin, {}, {}};
        recipe.recipe[RecipeField::Name] = PeerValues::Name(PeerJson::Text(object[u"name"]));
        recipe.recipe[RecipeField::Yield] = 1;
        recipe.recipe[RecipeField::Serving] = RecipeServing(object);
        recipe.recipe[RecipeField::Instructions] = PeerJson::Text(object[u"notes"]);
        recipe.recipe[RecipeField::Time] = 0;
        const Origin where{origin.file, origin.place + ", item", {}};
        PeerJson::ForEach(object[u"items"].toArray(), where, into_,
                          [&](const QJsonObject& item, const Origin&) {
                              recipe.ingredients.push_back(Eaten(item));
                          });
        if (recipe.ingredients.empty())
            recipe.ingredients.push_back(WholeRecipe(object));
        into_.recipes.push_back(recipe);
    }

    static QString RecipeServing(const QJsonObject& object) {
        const QString portion = PeerJson::Text(object[u"portion"]);
        const QString serving = PeerValues::Line(portion + u' ' + PeerJson::Text(object[u"unit"]));
        return serving.isEmpty() ? QStringLiteral("meal") : serving;
    }

    ImportedFood WholeRecipe(const QJsonObject& object) const {
        return {PeerValues::Name(PeerJson::Text(object[u"name"])), QStringLiteral("whole recipe"),
                1, AmountsOf(object[u"nutrition"].toObject())};
    }

    /// The food of an item, scaled from the portion of its dish to what was eaten.
    ImportedFood Eaten(const QJsonObject& item) const {
        const QString type = PeerJson::Text(item[u"type"]);
        const Dishes& dishes = type == u"recipe" ? recipes_ : foods_;
        const auto found = dishes.constFind(PeerJson::Text(item[u"id"]));
        if (found == dishes.cend())
            Refuse(QStringLiteral("The file does not hold the food to which it refers."));
        return found->isQuickAdd ? QuickAdd(item, *found) : Eaten(item, *found);
    }

    static ImportedFood Eaten(const QJsonObject& item, const Dish& dish) {
        const double portion = Positive(item[u"portion"], dish.portion, "The portion");
        const double quantity = Positive(item[u"quantity"], 1, "The quantity");
        ImportedFood food{dish.name, Portion(portion, dish.unit), quantity,
                          PeerAmounts::Scaled(dish.amounts, dish.portion, portion * quantity)};
        if (!Quantity::LogRefusal(quantity).isEmpty()) {
            food.serving = DecimalText(quantity) + " x " + food.serving;
            food.quantity = 1;
        }
        return food;
    }

    static ImportedFood QuickAdd(const QJsonObject& item, const Dish& dish) {
        const double kcal = Positive(item[u"quantity"], 1, "The energy");
        const QString description = PeerValues::Line(PeerJson::Text(item[u"description"]));
        return {description.isEmpty() ? dish.name : description,
                Portion(kcal, QStringLiteral("kcal")), 1,
                PeerAmounts::Scaled(dish.amounts, dish.portion, kcal)};
    }

    void TakeDay(const QJsonObject& object, const Origin& origin) {
        const QDate day = PeerValues::IsoDay(object[u"dateTime"].toString().left(10));
        if (!object[u"items"].isArray() && !object[u"stats"].isObject())
            Refuse(QStringLiteral("It is of a version that kept each food of a day by itself."));
        const Origin where{origin.file, origin.place + ", item", {}};
        PeerJson::ForEach(
            object[u"items"].toArray(), where, into_,
            [&](const QJsonObject& item, const Origin& at) { TakeItem(item, day, at); });
        TakeStats(object[u"stats"].toObject(), day, origin);
    }

    void TakeItem(const QJsonObject& item, QDate day, const Origin& origin) {
        if (PeerJson::Number(item[u"quantity"]).value_or(1) < 0)
            return into_.LeaveOut(origin, QStringLiteral("No burned energy is kept here."));
        into_.entries.push_back({origin, day, MealOf(item), Eaten(item)});
    }

    QString MealOf(const QJsonObject& item) const {
        const QJsonArray own = settings_[u"diary"][u"meal-names"].toArray();
        const QJsonArray& names = own.isEmpty() ? DefaultMeals() : own;
        const double place = PeerJson::Number(item[u"category"]).value_or(-1);
        const bool isThere = place >= 0 && place < static_cast<double>(names.size());
        return isThere ? PeerValues::Line(names[static_cast<int>(place)].toString()) : QString();
    }

    void TakeStats(const QJsonObject& stats, QDate day, const Origin& origin) {
        if (const auto weight = PeerJson::Number(stats[u"weight"]))
            into_.weights.push_back(
                {origin, day, PeerValues::Pounds(weight, WeightUnit::Kilogram)});
        if (stats.size() > (stats.contains(u"weight") ? 1 : 0))
            into_.LeaveOut(origin, QStringLiteral("Of the measurements only the weight is kept."));
    }

    QString file_;
    QJsonObject backup_;
    QJsonObject settings_;
    Dishes foods_;
    Dishes recipes_;
};
} // namespace

void Waistline::Read(const std::vector<PeerFile>& files, const PeerChoices& choices,
                     Imported& into) {
    for (const PeerFile& file : files) {
        const QJsonObject backup = JsonInput::Parsed(file.ReadAll(), file.name).object();
        if (!backup[u"foodList"].isArray() || !backup[u"diary"].isArray())
            Refuse(file.name + " is not a backup of Waistline: it has no foodList and no diary.");
        Reader(file.name, backup, choices, into).Read();
    }
}
