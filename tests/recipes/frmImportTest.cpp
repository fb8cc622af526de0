#include "recipes/TransferTest.h"

#include "recipes/RecipeBook.h"
#include "store/Connection.h"
#include "toolkit/MousePointer.h"

#include <QLabel>
#include <QTest>
#include <QTimer>

namespace {
const QString UnknownReply = R"({"reason":"There is no recipe with this ID."})";
} // namespace

class frmImportTest : public TransferTest {
protected:
    void SetUp() override {
        TransferTest::SetUp();
        Open(new frmImport(&window));
    }

    void Submit(const QString& id) {
        Type("txtRecID", id);
        Press("cmdGo");
    }
    void SubmitSoup() { Submit(QString::number(Soup)); }
    void ExpectReady() {
        EXPECT_TRUE(dialog->isVisible());
        EXPECT_TRUE(Go()->Enabled());
        EXPECT_EQ(Go()->State(), 1);
        EXPECT_FALSE(MousePointer::IsBusy());
    }
    void ExpectFailure(const QString& id = QString::number(Soup)) {
        ExpectAlert(ImportFailed);
        Submit(id);
        ExpectReady();
    }
    ucButton* Go() { return Find<ucButton>(dialog.get(), "cmdGo"); }
    QString Column(const QString& column) {
        return Users("SELECT " + column + " FROM Recipes").toString();
    }
};

TEST_F(frmImportTest, CarriesItsTexts) {
    EXPECT_EQ(dialog->windowTitle(), "Import Recipe");
    EXPECT_EQ(Find(dialog.get(), "ucTitleFlat1")->property("Caption"), "Import Recipe");
    EXPECT_EQ(Find<QLabel>(dialog.get(), "Label1")->text(),
              "Enter the recipe ID you wish to import into the field below. If you don't know the "
              "recipe ID, you can search for recipes in the OnLine Community.");
    EXPECT_EQ(Find(dialog.get(), "ucAALBL1")->property("Caption"), "Recipe ID to import:");
    EXPECT_EQ(Go()->Caption(), "Submit");
    EXPECT_EQ(Find<ucButton>(dialog.get(), "cmdCancel")->Caption(), "Cancel");
    EXPECT_EQ(Find(dialog.get(), "txtRecID")->accessibleName(), "Recipe ID to import:");
    EXPECT_EQ(Find<QTimer>(dialog.get(), "cleanUp")->interval(), 250);
}

TEST_F(frmImportTest, WaitsThirtySecondsForEachCall) {
    EXPECT_EQ(dialog->Exchange().Http().Limit(), std::chrono::seconds(30));
}

TEST_F(frmImportTest, WithoutAnIDSaysSoAndSendsNoRequest) {
    ExpectAlert("Please enter a recipe ID to import.");
    Press("cmdGo");
    EXPECT_TRUE(dialog->isVisible());
    EXPECT_TRUE(Go()->Enabled());
    EXPECT_EQ(server->Lines(), QStringList());
}

TEST_F(frmImportTest, CancelAndEscapeCloseIt) {
    Press("cmdCancel");
    EXPECT_FALSE(dialog->isVisible());
    Open(new frmImport(&window));
    QTest::keyClick(dialog.get(), Qt::Key_Escape);
    EXPECT_FALSE(dialog->isVisible());
    EXPECT_EQ(server->Lines(), QStringList());
}

TEST_F(frmImportTest, CopiesTheRecipeAndItsIngredientsAndClosesFirst) {
    TellSoup();
    ExpectAlert(ImportedText);
    SubmitSoup();
    EXPECT_FALSE(dialog->isVisible());
    EXPECT_EQ(server->Lines(), QStringList({RecipePath(), RecipePath("/ingredients")}));
    const auto recipes = HalvaneTest::Rows(
        UserDB(), "SELECT RecipeName, ServingName, RecipeYield, PrepTime, Instructions "
                  "FROM Recipes");
    EXPECT_EQ(recipes,
              (QList<QVariantList>{{"Crème of lentils", "1 bowl", 4.5, 45.0, "Rinse.\nCook."}}));
    EXPECT_EQ(Count("Ingredients"), 2);
}

