#include "foods/FoodsTest.h"

#include "drawing/Style.h"
#include "drawing/Twips.h"
#include "foods/ui/frmNutInfo.h"
#include "model/User.h"

#include <QAccessible>
#include <QApplication>
#include <QLabel>
#include <QLocale>
#include <QTest>

class FrmNutInfoTest : public FoodsTest {
protected:
    void SetUp() override {
        FoodsTest::SetUp();
        AddUser();
    }

    /// A food with 1 of each nutrient, except the given ones.
    static ScaledFood Item(const QMap<QString, double>& amounts = {}, double quantity = 1,
                           const QString& name = "Oats", const QString& serving = "1 cup") {
        ScaledFood item;
        for (const NutrientInfo& nutrient : Nutrients())
            item.Add(nutrient.profileColumn, amounts.value(nutrient.property, 1));
        item.Add("FOODNAME", name);
        item.Add("SERVING", serving);
        item.Add("ID", 1);
        item.Add("QTY", quantity);
        return item;
    }

    static void Show(const ScaledFood& item, const std::function<void(QWidget*)>& look) {
        frmNutInfo panel;
        WithModal(look, [&] { panel.showFood(item); });
    }
    static QString Text(QWidget* panel, const char* label) {
        return Find<QLabel>(panel, label)->text();
    }
};

TEST_F(FrmNutInfoTest, NameServingAndQuantityStandOnTop) {
    Show(Item({}, 1.5), [](QWidget* panel) {
        EXPECT_EQ(Text(panel, "aaFoodName"), "Oats");
        EXPECT_EQ(Text(panel, "aaServSize"), "1 cup (X 1.5)");
        EXPECT_EQ(panel->objectName(), "frmNutInfo");
        EXPECT_EQ(Find(panel, "ucTitleFlat1")->property("Caption").toString(), "Details");
        EXPECT_EQ(Find(panel, "cmdDone")->property("Caption").toString(), "Done");
    });
}

TEST_F(FrmNutInfoTest, EveryNutrientHasItsLabelAndCaption) {
    QMap<QString, double> amounts;
    double next = 0.5;
    for (const NutrientInfo& nutrient : Nutrients())
        amounts[nutrient.property] = next++;
    Show(Item(amounts), [&](QWidget* panel) {
        QStringList captions;
        for (const QLabel* label : panel->findChildren<QLabel*>())
            captions << label->text();
        for (const NutrientInfo& nutrient : Nutrients()) {
            EXPECT_EQ(Text(panel, nutrient.factsLabel),
                      QString::number(amounts[nutrient.property]));
            EXPECT_TRUE(captions.contains(nutrient.factsCaption)) << nutrient.factsCaption;
        }
        for (const char* heading :
             {"Serving Size", "Calories from fat", "Amount Per Serving", "% Daily Value"})
            EXPECT_TRUE(captions.contains(heading)) << heading;
    });
}

TEST_F(FrmNutInfoTest, AmountsFollowTheMasks) {
    Show(Item({{"Iron", 0}, {"Zinc", 0.001}, {"Copper", 99.994}, {"Potassium", 1234.4}}),
         [](QWidget* panel) {
             EXPECT_EQ(Text(panel, "lblIron"), "0");
             EXPECT_EQ(Text(panel, "lblZinc"), "0.");
             EXPECT_EQ(Text(panel, "lblCopper"), "99.99");
             EXPECT_EQ(Text(panel, "lblPotassium"), "1,234");
         });
}

TEST_F(FrmNutInfoTest, PercentagesAreOfTheCurrentUsersTargets) {
    const QMap<QString, double> amounts{{"TotalFat", 6},  {"SatFat", 3.08}, {"Cholesterol", 300},
                                        {"Sodium", 1234}, {"Carbs", 1.2},   {"Fiber", 50},
                                        {"Protein", 1500}};
    Show(Item(amounts), [](QWidget* panel) {
        EXPECT_EQ(Text(panel, "lblPerFat"), "10%");
        EXPECT_EQ(Text(panel, "lblPerSatFat"), "15%");
        EXPECT_EQ(Text(panel, "lblPerCholesterol"), "100%");
        EXPECT_EQ(Text(panel, "lblPerSodium"), "51%");
        EXPECT_EQ(Text(panel, "lblPerCarbs"), "0%");
        EXPECT_EQ(Text(panel, "lblPerFiber"), "200%");
        EXPECT_EQ(Text(panel, "lblPerProtein"), "1,500%");
    });
}

