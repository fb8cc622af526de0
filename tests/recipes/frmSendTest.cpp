#include "recipes/TransferTest.h"

#include "recipes/RecipeBook.h"
#include "runtime/Settings.h"
#include "store/Connection.h"
#include "toolkit/MousePointer.h"

#include <QJsonDocument>
#include <QTest>
#include <QTimer>

#include <SQLiteCpp/SQLiteCpp.h>

class frmSendTest : public TransferTest {
protected:
    void SetUp() override {
        TransferTest::SetUp();
        recipe = FoodsTest::AddRecipe("Crème of lentils", "1 bowl");
        UserDB().Raw().exec("UPDATE Recipes SET RecipeYield = 4.5, PrepTime = 45, "
                            "Instructions = 'Rinse.\nCook.'");
        RecipeBook::AddIngredient(recipe, Counting("Lentils", 2));
        RecipeBook::AddIngredient(recipe, Counting("Water", 3));
        TellSend();
        OpenSend();
    }

    void OpenSend(qint32 id = 0) { Open(new frmSend(id ? id : recipe, &window)); }
    void FillIn() {
        Type("txtEmail", "friend@example.org");
        Type("txtFrom", "me@example.org");
    }
    /// Sends, expects the message, and opens a new dialog.
    void ExpectReply(const QString& message) {
        FillIn();
        ExpectAlert(message);
        Press("cmdSend");
        EXPECT_FALSE(dialog->isVisible());
        EXPECT_FALSE(MousePointer::IsBusy());
        OpenSend();
    }
    void ExpectFailure() { ExpectReply(SendFailed); }
    void ExpectFailureSoon() {
        dialog->Exchange().Http().SetLimit(OddLimit);
        ExpectFailure();
    }
    ucButton* Button(const QString& name) { return Find<ucButton>(dialog.get(), name); }
    QJsonObject Body(int request) {
        return QJsonDocument::fromJson(server->Requests().value(request).body).object();
    }

    qint32 recipe = 0;
};

TEST_F(frmSendTest, CarriesItsTexts) {
    EXPECT_EQ(dialog->windowTitle(), "Send Recipe");
    EXPECT_EQ(Find(dialog.get(), "ucTitleFlat1")->property("Caption"), "Send Recipe");
    EXPECT_EQ(Find(dialog.get(), "ucAALBL1")->property("Caption"), "Friend's email address:");
    EXPECT_EQ(Find(dialog.get(), "ucAALBL2")->property("Caption"), "Your email address:");
    EXPECT_EQ(Find<QCheckBox>(dialog.get(), "ckShare")->text(),
              "Share this recipe with all Halvane users at the Halvane web site.");
    EXPECT_EQ(Button("cmdSend")->Caption(), "Send Recipe");
    EXPECT_EQ(Button("cmdCancel")->Caption(), "Cancel");
    EXPECT_FALSE(Find<QCheckBox>(dialog.get(), "ckShare")->isChecked());
    EXPECT_EQ(Find<QTimer>(dialog.get(), "cleanUp")->interval(), 250);
    EXPECT_EQ(dialog->Exchange().Http().Limit(), std::chrono::seconds(30));
}

TEST_F(frmSendTest, AsksForTheRecipientFirstAndThenForTheSender) {
    ExpectAlert("Please enter a recipient email address.");
    Press("cmdSend");
    Type("txtFrom", "me@example.org");
    ExpectAlert("Please enter a recipient email address.");
    Press("cmdSend");
    Type("txtFrom", "");
    Type("txtEmail", "friend@example.org");
    ExpectAlert("Please enter your email address.");
    Press("cmdSend");
    EXPECT_TRUE(dialog->isVisible());
    EXPECT_EQ(server->Lines(), QStringList());
    EXPECT_EQ(GetRegValue("TOEMAIL"), "");
}

TEST_F(frmSendTest, AppendsTheRecipeThenItsIngredientsThenCallsThePage) {
    FillIn();
    ExpectAlert(Sentence);
    Press("cmdSend");
    EXPECT_EQ(server->Lines(), QStringList({CreateLine, AddLine, PageLine}));
    EXPECT_EQ(Body(0), (QJsonObject{{"RecipeName", "Crème of lentils"},
                                    {"Instructions", "Rinse.\nCook."},
                                    {"RecipeYield", 4.5},
                                    {"PrepTime", 45},
                                    {"ServingName", "1 bowl"},
                                    {"EMAILFROM", "me@example.org"},
                                    {"EMAILTO", "friend@example.org"},
                                    {"ISPUBLIC", false}}));
    EXPECT_FALSE(server->Requests()[0].headers.contains("authorization"));
    EXPECT_EQ(server->Requests()[1].headers["authorization"], "Bearer abc");
}

