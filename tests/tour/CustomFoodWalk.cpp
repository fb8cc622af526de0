#include "tour/CustomFoodWalk.h"

#include "tour/Guide.h"

#include "store/Connection.h"
#include "toolkit/ListBox.h"

namespace {
const QString Name = QStringLiteral("Tom's granola");
const QString LongName =
    QStringLiteral("Red lentil soup with carrots, celery, smoked paprika and a spoon of yogurt");

constexpr std::pair<const char*, const char*> Granola[] = {{"txtServing", "1 bowl (60 g)"},
                                                           {"txtCals", "-268"},
                                                           {"txtTotalFat", "9.6"},
                                                           {"txtSatFat", "1.4"},
                                                           {"txtMonoFat", "4.2"},
                                                           {"txtPolyFat", "3.1"},
                                                           {"txtSodium", "4"},
                                                           {"txtCarbs", "38"},
                                                           {"txtFiber", "5.5"},
                                                           {"txtProtein", "7.4"},
                                                           {"txtIron", "2.1"},
                                                           {"txtZinc", ".9"}};
} // namespace

CustomFoodWalk::CustomFoodWalk(Guide& guide)
    : guide_(guide) {}

void CustomFoodWalk::Go() {
    OpenScreen();
    MakeFood();
    CorrectFood();
    MakeLongFood();
    DeleteLongFood();
    EatFood();
    TakeItBack();
}

QWidget* CustomFoodWalk::Frame() {
    return guide_.Window(QStringLiteral("frmHOME"));
}

QWidget* CustomFoodWalk::Screen() {
    return guide_.Window(QStringLiteral("frmFoodList"));
}

void CustomFoodWalk::OpenScreen() {
    guide_.Press(Frame(), QStringLiteral("cmdCustomFoods"));
    guide_.Check(Screen()->property("Mode") == 0, QStringLiteral("no food of one's own yet"));
    guide_.Picture(Frame(), QStringLiteral("custom-foods-empty"));
}

void CustomFoodWalk::MakeFood() {
    guide_.Press(Screen(), QStringLiteral("cmdNewBut"));
    guide_.Picture(Frame(), QStringLiteral("custom-foods-new"));
    BeRefused();
    guide_.Type(Screen(), QStringLiteral("txtFoodName"), Name);
    for (const auto& [field, text] : Granola)
        guide_.Type(Screen(), field, text);
    guide_.Picture(Frame(), QStringLiteral("custom-foods-typed"));
    guide_.Press(Screen(), QStringLiteral("cmdSave"));
    guide_.CheckValue(FoodDB(),
                      QStringLiteral("SELECT FoodName || ' ' || Calories || ' ' || Serv_GM_WT_A "
                                     "FROM FOODS WHERE ID = 23509"),
                      QStringLiteral("Tom's granola 268.0 100.0"));
    guide_.Picture(Frame(), QStringLiteral("custom-foods-saved"));
}

void CustomFoodWalk::BeRefused() {
    guide_.Foresee(QStringLiteral("frmAlert"), [this](QWidget* alert) {
        guide_.Picture(alert, QStringLiteral("alert-food-name"));
        guide_.Press(alert, QStringLiteral("cmdOK"));
    });
    guide_.Type(Screen(), QStringLiteral("txtFoodName"), QStringLiteral("Granola ~ mine"));
    guide_.Press(Screen(), QStringLiteral("cmdSave"));
    guide_.CheckValue(FoodDB(), QStringLiteral("SELECT count(*) FROM FOODS WHERE ID > 23508"), 0);
}

void CustomFoodWalk::CorrectFood() {
    guide_.Type(Screen(), QStringLiteral("txtCals"), QStringLiteral("275"));
    guide_.HoverOver(Frame(), QStringLiteral("cmdCancel"));
    guide_.Picture(Frame(), QStringLiteral("custom-foods-edited"));
    guide_.Press(Screen(), QStringLiteral("cmdSave"));
    guide_.CheckValue(FoodDB(),
                      QStringLiteral("SELECT Calories || ' ' || count(*) FROM FOODS "
                                     "WHERE ID > 23508"),
                      QStringLiteral("275.0 1"));
}

void CustomFoodWalk::MakeLongFood() {
    guide_.Press(Screen(), QStringLiteral("cmdNewBut"));
    guide_.Type(Screen(), QStringLiteral("txtFoodName"), LongName);
    guide_.Type(Screen(), QStringLiteral("txtVitA"), QStringLiteral("12345.678"));
    guide_.Press(Screen(), QStringLiteral("cmdSave"));
    guide_.Picture(Frame(), QStringLiteral("custom-foods-long-name"));
    guide_.CheckValue(FoodDB(), QStringLiteral("SELECT FoodName FROM FOODS WHERE ID = 23510"),
                      LongName);
}

void CustomFoodWalk::DeleteLongFood() {
    for (const char* answer : {"cmdCancel", "cmdOK"}) {
        guide_.Foresee(QStringLiteral("frmAlert"), [this, answer](QWidget* alert) {
            guide_.Picture(alert, QStringLiteral("alert-delete-food"));
            guide_.Press(alert, answer);
        });
        guide_.Press(Screen(), QStringLiteral("cmdDelete"));
    }
    guide_.CheckValue(FoodDB(), QStringLiteral("SELECT max(ID) FROM FOODS"), 23509);
    auto* list = guide_.Find<ListBox>(Screen(), QStringLiteral("FoodList"));
    guide_.Check(list->Text(list->ListIndex()) == Name,
                 QStringLiteral("the food that is left is chosen"));
}

void CustomFoodWalk::EatFood() {
    guide_.Press(Frame(), QStringLiteral("cmdDay"));
    guide_.Foresee(QStringLiteral("frmFoodSearch"), [this](QWidget* search) {
        SearchAndEat(search);
        guide_.Press(search, QStringLiteral("cmdDone"));
    });
    guide_.Press(guide_.Window(QStringLiteral("frmDay")), QStringLiteral("lblSnack"));
    guide_.CheckValue(UserDB(),
                      QStringLiteral("SELECT FoodName || ' ' || Calories || ' ' || ID FROM "
                                     "USER_FOODS ORDER BY RecID DESC LIMIT 1"),
                      QStringLiteral("Tom's granola 550.0 23509"));
}

void CustomFoodWalk::SearchAndEat(QWidget* search) {
    guide_.Type(search, QStringLiteral("txtSearchString"), QStringLiteral("granola tom"));
    guide_.Press(search, QStringLiteral("cmdGo"));
    guide_.Picture(search, QStringLiteral("search-custom-food"));
    QWidget* row = guide_.Find(search, QStringLiteral("ucFood1"));
    guide_.Type(row, QStringLiteral("txtQTY_A"), QStringLiteral("2"));
    guide_.ForeseeNext(QStringLiteral("frmNutInfo"), [this](QWidget* facts) {
        guide_.Picture(facts, QStringLiteral("facts-custom-food"));
        guide_.Press(facts, QStringLiteral("cmdDone"));
    });
    guide_.Press(row, QStringLiteral("imgInfo_W_A"));
    guide_.Press(row, QStringLiteral("cmdEAT_a"));
}

void CustomFoodWalk::TakeItBack() {
    QWidget* day = guide_.Window(QStringLiteral("frmDay"));
    for (QWidget* row : day->findChildren<QWidget*>())
        if (row->property("FoodName").toString() == Name) {
            guide_.Press(row, QStringLiteral("imgTrash"));
            break;
        }
    guide_.CheckValue(UserDB(), QStringLiteral("SELECT count(*) FROM USER_FOODS WHERE ID = 23509"),
                      0);
}
