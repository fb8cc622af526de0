#include "core/CoreTest.h"

#include "analysis/ui/frmReport.h"
#include "core/Navigation.h"
#include "core/Screens.h"
#include "core/frmHOME.h"
#include "drawing/Style.h"
#include "foods/ui/frmNutInfo.h"
#include "intake/ui/frmDay.h"
#include "model/Nutrients.h"
#include "recipes/ui/frmRecipeManager.h"
#include "runtime/AppState.h"
#include "runtime/Clock.h"
#include "runtime/ScreenTable.h"
#include "runtime/Seams.h"
#include "store/Connection.h"
#include "support/PrintedPages.h"
#include "toolkit/print/PrintJob.h"

#include <QApplication>
#include <QGraphicsView>
#include <QLabel>
#include <QMessageBox>
#include <QPushButton>
#include <QTest>

#include <SQLiteCpp/SQLiteCpp.h>

/// What the screens print.
class PrintingTest : public CoreTest {
protected:
    void SetUp() override {
        CoreTest::SetUp();
        OpenEmptyDatabases();
        Clock::SetToday(today_);
        AddUser();
        RegisterScreens(TheNavigation());
        ::ShowHome();
    }

    void Log(const QString& food, const QString& meal, const QString& serving = "1 cup") {
        SQLite::Statement insert(UserDB().Raw(),
                                 "INSERT INTO USER_FOODS (UID, FoodName, Serving, Meal, UDate, "
                                 "QTY, Calories, TotalFat, carbs) VALUES (1, ?, ?, ?, "
                                 "'2026-11-21', 2, 123.4, 5, 10)");
        insert.bind(1, food.toStdString());
        insert.bind(2, serving.toStdString());
        insert.bind(3, meal.toStdString());
        insert.exec();
    }
    void Weigh() {
        UserDB().Raw().exec("INSERT INTO USER_WEIGHTS VALUES (1, '2026-11-21', 198.5)");
    }
    void AddRecipe(const QString& text, int ingredients) {
        SQLite::Statement insert(UserDB().Raw(),
                                 "INSERT INTO Recipes (RecipeName, ServingName, RecipeYield, "
                                 "PrepTime, Instructions) VALUES ('Soup', '1 bowl', 4, 30, ?)");
        insert.bind(1, text.toStdString());
        insert.exec();
        for (int i = 0; i < ingredients; ++i)
            UserDB().Raw().exec("INSERT INTO Ingredients (RecipeID, FoodName, Serving, QTY, "
                                "Calories) VALUES (1, 'Ingredient " +
                                std::to_string(i) + "', '1 cup', 2, 80)");
    }
    static ScaledFood Oats() {
        ScaledFood item;
        for (const NutrientInfo& nutrient : Nutrients())
            item.Add(QLatin1String(nutrient.logColumn), 50.0);
        item.Add("FOODNAME", "Oats");
        item.Add("SERVING", "1 cup");
        item.Add("ID", 1);
        item.Add("QTY", 2);
        return item;
    }
    template <class Screen> Screen* Open(const ScreenRow& row) {
        auto* screen = qobject_cast<Screen*>(::ShowScreen(QLatin1String(row.name)));
        Activate(TheNavigation().Frame());
        return screen;
    }
    static QString All(const QStringList& pages) { return pages.join(u' ').simplified(); }
    /// A window whose owner is active counts as active before it has the keyboard.
    static void TakeKeys(QWidget* window) {
        window->activateWindow();
        EXPECT_TRUE(QTest::qWaitFor([window] { return QApplication::activeWindow() == window; }));
    }
    static void Print() {
        QWidget* modal = QApplication::activeModalWidget();
        TakeKeys(modal ? modal : TheNavigation().Frame());
        QWidget* focus = QApplication::focusWidget();
        QTest::keyClick(focus ? focus : TheNavigation().Frame(), Qt::Key_P, Qt::ControlModifier);
    }
    static void Key(Qt::Key key) { QTest::keyClick(QApplication::focusWidget(), key); }
    static void TabTo(QWidget* window, const QString& name) {
        TakeKeys(window);
        for (int i = 0; i < 30 && QApplication::focusWidget()->objectName() != name; ++i)
            Key(Qt::Key_Tab);
        EXPECT_EQ(QApplication::focusWidget()->objectName(), name);
    }
    /// Opens the preview with Ctrl+P and closes it with Escape.
    static void InPreview(const std::function<void(QWidget*)>& within) {
        WithModal(
            [&](QWidget* preview) {
                EXPECT_EQ(preview->objectName(), "printPreview");
                within(preview);
                if (preview->isVisible())
                    QTest::keyClick(preview, Qt::Key_Escape);
            },
            [] { Print(); });
    }
    static QString PageCount(QWidget* preview) {
        return Find<QLabel>(preview, QStringLiteral("lblPages"))->text();
    }
    /// From the preview, through the platform's dialog; `confirm` presses its button.
    static void PrintToFile(
        QWidget* preview, const QString& file,
        const std::function<void()>& confirm = [] { Key(Qt::Key_Return); }) {
        TabTo(preview, QStringLiteral("cmdPrint"));
        WithModal(
            [&](QWidget* dialog) {
                EXPECT_EQ(dialog->objectName(), "printDialog");
                TabTo(dialog, QStringLiteral("filename"));
                QTest::keyClick(QApplication::focusWidget(), Qt::Key_A, Qt::ControlModifier);
                QTest::keyClicks(QApplication::focusWidget(), file);
                confirm();
            },
            [] { Key(Qt::Key_Return); });
    }

