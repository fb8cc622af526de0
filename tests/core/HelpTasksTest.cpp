#include "core/KeysAlone.h"

#include "analysis/ui/frmReport.h"
#include "core/Navigation.h"
#include "core/OpenURL.h"
#include "runtime/Server.h"
#include "store/Connection.h"
#include "support/Places.h"
#include "support/ScriptedServer.h"
#include "support/ServedSoup.h"
#include "toolkit/print/PrintJob.h"

#include <QApplication>
#include <QDir>
#include <QFile>
#include <QRegularExpression>
#include <QTest>

#include <SQLiteCpp/SQLiteCpp.h>

#include <set>

/// Each task that a page of the help tells. The name of a test is the name of the page and the
/// heading of the task.
class HelpTasksTest : public KeysAlone {};

namespace {

const QString Logged = QStringLiteral("SELECT count(*) FROM USER_FOODS");
const QString Newest =
    QStringLiteral("SELECT Meal || '/' || FoodName || '/' || QTY FROM USER_FOODS "
                   "ORDER BY RecID DESC LIMIT 1");

/// "To enter one" of the page "my-foods" is MyFoodsToEnterOne.
std::string TestOf(const QString& page, const QString& heading) {
    static const QRegularExpression gaps(QStringLiteral("[^A-Za-z]+"));
    QString name;
    for (QString word : QString(page + u' ' + heading).split(gaps, Qt::SkipEmptyParts))
        name += word.replace(0, 1, word[0].toUpper());
    return name.toStdString();
}

std::set<std::string> Tests() {
    std::set<std::string> names;
    const testing::TestSuite* suite = testing::UnitTest::GetInstance()->current_test_info()
                                          ? testing::UnitTest::GetInstance()->current_test_suite()
                                          : nullptr;
    for (int i = 0; suite && i < suite->total_test_count(); ++i)
        names.insert(suite->GetTestInfo(i)->name());
    return names;
}

QStringList TasksOf(const QString& page) {
    QFile file(page);
    EXPECT_TRUE(file.open(QIODevice::ReadOnly)) << page.toStdString();
    static const QRegularExpression task(QStringLiteral("<h2>(To [^<]+)</h2>"));
    QStringList tasks;
    for (const auto& match : task.globalMatch(QString::fromUtf8(file.readAll())))
        tasks << match.captured(1);
    return tasks;
}

} // namespace

/// What is done in a terminal needs no test here: it is done with keys anyway.
TEST_F(HelpTasksTest, EveryTaskThatTheHelpTellsIsTried) {
    const std::set<std::string> tests = Tests();
    const QDir help(Places::Source(QStringLiteral("/data/help")));
    int tasks = 0;
    for (const QString& page : help.entryList({QStringLiteral("*.html")}))
        if (page != QStringLiteral("your-data.html"))
            for (const QString& task : TasksOf(help.filePath(page))) {
                EXPECT_TRUE(tests.contains(TestOf(page.chopped(5), task)))
                    << page.toStdString() << ": " << task.toStdString();
                ++tasks;
            }
    EXPECT_GE(tasks, 20);
}

TEST_F(HelpTasksTest, HomeToAddFoodOrAWeight) {
    TabTo("ucCalButton");
    Press(Qt::Key_Left);
    Press(Qt::Key_Return);
    EXPECT_EQ(Front(), "frmDay");
    EXPECT_EQ(ChosenDay(), today_.addDays(-1));
    TabTo("cmdAddFoods");
    TabTo("txtWeight");
}

TEST_F(HelpTasksTest, HomeToLookAtAnotherMonth) {
    TabTo("ucMonth");
    Press(Qt::Key_Home);
    EXPECT_EQ(Find(TheNavigation().Front(), "picCalBG")->accessibleName(), "January 2026");
    Press(Qt::Key_Return);
    Press(Qt::Key_M);
    Press(Qt::Key_Return);
    EXPECT_EQ(Find(TheNavigation().Front(), "picCalBG")->accessibleName(), "March 2026");
    EXPECT_EQ(ChosenDay(), today_) << "that only turns the page";
}

