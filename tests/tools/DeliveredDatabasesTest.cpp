#include "foods/delivery/DeliveredDatabases.h"
#include "foods/delivery/TsvTable.h"
#include "runtime/RuntimeError.h"
#include "store/Connection.h"
#include "store/NameIndex.h"
#include "support/Places.h"

#include <QDir>
#include <QFile>
#include <QTemporaryDir>
#include <QVariant>

#include <SQLiteCpp/SQLiteCpp.h>

#include <gtest/gtest.h>

namespace {

const QString DataFolder = Places::Source(QStringLiteral("/data"));

QString Built(const char* name) {
    return Places::Build(QStringLiteral("/delivered/")) + QLatin1String(name);
}

QByteArray Bytes(const QString& path) {
    QFile file(path);
    EXPECT_TRUE(file.open(QIODevice::ReadOnly)) << path.toStdString();
    return file.readAll();
}

void Put(const QString& path, const QByteArray& bytes) {
    QFile file(path);
    ASSERT_TRUE(file.open(QIODevice::WriteOnly));
    ASSERT_EQ(file.write(bytes), bytes.size());
}

class DeliveredDatabasesTest : public ::testing::Test {
protected:
    QString Folder() const { return folder_.path(); }
    QString UsersPath() const { return Folder() + QStringLiteral("/users.mdb"); }
    QString FoodsPath() const { return Folder() + QStringLiteral("/foods.mdb"); }
    void CopyBuilt() {
        ASSERT_TRUE(QFile::copy(Built("users.mdb"), UsersPath()));
        ASSERT_TRUE(QFile::copy(Built("foods.mdb"), FoodsPath()));
    }
    void Change(const QString& path, const char* statements) {
        SQLite::Database database(path.toStdString(), SQLite::OPEN_READWRITE);
        database.exec(statements);
    }
    QVariant Ask(const QString& path, const std::string& sql) {
        SQLite::Database database(path.toStdString(), SQLite::OPEN_READONLY);
        SQLite::Statement statement(database, sql);
        if (!statement.executeStep() || statement.isColumnNull(0))
            return {};
        return QString::fromStdString(statement.getColumn(0).getString());
    }
    void Update() { DeliveredDatabases(DataFolder).Update(Folder()); }

    QTemporaryDir folder_;
};

} // namespace

TEST_F(DeliveredDatabasesTest, FoodsHoldEveryDeliveredRowColumnByColumn) {
    const TsvTable foods = TsvTable::Read(DataFolder + QStringLiteral("/foods.tsv"));
    SQLite::Database database(Built("foods.mdb").toStdString());
    SQLite::Statement rows(database, "SELECT " + foods.Columns().join(u',').toStdString() +
                                         " FROM FOODS ORDER BY ID");
    qsizetype row = 0;
    const qsizetype texts = foods.Position(QStringLiteral("FoodName"));
    for (; rows.executeStep(); ++row)
        for (int i = 0; i < rows.getColumnCount(); ++i) {
            const QString expected = foods.Rows().value(row).value(i);
            const SQLite::Column value = rows.getColumn(i);
            ASSERT_EQ(value.isNull(), expected.isEmpty());
            if (i < texts || foods.Columns()[i].startsWith(QStringLiteral("Serv_GM")))
                ASSERT_TRUE(value.isNull() ||
                            (!value.isText() && value.getDouble() == expected.toDouble()));
            else
                ASSERT_EQ(QString::fromStdString(value.getString()), expected);
        }
    EXPECT_EQ(row, 7412);
}

TEST_F(DeliveredDatabasesTest, ReferenceIntakesAreThe22LifeStages) {
    const TsvTable intakes = TsvTable::Read(DataFolder + QStringLiteral("/reference-intakes.tsv"));
    const QStringList keys = {
        "INFANT_0_6 ",     "INFANT_7_12 ",    "CHILD_1_3",        "CHILD_4_8",
        "MALE_9_13",       "MALE_14_18",      "MALE_19_30",       "MALE_31_50",
        "MALE_51_70",      "MALE_71_999",     "FEMALE_9_13",      "FEMALE_14_18",
        "FEMALE_19_30",    "FEMALE_31_50",    "FEMALE_51_70",     "FEMALE_71_999",
        "LACTATION_0_18",  "LACTATION_19_30", "LACTATION_31_999", "PREGNANCY_0_18",
        "PREGNANCY_19_30", "PREGNANCY_31_999"};
    SQLite::Database users(Built("users.mdb").toStdString());
    SQLite::Statement count(users, "SELECT COUNT(*) FROM RDI");
    ASSERT_TRUE(count.executeStep());
    EXPECT_EQ(count.getColumn(0).getInt(), keys.size());
    ASSERT_EQ(intakes.Rows().size(), keys.size());
    const std::string columns = intakes.Columns().join(u',').toStdString();
    for (qsizetype i = 0; i < keys.size(); ++i) {
        EXPECT_EQ(intakes.Rows()[i].first(), keys[i]);
        SQLite::Statement row(users, "SELECT " + columns + " FROM RDI WHERE Profile = ?");
        row.bind(1, keys[i].toStdString());
        ASSERT_TRUE(row.executeStep()) << keys[i].toStdString();
        for (int column = 1; column < row.getColumnCount(); ++column)
            EXPECT_EQ(row.getColumn(column).getDouble(), intakes.Rows()[i][column].toDouble());
    }
}

