#include "StoreTest.h"

#include "store/NamedRows.h"

class NamedRowsTest : public StoreTest {
protected:
    QList<NamedKey> Recipes() {
        Recordset rows(users_, QStringLiteral("SELECT RecipeName, RecipeID FROM Recipes"));
        return NamedRows::Sorted(rows);
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