    /// The rules of a table that is whole in the preview, counted between its captions and figures.
    static int InkedRuns(const QImage& drawn) {
        const int column = LeftOfPaper(drawn) + drawn.height() / 5;
        const auto inked = [&](int y) {
            const QColor at = drawn.pixelColor(column, y); // the ground is light, and no grey
            return qGray(at.rgb()) < 230 || (at.red() == at.blue() && at != QColor(Qt::white));
        };
        int runs = 0;
        for (int y = 1; y < drawn.height(); ++y)
            runs += inked(y) && !inked(y - 1);
        return runs;
    }
    static int LeftOfPaper(const QImage& drawn) {
        int x = 0;
        while (drawn.pixelColor(x, drawn.height() / 2) == TheStyle().scrollSlot)
            ++x;
        return x;
    }

    const QDate today_{2026, 11, 21};
};

TEST_F(PrintingTest, TheDayPrintsItsFoodsItsWeightAndItsTotals) {
    Log("Oats", "Breakfast");
    Log("Soup", "Dinner");
    Weigh();
    const QStringList pages = PrintedPages::TextOf(Open<frmDay>(Screens::Day)->Printed(), Folder());
    const QString text = All(pages);
    for (const char* part : {"Daily Details", "Saturday, November 21, 2026", "Weight: 198.5 lbs",
                             "Oats, 1 cup (x 2)", "Soup, 1 cup (x 2)", "123 kcal",
                             "Nothing is logged.", "caloric breakdown", "Selenium", "Page 1"})
        EXPECT_TRUE(text.contains(part)) << part;
    EXPECT_LT(text.indexOf("Breakfast"), text.indexOf("Oats"));
    EXPECT_LT(text.indexOf("Dinner"), text.indexOf("Soup"));
}

TEST_F(PrintingTest, ADayPrintsAllItsFoodsAlsoThoseThatTheListDoesNotDraw) {
    App().AppInfo.LIMITRESULTS = true;
    for (int i = 100; i < 220; ++i)
        Log("Food " + QString::number(i), "Lunch");
    Log(QString("word ").repeated(300), "Snacks", QString("serving ").repeated(100));
    const QStringList pages = PrintedPages::TextOf(Open<frmDay>(Screens::Day)->Printed(), Folder());
    EXPECT_GE(pages.size(), 3);
    for (int i = 100; i < 220; ++i)
        EXPECT_TRUE(All(pages).contains("Food " + QString::number(i)));
    EXPECT_EQ(All(pages).count("word"), 300);
    EXPECT_EQ(All(pages).count("serving"), 100);
}

TEST_F(PrintingTest, TheReportPrintsAllFourViewsOnBothPapers) {
    Log("Oats", "Breakfast");
    Weigh();
    frmReport* screen = Open<frmReport>(Screens::Report);
    for (const QPageSize::PageSizeId paper : {QPageSize::Letter, QPageSize::A4}) {
        const QStringList pages = PrintedPages::TextOf(screen->Printed(), Folder(), paper);
        EXPECT_EQ(pages.size(), 2);
        for (const char* part : {"11/15/2026 to 11/21/2026", "percent of the targets",
                                 "Average weight: 198 lbs", "100%", "Average nutrient values",
                                 "Caloric breakdown", "Fat ", "Weight (lbs)", "11/21/2026"})
            EXPECT_TRUE(All(pages).contains(part)) << part;
    }
}