TEST_F(DeliveredDatabasesTest, ReferenceIntakesAreThePublishedFigures) {
    const struct {
        const char *key, *column;
        double value;
    } figures[] = {{"INFANT_0_6 ", "Manganese", 0.003},   {"INFANT_7_12 ", "Iron", 11},
                   {"CHILD_1_3", "Calcium", 700},         {"CHILD_4_8", "VitaminA", 1333},
                   {"MALE_9_13", "Magnesium", 240},       {"MALE_14_18", "Zinc", 11},
                   {"MALE_19_30", "VitaminC", 90},        {"MALE_31_50", "Selenium", 0.055},
                   {"MALE_51_70", "VitaminB6", 1.7},      {"MALE_71_999", "Calcium", 1200},
                   {"FEMALE_9_13", "Manganese", 1.6},     {"FEMALE_14_18", "Iron", 15},
                   {"FEMALE_19_30", "Magnesium", 310},    {"FEMALE_31_50", "Iron", 18},
                   {"FEMALE_51_70", "Iron", 8},           {"FEMALE_71_999", "VitaminB6", 1.5},
                   {"LACTATION_0_18", "VitaminA", 4000},  {"LACTATION_19_30", "Copper", 1.3},
                   {"LACTATION_31_999", "Iron", 9},       {"PREGNANCY_0_18", "Iron", 27},
                   {"PREGNANCY_19_30", "VitaminA", 2567}, {"PREGNANCY_31_999", "Folate", 600}};
    SQLite::Database users(Built("users.mdb").toStdString());
    for (const auto& figure : figures) {
        SQLite::Statement row(users, std::string("SELECT ") + figure.column +
                                         " FROM RDI WHERE Profile = '" + figure.key + "'");
        ASSERT_TRUE(row.executeStep()) << figure.key;
        EXPECT_EQ(row.getColumn(0).getDouble(), figure.value) << figure.key << figure.column;
    }
}

TEST_F(DeliveredDatabasesTest, NoJournalIsLeftBesideTheFiles) {
    CopyBuilt();
    Update();
    QDir(Folder()).remove(QStringLiteral("users.mdb"));
    Update();
    EXPECT_EQ(QDir(Folder()).entryList(QDir::Files),
              (QStringList{QStringLiteral("foods.mdb"), QStringLiteral("users.mdb")}));
}

TEST_F(DeliveredDatabasesTest, BuildMakesFilesThatTheProgramOpens) {
    DeliveredDatabases(DataFolder).Build(Folder());
    Connection users, foods;
    users.Open(UsersPath(), DatabaseKind::Users);
    foods.Open(FoodsPath(), DatabaseKind::Foods);
    EXPECT_EQ(users.state(), Connection::Opened);
    EXPECT_EQ(foods.state(), Connection::Opened);
}

TEST_F(DeliveredDatabasesTest, UpdateReplacesStockFoodsAndLeavesCustomFoodsAlone) {
    CopyBuilt();
    Change(FoodsPath(), "UPDATE FOODS SET FoodName = 'Old name' WHERE ID = 23508;"
                        "UPDATE FOODS SET ID = 5, FoodName = 'Withdrawn' WHERE ID = 16096;"
                        "INSERT INTO FOODS (ID, FoodName, Calories) VALUES (23509, 'My soup', 77)");
    Update();
    EXPECT_EQ(Ask(FoodsPath(), "SELECT FoodName FROM FOODS WHERE ID = 23508"),
              QStringLiteral("Turtle, green, raw"));
    EXPECT_EQ(Ask(FoodsPath(), "SELECT FoodName FROM FOODS WHERE ID = 16096"),
              QStringLiteral("Butter, salted"));
    EXPECT_EQ(Ask(FoodsPath(),
                  "SELECT FoodName || CAST(Calories AS INTEGER) FROM FOODS WHERE ID = 23509"),
              QStringLiteral("My soup77"));
    EXPECT_EQ(Ask(FoodsPath(), "SELECT COUNT(*) FROM FOODS"), QStringLiteral("7413"));
}