TEST_F(frmSendTest, IngredientsAreSentByPositionWithoutKeyAndQuantity) {
    FillIn();
    ExpectAlert(Sentence);
    Press("cmdSend");
    const QJsonArray rows = Body(1)["rows"].toArray();
    ASSERT_EQ(rows.size(), 2);
    for (int row = 0; row < 2; ++row) {
        QJsonArray expected{QJsonValue::Null};
        for (int i = 1; i <= 31; ++i)
            expected.append(i);
        for (const QJsonValue& value :
             {QJsonValue(row ? "Water" : "Lentils"), QJsonValue("1 cup"), QJsonValue(Soup)})
            expected.append(value);
        EXPECT_EQ(rows[row].toArray(), expected);
    }
}

TEST_F(frmSendTest, ColumnNamesAndQuantitiesAreSentBesideTheRows) {
    UserDB().Raw().exec("UPDATE Ingredients SET QTY = NULL WHERE FoodName = 'Water'");
    FillIn();
    ExpectAlert(Sentence);
    Press("cmdSend");
    EXPECT_EQ(Body(1)["fields"].toArray(), Fields());
    EXPECT_EQ(Body(1)["quantities"].toArray(), (QJsonArray{2, QJsonValue::Null}));
}

TEST_F(frmSendTest, NullsAreSentAsNulls) {
    UserDB().Raw().exec("UPDATE Recipes SET Instructions = NULL, PrepTime = NULL");
    UserDB().Raw().exec("UPDATE Ingredients SET Calories = NULL, Serving = NULL");
    FillIn();
    ExpectAlert(Sentence);
    Press("cmdSend");
    EXPECT_TRUE(Body(0)["Instructions"].isNull());
    EXPECT_TRUE(Body(0)["PrepTime"].isNull());
    EXPECT_TRUE(Body(1)["rows"][0][33].isNull());
}

TEST_F(frmSendTest, ARecipeWithoutIngredientsIsAppendedAloneAndThePageIsCalled) {
    UserDB().Raw().exec("DELETE FROM Ingredients");
    FillIn();
    ExpectAlert(Sentence);
    Press("cmdSend");
    EXPECT_EQ(server->Lines(), QStringList({CreateLine, PageLine}));
}

TEST_F(frmSendTest, ManyIngredientsAreSentInSeveralCalls) {
    UserDB().Raw().exec("DELETE FROM Ingredients");
    AddIngredients(recipe, 250);
    QList<QByteArray> replies{R"({"added":100})", R"({"added":100})", R"({"added":50})"};
    server->Tell(AddLine, [&](QTcpSocket& socket) {
        const QByteArray reply = replies.takeFirst();
        ScriptedServer::Raw("HTTP/1.1 201 Created\r\nContent-Length: " +
                            QByteArray::number(reply.size()) + "\r\n\r\n" + reply)(socket);
    });
    FillIn();
    ExpectAlert(Sentence);
    Press("cmdSend");
    EXPECT_EQ(server->Lines(), QStringList({CreateLine, AddLine, AddLine, AddLine, PageLine}));
    EXPECT_EQ(Body(1)["rows"][0][32], "Food 1");
    EXPECT_EQ(Body(2)["rows"][0][32], "Food 101");
    EXPECT_EQ(Body(3)["rows"][49][32], "Food 250");
    EXPECT_EQ(Body(1)["quantities"].toArray().size(), 100);
    EXPECT_EQ(Body(3)["quantities"].toArray().size(), 50);
}

TEST_F(frmSendTest, TheCheckBoxMakesItPublic) {
    Click(Find(dialog.get(), "ckShare"), QPoint(8, 12));
    ASSERT_TRUE(Find<QCheckBox>(dialog.get(), "ckShare")->isChecked());
    FillIn();
    ExpectAlert(Sentence);
    Press("cmdSend");
    EXPECT_EQ(Body(0)["ISPUBLIC"], true);
}

TEST_F(frmSendTest, TheSameRecipeTwiceIsSentTwice) {
    ExpectReply(Sentence);
    ExpectReply(Sentence);
    EXPECT_EQ(server->Lines().count(CreateLine), 2);
    EXPECT_EQ(Count("Recipes"), 1);
}

TEST_F(frmSendTest, ARecipeThatWasDeletedFailsWithoutARequest) {
    UserDB().Raw().exec("DELETE FROM Recipes");
    ExpectFailure();
    EXPECT_EQ(server->Lines(), QStringList());
}