TEST_F(frmImportTest, ClosesBeforeTheMessageOfSuccess) {
    TellSoup();
    bool visible = true;
    TheSeams().ShowAlert = [&](const QString& message, QObject* owner, bool) {
        EXPECT_EQ(message, ImportedText);
        EXPECT_EQ(owner, &window);
        visible = dialog->isVisible();
        return true;
    };
    SubmitSoup();
    EXPECT_FALSE(visible);
}

TEST_F(frmImportTest, IngredientsAreImportedByPositionWithNewKeysAndTheQuantityOne) {
    FoodsTest::AddRecipe("One's own", "1 plate");
    AddIngredients(1, 3);
    TellSoup();
    ExpectAlert(ImportedText);
    SubmitSoup();
    const auto rows =
        HalvaneTest::Rows(UserDB(), "SELECT * FROM Ingredients WHERE RecipeID = 2 ORDER BY ID");
    ASSERT_EQ(rows.size(), 2);
    for (int row = 0; row < 2; ++row) {
        EXPECT_EQ(rows[row][0], 4 + row);
        for (int i = 1; i <= 31; ++i)
            EXPECT_EQ(rows[row][i], i == 5 ? QVariant() : QVariant((row + 1) * 100 + i + .5)) << i;
        EXPECT_EQ(rows[row][32], QString("Food %1").arg(row + 1));
        EXPECT_EQ(rows[row][33], "1 cup");
    }
    EXPECT_EQ(Count("Ingredients", "RecipeID = 2 AND QTY = 1"), 2);
}

TEST_F(frmImportTest, ColumnsInAnotherOrderAreRefusedBeforeAnythingIsWritten) {
    TellSoup();
    QJsonArray swapped = Fields();
    const QJsonValue first = swapped[1];
    swapped[1] = swapped[2];
    swapped[2] = first;
    QJsonArray shorter = Fields();
    shorter.removeLast();
    QJsonArray longer = Fields();
    longer.append("VitaminK");
    QJsonArray unknown = Fields();
    unknown[12] = "Energy";
    QJsonArray numbers = Fields();
    numbers[12] = 12;
    for (const QJsonValue& fields :
         {QJsonValue(swapped), QJsonValue(shorter), QJsonValue(longer), QJsonValue(unknown),
          QJsonValue(numbers), QJsonValue(QJsonArray{}), QJsonValue("ID"), QJsonValue(),
          QJsonValue(QJsonValue::Undefined)}) {
        server->Tell(RecipePath("/ingredients"), 200,
                     Json({{"fields", fields}, {"rows", SoupRows()}}));
        ExpectFailure();
    }
    EXPECT_EQ(AllRecipes(), "");
}

TEST_F(frmImportTest, TheCaseOfAColumnsNameDoesNotMatter) {
    TellSoup();
    QJsonArray upper;
    for (const QJsonValue& name : Fields())
        upper.append(name.toString().toUpper());
    server->Tell(RecipePath("/ingredients"), 200, Json({{"fields", upper}, {"rows", SoupRows()}}));
    ExpectAlert(ImportedText);
    SubmitSoup();
    EXPECT_EQ(Count("Ingredients"), 2);
}

TEST_F(frmImportTest, TheSameRecipeTwiceGivesTwo) {
    TellSoup();
    for (int i = 0; i < 2; ++i) {
        ExpectAlert(ImportedText);
        SubmitSoup();
        Open(new frmImport(&window));
    }
    EXPECT_EQ(Count("Recipes"), 2);
    EXPECT_EQ(Count("Ingredients", "RecipeID = 1"), 2);
    EXPECT_EQ(Count("Ingredients", "RecipeID = 2"), 2);
}

TEST_F(frmImportTest, ARecipeWithoutIngredientsHasNoCalories) {
    TellSoup();
    server->Tell(RecipePath("/ingredients"), 200, Table({}));
    ExpectAlert(ImportedText);
    SubmitSoup();
    EXPECT_EQ(Count("Recipes"), 1);
    EXPECT_EQ(RecipeBook::CaloriesPerServing(1, "4.5"), "Calories: --");
}

