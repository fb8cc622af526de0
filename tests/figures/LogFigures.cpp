#include "figures/LogFigures.h"

#include "figures/CaseLine.h"
#include "figures/FigureLine.h"
#include "figures/ReportLines.h"
#include "figures/TargetFields.h"
#include "foods/ScaledFood.h"
#include "intake/DayLog.h"
#include "model/Profiles.h"
#include "recipes/RecipeBook.h"
#include "records/tables/LoggedTables.h"
#include "records/tables/TableKinds.h"
#include "runtime/AppState.h"
#include "store/Schema.h"

#include <algorithm>

#include <SQLiteCpp/SQLiteCpp.h>

namespace {

void Bind(SQLite::Statement& statement, int place, std::optional<double> number) {
    if (number)
        statement.bind(place, *number);
}

void Bind(SQLite::Statement& statement, int place, const std::optional<QString>& text) {
    if (text)
        statement.bind(place, text->toStdString());
}

Nutrient NutrientNamed(const QString& property) {
    const auto named = std::ranges::find(Nutrients(), property, [](const NutrientInfo& nutrient) {
        return QString::fromLatin1(nutrient.property);
    });
    return named->id;
}

void PrintAmounts(const ScaledFood& food) {
    FigureLine line("amounts");
    for (const Nutrient id : StoredOrder())
        line << food.Amount(QLatin1String(Info(id).logColumn));
}

/// The person in memory, and what the profile's row keeps.
void PrintPerson() {
    const User& user = User::Current();
    User kept;
    kept.GetUserProfile(user.UID);
    FigureLine line("person");
    for (const User* person : {&user, &std::as_const(kept)}) {
        line << person->CurrentWeight;
        AddEnergyTargets(line, person->RDIs);
    }
}

void PrintTargets() {
    FigureLine line("profile");
    AddTargets(line, User::Current().RDIs);
}

void Print(FigureLine& line, const Cell& cell) {
    if (const auto* number = std::get_if<double>(&cell))
        line << *number;
    else if (const auto* day = std::get_if<QDate>(&cell))
        line << day->toString(Qt::ISODate);
    else if (const auto* text = std::get_if<std::string>(&cell))
        line << text->c_str();
    else
        line << "";
}

/// But for the keys, which the store gives.
void PrintTable(const char* what, RecordsTable& table) {
    for (std::vector<Cell> row; table.Next(row);) {
        FigureLine line(what);
        for (size_t i = 0; i < row.size(); ++i)
            if (table.Columns()[i].key != u"key")
                Print(line, row[i]);
    }
}

/// The person as another day finds the profile; nothing is written.
void PrintPersonOn(QDate day) {
    const User user = DayLog::UserOn(day);
    FigureLine line("on");
    line << user.CurrentWeight;
    AddEnergyTargets(line, user.RDIs);
}

} // namespace

struct LogFigures::Step {
    const char* kind;
    void (LogFigures::*take)(const CaseLine&);
};

const std::vector<LogFigures::Step>& LogFigures::Steps() {
    static const std::vector<Step> steps{
        {"log", &LogFigures::Begin},         {"food", &LogFigures::AddFood},
        {"recipe", &LogFigures::AddRecipe},  {"ingredient", &LogFigures::AddIngredient},
        {"card", &LogFigures::ShowCard},     {"weight", &LogFigures::Weigh},
        {"target", &LogFigures::EditTarget}, {"eat", &LogFigures::Eat},
        {"examine", &LogFigures::Examine},   {"day", &LogFigures::ShowDay},
        {"month", &LogFigures::ShowMonth},   {"period", &LogFigures::ShowPeriod},
        {"tables", &LogFigures::ShowTables}, {"report", &LogFigures::ShowReport},
    };
    return steps;
}

bool LogFigures::Take(const CaseLine& line) {
    for (const Step& step : Steps())
        if (line.Kind() == step.kind) {
            (this->*step.take)(line);
            return true;
        }
    return false;
}

void LogFigures::Begin(const CaseLine& line) {
    records_.Clear();
    foods_.clear();
    recipes_.clear();
    App().AppInfo.AUTOUPDATERDI = line.Flag(8);
    Profile person;
    person.userName = QStringLiteral("Person");
    person.gender = line.Whole(1);
    person.age = line.Number(2);
    person.feet = line.Text(3);
    person.inches = line.Number(4);
    person.currentWeight = line.Number(5);
    person.desiredWeight = line.Number(6);
    person.activityLevel = line.Whole(7);
    User::Current() = Profiles::Append(person);
    PrintTargets();
    PrintPerson();
}