TEST_F(HelpTasksTest, DayToAddAFood) {
    PressControl(Qt::Key_2);
    TabAndOpen("cmdAddFoods", [] {
        Search("oats");
        Press(Qt::Key_Return);
    });
    TabAndOpen("lblLunch", [] {
        Search("butter");
        Press(Qt::Key_Return);
    });
    EXPECT_EQ(Users(Logged), 2);
    EXPECT_EQ(Users(Newest), "Lunch/Butter, salted/1.0");
}

TEST_F(HelpTasksTest, DayToRemoveAFood) {
    Log("Breakfast");
    Log("Lunch");
    PressControl(Qt::Key_2);
    TabTo("imgTrash");
    Press(Qt::Key_Delete);
    EXPECT_EQ(Users(Logged), 1);
    PressControl(Qt::Key_Z);
    EXPECT_EQ(Users(Logged), 2);
    ExpectAlert("Are you sure you wish to remove all foods from your daily intake?");
    TabAndPress("cmdClear");
    EXPECT_EQ(Users(Logged), 0);
}

TEST_F(HelpTasksTest, DayToChangeCopyOrMoveAFood) {
    Log("Breakfast");
    PressControl(Qt::Key_2);
    TabTo("imgTrash");
    Press(Qt::Key_F2);
    Type("2.5");
    Press(Qt::Key_Return);
    EXPECT_EQ(Users(Newest), "Breakfast/Oats, rolled/2.5");
    TabTo("imgTrash");
    Press(Qt::Key_F10, Qt::ShiftModifier);
    Press(Qt::Key_M);
    WaitForMenu("moveToMeal");
    Press(Qt::Key_S);
    EXPECT_EQ(Users(Newest), "Snacks/Oats, rolled/2.5");
    TabTo("imgTrash");
    Press(Qt::Key_F10, Qt::ShiftModifier);
    Press(Qt::Key_D);
    Press(Qt::Key_Right);
    Press(Qt::Key_Return);
    EXPECT_EQ(Users(Logged + " WHERE UDate = '2026-11-22'"), 1);
}

TEST_F(HelpTasksTest, DayToEnterYourWeight) {
    PressControl(Qt::Key_2);
    TabTo("txtWeight");
    Type("150.5");
    Press(Qt::Key_Tab);
    EXPECT_EQ(Users("SELECT UDate || ' ' || Weight FROM USER_WEIGHTS"), "2026-11-21 150.5");
    TabTo("txtWeight");
    PressControl(Qt::Key_A);
    Press(Qt::Key_Delete);
    Press(Qt::Key_Tab);
    EXPECT_EQ(Users("SELECT Weight FROM USER_WEIGHTS"), 0);
}

TEST_F(HelpTasksTest, DayToGoToAnotherDay) {
    PressControl(Qt::Key_2);
    TabAndPress("cmdCal");
    Press(Qt::Key_Up);
    Press(Qt::Key_Return);
    EXPECT_EQ(ChosenDay(), today_.addDays(-7));
}

TEST_F(HelpTasksTest, SearchToSearch) {
    InDialog([] { PressControl(Qt::Key_F); },
             [] {
                 Search("rolled oats");
                 QWidget* dialog = QApplication::activeModalWidget();
                 EXPECT_EQ(Find(dialog, "ucFood1")->property("FoodName"), "Oats, rolled");
                 EXPECT_EQ(QApplication::focusWidget()->objectName(), "txtQTY_A");
             });
}

TEST_F(HelpTasksTest, SearchToEatIt) {
    InDialog([] { PressControl(Qt::Key_F); },
             [] {
                 TabTo("opMeal0");
                 Press(Qt::Key_Down);
                 TabTo("txtSearchString");
                 Search("oats");
                 Type("0.5");
                 Press(Qt::Key_Return);
             });
    EXPECT_EQ(Users(Newest), "Lunch/Oats, rolled/0.5");
}

