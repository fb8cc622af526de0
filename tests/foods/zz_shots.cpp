#include "foods/FoodsTest.h"
#include "foods/SearchProgress.h"
#include "foods/frmFoodSearch.h"
#include "foods/frmNutInfo.h"
#include "foods/ucFood.h"
#include "foods/ucSearchResults.h"
#include "runtime/AppState.h"
#include "store/Connection.h"
#include "toolkit/ScrollPane.h"
#include "toolkit/Style.h"
#include "toolkit/ucScroll.h"
#include <QApplication>
#include <QCheckBox>
#include <QElapsedTimer>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QTest>
#include <SQLiteCpp/SQLiteCpp.h>
class Shots : public HalvaneTest {
public:
    void shot(QWidget* w, const char* n) {
        QCoreApplication::processEvents();
        w->grab().save(QString("/tmp/shots/foods/%1.png").arg(n));
    }
};
TEST_F(Shots, All) {
    App().AppInfo.OSVERSION = 2;
    ApplyStyle(*qApp);
    OpenDatabases();
    AddUser();
    UserDB().Raw().exec("INSERT INTO Recipes (RecipeName,ServingName,RecipeYield) VALUES ('Lentil "
                        "soup with milk','1 bowl',4)");
    UserDB().Raw().exec(
        "INSERT INTO Ingredients (RecipeID,Calories,TotalFat,Protein,carbs,fiber,Sodium,Zinc) "
        "VALUES (1,1312.4,12.5,34,120,12.2,1410,3.3)");
    frmFoodSearch d;
    d.show();
    shot(&d, "empty");
    auto* p = d.ucSearchResults1();
    Find<QLineEdit>(p, "txtSearchString")->setText("milk");
    p->SearchFoodsDB();
    shot(&d, "full");
    auto* row = Find<ucFood>(p, "ucFood2");
    Find(row, "txtQTY_A")->setFocus(Qt::TabFocusReason);
    Hover(Find(row, "cmdEAT_a"));
    shot(&d, "focus");
    Hover(Find(p, "cmdGo"));
    shot(&d, "hover");
    Find<ScrollPane>(p, "");
    auto* bar = Find<ucScroll>(p, "vsResultsPane");
    bar->SetValue(1777);
    shot(&d, "scrolled");
    bar->SetValue(bar->Max());
    shot(&d, "bottom");
    Find<QLineEdit>(p, "txtSearchString")->setText("infant formula iron");
    p->SearchFoodsDB();
    shot(&d, "long");
    Find<QLineEdit>(p, "txtSearchString")->setText("zzzz");
    p->SearchFoodsDB();
    shot(&d, "nomatch");
    auto* st = p->findChild<SearchProgress*>();
    st->Begin();
    st->SetFraction(.6);
    shot(&d, "progress");
    st->hide();
    p->setEnabled(false);
    shot(&d, "disabled");
    p->setEnabled(true);
    QObject::connect(p, &ucSearchResults::FoodExamined, p, [&](const ScaledFood&) {});
    for (auto [id, serv, qty, name] :
         {std::tuple(1077, "A", 1.0, "facts1"), std::tuple(1001, "A", 2.5, "facts2")}) {
        frmNutInfo f;
        Q_UNUSED(id);
        qint32 real = id;
        auto rows = Rows(FoodDB(), "SELECT ID FROM FOODS WHERE FoodName LIKE '%infant%formula%' "
                                   "ORDER BY length(FoodName) DESC");
        if (QString(name) == "facts1")
            rows = Rows(FoodDB(), "SELECT ID FROM FOODS WHERE FoodName LIKE 'Milk, whole%'");
        real = rows[0][0].toInt();
        WithModal([&](QWidget* w) { shot(w, name); },
                  [&] { f.showFood(ScaledFood::FromCatalogue(real, serv, qty)); });
    }
    {
        frmNutInfo f;
        WithModal([&](QWidget* w) { shot(w, "facts3"); },
                  [&] { f.showFood(ScaledFood::FromRecipe(1, 3)); });
    }
}
TEST_F(Shots, Speed) {
    ApplyStyle(*qApp);
    App().AppInfo.OSVERSION = 2;
    OpenDatabases();
    for (int round = 0; round < 5; ++round) {
        QWidget host;
        host.resize(640, 520);
        ucSearchResults p(&host);
        p.resize(612, 440);
        host.show();
        QCoreApplication::processEvents();
        // fill 603
        for (int i = 0; i < 201 && round == 0; ++i) {
            UserDB().Raw().exec(
                "INSERT INTO Recipes (RecipeName,ServingName) VALUES ('a recipe','1 bowl')");
            FoodDB().Raw().exec("INSERT INTO FOODS (ID,FoodName,Serv_Desc_A,Serv_Desc_B) VALUES (" +
                                std::to_string(23509 + i) + ",'a custom','1 cup','1 oz')");
        }
        Find<QLineEdit>(&p, "txtSearchString")->setText("a");
        p.SearchFoodsDB();
        QElapsedTimer t;
        t.start();
        p.SearchFoodsDB();
        host.grab();
        double whole = double(t.nsecsElapsed()) / 1e6;
        t.restart();
        p.ShowResults();
        double load = double(t.nsecsElapsed()) / 1e6;
        host.grab();
        double ours = double(t.nsecsElapsed()) / 1e6;
        EXPECT_EQ(p.findChildren<ucFood*>().size(), 604);
        QWidget box(&host);
        box.resize(612, 440);
        QWidget pane(&box);
        pane.resize(596, 603 * 78);
        box.show();
        QCoreApplication::processEvents();
        auto& style = TheStyle();
        Q_UNUSED(style);
        t.restart();
        pane.hide();
        int y = 0;
        for (int i = 0; i < 603; ++i) {
            auto* r = new QWidget(&pane);
            r->setGeometry(0, y, 596, 78);
            y += 78;
            for (int k = 0; k < 6; ++k) {
                auto* l = new QLabel("label text", r);
                l->setGeometry(30, k * 10, 100, 20);
            }
            for (int k = 0; k < 2; ++k) {
                auto* l = new QLineEdit("1", r);
                l->setGeometry(400, k * 24, 56, 24);
            }
            for (int k = 0; k < 4; ++k) {
                auto* l = new QPushButton("x", r);
                l->setGeometry(460 + k * 30, 0, 24, 24);
            }
            r->show();
        }
        pane.show();
        box.grab();
        double stock = double(t.nsecsElapsed()) / 1e6;
        printf("search+paint %.1f ms, load %.1f, rows+paint %.1f ms, stock %.1f ms, ratio %.3f\n",
               whole, load, ours, stock, ours / stock);
    }
}