TEST_F(frmImportTest, NullsAreImportedAsNulls) {
    TellSoup();
    QJsonObject recipe = SoupRecipe();
    for (const QString& key : recipe.keys())
        if (key != "RecipeID")
            recipe[key] = QJsonValue();
    server->Tell(RecipePath(), 200, Json(recipe));
    QJsonArray row = SoupRows().first().toArray();
    for (int i = 0; i < row.size(); ++i)
        row[i] = QJsonValue();
    QJsonArray rows;
    rows.append(row);
    server->Tell(RecipePath("/ingredients"), 200, Table(rows));
    ExpectAlert(ImportedText);
    SubmitSoup();
    EXPECT_EQ(Count("Recipes", "RecipeName IS NULL AND RecipeYield IS NULL"), 1);
    EXPECT_EQ(Count("Ingredients", "RecipeID = 1 AND Calories IS NULL AND FoodName IS NULL"), 1);
}

TEST_F(frmImportTest, MarkupAndQuotesAreKeptAsText) {
    const QString name = "<b>O'Brien's</b> \"stew\"; DROP TABLE Recipes; -- ~^| 🍲";
    TellSoup();
    QJsonObject recipe = SoupRecipe();
    recipe["RecipeName"] = name;
    server->Tell(RecipePath(), 200, Json(recipe));
    ExpectAlert(ImportedText);
    SubmitSoup();
    EXPECT_EQ(Column("RecipeName"), name);
}

TEST_F(frmImportTest, EnterInTheFieldSubmits) {
    TellSoup();
    ExpectAlert(ImportedText);
    Type("txtRecID", QString::number(Soup));
    QTest::keyClick(Find(dialog.get(), "txtRecID"), Qt::Key_Return);
    EXPECT_EQ(Count("Recipes"), 1);
}

// The ID

TEST_F(frmImportTest, ARecipeThatTheExchangeDoesNotHaveIsNotFound) {
    for (const QString id : {"4711", "1", "0", "-5"}) {
        server->Tell("GET /halvane/api/recipes/" + id, 404, UnknownReply.toUtf8());
        ExpectAlert(UnknownRecipe);
        Submit(id);
        ExpectReady();
    }
    EXPECT_EQ(AllRecipes(), "");
}

TEST_F(frmImportTest, AnIDIsRoundedHalfToEven) {
    const std::pair<const char*, const char*> rows[] = {
        {"12.5", "12"}, {"13.5", "14"}, {"12.4", "12"}, {"12.6", "13"}, {" 12 ", "12"}};
    for (const auto& [typed, asked] : rows) {
        server->Tell(QString("GET /halvane/api/recipes/") + asked, 404, UnknownReply.toUtf8());
        ExpectAlert(UnknownRecipe);
        Submit(typed);
        EXPECT_EQ(server->Lines().last(), QString("GET /halvane/api/recipes/") + asked);
    }
}

TEST_F(frmImportTest, AnIDThatIsNoNumberFailsWithoutARequest) {
    for (const char* id : {"abc", "12a", " ", "1 2", "0x12", "12; DELETE FROM recipes", "../1",
                           "2147483648", "-2147483649", "1e99"})
        ExpectFailure(id);
    EXPECT_EQ(server->Lines(), QStringList());
    EXPECT_EQ(AllRecipes(), "");
}

TEST_F(frmImportTest, A404WithoutAReasonIsAFailure) {
    for (const char* page :
         {"<html>Not found</html>", "", "{}", R"({"reason":7})", R"(["reason"])"}) {
        server->Tell(RecipePath(), 404, page);
        ExpectFailure();
    }
}

TEST_F(frmImportTest, WithoutContentLengthARecipeIsImported) {
    const QByteArray head = "HTTP/1.1 200 OK\r\n\r\n";
    server->Tell(RecipePath(), ScriptedServer::Raw(head + Json(SoupRecipe())));
    server->Tell(RecipePath("/ingredients"), ScriptedServer::Raw(head + Table(SoupRows())));
    ExpectAlert(ImportedText);
    SubmitSoup();
    EXPECT_EQ(Count("Recipes"), 1);
    EXPECT_EQ(Count("Ingredients"), 2);
}

