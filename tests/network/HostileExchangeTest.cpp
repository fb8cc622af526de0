#include "network/HostileReplies.h"

#include "recipes/TransferTest.h"

#include "recipes/RecipeBook.h"
#include "store/Connection.h"

#include <QElapsedTimer>
#include <QJsonDocument>

#include <SQLiteCpp/SQLiteCpp.h>

namespace {

using HostileReplies::Fate;
using HostileReplies::Reply;

const QByteArray Added = R"({"added":2})";

constexpr std::chrono::milliseconds ShortLimit(60); ///< for a reply that only the limit ends
constexpr std::chrono::seconds LongLimit(20);
constexpr int Unhurried = 60'000; ///< milliseconds that a busy machine may add

constexpr int MostCalls = 3; ///< of one dialog

constexpr int Carried = 33; ///< values of an ingredient that an import takes over

} // namespace

/// An exchange that answers one of its calls wrongly.
class HostileExchangeTest : public TransferTest {
protected:
    void SetUp() override {
        TransferTest::SetUp();
        TheSeams().ShowAlert = [this](const QString& text, QObject*, bool) {
            said = text;
            return true;
        };
    }
    void TearDown() override {
        RecordProperty("cases", cases);
        TransferTest::TearDown();
    }

    /// Presses the button and waits, as long as the limit allows.
    void Use(const QString& button, bool endless) {
        const auto limit = endless ? ShortLimit : std::chrono::milliseconds(LongLimit);
        dialog->Exchange().Http().SetLimit(limit);
        said.clear();
        QElapsedTimer clock;
        clock.start();
        Press(button);
        EXPECT_LE(clock.elapsed(), MostCalls * ShortLimit.count() + Unhurried);
        ++cases;
    }

    // Import

    void Import(const QByteArray& name, const QByteArray& recipe, const QByteArray& table,
                bool endless = false) {
        SCOPED_TRACE(name.left(60).toStdString());
        UserDB().Raw().exec("DELETE FROM Recipes; DELETE FROM Ingredients");
        Open(new frmImport(&window));
        Type("txtRecID", QString::number(Soup));
        Use("cmdGo", endless);
        EXPECT_EQ(dialog->isVisible(), said != ImportedText);
        EXPECT_TRUE(said == ImportedText || said == ImportFailed) << said.toStdString();
        ExpectNothingHalf(QJsonDocument::fromJson(recipe).object(),
                          QJsonDocument::fromJson(table).object()["rows"].toArray());
    }
    /// A recipe as it was served, and of its ingredients the first ones; all of them if the dialog
    /// says that it is done.
    void ExpectNothingHalf(const QJsonObject& recipe, const QJsonArray& rows) {
        const auto kept = HalvaneTest::Rows(
            UserDB(), "SELECT RecipeName, ServingName, RecipeYield, PrepTime, Instructions "
                      "FROM Recipes");
        const auto ingredients = HalvaneTest::Rows(UserDB(), "SELECT * FROM Ingredients");
        ASSERT_LE(kept.size(), 1);
        ASSERT_LE(ingredients.size(), kept.isEmpty() ? 0 : rows.size());
        if (said == ImportedText) {
            ASSERT_EQ(kept.size(), 1);
            EXPECT_EQ(ingredients.size(), rows.size());
        }
        if (!kept.isEmpty())
            ExpectServed(kept[0],
                         {recipe["RecipeName"], recipe["ServingName"], recipe["RecipeYield"],
                          recipe["PrepTime"], recipe["Instructions"]});
        for (qsizetype i = 0; i < ingredients.size(); ++i) {
            const QJsonArray row = rows[i].toArray();
            QJsonArray served;
            for (int position = 1; position <= Carried; ++position)
                served.append(row[position]);
            ExpectServed(ingredients[i].mid(1, Carried), served);
        }
    }
    static void ExpectServed(const QVariantList& kept, const QJsonArray& served) {
        for (qsizetype i = 0; i < kept.size(); ++i)
            if (served[i].isString())
                EXPECT_EQ(kept[i].toString().toUtf8(), served[i].toString().toUtf8()) << i;
            else if (served[i].isDouble())
                EXPECT_EQ(kept[i].toDouble(), served[i].toDouble()) << i;
            else
                EXPECT_TRUE(kept[i].isNull() && served[i].isNull()) << i;
    }
    void ImportAround(const QString& line, const QByteArray& body) {
        TellSoup();
        for (const Reply& reply : HostileReplies::Around(*server, 200, body)) {
            server->Tell(line, reply.answer);
            Import(reply.name, Json(SoupRecipe()), Table(SoupRows()), reply.endless);
            EXPECT_TRUE(reply.fate == Fate::Either || said == ImportFailed)
                << reply.name.constData();
        }
    }

    // Send

