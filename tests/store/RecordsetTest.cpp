#include "StoreTest.h"

#include "store/Schema.h"
#include "store/StoreError.h"

#include <SQLiteCpp/SQLiteCpp.h>

#include <sqlite3.h>

#include <cmath>
#include <limits>

namespace {
constexpr auto AllWeights = "SELECT * FROM USER_WEIGHTS";
constexpr int Statement = -1;
constexpr int Denied = -23;
} // namespace

class RecordsetTest : public StoreTest {
protected:
    Recordset Read(const QString& sql) { return Recordset(users_, sql); }
    Recordset Change(const QString& sql) {
        return Recordset(users_, sql, CursorType::Dynamic, LockType::Optimistic);
    }
    Recordset ThreeWeights() {
        for (int i = 1; i <= 3; ++i)
            Run(users_,
                QStringLiteral("INSERT INTO USER_WEIGHTS VALUES (1, '2002-04-0%1', 15%1)").arg(i));
        return Change(AllWeights);
    }
    QVariant Weights() { return First(users_, "SELECT group_concat(Weight) FROM USER_WEIGHTS"); }
};

TEST_F(RecordsetTest, AnEmptySetStandsAtBothEnds) {
    Recordset set = Read("SELECT * FROM profiles");
    EXPECT_EQ(set.RecordCount(), 0);
    EXPECT_TRUE(set.AtStart());
    EXPECT_TRUE(set.AtEnd());
    set.MoveFirst();
    set.MoveLast();
    set.MoveNext();
    set.MovePrevious();
    EXPECT_TRUE(set.AtEnd());
}

TEST_F(RecordsetTest, ReadingWithoutARowFails) {
    Recordset set = Read("SELECT * FROM profiles");
    EXPECT_EQ(ErrorOf([&] { set["UID"]; }), ErrorNumber::NoCurrentRecord);
    EXPECT_EQ(ErrorOf([&] { set[0]; }), ErrorNumber::NoCurrentRecord);
}

TEST_F(RecordsetTest, ReadingBehindTheLastAndBeforeTheFirstRowFails) {
    Recordset set = ThreeWeights();
    set.MoveLast();
    set.MoveNext();
    EXPECT_TRUE(set.AtEnd());
    EXPECT_EQ(ErrorOf([&] { set["Weight"]; }), ErrorNumber::NoCurrentRecord);
    set.MoveFirst();
    set.MovePrevious();
    EXPECT_TRUE(set.AtStart());
    EXPECT_EQ(ErrorOf([&] { set["Weight"]; }), ErrorNumber::NoCurrentRecord);
}

TEST_F(RecordsetTest, MovesWalkTheRowsBothWays) {
    Recordset set = ThreeWeights();
    EXPECT_EQ(set.RecordCount(), 3);
    EXPECT_FALSE(set.AtStart());
    EXPECT_EQ(set["Weight"].Number(), 151);
    set.MoveNext();
    EXPECT_EQ(set["Weight"].Number(), 152);
    set.MoveNext();
    set.MoveNext();
    EXPECT_TRUE(set.AtEnd());
    set.MovePrevious();
    EXPECT_EQ(set["Weight"].Number(), 153);
    set.MoveFirst();
    EXPECT_EQ(set["Weight"].Number(), 151);
    set.MoveLast();
    EXPECT_EQ(set["Weight"].Number(), 153);
}

TEST_F(RecordsetTest, MovingPastTheEndsStaysThere) {
    Recordset set = ThreeWeights();
    for (int i = 0; i < 9; ++i)
        set.MoveNext();
    set.MovePrevious();
    EXPECT_EQ(set["Weight"].Number(), 153);
    for (int i = 0; i < 9; ++i)
        set.MovePrevious();
    set.MoveNext();
    EXPECT_EQ(set["Weight"].Number(), 151);
}

TEST_F(RecordsetTest, AStaticSetIsASnapshot) {
    ThreeWeights();
    Recordset set = Read(AllWeights);
    Run(users_, "DELETE FROM USER_WEIGHTS WHERE Weight > 151");
    Run(users_, "UPDATE USER_WEIGHTS SET Weight = 1");
    EXPECT_EQ(set.RecordCount(), 3);
    EXPECT_EQ(set["Weight"].Number(), 151);
}