TEST_F(frmImportTest, WithoutContentLengthACutDocumentFailsWhereverItWasCut) {
    const QByteArray whole = Json(SoupRecipe());
    for (qsizetype length = 0; length < whole.size(); ++length) {
        const QByteArray reply = "HTTP/1.1 200 OK\r\n\r\n" + whole.left(length);
        server->Tell(RecipePath(), ScriptedServer::Raw(reply));
        ExpectFailure();
    }
    EXPECT_EQ(Count("Recipes"), 0);
}

TEST_F(frmImportTest, ARefusalIsAFailure) {
    for (const int status : {201, 302, 400, 403, 429, 500, 503}) {
        server->Tell(RecipePath(), status, R"({"reason":"No."})");
        ExpectFailure();
    }
    EXPECT_EQ(AllRecipes(), "");
}

// Odd replies

TEST_F(frmImportTest, AnOddReplyForTheRecipeLeavesNothing) {
    dialog->Exchange().Http().SetLimit(OddLimit);
    for (const Oddity& odd : Oddities()) {
        SCOPED_TRACE(odd.name);
        server->Tell(RecipePath(), odd.answer);
        ExpectFailure();
    }
    EXPECT_EQ(AllRecipes(), "");
}

TEST_F(frmImportTest, AnOddReplyForTheIngredientsLeavesTheRecipeAlone) {
    TellSoup();
    dialog->Exchange().Http().SetLimit(OddLimit);
    int recipes = 0;
    for (const Oddity& odd : Oddities()) {
        SCOPED_TRACE(odd.name);
        server->Tell(RecipePath("/ingredients"), odd.answer);
        ExpectFailure();
        EXPECT_EQ(Count("Recipes"), ++recipes);
        EXPECT_EQ(Count("Ingredients"), 0);
    }
}

TEST_F(frmImportTest, AServerThatIsDownIsAFailureAndTheNextTrySucceeds) {
    server.reset();
    ExpectFailure();
    EXPECT_EQ(AllRecipes(), "");
    server = std::make_unique<ScriptedServer>();
    Server::SetAddress(server->Address());
    TellSoup();
    ExpectAlert(ImportedText);
    Press("cmdGo");
    EXPECT_EQ(Count("Recipes"), 1);
}

TEST_F(frmImportTest, JsonOfAnotherFormFails) {
    TellSoup();
    const QByteArray bodies[] = {"",
                                 "x",
                                 " <",
                                 "<html><body>Recipe</body></html>",
                                 "[]",
                                 "null",
                                 "12",
                                 "{",
                                 "{}",
                                 R"({"rows":{}})",
                                 R"({"rows":null})",
                                 R"({"rows":"x"})",
                                 "{\"rows\":[\xff]}",
                                 QByteArray(100000, '[')};
    for (const QByteArray& body : bodies) {
        SCOPED_TRACE(body.left(30).toStdString());
        server->Tell(RecipePath(), 200, body);
        ExpectFailure();
    }
    EXPECT_EQ(AllRecipes(), "");
    server->Tell(RecipePath(), 200, Json(SoupRecipe()));
    for (const QByteArray& body : bodies) {
        SCOPED_TRACE(body.left(30).toStdString());
        server->Tell(RecipePath("/ingredients"), 200, body);
        ExpectFailure();
    }
    EXPECT_EQ(Count("Ingredients"), 0);
}

TEST_F(frmImportTest, AnUnexpectedTypeInAnyFieldOfTheRecipeFails) {
    const QJsonObject recipe = SoupRecipe();
    for (const QString& key : recipe.keys())
        for (const QJsonValue& value :
             {QJsonValue(true), QJsonValue(QJsonArray{1}), QJsonValue(QJsonObject{{"a", 1}}),
              recipe[key].isString() ? QJsonValue(7) : QJsonValue("7"),
              QJsonValue(QJsonValue::Undefined)}) {
            SCOPED_TRACE(key.toStdString());
            QJsonObject odd = recipe;
            odd[key] = value;
            server->Tell(RecipePath(), 200, Json(odd));
            ExpectFailure();
        }
    EXPECT_EQ(AllRecipes(), "");
}

