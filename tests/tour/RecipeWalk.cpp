#include "tour/RecipeWalk.h"

#include "tour/Guide.h"
#include "tour/PrintWalk.h"

#include "store/Connection.h"
#include "toolkit/ListBox.h"

#include <QTest>

/// One ingredient: the search term, the serving and the quantity.
struct RecipeWalk::Part {
    const char* term;
    const char* serving; ///< "A" or "B"
    const char* quantity;
};

const RecipeWalk::Part RecipeWalk::Parts[] = {
    {"oats regular quick unenriched", "A", "2"}, {"granola tom", "A", "1"},
    {"yogurt plain low fat", "A", "2"},          {"blueberries raw", "A", "1.5"},
    {"almonds dry roasted", "B", "3"},
};

namespace {
const QString Name = QStringLiteral("Tom's breakfast jars");
const QString LongName = QStringLiteral(
    "Sunday lasagne with two kinds of mushrooms, spinach and whatever the garden still gives");

constexpr std::pair<const char*, const char*> Facts[] = {
    {"txtName", "Tom's breakfast jar"}, {"txtYield", "4"}, {"txtTime", "-15"}};

const QString Steps =
    QStringLiteral("Toast the oats in a dry pan until they smell of nuts.\n"
                   "Let them cool, then stir in half of the yogurt.\n"
                   "Rinse and drain the blueberries.\n"
                   "Layer oats, berries and the rest of the yogurt in four jars.\n"
                   "Chill overnight.\n"
                   "Top with the granola and the almonds.\n"
                   "Keeps for three days.");
} // namespace

RecipeWalk::RecipeWalk(Guide& guide)
    : guide_(guide) {}

void RecipeWalk::Go() {
    OpenScreen();
    WriteRecipe();
    AddIngredients();
    SaveRecipe();
    LookAtCard();
    PrintWalk(guide_).Recipe();
    CorrectRecipe();
    WriteLongRecipe();
    DeleteLongRecipe();
    EatRecipe();
    TakeItBack();
}

QWidget* RecipeWalk::Frame() {
    return guide_.Window(QStringLiteral("frmHOME"));
}

QWidget* RecipeWalk::Screen() {
    return guide_.Window(QStringLiteral("frmRecipeManager"));
}

void RecipeWalk::Picture(const char* name) {
    guide_.Picture(Frame(), QLatin1String(name));
}

void RecipeWalk::OpenScreen() {
    guide_.Press(Frame(), QStringLiteral("cmdRecipes"));
    guide_.Check(Screen()->property("CurrentRecipe") == -1, QStringLiteral("no recipe yet"));
    Picture("recipes-empty");
}

void RecipeWalk::WriteRecipe() {
    guide_.Press(Screen(), QStringLiteral("cmdNew"));
    Picture("recipe-new");
    guide_.CheckValue(UserDB(),
                      QStringLiteral("SELECT RecipeName || '/' || ServingName FROM Recipes"),
                      QStringLiteral("My Recipe/"));
    BeRefused();
    for (const auto& [field, text] : Facts)
        guide_.Type(Screen(), field, text);
    guide_.Type(Screen(), QStringLiteral("txtInstructions"), Steps);
    guide_.Type(Screen(), QStringLiteral("txtServing"), QStringLiteral("1 jar"));
    Picture("recipe-typed");
}

void RecipeWalk::BeRefused() {
    guide_.Foresee(QStringLiteral("frmAlert"), [this](QWidget* alert) {
        guide_.Picture(alert, QStringLiteral("alert-recipe-serving"));
        guide_.Press(alert, QStringLiteral("cmdOK"));
    });
    guide_.Press(Screen(), QStringLiteral("cmdEdit"));
}

void RecipeWalk::AddIngredients() {
    guide_.Foresee(QStringLiteral("frmRecSearch"), [this](QWidget* search) {
        guide_.Picture(search, QStringLiteral("recipe-search-empty"));
        for (const Part& part : Parts)
            AddPart(search, part);
        guide_.Picture(search, QStringLiteral("recipe-search-added"));
        guide_.Press(search, QStringLiteral("cmdDone"));
    });
    guide_.Press(Screen(), QStringLiteral("cmdIngreds"));
    guide_.CheckValue(UserDB(),
                      QStringLiteral("SELECT count(*) FROM Ingredients WHERE RecipeID = 1"),
                      int(std::size(Parts)));
    Picture("recipe-ingredients");
}

void RecipeWalk::AddPart(QWidget* search, const Part& part) {
    guide_.Type(search, QStringLiteral("txtSearchString"), part.term);
    guide_.Press(search, QStringLiteral("cmdGo"));
    QWidget* row = guide_.Find(search, QStringLiteral("ucFood1"));
    if (!row)
        return;
    const bool first = part.serving[0] == 'A';
    guide_.Type(row, first ? QStringLiteral("txtQTY_A") : QStringLiteral("txtQTY_B"),
                part.quantity);
    guide_.Press(row, first ? QStringLiteral("cmdEAT_a") : QStringLiteral("cmdEAT_B"));
    guide_.CheckValue(UserDB(),
                      QStringLiteral("SELECT FoodName FROM Ingredients ORDER BY ID DESC LIMIT 1"),
                      row->property("FoodName"));
}

