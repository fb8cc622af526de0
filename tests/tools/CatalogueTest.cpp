#include "catalogue/Catalogue.h"
#include "Release.h"
#include "catalogue/CatalogueReport.h"
#include "foods/release/FoodColumns.h"
#include "model/Nutrients.h"
#include "runtime/RuntimeError.h"
#include "support/Places.h"

#include <QDir>
#include <QFile>
#include <QTemporaryDir>

#include <gtest/gtest.h>

namespace {

QByteArray Values(const QByteArray& number, int fields = ShortLayout) {
    QByteArrayList record(fields, "");
    record[0] = '~' + number + '~';
    record[3] = "10";
    record[19] = "2.5";
    return record.join('^') + "\r\n";
}

QByteArray Description(const QByteArray& number, const QByteArray& name) {
    return '~' + number + "~^~0100~^~" + name + "~^~SHORT~^^^^^^^^^^\r\n";
}

/// A release of a few lines in a folder of its own.
class CatalogueTest : public ::testing::Test {
protected:
    void SetUp() override {
        Write("ABBREV.txt", Values("02000") + Values("01000"));
        Write("FOOD_DES.txt", Description("01000", "First") + Description("02000", "Second"));
        Write("WEIGHT.txt", "");
    }
    void Write(const char* name, const QByteArray& bytes) {
        QFile file(folder_.filePath(QLatin1String(name)));
        ASSERT_TRUE(file.open(QIODevice::WriteOnly));
        ASSERT_EQ(file.write(bytes), bytes.size());
    }
    Catalogue Made() { return Catalogue::FromRelease(folder_.path()); }
    QString Refusal() {
        try {
            Made();
        } catch (const RuntimeError& error) {
            return error.Description();
        }
        return {};
    }
    QTemporaryDir folder_;
};

} // namespace

TEST(Catalogue, SampleOfTheReleaseGivesTheDeliveredRows) {
    const TsvTable sample = Catalogue::FromRelease(Release::Folder()).Table();
    const TsvTable delivered = TsvTable::Read(Places::Source(QStringLiteral("/data/foods.tsv")));
    ASSERT_EQ(sample.Columns(), delivered.Columns());
    QHash<QString, QStringList> rows;
    for (const QStringList& row : delivered.Rows())
        rows.insert(row.last(), row.mid(1));
    for (const QStringList& row : sample.Rows())
        EXPECT_EQ(row.mid(1), rows.value(row.last())) << row.last().toStdString();
}

TEST_F(CatalogueTest, FoodsStandInTheOrderOfTheirNumbersAndTheLastIs23508) {
    const Catalogue made = Made();
    ASSERT_EQ(made.Foods().size(), 2);
    EXPECT_EQ(made.Foods()[0].number, QStringLiteral("01000"));
    EXPECT_EQ(made.Foods()[0].id, 23507);
    EXPECT_EQ(made.Foods()[1].id, 23508);
}

TEST_F(CatalogueTest, BlankStaysUnknownAndSeleniumIsConverted) {
    const TsvTable table = Made().Table();
    EXPECT_EQ(table.Rows()[0][table.Position(QStringLiteral("TotalFat"))], QString());
    EXPECT_EQ(table.Rows()[0][table.Position(QStringLiteral("Selenium"))],
              QStringLiteral("0.0025"));
}

TEST_F(CatalogueTest, LaterLayoutHasTwoFieldsMoreBehindVitaminE) {
    QByteArrayList record(LongLayout, "");
    record[0] = "~01000~";
    record[40] = "4.1";
    record[41] = "77";
    record[42] = "78";
    record[44] = "4.3";
    record[48] = "50";
    record[49] = "~1 cup~";
    Write("ABBREV.txt", record.join('^') + "\r\n");
    const TsvTable table = Made().Table();
    const QStringList row = table.Rows().first();
    EXPECT_EQ(row[table.Position(QStringLiteral("VitaminE"))], QStringLiteral("4.1"));
    EXPECT_EQ(row[table.Position(QStringLiteral("SatFat"))], QStringLiteral("4.3"));
    EXPECT_EQ(row[table.Position(QStringLiteral("Serv_Desc_A"))], QStringLiteral("1 cup"));
    EXPECT_EQ(row[table.Position(QStringLiteral("Serv_GM_WT_A"))], QStringLiteral("50"));
}

TEST_F(CatalogueTest, NamesAreReadAsLatin1) {
    Write("FOOD_DES.txt", Description("01000", "Cr\xE8me") + Description("02000", "Second"));
    EXPECT_EQ(Made().Foods()[0].name, QString::fromUtf8("Cr\u00E8me"));
}

TEST_F(CatalogueTest, WeightsAreTakenInTheirSequenceWithoutTheMeasureThatIsThere) {
    QByteArrayList record(ShortLayout, "");
    record[0] = "~01000~";
    record[3] = "10";
    record[46] = "56.00";
    record[47] = "~1 serving,  2 oz~";
    Write("ABBREV.txt", record.join('^') + "\r\n");
    Write("WEIGHT.txt", "~01000~^10^1^~late~^3^^\r\n~01000~^2^.5^~oz~^14^^\r\n"
                        "~01000~^1^1^~serving 2 oz~^56^^\r\n");
    const Servings servings = Made().Foods().first().servings;
    EXPECT_EQ(servings.a.text, QStringLiteral("1 serving,  2 oz"));
    EXPECT_EQ(servings.b.text, QStringLiteral(".5 oz"));
    EXPECT_EQ(servings.b.grams, QStringLiteral("14"));
    EXPECT_EQ(servings.filledMeasures, 1);
}