TEST_F(PrintingTest, ARecipePrintsAllIngredientsAndItsWholeText) {
    QString text;
    for (int i = 0; i < 2000; ++i)
        text += "step" + QString::number(i) + (i % 50 == 0 ? "\n" : " ");
    AddRecipe(text + QString(3000, u'#'), 80);
    const auto job = Open<frmRecipeManager>(Screens::RecipeManager)->Printed();
    ASSERT_TRUE(job);
    const QStringList pages = PrintedPages::TextOf(*job, Folder());
    for (const char* part :
         {"Soup", "Recipe yield: 4 servings", "Serving size: 1 bowl", "Total time: 30 minutes",
          "Calories: 1600 per serving", "Ingredients", "Preparation Instructions"})
        EXPECT_TRUE(All(pages).contains(part)) << part;
    for (int i = 0; i < 80; ++i)
        EXPECT_TRUE(All(pages).contains("Ingredient " + QString::number(i) + u' '));
    EXPECT_TRUE(All(pages).contains("step1999"));
    EXPECT_EQ(All(pages).count("step"), 2000);
    EXPECT_EQ(All(pages).count(u'#'), 3000);
}

TEST_F(PrintingTest, WithoutARecipeThereIsNothingToPrint) {
    EXPECT_FALSE(Open<frmRecipeManager>(Screens::RecipeManager)->Printed());
    Print();
    EXPECT_EQ(QApplication::activeModalWidget(), nullptr);
}

TEST_F(PrintingTest, TheFactsPrintEveryAmount) {
    frmNutInfo facts;
    QStringList pages;
    WithModal([&](QWidget*) { pages = PrintedPages::TextOf(facts.Printed(), Folder()); },
              [&] { facts.showFood(Oats()); });
    EXPECT_EQ(pages.size(), 1);
    for (const char* part : {"Oats", "1 cup", "X 2", "Calories from fat", "% Daily Value", "83%"})
        EXPECT_TRUE(All(pages).contains(part)) << part;
    for (const NutrientInfo& nutrient : Nutrients())
        EXPECT_TRUE(All(pages).contains(nutrient.factsCaption)) << nutrient.factsCaption;
}

TEST_F(PrintingTest, TheKeyOpensThePreviewOfEachScreen) {
    Log("Oats", "Breakfast");
    Weigh();
    AddRecipe("Stir.", 3);
    for (const auto& [row, count] : {std::pair(&Screens::Day, "1 page"),
                                     {&Screens::Report, "2 pages"},
                                     {&Screens::RecipeManager, "1 page"}}) {
        Open<ScreenForm>(*row);
        InPreview([&](QWidget* preview) { EXPECT_EQ(PageCount(preview), count) << row->name; });
    }
}

TEST_F(PrintingTest, TheKeyOpensThePreviewOfTheFacts) {
    frmNutInfo facts;
    WithModal(
        [&](QWidget* details) {
            Activate(details);
            InPreview([](QWidget* preview) { EXPECT_EQ(PageCount(preview), "1 page"); });
        },
        [&] { facts.showFood(Oats()); });
}

TEST_F(PrintingTest, TheContextMenuOffersThePreview) {
    Weigh();
    AddRecipe("Stir.", 3);
    for (const ScreenRow* row : {&Screens::Day, &Screens::Report, &Screens::RecipeManager}) {
        Open<ScreenForm>(*row)->setFocus();
        QTest::keyClick(QApplication::focusWidget(), Qt::Key_F10, Qt::ShiftModifier);
        QWidget* menu = QApplication::activePopupWidget();
        ASSERT_NE(menu, nullptr) << row->name;
        EXPECT_FALSE(menu->accessibleName().isEmpty());
        WithModal([](QWidget* preview) { EXPECT_EQ(preview->objectName(), "printPreview"); },
                  [menu] { QTest::keyClick(menu, Qt::Key_P); });
        Activate(TheNavigation().Frame());
        InPreview([](QWidget*) {}); // the key works as before
    }
}

TEST_F(PrintingTest, ThePreviewFitsBesideTheBarOfASmallDesktop) {
    constexpr int bar = 32;
    Open<frmDay>(Screens::Day);
    InPreview([](QWidget* preview) {
        EXPECT_LE(preview->width(), 800);
        EXPECT_LE(preview->height(), 600 - bar);
    });
}