void RecipeWalk::SaveRecipe() {
    guide_.Press(Screen(), QStringLiteral("cmdEdit"));
    guide_.CheckValue(
        UserDB(),
        QStringLiteral("SELECT RecipeName || '/' || RecipeYield || '/' || ServingName || '/' || "
                       "PrepTime FROM Recipes"),
        QStringLiteral("Tom's breakfast jar/4.0/1 jar/15.0"));
    guide_.CheckValue(UserDB(), QStringLiteral("SELECT Instructions FROM Recipes"), Steps);
}

void RecipeWalk::LookAtCard() {
    Picture("recipe");
    guide_.HoverOver(Frame(), QStringLiteral("cmdDelete"));
    Picture("recipe-button-hover");
    QWidget* bar = guide_.Find(Screen(), QStringLiteral("vsInstructions"));
    QTest::mouseClick(bar, Qt::LeftButton, Qt::NoModifier, QPoint(8, bar->height() - 4));
    guide_.Check(bar->property("Value") == 1, QStringLiteral("the instructions go on one line"));
    Picture("recipe-scrolled");
}

void RecipeWalk::CorrectRecipe() {
    guide_.Press(Screen(), QStringLiteral("cmdEdit"));
    Picture("recipe-edit");
    guide_.Type(Screen(), QStringLiteral("txtName"), Name);
    guide_.Type(Screen(), QStringLiteral("txtYield"), QStringLiteral("6 small ones"));
    guide_.Press(Screen(), QStringLiteral("cmdEdit"));
    guide_.CheckValue(UserDB(),
                      QStringLiteral("SELECT RecipeName || '/' || RecipeYield FROM Recipes"),
                      QString(Name + QStringLiteral("/6.0")));
}

void RecipeWalk::WriteLongRecipe() {
    guide_.Press(Screen(), QStringLiteral("cmdNew"));
    guide_.Type(Screen(), QStringLiteral("txtName"), LongName);
    guide_.Type(Screen(), QStringLiteral("txtServing"),
                QStringLiteral("1 piece as large as a hand, or two for a hungry guest"));
    guide_.Press(Screen(), QStringLiteral("cmdEdit"));
    auto* list = guide_.Find<ListBox>(Screen(), QStringLiteral("lsRecipes"));
    guide_.Check(list->List() == QStringList{LongName, Name} && list->ListIndex() == 1,
                 QStringLiteral("the recipe that was chosen is shown, not the new one"));
    list->SetListIndex(0);
    Picture("recipe-long-name");
}

void RecipeWalk::DeleteLongRecipe() {
    for (const char* answer : {"cmdCancel", "cmdOK"}) {
        guide_.Foresee(QStringLiteral("frmAlert"), [this, answer](QWidget* alert) {
            guide_.Picture(alert, QStringLiteral("alert-delete-recipe"));
            guide_.Press(alert, answer);
        });
        guide_.Press(Screen(), QStringLiteral("cmdDelete"));
    }
    guide_.CheckValue(UserDB(), QStringLiteral("SELECT count(*) FROM Recipes"), 1);
    Picture("recipe-after-delete");
}

void RecipeWalk::EatRecipe() {
    guide_.Press(Frame(), QStringLiteral("cmdDay"));
    guide_.Foresee(QStringLiteral("frmFoodSearch"), [this](QWidget* search) {
        SearchAndEat(search);
        guide_.Press(search, QStringLiteral("cmdDone"));
    });
    guide_.Press(guide_.Window(QStringLiteral("frmDay")), QStringLiteral("lblBreakfast"));
    guide_.CheckValue(
        UserDB(),
        QStringLiteral("SELECT Serving || '/' || (abs(Calories - (SELECT sum(Calories) FROM "
                       "Ingredients WHERE RecipeID = 1)) < 1e-6) FROM USER_FOODS "
                       "ORDER BY RecID DESC LIMIT 1"),
        QStringLiteral("1 jar/1"));
    Picture("day-with-recipe");
}

void RecipeWalk::SearchAndEat(QWidget* search) {
    guide_.Type(search, QStringLiteral("txtSearchString"), QStringLiteral("breakfast jars"));
    guide_.Press(search, QStringLiteral("cmdGo"));
    guide_.Picture(search, QStringLiteral("search-recipe"));
    QWidget* row = guide_.Find(search, QStringLiteral("ucFood1"));
    guide_.ForeseeNext(QStringLiteral("frmNutInfo"), [this](QWidget* facts) {
        guide_.Picture(facts, QStringLiteral("facts-recipe"));
        guide_.Press(facts, QStringLiteral("cmdDone"));
    });
    guide_.Press(row, QStringLiteral("imgInfo_W_A"));
    guide_.Press(row, QStringLiteral("cmdEAT_a"));
}

void RecipeWalk::TakeItBack() {
    QWidget* day = guide_.Window(QStringLiteral("frmDay"));
    for (QWidget* row : day->findChildren<QWidget*>())
        if (row->property("FoodName").toString() == Name) {
            guide_.Press(row, QStringLiteral("imgTrash"));
            break;
        }
    guide_.CheckValue(UserDB(),
                      QStringLiteral("SELECT count(*) FROM USER_FOODS WHERE FoodName = "
                                     "'Tom''s breakfast jars'"),
                      0);
}

void RecipeWalk::FindAgain(Guide& guide) {
    guide.CheckValue(UserDB(), QStringLiteral("SELECT RecipeName FROM Recipes"), Name);
    guide.CheckValue(UserDB(),
                     QStringLiteral("SELECT count(*) FROM Ingredients WHERE RecipeID = 1"),
                     int(std::size(Parts)));
}
