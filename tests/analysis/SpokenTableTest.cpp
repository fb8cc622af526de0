#include "analysis/ui/SpokenTable.h"

#include "AnalysisTest.h"
#include "analysis/ui/PieChart.h"
#include "analysis/ui/ucBarChart.h"
#include "analysis/ui/ucDaily.h"
#include "analysis/ui/ucLineChart.h"
#include "analysis/ui/ucPieChart.h"
#include "drawing/Twips.h"
#include "model/User.h"

#include <QAccessible>
#include <QApplication>
#include <QHelpEvent>
#include <QToolTip>

/// The figures of the charts for people who cannot see them, and the tips for people who can.
class SpokenTableTest : public AnalysisTest {
protected:
    const QDate day_{2002, 4, 3};

    static QAccessibleInterface* TableOf(QWidget* chart) {
        QAccessibleInterface* spoken = QAccessible::queryAccessibleInterface(chart);
        for (int i = 0; i < spoken->childCount(); ++i)
            if (spoken->child(i)->role() == QAccessible::Table)
                return spoken->child(i);
        return nullptr;
    }
    /// The texts of a row; row -1 holds the heads.
    static QStringList Row(QAccessibleInterface* table, int row) {
        QStringList texts;
        for (int column = 0; column < table->tableInterface()->columnCount(); ++column)
            texts << (row < 0
                          ? table->tableInterface()->columnDescription(column)
                          : table->tableInterface()->cellAt(row, column)->text(QAccessible::Name));
        return texts;
    }
    void EatLunch() {
        Eat({{QStringLiteral("Calories"), 500}, {QStringLiteral("Iron"), 12}}, day_);
    }
    static QString Tip(QWidget* control, QPoint at) {
        QToolTip::hideText();
        QHelpEvent asked(QEvent::ToolTip, at, control->mapToGlobal(at));
        QApplication::sendEvent(control, &asked);
        return asked.isAccepted() ? QToolTip::text() : QString();
    }
};

TEST_F(SpokenTableTest, TheWeightsAreATableOfDates) {
    Weigh(150.5, day_);
    Weigh(149, day_.addDays(40));
    ucLineChart chart;
    EXPECT_EQ(TableOf(&chart), nullptr);
    chart.updateLineChart(day_, day_.addDays(99));
    QAccessibleInterface* table = TableOf(&chart);
    ASSERT_NE(table, nullptr);
    EXPECT_EQ(table->tableInterface()->rowCount(), 2);
    EXPECT_EQ(Row(table, -1), (QStringList{"Date", "Weight (lbs)"}));
    EXPECT_EQ(Row(table, 0), (QStringList{"4/3/2002", "150.5"}));
    EXPECT_EQ(Row(table, 1), (QStringList{"5/13/2002", "149"}));
    EXPECT_EQ(table->tableInterface()->cellAt(2, 0), nullptr);
    EXPECT_EQ(table->tableInterface()->cellAt(0, -1), nullptr);
    EXPECT_EQ(table->text(QAccessible::Name), "Weights of the period");
    EXPECT_EQ(QAccessible::queryAccessibleInterface(&chart)->text(QAccessible::Description),
              "4/3/2002 150.5 lbs, 5/13/2002 149 lbs");
}

TEST_F(SpokenTableTest, TheTableAndItsCellsKnowTheirPlace) {
    Weigh(150.5, day_);
    ucLineChart chart;
    chart.updateLineChart(day_, day_);
    QAccessibleInterface* spoken = QAccessible::queryAccessibleInterface(&chart);
    QAccessibleInterface* table = TableOf(&chart);
    EXPECT_EQ(spoken->indexOfChild(table), spoken->childCount() - 1);
    EXPECT_EQ(table->parent(), spoken);
    EXPECT_EQ(table->childCount(), 2);
    QAccessibleInterface* cell = table->child(1);
    EXPECT_EQ(cell, table->tableInterface()->cellAt(0, 1));
    EXPECT_EQ(table->indexOfChild(cell), 1);
    EXPECT_EQ(cell->parent(), table);
    const auto* place = cell->tableCellInterface();
    EXPECT_EQ(place->rowIndex(), 0);
    EXPECT_EQ(place->columnIndex(), 1);
    EXPECT_EQ(place->table(), table);
    EXPECT_EQ(place->columnHeaderCells().first()->text(QAccessible::Name), "Weight (lbs)");
    EXPECT_EQ(place->rowHeaderCells().first()->text(QAccessible::Name), "4/3/2002");
    EXPECT_EQ(table->child(2), nullptr);
}