TEST_F(HelpTasksTest, SearchToSeeWhatIsInIt) {
    InDialog([] { PressControl(Qt::Key_F); },
             [] {
                 Search("oats");
                 TabTo("imgInfo_W_A");
                 QString shown;
                 InDialog([] { Press(Qt::Key_Space); },
                          [&shown] { shown = QApplication::activeModalWidget()->objectName(); });
                 EXPECT_EQ(shown, "frmNutInfo");
             });
}

TEST_F(HelpTasksTest, MyFoodsToEnterOne) {
    PressControl(Qt::Key_4);
    TabAndPress("cmdNewBut");
    Type("Rye rolls");
    Press(Qt::Key_Tab);
    Type("1 roll");
    Press(Qt::Key_Tab);
    Type("180");
    TabAndPress("cmdSave");
    EXPECT_EQ(
        Foods("SELECT FoodName || '/' || Serv_Desc_A || '/' || Calories FROM FOODS WHERE ID > "
              "23508"),
        "Rye rolls/1 roll/180.0");
}

TEST_F(HelpTasksTest, MyFoodsToChangeOrDeleteOne) {
    for (const char* food : {"23509, 'Granola'", "23510, 'Rolls'"})
        FoodDB().Raw().exec(std::string("INSERT INTO FOODS (ID, FoodName, Calories, Serv_Desc_A, "
                                        "Serv_GM_WT_A) SELECT ") +
                            food + ", 250, '1 bowl', 100");
    PressControl(Qt::Key_4);
    TabTo("FoodList");
    Press(Qt::Key_Home);
    TabTo("txtFoodName");
    Type("Crisp granola");
    TabAndPress("cmdSave");
    EXPECT_EQ(Foods("SELECT FoodName FROM FOODS WHERE ID = 23509"), "Crisp granola");
    TabTo("FoodList");
    Press(Qt::Key_End);
    ExpectAlert("Are you sure you want to delete this custom food?");
    TabAndPress("cmdDelete");
    EXPECT_EQ(Foods("SELECT group_concat(FoodName) FROM FOODS WHERE ID > 23508"), "Crisp granola");
}

TEST_F(HelpTasksTest, ProfileToChangeATargetByHand) {
    PressControl(Qt::Key_6);
    TabAndPress("cmdAdvanced");
    TabTo("txtFiber");
    Type("33");
    TabAndPress("cmdSave");
    EXPECT_EQ(Users("SELECT fiber FROM profiles"), 33);
}

TEST_F(HelpTasksTest, RecipesToWriteOne) {
    PressControl(Qt::Key_5);
    TabAndPress("cmdNew");
    const std::pair<const char*, const char*> texts[] = {{"txtName", "Porridge"},
                                                         {"txtYield", "2"},
                                                         {"txtServing", "1 bowl"},
                                                         {"txtTime", "10"},
                                                         {"txtInstructions", "Stir."}};
    for (const auto& [field, text] : texts) {
        TabTo(field);
        Type(text);
    }
    TabAndOpen("cmdIngreds", [] {
        Search("oats");
        Press(Qt::Key_Return);
    });
    TabAndPress("cmdEdit");
    EXPECT_EQ(
        Users("SELECT RecipeName || '/' || RecipeYield || '/' || ServingName || '/' || PrepTime "
              "|| '/' || Instructions FROM Recipes"),
        "Porridge/2.0/1 bowl/10.0/Stir.");
    EXPECT_EQ(Users("SELECT FoodName FROM Ingredients"), "Oats, rolled");
}

TEST_F(HelpTasksTest, RecipesToEatIt) {
    AddRecipe();
    InDialog([] { PressControl(Qt::Key_F); },
             [] {
                 Search("soup");
                 Type("0.25");
                 Press(Qt::Key_Return);
             });
    EXPECT_EQ(Users(Newest), "Breakfast/Soup/0.25");
    EXPECT_EQ(Users("SELECT Calories FROM USER_FOODS"), 62.5);
}

TEST_F(HelpTasksTest, RecipesToDeleteIt) {
    AddRecipe();
    PressControl(Qt::Key_5);
    ExpectAlert("Are you sure you want to delete this recipe?");
    TabAndPress("cmdDelete");
    EXPECT_EQ(Users("SELECT count(*) FROM Recipes"), 0);
}