TEST_F(RecordsetTest, ColumnsAreFoundInEveryFormOfTheirNames) {
    const struct {
        const char* table;
        std::vector<const char*> forms;
    } cases[] = {
        {"profiles", {"gender", "Gender", "GENDER"}},
        {"Profiles", {"flagsodium", "FlagSodium"}},
        {"PROFILES", {"flagcholesterol", "FlagCholesterol"}},
        {"profiles", {"current_weight", "Current_Weight"}},
        {"profiles", {"ASH", "Ash"}},
        {"profiles", {"water", "Water"}},
        {"profiles", {"sodium", "Sodium"}},
        {"profiles", {"protein", "Protein"}},
        {"user_foods", {"UDate", "UDATE"}},
        {"USER_FOODS", {"FoodName", "FOODNAME"}},
        {"User_Foods", {"Serving", "SERVING"}},
        {"Recipes", {"RECIPENAME", "RecipeName"}},
        {"recipes", {"RECIPENAME", "RecipeName"}},
        {"Ingredients", {"Ash", "ASH"}},
        {"ingredients", {"Water", "water"}},
    };
    for (const auto& [table, forms] : cases)
        Run(users_, QStringLiteral("INSERT INTO %1 (%2) VALUES (7)").arg(table, forms.front()));
    for (const auto& [table, forms] : cases)
        for (const char* form : forms) {
            const QString where = QStringLiteral("SELECT %1 FROM %2 WHERE %1 = 7").arg(form, table);
            EXPECT_FALSE(Read(where).AtEnd()) << table << '.' << form;
            Recordset all = Read(QStringLiteral("SELECT * FROM %1 WHERE %2 = 7").arg(table, form));
            ASSERT_FALSE(all.AtEnd());
            EXPECT_EQ(all[form].Value(), all[forms.front()].Value()) << table << '.' << form;
        }
}

TEST_F(RecordsetTest, TheCatalogueIsOneTableUnderThreeForms) {
    AddFood(1, "Rye bread");
    for (const char* form : {"FOODS", "foods", "Foods"})
        EXPECT_EQ(
            Recordset(foods_, QStringLiteral("SELECT FOODNAME FROM ") + form)["foodname"].Text(),
            "Rye bread");
}

TEST_F(RecordsetTest, UnknownColumnsFail) {
    Recordset set = ThreeWeights();
    EXPECT_EQ(ErrorOf([&] { set["Height"]; }), ErrorNumber::NoSuchColumn);
    EXPECT_EQ(ErrorOf([&] { set[QString()]; }), ErrorNumber::NoSuchColumn);
    EXPECT_EQ(ErrorOf([&] { set[3]; }), ErrorNumber::NoSuchColumn);
    EXPECT_EQ(ErrorOf([&] { set[-1]; }), ErrorNumber::NoSuchColumn);
    EXPECT_EQ(ErrorOf([&] { set.FieldName(3); }), ErrorNumber::NoSuchColumn);
    EXPECT_EQ(ErrorOf([&] { set.Set("Height", 1); }), ErrorNumber::NoSuchColumn);
    EXPECT_EQ(ErrorOf([&] { set.Set(3, 1); }), ErrorNumber::NoSuchColumn);
}

TEST_F(RecordsetTest, TheRowHandleIsHiddenFromAnUpdatableSet) {
    Recordset set = ThreeWeights();
    EXPECT_EQ(set.FieldCount(), 3);
    EXPECT_EQ(set.FieldName(0), "UID");
    EXPECT_EQ(set[2].Name(), "Weight");
    EXPECT_EQ(ErrorOf([&] { set["__row__"]; }), ErrorNumber::NoSuchColumn);
}

TEST_F(RecordsetTest, PositionsOneToThirtyOneAreTheNutrients) {
    Recordset log = Change("SELECT * FROM USER_FOODS WHERE UID =1");
    EXPECT_EQ(log.FieldName(0), "RecID");
    EXPECT_EQ(log.FieldName(1), "VitaminC");
    EXPECT_EQ(log.FieldName(31), "Cholesterol");
    EXPECT_EQ(log.FieldName(32), "UID");
}

TEST_F(RecordsetTest, ASumOverNoRowsIsOneRowOfNulls) {
    Recordset set = Read("SELECT Sum(USER_FOODS.Protein) AS [Protein], Sum(USER_FOODS.carbs) AS "
                         "[carbs] FROM USER_FOODS  WHERE UID=1 AND UDate Between #1/1/2002# AND "
                         "#12/31/2002#");
    EXPECT_EQ(set.RecordCount(), 1);
    EXPECT_TRUE(set["protein"].IsNull());
    EXPECT_TRUE(set["carbs"].IsNull());
}