TEST_F(SpokenTableTest, ATableFollowsItsChart) {
    Weigh(150.5, day_);
    ucLineChart chart;
    chart.updateLineChart(day_, day_);
    QAccessibleInterface* cell = TableOf(&chart)->tableInterface()->cellAt(0, 0);
    Weigh(160, day_.addDays(-1));
    chart.updateLineChart(day_.addDays(-1), day_.addDays(-1));
    EXPECT_EQ(cell->text(QAccessible::Name), "4/2/2002");
    chart.updateLineChart(day_.addDays(9), day_.addDays(9));
    EXPECT_EQ(cell->text(QAccessible::Name), "");
    EXPECT_EQ(TableOf(&chart), nullptr);
}

TEST_F(SpokenTableTest, TheAveragesAreATableOfNutrients) {
    EatLunch();
    Weigh(150, day_);
    ucBarChart chart;
    chart.updateBars(day_, day_);
    QAccessibleInterface* table = TableOf(&chart);
    ASSERT_NE(table, nullptr);
    EXPECT_EQ(table->tableInterface()->rowCount(), 31);
    EXPECT_EQ(Row(table, -1), (QStringList{"Nutrient", "Amount", "Percent of the target"}));
    EXPECT_EQ(Row(table, 0), (QStringList{"Calories", "500 kcal", "25%"}));
}

TEST_F(SpokenTableTest, ThePieIsATableOfItsParts) {
    ucPieChart chart;
    QAccessibleInterface* table = TableOf(&chart);
    ASSERT_NE(table, nullptr);
    EXPECT_EQ(table->tableInterface()->rowCount(), 3);
    EXPECT_EQ(Row(table, 0), (QStringList{"Fat", "33%"}));
    EXPECT_EQ(Row(table, 2), (QStringList{"Carbs.", "33%"}));
    chart.updatePie(day_, day_);
    EXPECT_EQ(TableOf(&chart), nullptr);
}

TEST_F(SpokenTableTest, TheDayIsATableOfTheViewThatIsShown) {
    Eat({{QStringLiteral("Calories"), 500}, {QStringLiteral("Protein"), 100}}, day_);
    ucDaily panel;
    panel.setDate(day_);
    panel.Toggle(0);
    EXPECT_EQ(Row(TableOf(&panel), 0), (QStringList{"Calories", "500 kcal", "25%"}));
    panel.Toggle(2);
    EXPECT_EQ(Row(TableOf(&panel), -1), (QStringList{"Part of the calories", "Percent"}));
    EXPECT_EQ(Row(TableOf(&panel), 1), (QStringList{"Protein", "100%"}));
}

TEST_F(SpokenTableTest, APointOfTheWeightLineHasATip) {
    Weigh(150.5, day_);
    Weigh(149, day_.addDays(40));
    ucLineChart chart;
    chart.updateLineChart(day_, day_.addDays(99));
    const PlotPoint& second = chart.Points()[1];
    const QPoint place(Twips::ToPixels(second.x), Twips::ToPixels(second.y));
    EXPECT_TRUE(Tip(&chart, place + QPoint(3, 3)).contains("5/13/2002: 149 lbs"));
    EXPECT_EQ(Tip(&chart, place - QPoint(12, 0)), "");
}

TEST_F(SpokenTableTest, BarsNamesAndValuesHaveATip) {
    EatLunch();
    ucDaily panel;
    panel.setDate(day_);
    for (const char* part : {"lbl1", "imgBar1", "lblVal1"})
        EXPECT_TRUE(Tip(Find(&panel, QLatin1String(part)), QPoint(2, 2))
                        .contains("Calories: 500 kcal, 25%"))
            << part;
    EXPECT_EQ(Tip(&panel, QPoint(2, 2)), "");
}

TEST_F(SpokenTableTest, ThePartsOfAPieHaveATip) {
    Eat({{QStringLiteral("Calories"), 500},
         {QStringLiteral("TotalFat"), 100},
         {QStringLiteral("carbs"), 225}},
        day_);
    ucPieChart chart;
    chart.updatePie(day_, day_);
    QWidget* pie = Find(&chart, QStringLiteral("picPIE"));
    const QPoint middle = pie->rect().center();
    EXPECT_TRUE(Tip(pie, middle + QPoint(0, -40)).contains("Fat 50%"));
    EXPECT_TRUE(Tip(pie, middle + QPoint(0, 40)).contains("Carbs. 50%"));
    EXPECT_EQ(Tip(pie, QPoint(1, 1)), "");
    chart.updatePie(day_.addDays(1), day_.addDays(1));
    EXPECT_EQ(Tip(pie, middle), "");
}