TEST_F(HelpTasksTest, RecipesToShareIt) {
    AddRecipe();
    PressControl(Qt::Key_5);
    for (const auto& [button, window] :
         {std::pair{"cmdSend", "frmSend"}, std::pair{"cmdImport", "frmImport"}}) {
        QString opened;
        TabAndOpen(button, [&] { opened = QApplication::activeModalWidget()->objectName(); });
        EXPECT_EQ(opened, window);
    }
}

TEST_F(HelpTasksTest, ExchangeToSendOne) {
    ScriptedServer server;
    Server::SetAddress(server.Address());
    server.Tell("POST /halvane/api/recipes", 201, R"({"RecipeID":1218105222,"token":"abc"})");
    server.Tell("POST /halvane/api/recipes/1218105222/ingredients", 201, R"({"added":1})");
    server.Tell("GET /halvane/sendrecipe.asp?recID=1218105222", 200, "Your recipe has been sent.");
    AddRecipe();
    PressControl(Qt::Key_5);
    ExpectAlert("Your recipe has been sent.");
    TabAndOpen("cmdSend", [] {
        TabTo("txtEmail");
        Type("anna@example.org");
        Press(Qt::Key_Tab);
        Type("tom@example.org");
        Press(Qt::Key_Tab);
        Press(Qt::Key_Space);
        TabAndPress("cmdSend");
    });
    EXPECT_EQ(server.Requests().size(), 3);
    EXPECT_TRUE(server.Requests().first().body.contains("anna@example.org"));
}

TEST_F(HelpTasksTest, ExchangeToImportOne) {
    ScriptedServer server;
    Server::SetAddress(server.Address());
    ServedSoup::TellSoup(server);
    ExpectAlert("The recipe has been successfully imported!");
    const auto type = [] {
        Type(QString::number(ServedSoup::Soup));
        Press(Qt::Key_Return);
    };
    PressControl(Qt::Key_5);
    TabAndOpen("cmdImport", type);
    EXPECT_EQ(Users("SELECT count(*) FROM Recipes"), 1);
}

TEST_F(HelpTasksTest, ExchangeToLookAround) {
    QList<QUrl> opened;
    SetBrowser([&opened](const QUrl& address) {
        opened << address;
        return true;
    });
    TabAndPress("cmdCommunity");
    SetBrowser({});
    ASSERT_EQ(opened.size(), 1);
    EXPECT_EQ(opened.first().path(), "/halvane/community.asp");
}

TEST_F(HelpTasksTest, ReportsToChooseThePeriod) {
    UserDB().Raw().exec("INSERT INTO USER_WEIGHTS (UID, UDate, Weight) VALUES (" +
                        std::to_string(person_) + ", '2026-11-20', 150)");
    PressControl(Qt::Key_3);
    TabTo("txtStart");
    Type("11/1/2026");
    Press(Qt::Key_Tab);
    Type("11/20/2026");
    TabAndPress("cmdRefresh");
    const auto* report = qobject_cast<frmReport*>(TheNavigation().Front());
    ASSERT_NE(report, nullptr);
    EXPECT_TRUE(report->Printed().title.contains("11/20/2026"))
        << report->Printed().title.toStdString();
    for (const char* view : {"cmdPie", "cmdLine", "cmdVals", "cmdBar"}) {
        TabTo(view);
        Press(Qt::Key_Space);
        EXPECT_TRUE(Find(TheNavigation().Front(), view)->property("Chosen").toBool()) << view;
    }
}

TEST_F(HelpTasksTest, ShortcutsToPrint) {
    PressControl(Qt::Key_2);
    const QString file = Folder() + "/day.pdf";
    InDialog([] { PressControl(Qt::Key_P); },
             [&file] {
                 TabTo("cmdPrint");
                 InDialog([] { Press(Qt::Key_Return); },
                          [&file] {
                              TabTo("filename");
                              Type(file);
                              Press(Qt::Key_Return);
                          });
             });
    EXPECT_TRUE(QFile::exists(file));
}
