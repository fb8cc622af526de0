#include "records/peers/TableMap.h"

#include "foods/Meals.h"
#include "records/text/CsvHeader.h"
#include "runtime/RuntimeError.h"

#include <QFileInfo>

#include <toml++/toml.h>

namespace {
using Kind = TableMap::Kind;
using Basis = TableMap::Basis;

constexpr qint64 LargestMap = 1 << 20;

[[noreturn]] void Fail(const QString& complaint) {
    throw RuntimeError(ErrorNumber::TypeMismatch, "The map cannot be used: " + complaint);
}

QString Decoded(std::string_view text) {
    return QString::fromUtf8(text.data(), static_cast<qsizetype>(text.size()));
}

QString Quoted(std::string_view text) {
    return u'"' + Decoded(text) + u'"';
}

/// A text that stands for a value.
template <class Value> struct Word {
    const char* word;
    Value value;
};

template <class Value, size_t Count>
Value ValueOf(const Word<Value> (&words)[Count], std::string_view text, const char* key) {
    for (const auto& [word, value] : words)
        if (text == word)
            return value;
    QStringList known;
    for (const auto& word : words)
        known << Quoted(word.word);
    Fail(QLatin1String(key) + " is " + Quoted(text) + ", but must be one of " +
         known.join(QLatin1String(", ")) + u'.');
}

constexpr Word<Kind> Kinds[] = {
    {"log", Kind::Log}, {"weights", Kind::Weights}, {"foods", Kind::Foods}};
constexpr Word<char> Separators[] = {{",", ','}, {";", ';'}, {"tab", '\t'}};
constexpr Word<char> Decimals[] = {{".", '.'}, {",", ','}};
constexpr Word<char> Thousands[] = {{"", '\0'}, {",", ','}, {".", '.'}, {"'", '\''}, {" ", ' '}};
constexpr Word<Basis> Bases[] = {
    {"entry", Basis::Entry}, {"quantity", Basis::Quantity}, {"100 g", Basis::HundredGrams}};
constexpr Word<WeightUnit> WeightUnits[] = {{"kg", WeightUnit::Kilogram},
                                            {"lb", WeightUnit::Pound}};

std::string_view TextOf(const toml::node& node, const toml::key& key) {
    if (const auto text = node.value<std::string_view>())
        return *text;
    Fail(Quoted(key.str()) + " must be a text in quotes.");
}

const toml::table& TableOf(const toml::node& node, const toml::key& key) {
    if (const toml::table* table = node.as_table())
        return *table;
    Fail(Quoted(key.str()) + " must be a table.");
}

/// One key of a table and what is done with its text.
struct Setting {
    const char* key;
    void (*take)(TableMap& map, std::string_view text);
};

constexpr Setting FileSettings[] = {
    {"separator",
     [](TableMap& map, std::string_view text) {
         map.separator = ValueOf(Separators, text, "separator");
     }},
    {"decimal",
     [](TableMap& map, std::string_view text) {
         map.numbers.decimal = QLatin1Char(ValueOf(Decimals, text, "decimal"));
     }},
    {"thousands",
     [](TableMap& map, std::string_view text) {
         map.numbers.thousands = QLatin1Char(ValueOf(Thousands, text, "thousands"));
     }},
    {"date", [](TableMap& map, std::string_view text) { map.dateFormat = Decoded(text); }},
    {"weight",
     [](TableMap& map, std::string_view text) {
         map.weightUnit = ValueOf(WeightUnits, text, "weight");
     }},
    {"amounts",
     [](TableMap& map, std::string_view text) { map.basis = ValueOf(Bases, text, "amounts"); }},
};

constexpr Setting ColumnSettings[] = {
    {"date", [](TableMap& map, std::string_view text) { map.date = text; }},
    {"meal", [](TableMap& map, std::string_view text) { map.meal = text; }},
    {"name", [](TableMap& map, std::string_view text) { map.name = text; }},
    {"serving", [](TableMap& map, std::string_view text) { map.serving = text; }},
    {"quantity", [](TableMap& map, std::string_view text) { map.quantity = text; }},
    {"grams", [](TableMap& map, std::string_view text) { map.grams = text; }},
    {"weight", [](TableMap& map, std::string_view text) { map.weight = text; }},
};

void TakeSettings(TableMap& map, const toml::table& table, std::span<const Setting> settings) {
    for (const auto& [key, node] : table) {
        const auto known = std::ranges::find_if(
            settings, [&key = key](const Setting& setting) { return key.str() == setting.key; });
        if (known == settings.end())
            Fail("the key " + Quoted(key.str()) + " is unknown.");
        known->take(map, TextOf(node, key));
    }
}

Nutrient NutrientNamed(std::string_view name) {
    const QString key = CsvHeader::Key(Decoded(name));
    for (const NutrientInfo& nutrient : Nutrients())
        if (key == CsvHeader::Key(QString::fromLatin1(nutrient.property)))
            return nutrient.id;
    Fail("no nutrient is called " + Quoted(name) + u'.');
}

void TakeNutrient(TableMap& map, const toml::key& key, const toml::table& table) {
    const auto column = table["column"].value<std::string>();
    const auto unitName = table["unit"].value<std::string_view>();
    if (!column || !unitName || table.size() != 2)
        Fail(Quoted(key.str()) +
             " needs a column and a unit, as in { column = \"Fat\", unit = \"g\" }.");
    const Nutrient nutrient = NutrientNamed(key.str());
    const auto unit = Units::Named(Decoded(*unitName));
    if (!unit || !Units::Amount(1, *unit, nutrient, VitaminASource::Retinol))
        Fail(Quoted(key.str()) + " cannot be given in " + Quoted(*unitName) + u'.');
    map.amountNames.push_back(*column);
    map.amounts.push_back({map.amountNames.back().c_str(), nutrient, *unit});
}

void TakeNutrients(TableMap& map, const toml::table& table) {
    for (const auto& [key, node] : table)
        TakeNutrient(map, key, TableOf(node, key));
}

void TakeMeals(TableMap& map, const toml::table& table) {
    for (const auto& [key, node] : table) {
        const std::string_view name = TextOf(node, key);
        const auto meal = Meals::Find(Decoded(name));
        if (!meal)
            Fail("the meal " + Quoted(name) + " is not one of ours.");
        map.meals[CsvHeader::Key(Decoded(key.str()))] = *meal;
    }
}

void TakeFile(TableMap& map, const toml::table& table) {
    TakeSettings(map, table, FileSettings);
}

void TakeColumns(TableMap& map, const toml::table& table) {
    TakeSettings(map, table, ColumnSettings);
}

struct Section {
    const char* key;
    void (*take)(TableMap& map, const toml::table& table);
};
constexpr Section Sections[] = {{"file", TakeFile},
                                {"columns", TakeColumns},
                                {"nutrients", TakeNutrients},
                                {"meals", TakeMeals}};

void TakeSection(TableMap& map, const toml::key& key, const toml::node& node) {
    if (key.str() == "kind") {
        map.kind = ValueOf(Kinds, TextOf(node, key), "kind");
        return;
    }
    for (const auto& [name, take] : Sections)
        if (key.str() == name)
            return take(map, TableOf(node, key));
    Fail("the key " + Quoted(key.str()) + " is unknown.");
}

void Require(bool condition, const char* complaint) {
    if (!condition)
        Fail(QLatin1String(complaint));
}

void RequireWhole(const TableMap& map) {
    const bool hasDays = map.kind != Kind::Foods;
    Require(!hasDays || !map.date.empty(), "columns.date is missing.");
    Require(map.dateFormat.contains(u"yyyy"), "file.date must name the year as yyyy.");
    Require(map.numbers.thousands.isNull() || map.numbers.thousands != map.numbers.decimal,
            "file.thousands and file.decimal are the same.");
    if (map.kind == Kind::Weights) {
        Require(!map.weight.empty(), "columns.weight is missing.");
        Require(map.weightUnit.has_value(), "file.weight must say kg or lb.");
        return;
    }
    Require(!map.name.empty(), "columns.name is missing.");
    Require(!map.amounts.empty(), "there are no nutrients.");
    Require(map.basis != Basis::Quantity || !map.quantity.empty(),
            "columns.quantity is missing, but the amounts are given for it.");
    Require(map.basis != Basis::HundredGrams || !map.grams.empty(),
            "columns.grams is missing, but the amounts are given for 100 g.");
    Require(map.kind != Kind::Foods || !map.serving.empty(), "columns.serving is missing.");
}
} // namespace

TableMap TableMap::Of(const QString& path) {
    TableMap map;
    toml::table root;
    Require(QFileInfo(path).size() <= LargestMap, "it is larger than a megabyte.");
    try {
        root = toml::parse_file(path.toStdString());
    } catch (const toml::parse_error& error) {
        Fail(QStringLiteral("%1, line %2: %3")
                 .arg(QFileInfo(path).fileName())
                 .arg(error.source().begin.line)
                 .arg(Decoded(error.description())));
    }
    if (!root.contains("kind"))
        Fail(QStringLiteral("kind is missing. It is \"log\", \"weights\" or \"foods\"."));
    for (const auto& [key, node] : root)
        TakeSection(map, key, node);
    RequireWhole(map);
    return map;
}