TEST_F(frmImportTest, AnotherRecipeThanTheOneAskedForFails) {
    for (const QJsonValue& id : {QJsonValue(Soup + 1), QJsonValue(), QJsonValue(Soup + .5)}) {
        QJsonObject other = SoupRecipe();
        other["RecipeID"] = id;
        server->Tell(RecipePath(), 200, Json(other));
        ExpectFailure();
    }
    EXPECT_EQ(AllRecipes(), "");
}

TEST_F(frmImportTest, AnUnexpectedTypeInAnIngredientKeepsTheIngredientsBeforeIt) {
    TellSoup();
    int tries = 0;
    for (int i = 1; i <= 34; ++i)
        for (const QJsonValue& value :
             {QJsonValue(true), QJsonValue(QJsonArray{}), QJsonValue(QJsonObject{}),
              i == 32 || i == 33 ? QJsonValue(7) : QJsonValue("7")}) {
            SCOPED_TRACE(i);
            QJsonArray row = SoupRows().at(1).toArray();
            row[i] = value;
            server->Tell(RecipePath("/ingredients"), 200, Table({SoupRows().at(0), row}));
            ExpectFailure();
            ++tries;
        }
    EXPECT_EQ(Count("Recipes"), tries);
    EXPECT_EQ(Count("Ingredients"), tries);
    EXPECT_EQ(Count("Ingredients", "FoodName = 'Food 1'"), tries);
}

TEST_F(frmImportTest, ARowThatIsTooShortOrMissingKeepsTheIngredientsBeforeIt) {
    TellSoup();
    QJsonArray shorter = SoupRows().at(1).toArray();
    while (shorter.size() > 34)
        shorter.removeLast();
    int tries = 0;
    for (const QJsonValue& row : {QJsonValue(shorter), QJsonValue(QJsonArray{}), QJsonValue(7),
                                  QJsonValue(), QJsonValue("row"), QJsonValue(QJsonObject{})}) {
        server->Tell(RecipePath("/ingredients"), 200, Table({SoupRows().at(0), row}));
        ExpectFailure();
        EXPECT_EQ(Count("Ingredients"), ++tries);
    }
}

TEST_F(frmImportTest, NumbersThatFitNoDoubleFail) {
    QByteArray recipe = Json(SoupRecipe());
    recipe.replace("4.5", "1e999");
    server->Tell(RecipePath(), 200, recipe);
    ExpectFailure();
    EXPECT_EQ(AllRecipes(), "");
}

TEST_F(frmImportTest, AnotherTryAfterAFailureImportsEverythingAgain) {
    TellSoup();
    server->Tell(RecipePath("/ingredients"), 200, Table({SoupRows().at(0), QJsonValue(7)}));
    ExpectFailure();
    TellSoup();
    ExpectAlert(ImportedText);
    Press("cmdGo");
    EXPECT_EQ(Count("Recipes"), 2);
    EXPECT_EQ(Count("Ingredients", "RecipeID = 1"), 1);
    EXPECT_EQ(Count("Ingredients", "RecipeID = 2"), 2);
}

// While it waits

TEST_F(frmImportTest, IsBusyAndTakesNoInputWhileItWaits) {
    TellSoup();
    bool looked = false;
    server->Tell(RecipePath(), [&](QTcpSocket& socket) {
        ExpectDead("cmdGo");
        looked = true;
        ScriptedServer::Raw("HTTP/1.1 500 No\r\nContent-Length: 0\r\n\r\n")(socket);
    });
    ExpectFailure();
    EXPECT_TRUE(looked);
    EXPECT_EQ(server->Lines().size(), 1);
}

TEST_F(frmImportTest, TheFocusIsBackOnTheButtonAfterAFailure) {
    server->Tell(RecipePath(), 500, "");
    Type("txtRecID", QString::number(Soup));
    Go()->setFocus();
    ExpectAlert(ImportFailed);
    QTest::keyClick(Go(), Qt::Key_Return);
    EXPECT_EQ(dialog->focusWidget(), Go());
}