TEST_F(DeliveredDatabasesTest, UpdateLeavesAFileThatHoldsTheDeliveredFoodsAsItIs) {
    CopyBuilt();
    Change(FoodsPath(), "INSERT INTO FOODS (ID, FoodName, Calories) VALUES (23509, 'My soup', 77)");
    const QByteArray before = Bytes(FoodsPath());
    Update();
    EXPECT_EQ(Bytes(FoodsPath()), before);
}

TEST_F(DeliveredDatabasesTest, UpdateSeesEveryChangeOfAStockFood) {
    CopyBuilt();
    for (const char* change :
         {"UPDATE FOODS SET Zinc = NULL WHERE ID = 16096", "DELETE FROM FOODS WHERE ID = 16096",
          "INSERT INTO FOODS (ID, FoodName) VALUES (5, 'Withdrawn')"}) {
        Change(FoodsPath(), change);
        Update();
        EXPECT_EQ(Ask(FoodsPath(), "SELECT Zinc FROM FOODS WHERE ID = 16096"),
                  Ask(Built("foods.mdb"), "SELECT Zinc FROM FOODS WHERE ID = 16096"))
            << change;
        EXPECT_EQ(Ask(FoodsPath(), "SELECT COUNT(*) FROM FOODS"), QStringLiteral("7412")) << change;
    }
}

TEST_F(DeliveredDatabasesTest, UpdateNeverTouchesAnExistingUsersFile) {
    CopyBuilt();
    Change(UsersPath(), "INSERT INTO profiles (UserName) VALUES ('Anna')");
    const QByteArray before = Bytes(UsersPath());
    Update();
    EXPECT_EQ(Bytes(UsersPath()), before);
}

TEST_F(DeliveredDatabasesTest, UpdateLeavesEvenADamagedUsersFileAsItIs) {
    CopyBuilt();
    Put(UsersPath(), "not a database");
    Update();
    EXPECT_EQ(Bytes(UsersPath()), QByteArray("not a database"));
}

TEST_F(DeliveredDatabasesTest, UpdateMakesWhatIsMissing) {
    Update();
    EXPECT_EQ(Ask(UsersPath(), "SELECT COUNT(*) FROM RDI"), QStringLiteral("22"));
    EXPECT_EQ(Ask(FoodsPath(), "SELECT COUNT(*) FROM FOODS"), QStringLiteral("7412"));
}

TEST_F(DeliveredDatabasesTest, DamagedFoodsFileIsRefusedAndLeftAsItIs) {
    Put(FoodsPath(), "not a database");
    EXPECT_THROW(Update(), RuntimeError);
    EXPECT_EQ(Bytes(FoodsPath()), QByteArray("not a database"));
}

TEST_F(DeliveredDatabasesTest, FailedUpdateLeavesTheFoodsAsTheyWere) {
    CopyBuilt();
    QDir(Folder()).mkdir(QStringLiteral("data"));
    Put(Folder() + QStringLiteral("/data/foods.tsv"), "ID\tNoSuchColumn\n1\t2\n");
    EXPECT_THROW(DeliveredDatabases(Folder() + QStringLiteral("/data")).Update(Folder()),
                 RuntimeError);
    EXPECT_EQ(Ask(FoodsPath(), "SELECT COUNT(*) FROM FOODS"), QStringLiteral("7412"));
}

TEST_F(DeliveredDatabasesTest, TheIndexOfNamesFitsTheDeliveredAndTheUpdatedFoods) {
    CopyBuilt();
    for (const char* change : {"SELECT 1", "UPDATE FOODS SET FoodName = 'Turtle' WHERE ID = 23508",
                               "DELETE FROM FOODS WHERE ID < 20000", "DROP TABLE FOODS_Trigrams"}) {
        SCOPED_TRACE(change);
        Change(FoodsPath(), change);
        Update();
        SQLite::Database foods(FoodsPath().toStdString(), SQLite::OPEN_READONLY);
        EXPECT_TRUE(NameIndex::Answers(foods));
        EXPECT_TRUE(NameIndex::Fits(foods));
    }
}