TEST_F(RecordsetTest, SumsAreReadByTheirAliases) {
    AddLog(1, "2002-04-03", "Breakfast", 100.25);
    AddLog(1, "2002-04-03", "Lunch", 50);
    Recordset set =
        Read("SELECT Sum(USER_FOODS.Calories) AS [Calories] FROM USER_FOODS WHERE UID=1");
    EXPECT_DOUBLE_EQ(set["calories"].Number(), 150.25);
    EXPECT_DOUBLE_EQ(set[0].Number(), 150.25);
}

TEST_F(RecordsetTest, NullIsNullAndItsConversionsFail) {
    AddLog(1, "2002-04-03", "Lunch", 1);
    const Recordset set = Read("SELECT * FROM USER_FOODS");
    const Field field = set["Protein"];
    EXPECT_TRUE(field.IsNull());
    EXPECT_FALSE(field.Value().isValid());
    EXPECT_EQ(field.Text(), "");
    EXPECT_EQ(field.NumberOr(4.5), 4.5);
    EXPECT_EQ(ErrorOf([&] { field.Number(); }), ErrorNumber::InvalidUseOfNull);
    EXPECT_EQ(ErrorOf([&] { field.Integer(); }), ErrorNumber::InvalidUseOfNull);
    EXPECT_EQ(ErrorOf([&] { field.Boolean(); }), ErrorNumber::InvalidUseOfNull);
    EXPECT_EQ(ErrorOf([&] { field.Date(); }), ErrorNumber::InvalidUseOfNull);
}

TEST_F(RecordsetTest, ANewRowIsCurrentAndItsKeyIsReadAfterUpdate) {
    Recordset set = Change("SELECT * FROM profiles");
    set.AddNew();
    set.Set("UserName", "Anna");
    set.Set("Age", 31.5);
    EXPECT_TRUE(set["UID"].IsNull());
    EXPECT_EQ(set["username"].Text(), "Anna");
    set.Update();
    EXPECT_EQ(set["UID"].Integer(), 1);
    EXPECT_EQ(set["UserName"].Text(), "Anna");
    EXPECT_FALSE(set["flagsodium"].Boolean());
    EXPECT_TRUE(set["height"].IsNull());
    EXPECT_EQ(set.RecordCount(), 1);
    EXPECT_EQ(First(users_, "SELECT age FROM profiles WHERE UserName = 'Anna'"), 31.5);
}

TEST_F(RecordsetTest, NothingIsWrittenBeforeUpdate) {
    Recordset set = Change("SELECT * FROM profiles");
    set.AddNew();
    set.Set("UserName", "Anna");
    EXPECT_EQ(First(users_, "SELECT count(*) FROM profiles"), 0);
    set.Close();
    EXPECT_EQ(First(users_, "SELECT count(*) FROM profiles"), 0);
}

TEST_F(RecordsetTest, AMoveDropsWhatWasNotUpdated) {
    Recordset set = ThreeWeights();
    set.Set("Weight", 99);
    set.MoveNext();
    set.MovePrevious();
    EXPECT_EQ(set["Weight"].Number(), 151);
    set.AddNew();
    set.Set("Weight", 99);
    set.MoveFirst();
    set.Update();
    EXPECT_EQ(Weights(), "151.0,152.0,153.0");
}

TEST_F(RecordsetTest, ANewRowWithoutValuesHoldsTheDefaults) {
    Recordset set = Change("SELECT * FROM Recipes");
    set.AddNew();
    set.Update();
    EXPECT_EQ(set["RecipeID"].Integer(), 1);
    EXPECT_TRUE(set["RecipeName"].IsNull());
}

TEST_F(RecordsetTest, SeveralRowsCanBeAppendedToOneSet) {
    Recordset set = Change(AllWeights);
    for (int i = 1; i <= 3; ++i) {
        set.AddNew();
        set.Set("Weight", i);
        set.Update();
    }
    EXPECT_EQ(set.RecordCount(), 3);
    set.MoveFirst();
    EXPECT_EQ(set["Weight"].Integer(), 1);
    EXPECT_EQ(Weights(), "1.0,2.0,3.0");
}

