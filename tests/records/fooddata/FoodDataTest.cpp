#include "records/fooddata/FoodDataTest.h"

#include "runtime/RuntimeError.h"

#include <QFile>

#include <SQLiteCpp/SQLiteCpp.h>

namespace {
QByteArray Line(const QStringList& row) {
    QByteArrayList cells;
    for (QString cell : row)
        cells << '"' + cell.replace(u'"', QLatin1String("\"\"")).toUtf8() + '"';
    return cells.join(',') + '\n';
}

QVariant Value(const QString& file, const QString& sql) {
    SQLite::Database foods(file.toStdString(), SQLite::OPEN_READONLY);
    SQLite::Statement statement(foods, sql.toStdString());
    if (!statement.executeStep() || statement.getColumn(0).isNull())
        return {};
    const SQLite::Column value = statement.getColumn(0);
    return value.isText() ? QVariant(QString::fromStdString(value.getString()))
                          : QVariant(value.getDouble());
}
} // namespace

void FoodDataTest::SetUp() {
    RecordsTest::SetUp();
    Write("food.csv",
          {{"fdc_id", "data_type", "description", "food_category_id", "publication_date"},
           {"9900001", "sr_legacy_food", "Oats, rolled, invented", "20", "2019-04-01"},
           {"9900002", "foundation_food", "Beans, green, raw, invented", "11", "2026-04-30"},
           {"9900003", "survey_fndds_food", "Porridge, NFS, invented", "4802", "2022-10-28"},
           {"9900004", "branded_food", "CRISPS 8\" BAG, INVENTED", "Snacks", "2026-04-30"},
           {"9900005", "sub_sample_food", "Beans, invented lot", "11", "2019-04-01"}});
    Write("nutrient.csv", {{"id", "name", "unit_name", "nutrient_nbr", "rank"},
                           {"1008", "Energy", "KCAL", "208", "300.0"},
                           {"1103", "Selenium, Se", "UG", "317", "6200.0"},
                           {"1104", "Vitamin A, IU", "IU", "318", "7500.0"}});
    Write("food_category.csv", {{"id", "code", "description"},
                                {"11", "1100", "Vegetables and Vegetable Products"},
                                {"20", "2000", "Cereal Grains and Pasta"}});
    Write("measure_unit.csv", {{"id", "name"}, {"1000", "cup"}, {"9999", "undetermined"}});
    Write("sr_legacy_food.csv", {{"fdc_id", "NDB_number"}, {"9900001", "1999"}});
    Write("foundation_food.csv", {{"fdc_id", "NDB_number", "footnote"}, {"9900002", "11999", ""}});
    Write("survey_fndds_food.csv",
          {{"fdc_id", "food_code", "wweia_category_number", "start_date", "end_date"},
           {"9900003", "56999999", "4802", "2021-01-01", "2023-12-31"}});
    Write("branded_food.csv",
          {{"fdc_id", "brand_owner", "brand_name", "gtin_upc", "serving_size", "serving_size_unit",
            "household_serving_fulltext", "branded_food_category", "data_source", "modified_date",
            "available_date", "discontinued_date"},
           {"9900004", "Invented Foods Inc.", "NOBRAND", "99999000017", "28.0", "g", "1 ONZ",
            "Chips, Pretzels & Snacks", "LI", "2025-11-02", "2025-11-02", ""}});
    Write("food_portion.csv",
          {{"id", "fdc_id", "seq_num", "amount", "measure_unit_id", "portion_description",
            "modifier", "gram_weight"},
           {"2", "9900001", "10", "4", "9999", "", "oz", "113"},
           {"1", "9900001", "2", "1", "9999", "", "cup, dry", "81"},
           {"3", "9900002", "1", "1.0", "1000", "", "pieces of ~1\"", "100.0"},
           {"5", "9900003", "1", "", "9999", "Quantity not specified", "90000", "0.0"},
           {"4", "9900003", "2", "", "9999", "1 cup, cooked", "10043", "234.0"}});
    Write("food_nutrient.csv", {{"id", "fdc_id", "nutrient_id", "amount"}});
    AddAmount("9900001", "1008", "379");
    AddAmount("9900001", "1103", "28.9");
    AddAmount("9900002", "1005", "7.41");
    AddAmount("9900003", "208", "62");
    AddAmount("9900004", "1008", "536");
}

void FoodDataTest::Write(const QString& file, const QList<Row>& rows) const {
    QByteArray bytes;
    for (const Row& row : rows)
        bytes += Line(row);
    WriteBytes(file, bytes);
}

void FoodDataTest::WriteBytes(const QString& file, const QByteArray& bytes) const {
    QFile target(download_.filePath(file));
    ASSERT_TRUE(target.open(QIODevice::WriteOnly));
    ASSERT_EQ(target.write(bytes), bytes.size());
}

void FoodDataTest::Add(const QString& file, const Row& row) const {
    QFile target(download_.filePath(file));
    ASSERT_TRUE(target.open(QIODevice::Append));
    target.write(Line(row));
}

void FoodDataTest::AddAmount(const QString& food, const QString& nutrient,
                             const QString& amount) const {
    Add("food_nutrient.csv", {"1", food, nutrient, amount});
}

FoodTally FoodDataTest::Import(const QStringList& only, bool dryRun) const {
    FoodImport::Options options{Download(), {}, dryRun, {}};
    for (const QString& restriction : only)
        EXPECT_TRUE(options.filter.Add(restriction)) << restriction.toStdString();
    return FoodImport::Run(Records(), options);
}

QString FoodDataTest::Refusal() const {
    try {
        Import();
    } catch (const RuntimeError& failure) {
        return failure.Description();
    }
    return {};
}

QVariant FoodDataTest::Own(const QString& number, const QString& column) {
    return Value(Records().Foods(),
                 "SELECT " + column + " FROM FOODS WHERE ID > 23508 AND NDB_No = '" + number + "'");
}

int FoodDataTest::OwnFoods() {
    return Value(Records().Foods(), "SELECT Count(*) FROM FOODS WHERE ID > 23508").toInt();
}