TEST_F(PrintingTest, InThePreviewThePaperLiesFlatOnTheGround) {
    Weigh();
    Open<frmReport>(Screens::Report);
    InPreview([](QWidget* preview) {
        const QImage drawn = Grab(preview->findChild<QGraphicsView*>()->viewport());
        const int row = drawn.height() / 2;
        int x = drawn.width() - 1;
        while (x > 0 && drawn.pixelColor(x, row) == TheStyle().scrollSlot)
            --x;
        EXPECT_LT(x, drawn.width() - 3);
        EXPECT_EQ(drawn.pixelColor(x - 1, row), QColor(Qt::white));
    });
}

TEST_F(PrintingTest, EveryRuleOfTheFactsIsSeenInASmallPreview) {
    frmNutInfo facts;
    WithModal(
        [&](QWidget* details) {
            Activate(details);
            InPreview([](QWidget* preview) {
                auto* view = preview->findChild<QGraphicsView*>();
                QMetaObject::invokeMethod(Find(preview, QStringLiteral("pages")), "fitInView");
                EXPECT_EQ(InkedRuns(Grab(view->viewport())),
                          NutrientCount + 2); // with the calories from fat and a heavy rule
            });
        },
        [&] { facts.showFood(Oats()); });
}

TEST_F(PrintingTest, APdfIsMadeWithTheKeyboardAlone) {
    Log("Oats", "Breakfast");
    Open<frmDay>(Screens::Day);
    for (const auto& [paper, size] :
         {std::pair("opPaper0", QSize(816, 1056)), {"opPaper1", QSize(794, 1123)}}) {
        const QString file = Folder() + u'/' + QLatin1String(paper) + ".pdf";
        InPreview([&](QWidget* preview) {
            TabTo(preview, QLatin1String(paper));
            Key(Qt::Key_Space);
            PrintToFile(preview, file);
            EXPECT_FALSE(preview->isVisible());
        });
        EXPECT_TRUE(All(PrintedPages::TextOf(file)).contains("Oats, 1 cup (x 2)"));
        const QTemporaryDir pictures;
        EXPECT_EQ(QImage(PrintedPages::PicturesOf(file, pictures.path()).value(0)).size(), size);
    }
}

TEST_F(PrintingTest, AFullDiskIsToldAndThePreviewStays) {
    Log("Oats", "Breakfast");
    Open<frmDay>(Screens::Day);
    ExpectAlert(QStringLiteral("The pages could not be printed. Please choose another printer or "
                               "another file."));
    InPreview([](QWidget* preview) {
        PrintToFile(preview, QStringLiteral("/dev/full"), [] {
            WithModal(
                [](QWidget* question) {
                    auto* box = qobject_cast<QMessageBox*>(question);
                    ASSERT_NE(box, nullptr);
                    QTest::keyClick(box->button(QMessageBox::Yes), Qt::Key_Space);
                },
                [] { Key(Qt::Key_Return); });
        });
        EXPECT_TRUE(preview->isVisible());
    });
}

TEST_F(PrintingTest, AWeightThatIsBeingTypedIsSavedAndPrinted) {
    Log("Oats", "Breakfast");
    auto* screen = Open<frmDay>(Screens::Day);
    auto* weight = Find(screen, QStringLiteral("txtWeight"));
    weight->setFocus();
    QTest::keyClicks(weight, QStringLiteral("201.5"));
    InPreview([](QWidget*) {});
    EXPECT_TRUE(
        All(PrintedPages::TextOf(screen->Printed(), Folder())).contains("Weight: 201.5 lbs"));
}

TEST_F(PrintingTest, AnEmptyPeriodSaysWhyItHasNoAverages) {
    ExpectAlert(QStringLiteral(
        "There is no weight entry from 11/15/2026 to 11/21/2026, so the percent bars and the "
        "average values of this period cannot be worked out. Enter a weight for one of its days "
        "on the screen \"Daily Details\", in the field \"Enter today's weight:\"."));
    auto* screen = Open<frmReport>(Screens::Report);
    QCoreApplication::processEvents();
    const QStringList pages = PrintedPages::TextOf(screen->Printed(), Folder());
    EXPECT_TRUE(All(pages).contains("There is no weight entry in this period"));
    EXPECT_TRUE(All(pages).contains("No data to chart"));
    EXPECT_TRUE(All(pages).contains("No weight data To chart"));
}

TEST_F(PrintingTest, TheScreenKeepsItsStyle) {
    Log("Oats", "Breakfast");
    frmDay* screen = Open<frmDay>(Screens::Day);
    const QColor paper = TheStyle().paper;
    const QImage before = Grab(screen);
    PrintedPages::TextOf(screen->Printed(), Folder());
    EXPECT_EQ(TheStyle().paper, paper);
    EXPECT_EQ(Grab(screen), before);
}