TEST_F(RecordsetTest, MoveLastOnAllRecipesStandsOnTheGreatestKey) {
    for (const char* name : {"Zebra cake", "Apple pie", "Mousse"}) {
        Recordset set = Change("SELECT * FROM Recipes");
        set.AddNew();
        set.Set("RecipeName", name);
        set.Update();
        set.MoveLast();
        EXPECT_EQ(set["RecipeName"].Text(), name);
        EXPECT_EQ(set["RecipeID"].Value(), First(users_, "SELECT max(RecipeID) FROM Recipes"));
    }
    Recordset again = Change("SELECT * FROM Recipes");
    again.MoveLast();
    EXPECT_EQ(again["RecipeName"].Text(), "Mousse");
}

TEST_F(RecordsetTest, GeneratedKeysAreNeverGivenOutTwice) {
    for (const char* table : {"profiles", "USER_FOODS", "Recipes", "Ingredients"}) {
        Recordset set = Change(QStringLiteral("SELECT * FROM ") + table);
        for (int key = 1; key <= 3; ++key) {
            set.AddNew();
            set.Update();
            EXPECT_EQ(set[0].Integer(), key) << table;
            set.Delete();
        }
    }
}

TEST_F(RecordsetTest, TheFirstCustomFoodFollowsTheLastStockFood) {
    AddFood(23507, "Salt");
    AddFood(23508, "Vinegar");
    const auto add = [this] {
        Recordset set(foods_, "SELECT * FROM foods WHERE ID >= 23508", CursorType::Dynamic,
                      LockType::Optimistic);
        set.MoveLast();
        const qint32 id = set["ID"].Integer() + 1;
        set.AddNew();
        set.Set("ID", id);
        set.Update();
        return set["ID"].Integer();
    };
    EXPECT_EQ(add(), 23509);
    EXPECT_EQ(add(), 23510);
    Run(foods_, "DELETE FROM FOODS WHERE ID = 23510");
    EXPECT_EQ(add(), 23510);
}

TEST_F(RecordsetTest, AKeyGivenTwiceIsRefused) {
    AddFood(23509, "Mine");
    Recordset set(foods_, "SELECT * FROM foods", CursorType::Dynamic, LockType::Optimistic);
    set.AddNew();
    set.Set("ID", 23509);
    EXPECT_EQ(ErrorOf([&] { set.Update(); }), -19);
    EXPECT_EQ(First(foods_, "SELECT count(*) FROM FOODS"), 1);
    set.Set("ID", 23510);
    set.Update();
    EXPECT_EQ(First(foods_, "SELECT count(*) FROM FOODS"), 2);
}

TEST_F(RecordsetTest, UpdateTouchesExactlyTheCurrentRow) {
    Recordset set = ThreeWeights();
    set.MoveNext();
    set.Set("Weight", 99.5);
    EXPECT_EQ(set["Weight"].Number(), 99.5);
    set.Update();
    EXPECT_EQ(set["Weight"].Number(), 99.5);
    EXPECT_EQ(Weights(), "151.0,99.5,153.0");
    set.MovePrevious();
    EXPECT_EQ(set["Weight"].Number(), 151);
}

TEST_F(RecordsetTest, UpdateTouchesOneOfTwoEqualRows) {
    Run(users_, "INSERT INTO USER_WEIGHTS VALUES (1, '2002-04-03', 150), (1, '2002-04-03', 150)");
    Recordset set = Change(AllWeights);
    set.Set("Weight", 160);
    set.Update();
    EXPECT_EQ(Weights(), "160.0,150.0");
}

TEST_F(RecordsetTest, UpdateWritesOnlyTheColumnsThatWereSet) {
    Recordset set = ThreeWeights();
    Run(users_, "UPDATE USER_WEIGHTS SET UID = 9");
    set.Set("Weight", 99);
    set.Update();
    EXPECT_EQ(First(users_, "SELECT UID FROM USER_WEIGHTS WHERE Weight = 99"), 9);
    EXPECT_EQ(set["UID"].Integer(), 9);
}

TEST_F(RecordsetTest, AKeyCanBeChanged) {
    AddFood(23509, "Mine");
    Recordset set(foods_, "SELECT * FROM foods", CursorType::Dynamic, LockType::Optimistic);
    set.Set("ID", 23600);
    set.Update();
    set.Set("FoodName", "Yours");
    set.Update();
    EXPECT_EQ(First(foods_, "SELECT FoodName FROM FOODS WHERE ID = 23600"), "Yours");
}

TEST_F(RecordsetTest, UpdateWithoutAChangeDoesNothing) {
    Recordset set = ThreeWeights();
    set.Update();
    EXPECT_EQ(Weights(), "151.0,152.0,153.0");
    Recordset empty = Change("SELECT * FROM profiles");
    empty.Update();
    EXPECT_EQ(First(users_, "SELECT count(*) FROM profiles"), 0);
}

