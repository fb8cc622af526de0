#include "Release.h"
#include "foods/delivery/TsvTable.h"
#include "support/Places.h"

#include <QFile>
#include <QRegularExpression>
#include <QSet>

#include <gtest/gtest.h>

namespace {

struct Source {
    const char* column;
    int field;
};

/// The field of each nutrient by the release's documentation; folate and selenium have their own
/// rules.
constexpr Source Unconverted[] = {
    {"water", 3},        {"Calories", 4},   {"protein", 5},     {"TotalFat", 6},
    {"ASH", 7},          {"carbs", 8},      {"fiber", 9},       {"Calcium", 11},
    {"Iron", 12},        {"Magnesium", 13}, {"Phosphorus", 14}, {"Potassium", 15},
    {"sodium", 16},      {"Zinc", 17},      {"Copper", 18},     {"Manganese", 19},
    {"VitaminC", 21},    {"Thiamin", 22},   {"Riboflavin", 23}, {"Niacin", 24},
    {"Panto", 25},       {"VitaminB6", 26}, {"VitaminB12", 32}, {"VitaminA", 33},
    {"VitaminE", 41},    {"SatFat", 43},    {"MonoFat", 44},    {"PolyFat", 45},
    {"Cholesterol", 46},
};

const TsvTable& Foods() {
    static const TsvTable foods = TsvTable::Read(Places::Source(QStringLiteral("/data/foods.tsv")));
    return foods;
}

QString Value(const QStringList& row, const char* column) {
    static const QStringList columns = Foods().Columns();
    return row.value(columns.indexOf(QLatin1String(column)));
}

const QHash<QString, QStringList>& RowsByNumber() {
    static const QHash<QString, QStringList> rows = [] {
        QHash<QString, QStringList> found;
        for (const QStringList& row : Foods().Rows())
            found.insert(Value(row, "NDB_No"), row);
        return found;
    }();
    return rows;
}

int CountOf(const char* column, const QString& value) {
    int count = 0;
    for (const QStringList& row : Foods().Rows())
        count += Value(row, column) == value;
    return count;
}

struct Sample {
    QString number;
    QStringList values; ///< the release's own record
    QStringList row;    ///< what is delivered
};

/// The only food of the release without any value. Its key is not used.
const QString Calculator = QStringLiteral("23999");
constexpr int CalculatorKey = 23040;
constexpr int FirstKey = 16096;
constexpr int LastKey = 23508;
constexpr int Count = LastKey - FirstKey; // of the keys from first to last one is not used

QList<Sample> Samples() {
    QList<Sample> samples;
    const auto values = Release::Read(QStringLiteral("ABBREV.txt"));
    for (auto food = values.begin(); food != values.end(); ++food)
        if (food.key() != Calculator)
            samples << Sample{food.key(), food->first(), RowsByNumber().value(food.key())};
    return samples;
}

} // namespace

TEST(Foods, SampleHoldsAtLeast200FoodsAndAllAreDelivered) {
    const QList<Sample> samples = Samples();
    EXPECT_GE(samples.size(), 200);
    for (const Sample& sample : samples)
        EXPECT_FALSE(sample.row.isEmpty()) << sample.number.toStdString();
}

TEST(Foods, SampledFiguresAreTheReleasesOwnText) {
    for (const Sample& sample : Samples())
        for (const Source& source : Unconverted)
            EXPECT_EQ(Value(sample.row, source.column), Release::Field(sample.values, source.field))
                << sample.number.toStdString() << ' ' << source.column;
}

TEST(Foods, SampledSeleniumIsInMilligrams) {
    for (const Sample& sample : Samples()) {
        const QString micrograms = Release::Field(sample.values, 20);
        const QString delivered = Value(sample.row, "Selenium");
        EXPECT_EQ(delivered.isEmpty(), micrograms.isEmpty()) << sample.number.toStdString();
        EXPECT_NEAR(delivered.toDouble(), micrograms.toDouble() / 1000, 1e-12)
            << sample.number.toStdString();
    }
}

TEST(Foods, SampledFolateIsInDietaryEquivalentsOrElseTheTotal) {
    int totals = 0;
    for (const Sample& sample : Samples()) {
        const QString equivalents = Release::Field(sample.values, 30);
        const QString total = Release::Field(sample.values, 27);
        totals += equivalents.isEmpty() && !total.isEmpty();
        EXPECT_EQ(Value(sample.row, "Folate"), equivalents.isEmpty() ? total : equivalents)
            << sample.number.toStdString();
    }
    EXPECT_GT(totals, 0);
}

TEST(Foods, SampledNamesAreTheFullDescriptions) {
    const auto descriptions = Release::Read(QStringLiteral("FOOD_DES.txt"));
    for (const Sample& sample : Samples())
        EXPECT_EQ(Value(sample.row, "FoodName"),
                  Release::Field(descriptions.value(sample.number).value(0), 3));
}

