#include "records/peers/PeerTest.h"

#include "support/Places.h"

#include <QFile>
#include <QRegularExpression>

namespace {
class MappedTableTest : public PeerTest {
protected:
    Options From(const QByteArray& map, const QByteArray& table) const {
        Options options = PeerTest::From("table", {Write("table.csv", table)});
        options.map = Write("map.toml", map);
        return options;
    }
    QString MapFailure(const QByteArray& map) const {
        return Failure(From(map, "Day,Food,kcal\n"));
    }
    /// The block of the page that is marked with this language.
    static QByteArray OfPage(const QString& language) {
        QFile page(Places::Source("/docs/import-map.md"));
        EXPECT_TRUE(page.open(QIODevice::ReadOnly));
        const QRegularExpression block("```" + language + "\n(.*?)```",
                                       QRegularExpression::DotMatchesEverythingOption);
        return block.match(QString::fromUtf8(page.readAll())).captured(1).toUtf8();
    }
    static constexpr auto Map = R"(kind = "log"
[columns]
date = "Day"
name = "Food"
[nutrients]
Calories = { column = "kcal", unit = "kcal" }
)";
};
} // namespace

TEST_F(MappedTableTest, TheExampleOfThePageIsReadAsThePageSays) {
    const Result result = Import(From(OfPage("toml"), OfPage("csv")));
    EXPECT_EQ(result.entries.added, 2);
    EXPECT_TRUE(result.rejects.empty());
    EXPECT_EQ(
        UserRows("SELECT UDate, Meal, FoodName, Serving, QTY, Calories, TotalFat, Sodium FROM "
                 "USER_FOODS ORDER BY RecID"),
        QList<QVariantList>(
            {{"2026-03-02", "Breakfast", "Haferflocken", "40 g", 1.0, 1556 / 4.184 / 100 * 40,
              7.0 / 100 * 40, 0.02 / 2.5 * 1000 / 100 * 40},
             {"2026-03-02", "Snacks", "Apfel", "300 g", 1.0, 218 / 4.184 / 100 * 300,
              0.2 / 100 * 300, QVariant()}}));
}

TEST_F(MappedTableTest, ThePageNamesEachNutrient) {
    QFile page(Places::Source("/docs/import-map.md"));
    ASSERT_TRUE(page.open(QIODevice::ReadOnly));
    const QByteArray text = page.readAll();
    for (const NutrientInfo& nutrient : Nutrients())
        EXPECT_TRUE(text.contains(nutrient.property)) << nutrient.property;
}

TEST_F(MappedTableTest, WeightsAreReadInTheirUnit) {
    const Result result = Import(From(R"(kind = "weights"
[file]
weight = "kg"
[columns]
date = "Day"
weight = "Weight"
)",
                                      "Day,Weight\n2026-03-02,81.4\n2026-03-03,\n"));
    EXPECT_EQ(result.weights.added, 1);
    EXPECT_EQ(User("SELECT Weight FROM USER_WEIGHTS"), 81.4 / 0.45359237);
    EXPECT_EQ(Listed(result, Kind::LeftOut), QStringList("line 3: It gives no weight."));
}

TEST_F(MappedTableTest, OwnFoodsAreTaken) {
    const Result result = Import(From(R"(kind = "foods"
[columns]
name = "Food"
serving = "Serving"
[nutrients]
Protein = { column = "Protein", unit = "mg" }
)",
                                      "Food,Serving,Protein\nBar,1 bar,12500\n"));
    EXPECT_EQ(result.foods.added, 1);
    EXPECT_EQ(Food("SELECT protein FROM FOODS WHERE ID = 23509"), 12.5);
}

TEST_F(MappedTableTest, AmountsOfOneAreTimesTheQuantity) {
    Import(From(R"(kind = "log"
[file]
amounts = "quantity"
[columns]
date = "Day"
name = "Food"
quantity = "N"
serving = "Unit"
[nutrients]
Calories = { column = "kcal", unit = "kcal" }
)",
                "Day,Food,N,Unit,kcal\n2026-03-02,Bun,3,piece,90\n"));
    EXPECT_EQ(UserRows("SELECT Calories, QTY, Serving FROM USER_FOODS"),
              QList<QVariantList>({{270.0, 3.0, "piece"}}));
}

TEST_F(MappedTableTest, ADateInAnotherFormIsRefused) {
    const Result result = Import(From(Map, "Day,Food,kcal\n02.03.2026,Bun,90\n"));
    EXPECT_EQ(Listed(result, Kind::Refused), QStringList("line 2: \"02.03.2026\" is not a date."));
}

TEST_F(MappedTableTest, AColumnThatIsMissingIsNamed) {
    EXPECT_EQ(Failure(From(Map, "Day,Speise,kcal\n")),
              "table.csv has no column \"Food\", which the map names.");
}

TEST_F(MappedTableTest, AWrongMapIsRefusedWithWhatIsWrong) {
    const QByteArray map(Map);
    const QString start = "The map cannot be used: ";
    EXPECT_EQ(MapFailure("kind = \"log\"\n[columns\n").left(start.size() + 16),
              start + "map.toml, line 2");
    const std::pair<QByteArray, const char*> wrongMaps[] = {
        {"[columns]\n", "kind is missing. It is \"log\", \"weights\" or \"foods\"."},
        {"kind = \"diary\"\n",
         "kind is \"diary\", but must be one of \"log\", \"weights\", \"foods\"."},
        {map + "[colums]\n", "the key \"colums\" is unknown."},
        {map + "[file]\ndecimals = \",\"\n", "the key \"decimals\" is unknown."},
        {map + "[file]\ndate = \"d.M.yy\"\n", "file.date must name the year as yyyy."},
        {map + "[file]\ndecimal = 1\n", "\"decimal\" must be a text in quotes."},
        {map + "[file]\ndecimal = \",\"\nthousands = \",\"\n",
         "file.thousands and file.decimal are the same."},
        {"kind = \"weights\"\n[file]\ndecimal = \",\"\nthousands = \",\"\n[columns]\ndate = "
         "\"a\"\n",
         "file.thousands and file.decimal are the same."},
        {map + "[file]\namounts = \"100 g\"\n",
         "columns.grams is missing, but the amounts are given for 100 g."},
        {map + "Sugar = { column = \"a\", unit = \"g\" }\n", "no nutrient is called \"Sugar\"."},
        {map + "Iron = { column = \"a\", unit = \"kcal\" }\n",
         "\"Iron\" cannot be given in \"kcal\"."},
        {map + "Iron = \"a\"\n", "\"Iron\" must be a table."},
        {map + "[meals]\nTea = \"Tea\"\n", "the meal \"Tea\" is not one of ours."},
        {"kind = \"weights\"\n[columns]\ndate = \"a\"\nweight = \"b\"\n",
         "file.weight must say kg or lb."},
    };
    for (const auto& [wrong, problem] : wrongMaps)
        EXPECT_EQ(MapFailure(wrong), start + problem);
}

TEST_F(MappedTableTest, AMapThatIsNotThereIsNamed) {
    Options options = From(Map, "Day,Food,kcal\n");
    options.map = Folder() + "/missing.toml";
    EXPECT_TRUE(Failure(options).contains("missing.toml"));
}