void LogFigures::AddFood(const CaseLine& line) {
    constexpr int servings = 2; // fields of a name, then those of the servings, then the amounts
    QString values = QStringLiteral("?, ?, ?, ?, ?, ?");
    QString columns =
        QStringLiteral("ID, FoodName, Serv_Desc_A, Serv_GM_WT_A, Serv_Desc_B, Serv_GM_WT_B");
    for (const Nutrient id : StoredOrder()) {
        columns += u", " + QLatin1String(Info(id).profileColumn);
        values += u", ?";
    }
    SQLite::Statement insert(
        FoodDB().Raw(),
        QString("INSERT INTO FOODS (" + columns + ") VALUES (" + values + ")").toStdString());
    foods_.push_back(Schema::LastStockFood + 1 + qint32(foods_.size()));
    insert.bind(1, foods_.back());
    Bind(insert, 2, line.Known(1));
    for (int serving = 0; serving < servings; ++serving) {
        Bind(insert, 3 + 2 * serving, line.Known(2 + 2 * serving));
        Bind(insert, 4 + 2 * serving, line.NumberIfKnown(3 + 2 * serving));
    }
    for (int i = 0; i < NutrientCount; ++i)
        Bind(insert, 7 + i, line.NumberIfKnown(6 + i));
    insert.exec();
}

void LogFigures::AddRecipe(const CaseLine& line) {
    recipes_.push_back(RecipeBook::AddRecipe());
    RecipeTexts texts = RecipeBook::Read(recipes_.back());
    texts[RecipeField::Serving] = QStringLiteral("1 bowl");
    texts[RecipeField::Yield] = line.Text(1);
    RecipeBook::SaveRecipe(recipes_.back(), texts);
}

void LogFigures::AddIngredient(const CaseLine& line) {
    RecipeBook::AddIngredient(recipes_.at(size_t(line.Whole(1))), Chosen(line, 2));
}

void LogFigures::ShowCard(const CaseLine& line) {
    const qint32 recipe = recipes_.at(size_t(line.Whole(1)));
    const QString yield = RecipeBook::Read(recipe)[RecipeField::Yield];
    FigureLine card("card");
    card << RecipeBook::CaloriesPerServing(recipe, yield);
    for (const Ingredient& ingredient : RecipeBook::Ingredients(recipe))
        card << ingredient.quantity;
}

/// As the profile screen does.
void LogFigures::EditTarget(const CaseLine& line) {
    User& user = User::Current();
    Profile entered = Profiles::Read(user.UID);
    entered.targets.Set(NutrientNamed(line.Text(1)), line.Number(2));
    Profiles::Change(user.UID, entered);
    user.GetUserProfile(user.UID);
    RecalcTargets();
    PrintTargets();
    PrintPerson();
}

void LogFigures::Weigh(const CaseLine& line) {
    DayLog::SetWeight(line.Day(1), line.Number(2));
}

void LogFigures::Eat(const CaseLine& line) {
    const ScaledFood food = Chosen(line, 3);
    DayLog::AddFood(food, line.Text(2), line.Day(1));
    PrintAmounts(food);
}

void LogFigures::Examine(const CaseLine& line) {
    shown_.PrintFacts(Chosen(line, 1));
}

/// As the day screen does: the day's weight becomes the person's.
void LogFigures::ShowDay(const CaseLine& line) {
    PrintPersonOn(line.Day(1));
    DayLog::TakeWeight(DayLog::Weight(line.Day(1)));
    PrintPerson();
    shown_.PrintDay(line.Day(1));
}

void LogFigures::ShowMonth(const CaseLine& line) {
    shown_.PrintMonth(line.Day(1), line.Day(2));
}

void LogFigures::ShowPeriod(const CaseLine& line) {
    shown_.PrintPeriod(line.Day(1), line.Day(2));
    PrintPerson();
}

void LogFigures::ShowTables(const CaseLine&) {
    PrintTable("days", *LoggedTables::Days(TableKind::Always()));
    PrintTable("entry", *LoggedTables::Log(TableKind::Always()));
}

void LogFigures::ShowReport(const CaseLine& line) {
    PrintReport({line.Day(1), line.Day(2)});
}

ScaledFood LogFigures::Chosen(const CaseLine& line, int first) const {
    const bool isRecipe = line.Text(first) == u"recipe";
    const qint32 id = (isRecipe ? recipes_ : foods_).at(size_t(line.Whole(first + 1)));
    return ScaledFood::Of(id, line.Text(first + 2), line.Number(first + 3), isRecipe);
}