TEST_F(RecordsetTest, DeleteTouchesExactlyTheCurrentRow) {
    Recordset set = ThreeWeights();
    set.MoveNext();
    set.Delete();
    EXPECT_EQ(Weights(), "151.0,153.0");
    EXPECT_EQ(set.RecordCount(), 2);
    EXPECT_EQ(ErrorOf([&] { set["Weight"]; }), ErrorNumber::NoCurrentRecord);
    EXPECT_EQ(ErrorOf([&] { set.Set("Weight", 1); }), ErrorNumber::NoCurrentRecord);
    EXPECT_EQ(ErrorOf([&] { set.Delete(); }), ErrorNumber::NoCurrentRecord);
    set.MoveNext();
    EXPECT_EQ(set["Weight"].Number(), 153);
}

TEST_F(RecordsetTest, MovingBackFromADeletedRowReachesTheOneBefore) {
    Recordset set = ThreeWeights();
    set.MoveNext();
    set.Delete();
    set.MovePrevious();
    EXPECT_EQ(set["Weight"].Number(), 151);
}

TEST_F(RecordsetTest, UpdateAfterDeleteIsHarmless) {
    Recordset set = ThreeWeights();
    set.Delete();
    set.Update();
    EXPECT_EQ(Weights(), "152.0,153.0");
}

TEST_F(RecordsetTest, ADayIsClearedRowByRow) {
    Recordset set = ThreeWeights();
    while (!set.AtEnd()) {
        set.Delete();
        set.MoveNext();
    }
    EXPECT_EQ(set.RecordCount(), 0);
    EXPECT_EQ(First(users_, "SELECT count(*) FROM USER_WEIGHTS"), 0);
}

TEST_F(RecordsetTest, ClearingBackwardsWorksToo) {
    Recordset set = ThreeWeights();
    set.MoveLast();
    while (!set.AtStart()) {
        set.Delete();
        set.MovePrevious();
    }
    EXPECT_EQ(First(users_, "SELECT count(*) FROM USER_WEIGHTS"), 0);
}

TEST_F(RecordsetTest, ARowThatIsGoneCannotBeChanged) {
    Recordset set = ThreeWeights();
    Run(users_, "DELETE FROM USER_WEIGHTS");
    set.Set("Weight", 1);
    EXPECT_EQ(ErrorOf([&] { set.Update(); }), ErrorNumber::NoCurrentRecord);
    EXPECT_EQ(ErrorOf([&] { set.Delete(); }), ErrorNumber::NoCurrentRecord);
    EXPECT_EQ(First(users_, "SELECT count(*) FROM USER_WEIGHTS"), 0);
}

TEST_F(RecordsetTest, ReadOnlySetsDoNotChange) {
    ThreeWeights();
    Recordset set(users_, AllWeights, CursorType::Static, LockType::ReadOnly);
    EXPECT_EQ(ErrorOf([&] { set.Set("Weight", 1); }), ErrorNumber::CannotBeChanged);
    EXPECT_EQ(ErrorOf([&] { set.AddNew(); }), ErrorNumber::CannotBeChanged);
    EXPECT_EQ(ErrorOf([&] { set.Delete(); }), ErrorNumber::CannotBeChanged);
    set.Update();
    EXPECT_EQ(Weights(), "151.0,152.0,153.0");
}

TEST_F(RecordsetTest, RowsThatAreNotOfOneTableDoNotChange) {
    ThreeWeights();
    Recordset set = Change("SELECT Sum(Weight) AS [Weight] FROM USER_WEIGHTS");
    EXPECT_EQ(set["Weight"].Number(), 456);
    EXPECT_EQ(ErrorOf([&] { set.Set("Weight", 1); }), ErrorNumber::CannotBeChanged);
    EXPECT_EQ(ErrorOf([&] { set.AddNew(); }), ErrorNumber::CannotBeChanged);
}

TEST_F(RecordsetTest, EveryCursorAndLockInUseOpens) {
    const std::pair<CursorType, LockType> pairs[] = {
        {CursorType::Static, LockType::ReadOnly},    {CursorType::Dynamic, LockType::Optimistic},
        {CursorType::Keyset, LockType::Optimistic},  {CursorType::Dynamic, LockType::Pessimistic},
        {CursorType::Keyset, LockType::Pessimistic}, {CursorType::Static, LockType::Optimistic},
    };
    ThreeWeights();
    for (const auto& [cursor, lock] : pairs) {
        Recordset set(users_, AllWeights, cursor, lock);
        EXPECT_EQ(set.RecordCount(), 3);
        if (lock == LockType::ReadOnly)
            continue;
        set.Set("Weight", set["Weight"].Number() + 1);
        set.Update();
    }
    EXPECT_EQ(Weights(), "156.0,152.0,153.0");
}