TEST_F(frmSendTest, AddressesAreNotChecked) {
    Type("txtEmail", "no address");
    Type("txtFrom", "<b>'\";");
    ExpectAlert(Sentence);
    Press("cmdSend");
    EXPECT_EQ(Body(0)["EMAILTO"], "no address");
    EXPECT_EQ(Body(0)["EMAILFROM"], "<b>'\";");
}

TEST_F(frmSendTest, AReplyWithoutContentLengthIsShownUnchanged) {
    for (const char* head : {"HTTP/1.1 200 OK\r\n\r\n", "HTTP/1.0 500 No\r\n\r\n"}) {
        server->Tell(PageLine, ScriptedServer::Raw(head + Sentence));
        ExpectReply(Sentence);
    }
}

TEST_F(frmSendTest, AnEmptyReplyWithoutContentLengthFails) {
    server->Tell(PageLine, ScriptedServer::Raw("HTTP/1.1 200 OK\r\n\r\n"));
    ExpectFailure();
}

// The settings

TEST_F(frmSendTest, TheAddressesComeBackNextTime) {
    ExpectReply(Sentence);
    EXPECT_EQ(GetRegValue("TOEMAIL"), "friend@example.org");
    EXPECT_EQ(GetRegValue("FROMEMAIL"), "me@example.org");
    EXPECT_EQ(Find<QLineEdit>(dialog.get(), "txtEmail")->text(), "friend@example.org");
    EXPECT_EQ(Find<QLineEdit>(dialog.get(), "txtFrom")->text(), "me@example.org");
}

TEST_F(frmSendTest, TheAddressesComeBackAfterAFailedSendToo) {
    server->Tell(CreateLine, 500, "");
    ExpectFailure();
    EXPECT_EQ(GetRegValue("TOEMAIL"), "friend@example.org");
    EXPECT_EQ(GetRegValue("FROMEMAIL"), "me@example.org");
}

TEST_F(frmSendTest, CancelAndEscapeWriteNothing) {
    FillIn();
    Press("cmdCancel");
    EXPECT_FALSE(dialog->isVisible());
    OpenSend();
    FillIn();
    QTest::keyClick(dialog.get(), Qt::Key_Escape);
    EXPECT_FALSE(dialog->isVisible());
    EXPECT_EQ(GetRegValue("TOEMAIL"), "");
    EXPECT_EQ(GetRegValue("FROMEMAIL"), "");
    EXPECT_EQ(server->Lines(), QStringList());
}

// Replies of the page

TEST_F(frmSendTest, AReplyIsShownUnchanged) {
    for (const char* reply :
         {"OK", "  <", "  <html>", "a<b>c</b>", "Sent. <b>Bold</b> & \"quoted\"", "\t<",
          "Grüße — 🍲", "ERROR: nothing was sent", "\n\n", "  ", "First line.\nSecond line.\n"}) {
        server->Tell(PageLine, 200, reply);
        ExpectReply(QString::fromUtf8(reply));
    }
}

TEST_F(frmSendTest, ASentenceIsShownWhateverItsStatus) {
    for (const int status : {201, 302, 400, 404, 429, 500, 503}) {
        server->Tell(PageLine, status, Sentence);
        ExpectReply(Sentence);
    }
}

TEST_F(frmSendTest, MarkupAndRepliesBelowTwoCharactersAreFailures) {
    for (const char* reply : {"<html><body>Sent</body></html>", "<", "<<", " <", " <html>", "", "x",
                              " ", "\n", "\xc3\xbc", "\xef\xbb\xbf<html>"}) {
        SCOPED_TRACE(reply);
        server->Tell(PageLine, 200, reply);
        ExpectFailure();
    }
}

TEST_F(frmSendTest, AnOddReplyOfThePageIsAFailure) {
    for (const Oddity& odd : Oddities()) {
        SCOPED_TRACE(odd.name);
        server->Tell(PageLine, odd.answer);
        ExpectFailureSoon();
    }
}

// Answers of the exchange before the page

TEST_F(frmSendTest, AnOddReplyToTheRecipeEndsTheSend) {
    for (const Oddity& odd : Oddities()) {
        SCOPED_TRACE(odd.name);
        server->Tell(CreateLine, odd.answer);
        ExpectFailureSoon();
    }
    EXPECT_FALSE(server->Lines().contains(AddLine));
    EXPECT_FALSE(server->Lines().contains(PageLine));
}