TEST_F(FrmNutInfoTest, CaloriesFromFatAreNineForEachGram) {
    Show(Item({{"TotalFat", 2}, {"Calories", 150}}),
         [](QWidget* panel) { EXPECT_EQ(Text(panel, "lblFatCals"), "18."); });
}

TEST_F(FrmNutInfoTest, CaloriesFromFatNeverExceedTheCalories) {
    Show(Item({{"TotalFat", 2}, {"Calories", 10}}),
         [](QWidget* panel) { EXPECT_EQ(Text(panel, "lblFatCals"), "10."); });
    Show(Item({{"TotalFat", 200}, {"Calories", 1700}}),
         [](QWidget* panel) { EXPECT_EQ(Text(panel, "lblFatCals"), "1,700"); });
}

TEST_F(FrmNutInfoTest, CaloriesAreComparedAsWholeNumbers) {
    Show(Item({{"TotalFat", 1.15}, {"Calories", 10.1}}),
         [](QWidget* panel) { EXPECT_EQ(Text(panel, "lblFatCals"), "10.35"); });
}

TEST_F(FrmNutInfoTest, SeparatorsAndTheComparisonFollowTheLocale) {
    QLocale::setDefault(QLocale(QLocale::German, QLocale::Germany));
    Show(Item({{"TotalFat", 200}, {"Calories", 1700}, {"Iron", 7.5}}, 1.5), [](QWidget* panel) {
        EXPECT_EQ(Text(panel, "lblCalories"), "1.700");
        EXPECT_EQ(Text(panel, "lblFatCals"), "1.700");
        EXPECT_EQ(Text(panel, "lblIron"), "7,5");
        EXPECT_EQ(Text(panel, "lblProtein"), "1,");
    });
    Show(Item({{"TotalFat", 2}, {"Calories", 18.4}}),
         [](QWidget* panel) { EXPECT_EQ(Text(panel, "lblFatCals"), "18,"); });
    QLocale::setDefault(QLocale::c());
}

TEST_F(FrmNutInfoTest, TwiceTheQuantityDoublesAmountsAndPercentages) {
    AddFood({.id = 7,
             .name = "Bread",
             .gramsA = 30.0,
             .nutrients = {{"Calories", 250}, {"TotalFat", 20}, {"protein", 50}}});
    Show(ScaledFood::FromCatalogue(7, "A", 1), [](QWidget* panel) {
        EXPECT_EQ(Text(panel, "lblCalories"), "75.");
        EXPECT_EQ(Text(panel, "lblPerFat"), "10%");
    });
    Show(ScaledFood::FromCatalogue(7, "A", 2), [](QWidget* panel) {
        EXPECT_EQ(Text(panel, "lblCalories"), "150");
        EXPECT_EQ(Text(panel, "lblPerFat"), "20%");
        EXPECT_EQ(Text(panel, "lblPerProtein"), "30%");
        EXPECT_EQ(Text(panel, "aaServSize"), "1 cup (X 2)");
    });
}

TEST_F(FrmNutInfoTest, ATargetOfZeroHasNoPercentage) {
    for (const Nutrient id : {Nutrient::Fiber, Nutrient::Protein, Nutrient::TotalFat}) {
        User::Current().GetUserProfile(User::Current().UID);
        User::Current().RDIs.Set(id, 0);
        for (const double amount : {0.0, 1.0}) {
            Show(Item({{Info(id).property, amount}}), [](QWidget* panel) {
                int none = 0;
                for (const QLabel* label : panel->findChildren<QLabel*>())
                    none += label->text() == "--";
                EXPECT_EQ(none, 1);
            });
        }
    }
}

TEST_F(FrmNutInfoTest, WithAMissingEntryThePanelIsNotShown) {
    frmNutInfo panel;
    panel.showFood(ScaledFood());
    EXPECT_FALSE(panel.isVisible());
}

