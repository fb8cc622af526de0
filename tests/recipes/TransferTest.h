#pragma once

#include "recipes/RecipesTest.h"
#include "recipes/ui/frmImport.h"
#include "recipes/ui/frmSend.h"
#include "support/ScriptedServer.h"
#include "support/ServedSoup.h"

#include "runtime/Seams.h"
#include "runtime/Server.h"
#include "toolkit/ucButton.h"

#include <QCheckBox>
#include <QLineEdit>

/// A server with prepared answers, the user's recipes, and the two dialogs. Both dialogs are tried
/// with the same table of odd replies.
class TransferTest : public RecipesTest, protected ServedSoup {
protected:
    void SetUp() override;
    void TearDown() override;

    void Open(ExchangeDialog* dialog); ///< takes it over
    void Type(const QString& field, const QString& text);
    void Press(const QString& button) { Click(Find(dialog.get(), button)); }
    void ExpectDead(const QString& button); ///< no input has any effect on the dialog

    void TellSoup() { ServedSoup::TellSoup(*server); }
    void TellSend(int rows = 2); ///< the answers to the three requests of a send
    QString AllRecipes();        ///< all rows of recipes and ingredients as one text

    struct Oddity {
        const char* name;
        ScriptedServer::Answer answer;
    };
    /// Replies that must fail. Some never end, so these tests set a short limit.
    static constexpr std::chrono::milliseconds OddLimit{500};
    QList<Oddity> Oddities();

    // What the dialogs say
    inline static const QString ImportedText = "The recipe has been successfully imported!";
    inline static const QString ImportFailed =
        "The recipe could not be imported. Please try again or contact help@example.org for "
        "assistance.";
    inline static const QString UnknownRecipe =
        "Recipe not found in online database. Please ensure the recipe ID you've entered is "
        "correct and try again.";
    inline static const QString SendFailed =
        "There was an error posting your recipe. Please ensure you are connected to the internet "
        "and try again. If this problem persists, please contact help@example.org.";

    // The requests of a send, and the answers to the first and the last
    inline static const QString CreateLine = "POST /halvane/api/recipes";
    inline static const QString AddLine = "POST /halvane/api/recipes/1218105222/ingredients";
    inline static const QString PageLine = "GET /halvane/sendrecipe.asp?recID=1218105222";
    inline static const QByteArray Created = R"({"RecipeID":1218105222,"token":"abc"})";
    inline static const QByteArray Sentence = "Your recipe has been sent to your friend.";

    std::unique_ptr<ScriptedServer> server;
    QWidget window;
    std::unique_ptr<ExchangeDialog> dialog;
};
