#include "core/CoreTest.h"

#include "core/Navigation.h"
#include "core/Screens.h"
#include "core/frmAlert.h"
#include "core/frmEULA.h"
#include "core/frmHOME.h"
#include "core/frmPrefs.h"
#include "core/frmSplash.h"
#include "core/frmWelcome.h"
#include "drawing/Style.h"
#include "foods/ui/frmFoodSearch.h"
#include "foods/ui/frmNutInfo.h"
#include "recipes/ui/frmImport.h"
#include "recipes/ui/frmRecSearch.h"
#include "recipes/ui/frmSend.h"
#include "runtime/Clock.h"
#include "runtime/Seams.h"
#include "store/Connection.h"

#include <QAbstractScrollArea>
#include <QAccessible>
#include <QApplication>
#include <QScreen>
#include <QScrollBar>
#include <QTest>

#include <SQLiteCpp/SQLiteCpp.h>

#include <algorithm>

namespace {

constexpr int MostStops = 300;
constexpr int LineHeight = 40; ///< pixels, of the uppermost controls of a window

/// Presses Tab through screens and dialogs with foods, a recipe and a custom food.
class TabStopsTest : public CoreTest {
protected:
    void SetUp() override {
        CoreTest::SetUp();
        OpenEmptyDatabases();
        Clock::SetToday({2026, 11, 21});
        const qint32 person = AddUser();
        FoodDB().Raw().exec("INSERT INTO FOODS (ID, FoodName, Calories, Serv_Desc_A, "
                            "Serv_GM_WT_A) VALUES (23509, 'Granola', 250, '1 bowl', 100)");
        UserDB().Raw().exec("INSERT INTO Recipes (RecipeName, ServingName, RecipeYield, PrepTime, "
                            "Instructions) VALUES ('Soup', '1 bowl', 4, 30, 'Stir.')");
        for (const char* meal : {"Breakfast", "Lunch"})
            UserDB().Raw().exec("INSERT INTO USER_FOODS (UID, UDate, Meal, FoodName, SERVING, QTY, "
                                "Calories, Protein) VALUES (" +
                                std::to_string(person) + ", '2026-11-21', '" + meal +
                                "', 'Oats', '1 cup', 1, 300, 10)");
        UserDB().Raw().exec("INSERT INTO USER_WEIGHTS (UID, UDate, Weight) VALUES (" +
                            std::to_string(person) + ", '2026-11-21', 150)");
        RegisterScreens(TheNavigation());
        ::ShowHome();
    }

    /// The stops of the window in the order of Tab, each once.
    static QList<QWidget*> Stops(QWidget* window) {
        Activate(window);
        QList<QWidget*> stops;
        QTest::keyClick(window, Qt::Key_Tab);
        while (stops.size() < MostStops) {
            QWidget* focus = QApplication::focusWidget();
            if (!focus || stops.contains(focus))
                break;
            stops << focus;
            ExpectUseful(focus);
            QTest::keyClick(focus, Qt::Key_Tab);
        }
        return stops;
    }

    static std::string NameOf(const QWidget* control) {
        const QWidget* parent = control->parentWidget();
        const QString place = parent ? parent->objectName() : QString();
        return place.toStdString() + '/' + control->objectName().toStdString() + " (" +
               control->metaObject()->className() + ')';
    }

    /// The stop is in sight, shows that it has the focus, and a key changes or starts something.
    static void ExpectUseful(QWidget* stop) {
        const QRect seen = stop->visibleRegion().boundingRect();
        EXPECT_GE(seen.width(), qMin(8, stop->width())) << NameOf(stop) << " is out of sight";
        EXPECT_GE(seen.height(), qMin(8, stop->height())) << NameOf(stop) << " is out of sight";
        ExpectOnScreen(QRect(stop->mapToGlobal(seen.topLeft()), seen.size()), stop);
        ExpectFocusShown(stop);
        QAccessibleInterface* spoken = QAccessible::queryAccessibleInterface(stop);
        ASSERT_NE(spoken, nullptr) << NameOf(stop);
        QStringList actions;
        if (spoken->actionInterface())
            actions = spoken->actionInterface()->actionNames();
        actions.removeAll(QAccessibleActionInterface::setFocusAction());
        const bool usable = !actions.isEmpty() || spoken->valueInterface() ||
                            spoken->editableTextInterface() || spoken->tableInterface() ||
                            spoken->state().editable || Scrolls(stop);
        EXPECT_TRUE(usable) << NameOf(stop) << " does nothing";
    }
    /// The screen of these tests is smaller than the frame. Some ground is seen around the stop.
    static void ExpectOnScreen(const QRect& place, const QWidget* stop) {
        const int edge = TheStyle().nestEdge;
        const QRect around = place.adjusted(-edge, -edge, edge, edge) & stop->window()->geometry();
        EXPECT_TRUE(stop->screen()->availableGeometry().contains(around))
            << NameOf(stop) << " is at or beyond the edge of the screen";
    }
    static bool Scrolls(const QWidget* stop) {
        const auto* area = qobject_cast<const QAbstractScrollArea*>(stop);
        return area && area->verticalScrollBar()->maximum() > 0;
    }
    static void ExpectFocusShown(QWidget* stop) {
        const QImage with = stop->grab().toImage();
        stop->clearFocus();
        const QImage without = stop->grab().toImage();
        stop->setFocus(Qt::TabFocusReason);
        EXPECT_NE(with, without) << NameOf(stop) << " does not show its focus";
    }

