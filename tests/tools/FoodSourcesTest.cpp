#include "foods/release/FoodSources.h"

#include "Release.h"
#include "foods/delivery/TsvTable.h"
#include "foods/release/FoodRelease.h"
#include "support/Places.h"

#include <QCryptographicHash>
#include <QFile>
#include <QTemporaryDir>

#include <SQLiteCpp/SQLiteCpp.h>

#include <gtest/gtest.h>

namespace {
FoodSources Delivered() {
    return FoodSources::Read(Places::Source(QStringLiteral("/data/food-sources.json")));
}

FoodSources OfSample() {
    return FoodSources::Of(FoodRelease::Read(Release::Folder()), QStringLiteral("a sample"),
                           Release::Folder());
}

QByteArray SampleFile(const char* name) {
    QFile file(Release::Folder() + u'/' + QLatin1String(name));
    EXPECT_TRUE(file.open(QIODevice::ReadOnly));
    return file.readAll();
}

/// The line of a sample file, counted from 1.
QByteArray SampleLine(const char* name, int line) {
    return SampleFile(name).split('\n').value(line - 1);
}
} // namespace

TEST(FoodSources, NameTheLinesOfTheRelease) {
    const FoodSources sources = OfSample();
    for (const QString& number : Release::Read(QStringLiteral("ABBREV.txt")).keys()) {
        const auto source = sources.Find(number);
        if (!source)
            continue; // a food without a value
        const QByteArray head = '~' + number.toLatin1() + '~';
        EXPECT_TRUE(SampleLine("ABBREV.txt", source->valuesLine).startsWith(head));
        EXPECT_TRUE(SampleLine("FOOD_DES.txt", source->nameLine).startsWith(head));
        for (const ServingSource& serving : {source->a, source->b})
            EXPECT_TRUE(serving.line == 0 ||
                        SampleLine("WEIGHT.txt", serving.line).startsWith(head));
    }
}

TEST(FoodSources, NameTheHashOfEachFile) {
    for (const char* file : {"ABBREV.txt", "FOOD_DES.txt", "WEIGHT.txt"})
        EXPECT_EQ(OfSample().Hash(file).toLatin1(),
                  QCryptographicHash::hash(SampleFile(file), QCryptographicHash::Sha256).toHex());
}

TEST(FoodSources, ReadWhatTheyWrote) {
    QTemporaryDir folder;
    const QString path = folder.filePath(QStringLiteral("sources.json"));
    QFile file(path);
    ASSERT_TRUE(file.open(QIODevice::WriteOnly));
    file.write(OfSample().Json());
    file.close();
    const FoodSources read = FoodSources::Read(path);
    EXPECT_EQ(read.Json(), OfSample().Json());
    EXPECT_EQ(read.Release(), "a sample");
    EXPECT_EQ(read.FieldCount(), 51);
}

TEST(FoodSources, DeliveredOnesAgreeWithTheSampleOfTheRelease) {
    const FoodSources delivered = Delivered();
    const FoodSources sample = OfSample();
    int compared = 0;
    for (const QString& number : Release::Read(QStringLiteral("ABBREV.txt")).keys())
        if (const auto food = sample.Find(number)) {
            ++compared;
            EXPECT_EQ(food->check, delivered.Find(number)->check) << number.toStdString();
            EXPECT_EQ(food->plainFolate, delivered.Find(number)->plainFolate);
        }
    EXPECT_GT(compared, 5);
}

TEST(FoodSources, EveryDeliveredFoodHasTheFiguresOfItsSource) {
    const FoodSources sources = Delivered();
    SQLite::Database foods(Places::Build(QStringLiteral("/delivered/foods.mdb")).toStdString());
    SQLite::Statement row(foods, "SELECT * FROM FOODS");
    int count = 0;
    for (; row.executeStep(); ++count) {
        std::vector<std::optional<double>> figures;
        for (int column = 1; column <= 31; ++column)
            figures.push_back(row.isColumnNull(column)
                                  ? std::nullopt
                                  : std::optional(row.getColumn(column).getDouble()));
        for (const char* grams : {"Serv_GM_WT_A", "Serv_GM_WT_B"})
            figures.push_back(row.isColumnNull(grams)
                                  ? std::nullopt
                                  : std::optional(row.getColumn(grams).getDouble()));
        const auto source = sources.Find(QString::fromLatin1(row.getColumn("NDB_No").getText()));
        ASSERT_TRUE(source);
        EXPECT_EQ(FoodSources::CheckOf(figures), source->check) << row.getColumn("ID").getInt();
    }
    EXPECT_EQ(count, 7412);
}

TEST(FoodSources, AnyChangedFigureChangesTheCheck) {
    EXPECT_NE(FoodSources::CheckOf({1, 2}), FoodSources::CheckOf({1, 2.0000000000000004}));
    EXPECT_NE(FoodSources::CheckOf({1, 0}), FoodSources::CheckOf({1, std::nullopt}));
    EXPECT_NE(FoodSources::CheckOf({1, std::nullopt}), FoodSources::CheckOf({std::nullopt, 1}));
}
