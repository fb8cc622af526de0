#include "recipes/TransferTest.h"

#include "recipes/RecipeBook.h"
#include "store/Connection.h"
#include "support/Cluster.h"
#include "support/ExchangeProcess.h"

#include <QRegularExpression>

#include <SQLiteCpp/SQLiteCpp.h>

/// The dialogs with the real server, on each of its two databases.
class RecipeExchangeTest : public TransferTest, public testing::WithParamInterface<const char*> {
protected:
    void SetUp() override {
        TransferTest::SetUp();
        exchange = std::make_unique<ExchangeProcess>(HALVANE_EXCHANGE_PROGRAM, Database());
        ASSERT_NE(exchange->Address(), "") << exchange->Said().toStdString();
        Server::SetAddress(exchange->Address());
        recipe = FoodsTest::AddRecipe("Crème <b>of</b> lentils & 'salt' 🍲", "1 bowl");
        UserDB().Raw().exec("UPDATE Recipes SET RecipeYield = 2.5, PrepTime = 45, "
                            "Instructions = 'Rinse.\nCook.'");
        for (int i = 1; i <= 10; ++i)
            RecipeBook::AddIngredient(recipe, Counting(QString("Food %1").arg(i), i));
        UserDB().Raw().exec("UPDATE Ingredients SET Calories = 0.1 * ID, Iron = NULL");
    }

    QString Database() const {
        if (GetParam() == std::string("postgresql"))
            return QString::fromStdString(Cluster::One().CreateDatabase());
        return Folder() + "/exchange.db";
    }

    /// Sends a recipe and gives the ID in the answer, 0 if there is none.
    qint32 Send(qint32 id, const QString& to = "friend@example.org") {
        Open(new frmSend(id, &window));
        Type("txtEmail", to);
        Type("txtFrom", "me@example.org");
        TheSeams().ShowAlert = [this](const QString& message, QObject*, bool) {
            answer = message;
            return true;
        };
        Press("cmdSend");
        static const QRegularExpression number("recipe ID (\\d+)");
        return number.match(answer).captured(1).toInt();
    }
    QString Import(const QString& id) {
        Open(new frmImport(&window));
        TheSeams().ShowAlert = [this](const QString& message, QObject*, bool) {
            answer = message;
            return true;
        };
        Type("txtRecID", id);
        Press("cmdGo");
        return answer;
    }
    QList<QVariantList> RowsOf(qint32 id) {
        QString columns;
        for (const QVariantList& row :
             HalvaneTest::Rows(UserDB(), "SELECT name FROM pragma_table_info('Ingredients')"))
            if (!QStringList({"ID", "RecipeID", "QTY"}).contains(row[0].toString()))
                columns += (columns.isEmpty() ? "" : ",") + row[0].toString();
        return HalvaneTest::Rows(UserDB(), "SELECT " + columns +
                                               " FROM Ingredients WHERE RecipeID = " +
                                               QString::number(id) + " ORDER BY ID");
    }
    QString ServingsOf(qint32 id) {
        QStringList servings;
        for (const QVariantList& row :
             HalvaneTest::Rows(UserDB(), "SELECT Serving FROM Ingredients WHERE RecipeID = " +
                                             QString::number(id) + " ORDER BY ID"))
            servings << (row[0].isNull() ? "null" : row[0].toString());
        return servings.join(u'|');
    }
    QList<QVariantList> CardOf(qint32 id) {
        return HalvaneTest::Rows(UserDB(), "SELECT RecipeName, ServingName, RecipeYield, PrepTime, "
                                           "Instructions FROM Recipes WHERE RecipeID = " +
                                               QString::number(id));
    }

    std::unique_ptr<ExchangeProcess> exchange;
    qint32 recipe = 0;
    QString answer;
};

INSTANTIATE_TEST_SUITE_P(Both, RecipeExchangeTest, testing::Values("sqlite", "postgresql"),
                         [](const auto& run) { return std::string(run.param); });

TEST_P(RecipeExchangeTest, ASentRecipeIsImportedWithoutAnyLoss) {
    UserDB().Raw().exec("UPDATE Ingredients SET QTY = 1");
    const qint32 remote = Send(recipe);
    ASSERT_GT(remote, 1) << answer.toStdString();
    EXPECT_EQ(Import(QString::number(remote)), ImportedText);
    EXPECT_EQ(CardOf(recipe + 1), CardOf(recipe));
    EXPECT_EQ(RowsOf(recipe + 1), RowsOf(recipe));
    EXPECT_EQ(RowsOf(recipe + 1).size(), 10);
    EXPECT_EQ(RecipeBook::CaloriesPerServing(recipe + 1, "2.5"),
              RecipeBook::CaloriesPerServing(recipe, "2.5"));
}