TEST_F(frmSendTest, AnOddReplyToTheIngredientsCallsNoPage) {
    for (const Oddity& odd : Oddities()) {
        SCOPED_TRACE(odd.name);
        server->Tell(AddLine, odd.answer);
        ExpectFailureSoon();
    }
    EXPECT_EQ(server->Lines().count(CreateLine), server->Lines().count(AddLine));
    EXPECT_FALSE(server->Lines().contains(PageLine));
}

TEST_F(frmSendTest, NothingIsPostedTwice) {
    server->Tell(AddLine, ScriptedServer::Raw(""));
    ExpectFailure();
    EXPECT_EQ(server->Lines(), QStringList({CreateLine, AddLine}));
}

TEST_F(frmSendTest, AnUnexpectedReplyToTheRecipeFails) {
    for (const char* body :
         {"", "{}", "[]", R"({"RecipeID":"7","token":"a"})", R"({"RecipeID":1.5,"token":"a"})",
          R"({"RecipeID":-7,"token":"a"})", R"({"RecipeID":99999999999,"token":"a"})",
          R"({"RecipeID":null,"token":"a"})", R"({"RecipeID":[7],"token":"a"})",
          R"({"RecipeID":7})", R"({"RecipeID":7,"token":7})", R"({"RecipeID":7,"token":""})",
          R"({"RecipeID":7,"token":null})", R"({"RecipeID":7,"token":{}})", "<html>"}) {
        SCOPED_TRACE(body);
        server->Tell(CreateLine, 201, body);
        ExpectFailure();
    }
    server->Tell(CreateLine, 200, Created);
    ExpectFailure();
    EXPECT_EQ(server->Lines().count(CreateLine), server->Lines().size());
}

TEST_F(frmSendTest, AnUnexpectedReplyToTheIngredientsFails) {
    for (const char* body : {"", "{}", "[2]", R"({"added":"2"})", R"({"added":1})",
                             R"({"added":null})", R"({"added":true})", R"({"added":2.5})"}) {
        SCOPED_TRACE(body);
        server->Tell(AddLine, 201, body);
        ExpectFailure();
    }
    for (const int status : {200, 400, 403, 409, 413, 500}) {
        server->Tell(AddLine, status, R"({"added":2})");
        ExpectFailure();
    }
    EXPECT_FALSE(server->Lines().contains(PageLine));
}

TEST_F(frmSendTest, ATokenWithALineBreakIsRefused) {
    server->Tell(CreateLine, 201, R"({"RecipeID":1218105222,"token":"abc\r\nX-Smuggled: yes"})");
    ExpectFailure();
    for (const ScriptedServer::Request& request : server->Requests())
        EXPECT_FALSE(request.headers.contains("x-smuggled"));
}

TEST_F(frmSendTest, AServerThatIsDownIsAFailure) {
    server.reset();
    ExpectFailure();
}

// While it waits, and the hover look

TEST_F(frmSendTest, IsBusyAndTakesNoInputWhileItWaits) {
    bool looked = false;
    server->Tell(CreateLine, [&](QTcpSocket& socket) {
        ExpectDead("cmdSend");
        Type("txtFrom", "somebody@else.example");
        looked = true;
        ScriptedServer::Raw("HTTP/1.1 500 No\r\nContent-Length: 0\r\n\r\n")(socket);
    });
    ExpectFailure();
    EXPECT_TRUE(looked);
    EXPECT_EQ(server->Lines().size(), 1);
}

TEST_F(frmSendTest, ShowsTheReplyBeforeItCloses) {
    bool visible = false;
    TheSeams().ShowAlert = [&](const QString&, QObject* owner, bool) {
        EXPECT_EQ(owner, &window);
        EXPECT_EQ(Button("cmdSend")->State(), 1);
        EXPECT_EQ(GetRegValue("TOEMAIL"), "friend@example.org");
        visible = dialog->isVisible();
        return true;
    };
    FillIn();
    Press("cmdSend");
    EXPECT_TRUE(visible);
    EXPECT_FALSE(dialog->isVisible());
}

TEST_F(frmSendTest, AMouseMoveOverAnyControlResetsTheButtons) {
    for (const char* name : {"txtEmail", "txtFrom", "ckShare", "ucAALBL1", "ucAALBL2"}) {
        for (const char* button : {"cmdSend", "cmdCancel"})
            Hover(Button(button));
        EXPECT_EQ(Button("cmdSend")->State(), 1) << name;
        EXPECT_EQ(Button("cmdCancel")->State(), 2) << name;
        Hover(Find(dialog.get(), name));
        EXPECT_EQ(Button("cmdCancel")->State(), 1) << name;
    }
    Hover(Button("cmdSend"));
    Hover(dialog.get(), QPoint(5, 100));
    EXPECT_EQ(Button("cmdSend")->State(), 1);
}