TEST(Foods, FirstAndSecondMeasureAreServingsAAndB) {
    int checked = 0;
    for (const Sample& sample : Samples()) {
        if (Release::Field(sample.values, 47).isEmpty() ||
            Release::Field(sample.values, 49).isEmpty())
            continue;
        ++checked;
        EXPECT_EQ(Value(sample.row, "Serv_GM_WT_A"), Release::Field(sample.values, 47));
        EXPECT_EQ(Value(sample.row, "Serv_Desc_A"), Release::Field(sample.values, 48));
        EXPECT_EQ(Value(sample.row, "Serv_GM_WT_B"), Release::Field(sample.values, 49));
        EXPECT_EQ(Value(sample.row, "Serv_Desc_B"), Release::Field(sample.values, 50));
    }
    EXPECT_GT(checked, 100);
}

TEST(Foods, OneMeasureGets100GramsAsServingB) {
    const auto weights = Release::Read(QStringLiteral("WEIGHT.txt"));
    int checked = 0;
    for (const Sample& sample : Samples()) {
        const bool first = !Release::Field(sample.values, 47).isEmpty();
        const bool second = !Release::Field(sample.values, 49).isEmpty();
        if (first == second || weights.value(sample.number).size() != 1)
            continue;
        ++checked;
        EXPECT_EQ(Value(sample.row, "Serv_GM_WT_A"),
                  Release::Field(sample.values, first ? 47 : 49));
        EXPECT_EQ(Value(sample.row, "Serv_Desc_A"), Release::Field(sample.values, first ? 48 : 50));
        EXPECT_EQ(Value(sample.row, "Serv_Desc_B"), QStringLiteral("100 grams"));
        EXPECT_EQ(Value(sample.row, "Serv_GM_WT_B"), QStringLiteral("100"));
    }
    EXPECT_GT(checked, 50);
}

TEST(Foods, NoMeasureGets100GramsAsServingAAndNoB) {
    const auto weights = Release::Read(QStringLiteral("WEIGHT.txt"));
    int checked = 0;
    for (const Sample& sample : Samples()) {
        if (!Release::Field(sample.values, 47).isEmpty() ||
            !Release::Field(sample.values, 49).isEmpty() || weights.contains(sample.number))
            continue;
        ++checked;
        EXPECT_EQ(Value(sample.row, "Serv_Desc_A"), QStringLiteral("100 grams"));
        EXPECT_EQ(Value(sample.row, "Serv_GM_WT_A"), QStringLiteral("100"));
        EXPECT_EQ(Value(sample.row, "Serv_Desc_B"), QString());
        EXPECT_EQ(Value(sample.row, "Serv_GM_WT_B"), QString());
    }
    EXPECT_GT(checked, 5);
}

TEST(Foods, MeasuresThatTheAbbreviatedFileLacksComeFromTheWeights) {
    struct Case {
        const char *number, *a, *gramsA, *b, *gramsB;
    };
    constexpr Case cases[] = {
        {"43100", "1 bar", "43", "100 grams", "100"},
        {"43391", "1 medium slice (approx 3\" x 2\" x 1/4\")", "28",
         "1 thick slice (approx 3\" x 2\" x 3/8\")", "42"},
        {"42266", "1 fl oz", "30.80", "1 bottle NFS", "246"},
        {"03070", "1 tbsp", "16.00", "1 oz", "28.35"},
        {"07276", "1 serving,  2 oz", "56.00", "1 oz", "28"},
    };
    for (const Case& one : cases) {
        const QStringList row = RowsByNumber().value(QLatin1String(one.number));
        EXPECT_EQ(Value(row, "Serv_Desc_A"), QLatin1String(one.a)) << one.number;
        EXPECT_EQ(Value(row, "Serv_GM_WT_A"), QLatin1String(one.gramsA)) << one.number;
        EXPECT_EQ(Value(row, "Serv_Desc_B"), QLatin1String(one.b)) << one.number;
        EXPECT_EQ(Value(row, "Serv_GM_WT_B"), QLatin1String(one.gramsB)) << one.number;
    }
}

TEST(Foods, ServingCountsFollowFromThoseOfTheRelease) {
    constexpr int both = 4303, firstOnly = 2640, noFirst = 469, secondOnly = 10;
    static_assert(both + firstOnly + noFirst == Count);
    constexpr int oneToTwo = 14, noneToOne = 1, noneToTwo = 1;
    EXPECT_EQ(CountOf("Serv_Desc_A", QStringLiteral("100 grams")),
              noFirst - secondOnly - noneToOne - noneToTwo);
    EXPECT_EQ(CountOf("Serv_Desc_B", QString()), noFirst - secondOnly - noneToOne - noneToTwo);
    EXPECT_EQ(CountOf("Serv_Desc_B", QStringLiteral("100 grams")),
              firstOnly + secondOnly - oneToTwo + noneToOne);
}

