#include "StoreTest.h"

#include "store/NamedRows.h"

class NamedRowsTest : public StoreTest {
protected:
    QList<NamedKey> Recipes() {
        return NamedRows::Sorted(users_,
                                 QStringLiteral("SELECT RecipeName, RecipeID FROM Recipes"));
    }
};

TEST_F(NamedRowsTest, AnEmptySetGivesNone) {
    EXPECT_TRUE(Recipes().isEmpty());
}

TEST_F(NamedRowsTest, ARowWithAKeyBeyondAWholeNumberIsSkipped) {
    Run(users_, "INSERT INTO Recipes (RecipeID, RecipeName) VALUES (2147483648, 'a'), (1, 'b')");
    ASSERT_EQ(Recipes().size(), 1);
    EXPECT_EQ(Recipes().first().key, 1);
}

TEST_F(NamedRowsTest, EachRowGivesItsNameAndKeyInTheOrderOfTheNames) {
    Run(users_, "INSERT INTO Recipes (RecipeID, RecipeName) VALUES (7, 'Zebra'), (8, 'Äpfel'), "
                "(9, 'apple'), (10, NULL)");
    QStringList names;
    QList<qint32> keys;
    for (const NamedKey& recipe : Recipes()) {
        names << recipe.name;
        keys << recipe.key;
    }
    EXPECT_EQ(names, QStringList({"", "apple", "Äpfel", "Zebra"}));
    EXPECT_EQ(keys, QList<qint32>({10, 9, 8, 7}));
}

TEST_F(NamedRowsTest, ANameIsTheTextOfAnyValueAndAKeyIsAWholeNumberOf32Bits) {
    const QList<NamedKey> named = NamedRows::Sorted(
        users_, "SELECT 'a', -2147483648 UNION ALL SELECT 'b', 2147483647 UNION ALL "
                "SELECT 'c', 7.0 UNION ALL SELECT 'd', '7' UNION ALL SELECT 'e', NULL UNION ALL "
                "SELECT CAST(x'61C362' AS TEXT), 1 UNION ALL SELECT 15, 2");
    QStringList names;
    for (const NamedKey& one : named)
        names << one.name;
    EXPECT_EQ(names, QStringList({"15", "a", "a\uFFFDb", "b"}));
    EXPECT_EQ(named.at(1).key, -2147483647 - 1);
    EXPECT_EQ(named.at(3).key, 2147483647);
}
