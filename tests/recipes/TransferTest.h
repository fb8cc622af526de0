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
    QString AllRecipes(); ///< all rows of recipes and ingredients as one text

    struct Oddity {
        const char* name;
        ScriptedServer::Answer answer;
    };
    /// Replies that must fail. Some never end, so these tests set a short limit.
    static constexpr std::chrono::milliseconds OddLimit{500};
    QList<Oddity> Oddities();

    std::unique_ptr<ScriptedServer> server;
    QWidget window;
    std::unique_ptr<ExchangeDialog> dialog;
};