TEST_P(RecipeExchangeTest, AQuantityOtherThanOneArrivesInTheServing) {
    UserDB().Raw().exec("UPDATE Ingredients SET QTY = NULL WHERE ID > 4");
    UserDB().Raw().exec("UPDATE Ingredients SET QTY = 1.5 WHERE ID = 2");
    UserDB().Raw().exec("DELETE FROM Ingredients WHERE ID > 5");
    const qint32 remote = Send(recipe);
    EXPECT_EQ(Import(QString::number(remote)), ImportedText);
    EXPECT_EQ(ServingsOf(recipe + 1), "1 cup|1.5 x 1 cup|3 x 1 cup|4 x 1 cup|1 cup");
    EXPECT_EQ(Count("Ingredients", "QTY = 1 AND RecipeID = " + QString::number(recipe + 1)), 5);
    const qint32 again = Send(recipe + 1);
    EXPECT_EQ(Import(QString::number(again)), ImportedText);
    EXPECT_EQ(ServingsOf(recipe + 2), ServingsOf(recipe + 1));
}

TEST_P(RecipeExchangeTest, NullsStayNull) {
    UserDB().Raw().exec("UPDATE Recipes SET RecipeYield = NULL, PrepTime = NULL, "
                        "Instructions = NULL, ServingName = NULL");
    UserDB().Raw().exec("UPDATE Ingredients SET Serving = NULL, FoodName = NULL, VitaminC = NULL, "
                        "Cholesterol = NULL, QTY = 1");
    const qint32 remote = Send(recipe);
    EXPECT_EQ(Import(QString::number(remote)), ImportedText);
    EXPECT_EQ(CardOf(recipe + 1), CardOf(recipe));
    EXPECT_EQ(RowsOf(recipe + 1), RowsOf(recipe));
}

TEST_P(RecipeExchangeTest, ARecipeWithinARecipeArrivesWithItsCalories) {
    const qint32 pie = FoodsTest::AddRecipe("Pie", "1 pie");
    RecipeBook::AddIngredient(pie, ScaledFood::FromRecipe(recipe, 2));
    const qint32 remote = Send(pie);
    EXPECT_EQ(Import(QString::number(remote)), ImportedText);
    EXPECT_EQ(RecipeBook::CaloriesPerServing(pie + 1, "1"), "Calories: 11 per serving");
    EXPECT_EQ(Users("SELECT Copper FROM Ingredients WHERE RecipeID = " + QString::number(pie + 1)),
              Users("SELECT Copper FROM Ingredients WHERE RecipeID = " + QString::number(pie)));
}

TEST_P(RecipeExchangeTest, ARecipeWithoutIngredientsArrivesWithoutThem) {
    UserDB().Raw().exec("DELETE FROM Ingredients");
    const qint32 remote = Send(recipe);
    EXPECT_EQ(Import(QString::number(remote)), ImportedText);
    EXPECT_EQ(CardOf(recipe + 1), CardOf(recipe));
    EXPECT_EQ(RecipeBook::CaloriesPerServing(recipe + 1, "2.5"), "Calories: --");
}

TEST_P(RecipeExchangeTest, MoreIngredientsThanOneCallTakesArriveInTheirOrder) {
    UserDB().Raw().exec("DELETE FROM Ingredients");
    AddIngredients(recipe, 205);
    const qint32 remote = Send(recipe);
    EXPECT_EQ(Import(QString::number(remote)), ImportedText);
    EXPECT_EQ(RowsOf(recipe + 1), RowsOf(recipe));
    EXPECT_EQ(RowsOf(recipe + 1).size(), 205);
}

TEST_P(RecipeExchangeTest, ARecipeSentAndImportedTwiceIsThereTwice) {
    const qint32 first = Send(recipe);
    const qint32 second = Send(recipe);
    EXPECT_NE(first, second);
    for (int i = 0; i < 2; ++i)
        EXPECT_EQ(Import(QString::number(first)), ImportedText);
    EXPECT_EQ(Count("Recipes"), 3);
    EXPECT_EQ(Count("Ingredients"), 30);
}

TEST_P(RecipeExchangeTest, AnIDThatNobodyHasIsNotFound) {
    for (const char* id : {"4711", "12.5", "1", "0", "-5", "2147483647"})
        EXPECT_EQ(Import(id), UnknownRecipe) << id;
    EXPECT_EQ(Import("abc"), ImportFailed);
    EXPECT_EQ(Count("Recipes"), 1);
}

TEST_P(RecipeExchangeTest, ARecipeThatTheExchangeRefusesIsNotSent) {
    UserDB().Raw().exec("UPDATE Recipes SET RecipeName = ''");
    EXPECT_EQ(Send(recipe), 0);
    EXPECT_EQ(answer, SendFailed);
}

TEST_P(RecipeExchangeTest, AnExchangeThatHasEndedFailsBothWays) {
    const qint32 remote = Send(recipe);
    exchange.reset();
    EXPECT_EQ(Import(QString::number(remote)), ImportFailed);
    Send(recipe);
    EXPECT_EQ(answer, SendFailed);
}