TEST(Foods, EveryFoodHasANameAndAWeighedServing) {
    for (const QStringList& row : Foods().Rows()) {
        EXPECT_FALSE(Value(row, "FoodName").isEmpty());
        EXPECT_FALSE(Value(row, "Serv_Desc_A").isEmpty());
        EXPECT_GT(Value(row, "Serv_GM_WT_A").toDouble(), 0);
        EXPECT_EQ(Value(row, "Serv_Desc_B").isEmpty(), Value(row, "Serv_GM_WT_B").isEmpty());
    }
}

TEST(Foods, There7412RowsWithKeysInTheOrderOfTheReleasesNumberUpTo23508) {
    ASSERT_EQ(Foods().Rows().size(), 7412);
    ASSERT_EQ(Count, 7412);
    int key = FirstKey, number = 0;
    for (const QStringList& row : Foods().Rows()) {
        key += key == CalculatorKey;
        EXPECT_EQ(Value(row, "ID").toInt(), key++);
        EXPECT_GT(Value(row, "NDB_No").toInt(), number);
        EXPECT_EQ(Value(row, "NDB_No").size(), 5);
        number = Value(row, "NDB_No").toInt();
    }
    EXPECT_EQ(key, LastKey + 1);
}

TEST(Foods, EveryFoodHasAValueAndTheReportNamesTheOneThatHasNone) {
    for (const QStringList& row : Foods().Rows())
        EXPECT_FALSE(row.mid(1, 31).join(QString()).isEmpty()) << row.last().toStdString();
    EXPECT_FALSE(RowsByNumber().contains(Calculator));
    QFile report(Places::Source(QStringLiteral("/docs/catalogue-report.md")));
    ASSERT_TRUE(report.open(QIODevice::ReadOnly));
    EXPECT_TRUE(report.readAll().contains("not one value is known: 23999 (key 23040, "));
}

TEST(Foods, FullDescriptionsKeepTheirApostrophes) {
    int count = 0;
    for (const QStringList& row : Foods().Rows())
        count += Value(row, "FoodName").contains(u'\'');
    EXPECT_EQ(count, 505);
}

TEST(Foods, UnknownValuesAreLeftEmpty) {
    EXPECT_EQ(CountOf("VitaminE", QString()), 3112);
    EXPECT_EQ(CountOf("Manganese", QString()), 1656);
    EXPECT_EQ(CountOf("Folate", QString()), 1058);
    EXPECT_EQ(CountOf("Calories", QString()), 0);
    EXPECT_EQ(CountOf("Calcium", QString()), 144);
}

TEST(Foods, ReportTellsTheNullsOfEveryColumn) {
    QFile report(Places::Source(QStringLiteral("/docs/catalogue-report.md")));
    ASSERT_TRUE(report.open(QIODevice::ReadOnly));
    const QString text = QString::fromUtf8(report.readAll());
    const QRegularExpression line(
        QStringLiteral("^\\| (\\w+) \\| \\d[^|]* \\| (\\d+) \\| (\\d+) \\|$"),
        QRegularExpression::MultilineOption);
    QSet<QString> told;
    for (auto match = line.globalMatch(text); match.hasNext();) {
        const auto found = match.next();
        const QString column = found.captured(1);
        const int nulls = CountOf(column.toUtf8().constData(), QString());
        EXPECT_EQ(found.captured(3).toInt(), nulls) << column.toStdString();
        EXPECT_EQ(found.captured(2).toInt(), Count - nulls) << column.toStdString();
        told << column;
    }
    EXPECT_EQ(told.size(), 31);
}

TEST(Foods, SaltedButterHasTheKnownFigures) {
    const QStringList row = RowsByNumber().value(QStringLiteral("01001"));
    EXPECT_EQ(Value(row, "FoodName"), QStringLiteral("Butter, salted"));
    EXPECT_EQ(Value(row, "Calories").toDouble(), 717);
    EXPECT_EQ(Value(row, "TotalFat").toDouble(), 81.11);
    EXPECT_EQ(Value(row, "sodium").toDouble(), 576);
    EXPECT_EQ(Value(row, "VitaminA").toDouble(), 2499);
    EXPECT_EQ(Value(row, "Selenium").toDouble(), 0.001);
    EXPECT_EQ(Value(row, "Serv_Desc_A"), QStringLiteral("1 cup"));
    EXPECT_EQ(Value(row, "Serv_GM_WT_A").toDouble(), 227);
    EXPECT_EQ(Value(row, "Serv_Desc_B"), QStringLiteral("1 tbsp"));
    EXPECT_EQ(Value(row, "Serv_GM_WT_B").toDouble(), 14.2);
}