TEST_F(RecordsetTest, AClosedSetFailsOnEveryUse) {
    Recordset set;
    EXPECT_FALSE(set.IsOpen());
    const std::function<void()> uses[] = {
        [&] { set.RecordCount(); },  [&] { set.AtEnd(); },
        [&] { set.AtStart(); },      [&] { set.MoveFirst(); },
        [&] { set.MoveLast(); },     [&] { set.MoveNext(); },
        [&] { set.MovePrevious(); }, [&] { set.FieldCount(); },
        [&] { set.FieldName(0); },   [&] { set[0]; },
        [&] { set["a"]; },           [&] { set.AddNew(); },
        [&] { set.Set(0, 1); },      [&] { set.Set("a", 1); },
        [&] { set.Update(); },       [&] { set.Delete(); },
    };
    for (const auto& use : uses)
        EXPECT_EQ(ErrorOf(use), ErrorNumber::NotOpen);
    set.Close();
    set.Open(users_, AllWeights);
    EXPECT_TRUE(set.IsOpen());
    set.Close();
    EXPECT_EQ(ErrorOf([&] { set.RecordCount(); }), ErrorNumber::NotOpen);
}

TEST_F(RecordsetTest, OpeningAgainReplacesTheRows) {
    Recordset set = ThreeWeights();
    set.Open(users_, "SELECT * FROM profiles");
    EXPECT_EQ(set.RecordCount(), 0);
    Recordset moved = std::move(set);
    EXPECT_TRUE(moved.IsOpen());
    set = Read(AllWeights);
    EXPECT_EQ(set.RecordCount(), 3);
}

TEST_F(RecordsetTest, ASetOnAClosedConnectionFails) {
    Recordset set = ThreeWeights();
    users_.Close();
    EXPECT_EQ(set["Weight"].Number(), 151);
    set.Set("Weight", 1);
    EXPECT_EQ(ErrorOf([&] { set.Update(); }), ErrorNumber::NotOpen);
    EXPECT_EQ(ErrorOf([&] { Read(AllWeights); }), ErrorNumber::NotOpen);
}

TEST_F(RecordsetTest, AStatementThatCannotBeReadIsRefused) {
    for (const char* sql :
         {"", " ", ";", "SELECT", "SELEC * FROM profiles", "SELECT * FROM nowhere",
          "SELECT nothing FROM profiles", "SELECT * FROM profiles WHERE UserName = 'O'Brien'",
          "SELECT * FROM profiles WHERE UserName = ''' AND UID <>1",
          "SELECT * FROM USER_WEIGHTS WHERE UDate = ##",
          "SELECT * FROM USER_WEIGHTS WHERE UDate = #13/13/2002#",
          "SELECT * FROM USER_WEIGHTS WHERE UDate = #2/29/2001#"})
        EXPECT_EQ(ErrorOf([&] { Read(sql); }), Statement) << sql;
}

TEST_F(RecordsetTest, TheErrorNamesTheFile) {
    const QString text = ErrorTextOf([&] { Read("SELECT * FROM nowhere"); });
    EXPECT_TRUE(text.contains("users.mdb")) << text.toStdString();
    EXPECT_TRUE(text.contains("nowhere")) << text.toStdString();
}

TEST_F(RecordsetTest, TheErrorQuotesNoMoreThanTheBeginningOfALongText) {
    const QString text = ErrorTextOf(
        [&] { Read("SELECT * FROM profiles WHERE UserName = '" + QString(10000, u'n')); });
    EXPECT_TRUE(text.contains("users.mdb")) << text.toStdString();
    EXPECT_TRUE(text.contains("'nnnn")) << text.toStdString();
    EXPECT_LT(text.size(), 300);
}

TEST_F(RecordsetTest, AnUnknownNameInDoubleQuotesIsNotATextAnywhere) {
    for (const char* statement : {"SELECT count(*) FROM profiles WHERE \"NoSuch\" = 'NoSuch'",
                                  "CREATE INDEX Odd ON profiles (\"NoSuch\" || 'a')"})
        EXPECT_THROW(users_.Raw().exec(statement), SQLite::Exception) << statement;
}