TEST_F(CatalogueTest, FoodWithoutAFullDescriptionIsLeftAndTold) {
    Write("FOOD_DES.txt", Description("02000", "Second"));
    const Catalogue made = Made();
    EXPECT_EQ(made.Release().Unnamed(), QStringList{QStringLiteral("01000")});
    EXPECT_EQ(made.Foods().size(), 1);
    EXPECT_TRUE(CatalogueReport(made).contains(QStringLiteral("no full description: 01000.")));
}

TEST_F(CatalogueTest, FoodWithoutOneKnownValueIsLeftAndToldAndItsKeyStaysUnused) {
    QByteArrayList empty(ShortLayout, "");
    empty[0] = "~01500~";
    empty[46] = "100";
    empty[47] = "~1 cup~";
    Write("ABBREV.txt", Values("01000") + empty.join('^') + "\r\n" + Values("02000"));
    Write("FOOD_DES.txt", Description("01000", "First") + Description("01500", "A calculator") +
                              Description("02000", "Last"));
    const Catalogue made = Made();
    ASSERT_EQ(made.Foods().size(), 2);
    EXPECT_EQ(made.Foods()[0].id, 23506);
    EXPECT_EQ(made.Foods()[1].id, 23508);
    EXPECT_EQ(made.Table().Rows().size(), 2);
    EXPECT_TRUE(CatalogueReport(made).contains(
        QStringLiteral("not one value is known: 01500 (key 23507, \"A calculator\")")));
}

TEST_F(CatalogueTest, ReleaseWhoseLastFoodHasNoValueIsRefused) {
    QByteArrayList empty(ShortLayout, "");
    empty[0] = "~02000~";
    Write("ABBREV.txt", Values("01000") + empty.join('^') + "\r\n");
    EXPECT_EQ(Refusal(), QStringLiteral("the last food of the release has no value"));
}

TEST_F(CatalogueTest, LineOfAnotherLayoutIsRefusedWithItsPlace) {
    Write("ABBREV.txt", Values("01000") + "~02000~^1^2\r\n");
    EXPECT_TRUE(Refusal().endsWith(QStringLiteral("ABBREV.txt:2: 3 fields")))
        << Refusal().toStdString();
}

TEST_F(CatalogueTest, LayoutsAreNotMixedWithinAFile) {
    Write("ABBREV.txt", Values("01000") + Values("02000", LongLayout));
    EXPECT_TRUE(Refusal().endsWith(QStringLiteral("ABBREV.txt:2: 53 fields")));
}

TEST_F(CatalogueTest, FigureThatIsNoNumberIsRefusedWithItsColumn) {
    QByteArray values = Values("01000");
    values.replace("^10^", "^1o^");
    Write("ABBREV.txt", values);
    EXPECT_EQ(Refusal(), QStringLiteral("line 1: Calories is \"1o\""));
}

TEST_F(CatalogueTest, FoodThatStandsTwiceIsRefused) {
    Write("ABBREV.txt", Values("01000") + Values("01000"));
    EXPECT_EQ(Refusal(), QStringLiteral("food 01000 stands twice"));
}

TEST_F(CatalogueTest, EmptyReleaseIsRefused) {
    Write("ABBREV.txt", "");
    EXPECT_EQ(Refusal(), QStringLiteral("the release holds no foods"));
}

TEST_F(CatalogueTest, MissingFileIsRefusedWithItsName) {
    QFile::remove(folder_.filePath(QStringLiteral("WEIGHT.txt")));
    EXPECT_TRUE(Refusal().contains(QStringLiteral("WEIGHT.txt")));
}

TEST(ShiftDecimal, MovesThePointAndLosesNoDigit) {
    struct Case {
        const char* number;
        int places;
        const char* moved;
    };
    constexpr Case cases[] = {
        {"1.0", -3, "0.0010"}, {"0", -3, "0.000"},       {"0.0", -3, "0.0000"},
        {"1917", -3, "1.917"}, {"117.9", -3, "0.1179"},  {"12", -1, "1.2"},
        {".5", -3, "0.0005"},  {"1234.5", -3, "1.2345"}, {"2.5", 1, "25"},
        {"2.5", 3, "2500"},    {"2.5", 0, "2.5"},
    };
    for (const Case& one : cases)
        EXPECT_EQ(ShiftDecimal(QLatin1String(one.number), one.places), QLatin1String(one.moved))
            << one.number;
}

TEST(FoodColumns, HoldTheNutrientsInTheStoredOrder) {
    const auto isSame = [](const FoodColumn& column, Nutrient id) {
        return std::string_view(column.name) == Info(id).profileColumn;
    };
    EXPECT_TRUE(std::ranges::equal(FoodColumns(), StoredOrder(), isSame));
}