    void MakeRecipe() {
        own = FoodsTest::AddRecipe("Crème of lentils", "1 bowl");
        for (const char* food : {"Lentils", "Water"})
            RecipeBook::AddIngredient(own, Counting(food));
    }
    void Send(const QByteArray& name, bool endless = false) {
        SCOPED_TRACE(name.left(60).toStdString());
        const QString before = AllRecipes();
        const qsizetype sent = server->Lines().size();
        Open(new frmSend(own, &window));
        Type("txtEmail", "friend@example.org");
        Type("txtFrom", "me@example.org");
        Use("cmdSend", endless);
        EXPECT_FALSE(dialog->isVisible());
        EXPECT_EQ(AllRecipes(), before);
        EXPECT_FALSE(said.startsWith(u'<') || said.startsWith(u" <") || said.size() < 2)
            << said.toStdString();
        const QStringList lines = server->Lines().mid(sent);
        EXPECT_EQ(QSet<QString>(lines.begin(), lines.end()).size(), lines.size())
            << lines.join(", ").toStdString();
    }
    void SendAround(const QString& line, int status, const QByteArray& body) {
        MakeRecipe();
        TellSend();
        for (const Reply& reply : HostileReplies::Around(*server, status, body)) {
            server->Tell(line, reply.answer);
            Send(reply.name, reply.endless);
            const bool anyStatus = line == PageLine && reply.fate == Fate::Status;
            EXPECT_TRUE(reply.fate == Fate::Either || anyStatus || said == SendFailed)
                << reply.name.constData();
        }
    }

    /// The document with another value in place of the first of those.
    static QByteArray With(const QByteArray& document, const QByteArray& value,
                           const QByteArray& instead) {
        QByteArray changed = document;
        changed.replace(changed.indexOf(value), value.size(), instead);
        return changed;
    }

    QString said;   ///< the last message
    qint32 own = 0; ///< the recipe to send
    int cases = 0;
};

TEST_F(HostileExchangeTest, ARecipeThatComesInAWrongWayIsNotKeptInPart) {
    ImportAround(RecipePath(), Json(SoupRecipe()));
    EXPECT_GE(cases, 100);
}

TEST_F(HostileExchangeTest, IngredientsThatComeInAWrongWayAreNotKeptInPart) {
    ImportAround(RecipePath("/ingredients"), Table(SoupRows()));
}

TEST_F(HostileExchangeTest, ARecipeThatIsNotTakenInTheRightWayIsSentOnce) {
    SendAround(CreateLine, 201, Created);
}

TEST_F(HostileExchangeTest, IngredientsThatAreNotTakenInTheRightWayAreSentOnce) {
    SendAround(AddLine, 201, Added);
}

TEST_F(HostileExchangeTest, APageThatComesInAWrongWayIsAMessageOrAFailure) {
    SendAround(PageLine, 200, Sentence);
}

TEST_F(HostileExchangeTest, EachFieldOfARecipeIsKeptAsServedOrRefused) {
    TellSoup();
    const QByteArray soup = Json(SoupRecipe());
    for (const char* field :
         {"\"Crème of lentils\"", "\"1 bowl\"", "4.5", "45", "\"Rinse.\\nCook.\"", "1218105222"})
        for (const QByteArray& value : HostileReplies::Values()) {
            const QByteArray served = With(soup, field, value);
            server->Tell(RecipePath(), 200, served);
            Import(QByteArray(field).append(" as ").append(value), served, Table(SoupRows()));
        }
}

TEST_F(HostileExchangeTest, EachValueOfAnIngredientIsKeptAsServedOrRefused) {
    TellSoup();
    const QJsonArray rows = SoupRows();
    const QByteArray mark = "\"the value\"";
    for (const int position : {0, 1, 5, 31, 32, 33, 34, 35})
        for (const QByteArray& value : HostileReplies::Values()) {
            QJsonArray marked = rows;
            QJsonArray second = rows[1].toArray();
            second[position] = "the value";
            marked[1] = second;
            const QByteArray served = With(Table(marked), mark, value);
            server->Tell(RecipePath("/ingredients"), 200, served);
            Import("position " + QByteArray::number(position) + " as " + value, Json(SoupRecipe()),
                   served);
        }
}

TEST_F(HostileExchangeTest, RowsAndFieldsOfAnyOtherShapeAreRefused) {
    TellSoup();
    const QByteArray mark = "\"the part\"";
    for (const char* part : {"rows", "fields"})
        for (const QByteArray& value : HostileReplies::Values()) {
            QJsonObject table{{"fields", Fields()}, {"rows", SoupRows()}};
            table[QLatin1String(part)] = "the part";
            const QByteArray served = With(Json(table), mark, value);
            server->Tell(RecipePath("/ingredients"), 200, served);
            Import(QByteArray(part).append(" as ").append(value), Json(SoupRecipe()), served);
            const bool noRows = part == std::string("rows") && value == "[]";
            EXPECT_EQ(said, noRows ? ImportedText : ImportFailed) << value.left(60).constData();
        }
}

TEST_F(HostileExchangeTest, TheReplyToARecipeIsTheAgreedOneOrAFailure) {
    MakeRecipe();
    for (const char* part : {"1218105222", "\"abc\""})
        for (const QByteArray& value : HostileReplies::Values()) {
            TellSend();
            server->Tell(CreateLine, 201, With(Created, part, value));
            Send(QByteArray(part).append(" as ").append(value));
        }
}

TEST_F(HostileExchangeTest, TheReplyToIngredientsIsTheirNumberOrAFailure) {
    MakeRecipe();
    for (const QByteArray& value : HostileReplies::Values()) {
        TellSend();
        server->Tell(AddLine, 201, With(Added, "2", value));
        Send(value);
        EXPECT_EQ(said, SendFailed) << value.left(60).constData();
    }
}