    /// From left to right, from above to below; a stop further up begins a column to the right.
    static void ExpectReadingOrder(const QList<QWidget*>& stops, const QWidget* window) {
        const auto place = [window](QWidget* stop) {
            return QRect(stop->mapTo(window, QPoint()), stop->size());
        };
        for (qsizetype i = 1; i < stops.size(); ++i) {
            const QRect before = place(stops[i - 1]);
            const QRect now = place(stops[i]);
            const bool below = now.top() > before.bottom() - 2;
            const bool right = now.left() > before.right() - 2;
            EXPECT_TRUE(below || right)
                << NameOf(stops[i]) << " comes after " << NameOf(stops[i - 1]);
        }
    }

    /// The round of Tab begins wherever the focus was.
    static void BeginAtTheTop(QList<QWidget*>& stops, const QWidget* window) {
        const auto line = [window](QWidget* stop) {
            const QPoint middle = stop->mapTo(window, stop->rect().center());
            return std::pair(middle.y() / LineHeight, middle.x());
        };
        const auto first = std::ranges::min_element(stops, {}, line);
        std::rotate(stops.begin(), first, stops.end());
    }

    static void WalkThrough(QWidget* window, int least) {
        QList<QWidget*> stops = Stops(window);
        BeginAtTheTop(stops, window);
        EXPECT_GE(stops.size(), least);
        ExpectReadingOrder(stops, window);
    }
    static void WalkThroughScreen(const char* name, int least) {
        ::ShowScreen(QLatin1String(name));
        RunDeferredDeletes();
        WalkThrough(TheNavigation().Frame(), least);
    }
    template <class Dialog> static void WalkThroughDialog(Dialog&& dialog, int least) {
        dialog.show();
        WalkThrough(&dialog, least);
    }
};

} // namespace

TEST_F(TabStopsTest, HomeScreen) {
    WalkThroughScreen("frmMain", 12);
}

TEST_F(TabStopsTest, DayScreen) {
    WalkThroughScreen("frmDay", 20);
}

TEST_F(TabStopsTest, Report) {
    WalkThroughScreen("frmReport", 12);
}

TEST_F(TabStopsTest, CustomFoods) {
    WalkThroughScreen("frmFoodList", 40);
}

TEST_F(TabStopsTest, Recipes) {
    WalkThroughScreen("frmRecipeManager", 15);
}

TEST_F(TabStopsTest, Profile) {
    WalkThroughScreen("frmProfile", 15);
}

TEST_F(TabStopsTest, Preferences) {
    WalkThroughDialog(frmPrefs(TheNavigation().Frame()), 10);
}

TEST_F(TabStopsTest, FoodSearch) {
    WalkThroughDialog(frmFoodSearch(TheNavigation().Frame()), 8);
}

TEST_F(TabStopsTest, RecipeFoodSearch) {
    WalkThroughDialog(frmRecSearch(TheNavigation().Frame()), 6);
}

TEST_F(TabStopsTest, NutritionFacts) {
    WalkThroughDialog(frmNutInfo(TheNavigation().Frame()), 1);
}

TEST_F(TabStopsTest, ImportAndSend) {
    WalkThroughDialog(frmImport(TheNavigation().Frame()), 3);
    WalkThroughDialog(frmSend(1, TheNavigation().Frame()), 4);
}

TEST_F(TabStopsTest, Agreement) {
    WriteFile("agreement.txt", "Please read this before you use Halvane.");
    WalkThroughDialog(frmEULA(), 3);
}

TEST_F(TabStopsTest, Welcome) {
    WalkThroughDialog(frmWelcome(), 1);
}

TEST_F(TabStopsTest, AMessageAndAQuestion) {
    WalkThroughDialog(frmAlert("It is saved.", false, TheNavigation().Frame()), 1);
    WalkThroughDialog(frmAlert("Are you sure?", true, TheNavigation().Frame()), 2);
}

TEST_F(TabStopsTest, AMessageThatMustBeScrolledIsAStopItself) {
    WalkThroughDialog(frmAlert(QString("All of it. ").repeated(200), true, nullptr), 3);
}

/// Any key closes it, so nothing in it needs the focus.
TEST_F(TabStopsTest, TheSplashHasNoStop) {
    frmSplash splash;
    splash.show();
    Activate(&splash);
    for (const QWidget* part : splash.findChildren<QWidget*>())
        EXPECT_EQ(part->focusPolicy(), Qt::NoFocus) << NameOf(part);
    QTest::keyClick(&splash, Qt::Key_Tab);
    EXPECT_FALSE(splash.isVisible());
}