TEST_F(FrmNutInfoTest, CaloriesBeyondAWholeNumberAreShown) {
    Show(Item({{"Calories", 1e12}}),
         [](QWidget* panel) { EXPECT_EQ(Text(panel, "lblCalories"), "1,000,000,000,000"); });
}

TEST_F(FrmNutInfoTest, DoneClosesAndSoDoesEscape) {
    Show(Item(), [](QWidget* panel) {
        Click(Find(panel, "cmdDone"));
        EXPECT_FALSE(panel->isVisible());
    });
    Show(Item(), [](QWidget* panel) {
        QTest::keyClick(panel, Qt::Key_Escape);
        EXPECT_FALSE(panel->isVisible());
    });
}

TEST_F(FrmNutInfoTest, MovingTheMouseOverTheFormResetsDone) {
    Show(Item(), [](QWidget* panel) {
        QWidget* done = Find(panel, "cmdDone");
        Hover(done);
        EXPECT_EQ(done->property("State").toInt(), 2);
        Hover(panel, {5, 200});
        EXPECT_EQ(done->property("State").toInt(), 1);
    });
}

TEST_F(FrmNutInfoTest, ThinGreyLinesStandUnderTheRows) {
    Show(Item(), [](QWidget* panel) {
        const QImage seen = Grab(panel);
        const auto at = [&](int x, int y) {
            return QColor(seen.pixel(Twips::ToPixels(x), Twips::ToPixels(y)));
        };
        const QColor grey(200, 200, 200);
        int lines = 0;
        for (int y = 0; y < seen.height(); ++y)
            lines += QColor(seen.pixel(Twips::ToPixels(180), y)) == grey;
        EXPECT_EQ(lines, 18);
        for (int i = 0; i < 7; ++i) {
            EXPECT_EQ(at(180, 1700 + 255 * i), grey) << i;
            EXPECT_EQ(at(4665, 1700 + 255 * i), grey) << i;
        }
        for (int i = 0; i < 11; ++i)
            EXPECT_EQ(at(180, 3795 + 255 * i), grey) << i;
        EXPECT_NE(at(165, 1700), grey);
        EXPECT_NE(at(4700, 1700), grey);
    });
}

TEST_F(FrmNutInfoTest, NoFigureIsCut) {
    QMap<QString, double> amounts;
    for (const NutrientInfo& nutrient : Nutrients())
        amounts[nutrient.property] = 8888;
    Show(Item(amounts), [](QWidget* panel) {
        for (const NutrientInfo& nutrient : Nutrients()) {
            const auto* figure = Find<QLabel>(panel, nutrient.factsLabel);
            const auto* caption =
                Find<QLabel>(panel, QLatin1String(nutrient.factsLabel) + u"Caption");
            EXPECT_LE(figure->sizeHint().width() + caption->sizeHint().width(), figure->width())
                << nutrient.factsLabel;
        }
    });
}

TEST_F(FrmNutInfoTest, AssistiveToolsReadEachFigureWithItsCaption) {
    Show(Item({{"TotalFat", 13}}), [](QWidget* panel) {
        const auto said = [panel](const char* label, QAccessible::Text part) {
            return QAccessible::queryAccessibleInterface(Find(panel, label))->text(part);
        };
        EXPECT_EQ(said("lblTotalFat", QAccessible::Name), "13.");
        EXPECT_EQ(said("lblTotalFat", QAccessible::Description), "Total Fat (g)");
        EXPECT_EQ(said("lblPerFat", QAccessible::Name), Text(panel, "lblPerFat"));
        EXPECT_EQ(said("lblPerFat", QAccessible::Description), "Total Fat (g), % Daily Value");
        EXPECT_EQ(said("lblFatCals", QAccessible::Description), "Calories from fat");
    });
}

TEST_F(FrmNutInfoTest, ALongNameIsCutAndStandsWholeInItsLabel) {
    const QString name = QString("Infant formula, ready-to-feed, ").repeated(6);
    Show(Item({}, 1, name), [&](QWidget* panel) {
        EXPECT_EQ(Text(panel, "aaFoodName"), name);
        EXPECT_LE(Find(panel, "aaFoodName")->geometry().right(), panel->width());
    });
}