TEST_F(RecordsetTest, ASecondStatementIsRefusedBeforeTheFirstRuns) {
    ThreeWeights();
    for (const char* sql : {"SELECT * FROM USER_WEIGHTS; DELETE FROM USER_WEIGHTS",
                            "SELECT * FROM USER_WEIGHTS;DROP TABLE USER_WEIGHTS;",
                            "SELECT TOP 1 * FROM USER_WEIGHTS; SELECT 1", "SELECT 1;;x"}) {
        EXPECT_EQ(ErrorOf([&] { Read(sql); }), Statement) << sql;
        EXPECT_EQ(ErrorOf([&] { Change(sql); }), Statement) << sql;
    }
    EXPECT_EQ(Weights(), "151.0,152.0,153.0");
}

TEST_F(RecordsetTest, ASemicolonAtTheEndIsAllowed) {
    ThreeWeights();
    EXPECT_EQ(Read("SELECT * FROM USER_WEIGHTS;").RecordCount(), 3);
    EXPECT_EQ(Read("SELECT TOP 2 * FROM USER_WEIGHTS ; \n").RecordCount(), 2);
    EXPECT_EQ(Read("SELECT * FROM USER_WEIGHTS;\t\v\r\n").RecordCount(), 3);
}

TEST_F(RecordsetTest, AStatementThatWritesIsRefusedUnderEveryLock) {
    ThreeWeights();
    for (const char* sql :
         {"DELETE FROM USER_WEIGHTS",
          "UPDATE USER_WEIGHTS SET Weight = 0",
          "INSERT INTO USER_WEIGHTS VALUES (1, '2002-04-04', 1)",
          "UPDATE USER_WEIGHTS SET Weight = 0 RETURNING *",
          "DROP TABLE USER_WEIGHTS",
          "CREATE TABLE t (a)",
          "CREATE TEMP TABLE t (a)",
          "CREATE INDEX i ON profiles (age)",
          "ALTER TABLE profiles ADD COLUMN x",
          "ALTER TABLE profiles RENAME TO x",
          "ATTACH DATABASE ':memory:' AS other",
          "ATTACH '/etc/passwd' AS p",
          "DETACH main",
          "PRAGMA journal_mode = DELETE",
          "PRAGMA user_version = 9",
          "PRAGMA table_info(profiles)",
          "BEGIN",
          "COMMIT",
          "SAVEPOINT s",
          "REINDEX",
          "ANALYZE",
          "VACUUM",
          "VACUUM INTO ':memory:'",
          "CREATE VIRTUAL TABLE v USING fts5(a)",
          "CREATE VIEW v AS SELECT 1",
          "CREATE TRIGGER t AFTER INSERT ON profiles BEGIN DELETE FROM profiles; END"}) {
        EXPECT_EQ(ErrorOf([&] { Read(sql); }), Denied) << sql;
        EXPECT_EQ(ErrorOf([&] { Change(sql); }), Denied) << sql;
    }
    EXPECT_EQ(Weights(), "151.0,152.0,153.0");
    EXPECT_EQ(First(users_, "PRAGMA user_version"), Schema::Version);
}

TEST_F(RecordsetTest, PragmasAreRefusedAsTablesToo) {
    EXPECT_NE(ErrorOf([&] { Read("SELECT * FROM pragma_journal_mode"); }), 0);
    EXPECT_NE(ErrorOf([&] { Read("SELECT load_extension('x')"); }), 0);
}

TEST_F(RecordsetTest, AStatementWithANulIsRefusedAndNotCut) {
    ThreeWeights();
    QString sql = QStringLiteral("SELECT * FROM USER_WEIGHTS");
    sql += QChar(0);
    EXPECT_EQ(ErrorOf([&] { Read(sql); }), Statement);
    sql += QStringLiteral(" WHERE Weight = 152");
    EXPECT_EQ(ErrorOf([&] { Read(sql); }), Statement);
    const QString inText =
        QStringLiteral("SELECT * FROM profiles WHERE UserName = 'a") + QChar(0) + u"b'";
    EXPECT_EQ(ErrorOf([&] { Read(inText); }), Statement);
}

TEST_F(RecordsetTest, AnUnknownNameInDoubleQuotesIsNoText) {
    EXPECT_EQ(ErrorOf([&] { Read("SELECT * FROM profiles WHERE UserName = \"Anna\""); }),
              Statement);
    EXPECT_EQ(Read("SELECT \"UserName\" FROM \"profiles\"").RecordCount(), 0);
}

