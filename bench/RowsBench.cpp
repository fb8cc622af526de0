#include "Ground.h"
#include "Table.h"

#include "drawing/Style.h"
#include "foods/FoodList.h"
#include "foods/ui/ResultRows.h"
#include "toolkit/ApplyStyle.h"

#include <QApplication>
#include <QLabel>
#include <QLineEdit>
#include <QScrollArea>
#include <QToolButton>

namespace {
constexpr int Rows = 603;
constexpr int RowHeight = 81;
const QSize Frame(608, 356);

FoodList ManyFoods() {
    FoodList foods;
    for (int i = 1; i <= Rows; ++i)
        foods.Add(QStringLiteral("Cheese, cottage, lowfat, 2% milkfat %1").arg(i), false, i,
                  QStringLiteral("4 oz"), QStringLiteral("1 cup, packed"));
    return foods;
}

void ShowPainted(QWidget& window) {
    window.resize(Frame);
    window.show();
    QApplication::processEvents();
    benchmark::DoNotOptimize(window.grab());
}

/// As a start with this style takes it.
void TakeStyle(StyleKind kind) {
    UseStyle(kind);
    ApplyStyle(*qApp);
}

template <StyleKind Kind> void RowsOurs(benchmark::State& state) {
    const Ground ground(false);
    TakeStyle(Kind);
    const FoodList foods = ManyFoods();
    for (auto _ : state) {
        ResultRows rows(nullptr);
        rows.resize(Frame);
        rows.Load(foods, Rows, false, [](double) {});
        ShowPainted(rows);
    }
    TakeStyle(StyleKind::Light);
}

/// A row of a dozen stock widgets: icon, name, and for each of two servings a text, a quantity and
/// two buttons.
void BuildStockRow(QWidget* pane, const Food& food, int top) {
    auto* row = new QWidget(pane);
    row->setGeometry(0, top, Frame.width(), RowHeight);
    (new QLabel(QStringLiteral("*"), row))->setGeometry(8, 6, 20, 20);
    (new QLabel(food.FoodName, row))->setGeometry(36, 6, 400, 20);
    (new QLabel(QStringLiteral("QTY"), row))->setGeometry(470, 6, 60, 20);
    (new QLabel(QString::number(food.ID), row))->setVisible(false);
    for (int line = 0; line < 2; ++line) {
        const int lineTop = 28 + 26 * line;
        (new QLabel((line ? food.ServB : food.ServA).toString(), row))
            ->setGeometry(36, lineTop, 400, 20);
        (new QLineEdit(QStringLiteral("1"), row))->setGeometry(470, lineTop, 56, 24);
        (new QToolButton(row))->setGeometry(530, lineTop, 24, 24);
        (new QToolButton(row))->setGeometry(558, lineTop, 24, 24);
    }
}

void RowsLimit(benchmark::State& state) {
    const Ground ground(false);
    const FoodList foods = ManyFoods();
    for (auto _ : state) {
        QScrollArea area;
        auto* pane = new QWidget;
        pane->resize(Frame.width(), Rows * RowHeight);
        for (int i = 1; i <= Rows; ++i)
            BuildStockRow(pane, foods.Item(i), (i - 1) * RowHeight);
        area.setWidget(pane);
        ShowPainted(area);
    }
}

[[maybe_unused]] const bool aim = [] {
    for (const char* work : {"603 result rows, first paint included", "603 rows in the dark style",
                             "603 rows in high contrast"})
        Table::Aim(work, 0.25);
    return true;
}();
} // namespace

// The three styles come one after the other: the stock widgets would change the heap between them.
BENCHMARK(RowsOurs<StyleKind::Light>)->Name("603 result rows, first paint included/ours");
BENCHMARK(RowsOurs<StyleKind::Dark>)->Name("603 rows in the dark style/ours");
BENCHMARK(RowsOurs<StyleKind::HighContrast>)->Name("603 rows in high contrast/ours");
BENCHMARK(RowsLimit)->Name("603 result rows, first paint included/limit");
BENCHMARK(RowsLimit)->Name("603 rows in the dark style/limit");
BENCHMARK(RowsLimit)->Name("603 rows in high contrast/limit");