TEST_F(RecordsetTest, RefusedStatementsLeaveTheConnectionWorking) {
    for (int i = 0; i < 100; ++i)
        ErrorOf([&] { Read(QStringLiteral("SELECT * FROM nowhere%1").arg(i)); });
    EXPECT_EQ(ThreeWeights().RecordCount(), 3);
}

TEST_F(RecordsetTest, RepeatedStatementsReadAnew) {
    for (int i = 0; i < 5; ++i) {
        EXPECT_EQ(Read(AllWeights).RecordCount(), i);
        Run(users_, "INSERT INTO USER_WEIGHTS VALUES (1, '2002-04-03', 150)");
    }
}

TEST_F(RecordsetTest, ManyDifferentStatementsAreForgottenInTurn) {
    Recordset first = ThreeWeights();
    for (int i = 0; i < 200; ++i)
        EXPECT_EQ(
            Read(QStringLiteral("SELECT %1 AS a, UID FROM USER_WEIGHTS").arg(i))["A"].Integer(), i);
    EXPECT_EQ(first["weight"].Number(), 151);
    EXPECT_EQ(first.FieldName(2), "Weight");
}

TEST_F(RecordsetTest, ColumnsWhoseNamesDifferInOneSignAreToldApart) {
    const Recordset set = Read("SELECT 1 AS \"a@\", 2 AS \"a`\"");
    EXPECT_EQ(set["a@"].Integer(), 1);
    EXPECT_EQ(set["a`"].Integer(), 2);
}

TEST_F(RecordsetTest, ColumnsWhoseNamesHaveOneHashAreToldApart) {
    const Recordset set = Read("SELECT 1 AS \"b[\", 2 AS az");
    EXPECT_EQ(set["b["].Integer(), 1);
    EXPECT_EQ(set["az"].Integer(), 2);
}

TEST_F(RecordsetTest, TheCaseOfAColumnsNameDoesNotMatterForAnyLetter) {
    const Recordset set = Read(u"SELECT 1 AS \"\u0100\", 2 AS \"\u0420\", 3 AS \"\u03A9\""_qs);
    EXPECT_EQ(set[u"\u0101"_qs].Integer(), 1);
    EXPECT_EQ(set[u"\u0440"_qs].Integer(), 2);
    EXPECT_EQ(set[u"\u03C9"_qs].Integer(), 3);
}

TEST_F(RecordsetTest, TwoColumnsOfOneNameGiveTheFirst) {
    Recordset set = Read("SELECT 1 AS a, 2 AS A");
    EXPECT_EQ(set["a"].Integer(), 1);
    EXPECT_EQ(set["A"].Integer(), 1);
    EXPECT_EQ(set[1].Integer(), 2);
}

TEST_F(RecordsetTest, ACommitThatFailsLeavesTheSetAsItWas) {
    Recordset set = ThreeWeights();
    sqlite3_commit_hook(
        users_.Raw().getHandle(), [](void*) { return 1; }, nullptr);
    EXPECT_LT(ErrorOf([&] { set.Delete(); }), 0);
    EXPECT_EQ(set["Weight"].Number(), 151);
    set.Set("Weight", 99);
    EXPECT_LT(ErrorOf([&] { set.Update(); }), 0);
    set.MoveFirst();
    EXPECT_EQ(set["Weight"].Number(), 151);
    set.AddNew();
    set.Set("Weight", 99);
    EXPECT_LT(ErrorOf([&] { set.Update(); }), 0);
    EXPECT_EQ(set.RecordCount(), 3);
    EXPECT_EQ(Weights(), "151.0,152.0,153.0");
    sqlite3_commit_hook(users_.Raw().getHandle(), nullptr, nullptr);
    set.Update();
    EXPECT_EQ(Weights(), "151.0,152.0,153.0,99.0");
}

TEST_F(RecordsetTest, AFullDiskIsToldAndNothingIsHalfWritten) {
    Recordset set = Change("SELECT * FROM Recipes");
    Run(users_, "PRAGMA max_page_count = 1");
    set.AddNew();
    set.Set("RecipeName", "Pie");
    set.Set("Instructions", QString(100000, u'x'));
    EXPECT_EQ(ErrorOf([&] { set.Update(); }), -13);
    EXPECT_EQ(set.RecordCount(), 0);
    EXPECT_EQ(First(users_, "SELECT count(*) FROM Recipes"), 0);
    EXPECT_EQ(First(users_, "PRAGMA integrity_check"), "ok");
}
