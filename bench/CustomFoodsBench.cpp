#include "Ground.h"
#include "Table.h"
#include "Typing.h"

#include "foods/ui/frmFoodList.h"
#include "model/Nutrients.h"
#include "store/Connection.h"
#include "toolkit/ucButton.h"

#include <QApplication>
#include <QLineEdit>

#include <SQLiteCpp/SQLiteCpp.h>

namespace {
constexpr int Foods = 5000;
constexpr int VeryMany = 50000;
constexpr double OpenTime = 0.05; ///< seconds; from three frames on, a person waits
constexpr int FirstId = 23509;
constexpr auto ListSQL = "SELECT * FROM foods WHERE ID > 23508 ORDER BY FoodName";
const QSize Nest(766, 562);

/// The delivered catalogue and thousands of custom foods, added in random order.
struct ManyFoods {
    Ground ground{false};

    explicit ManyFoods(int count = Foods) {
        SQLite::Transaction transaction(FoodDB().Raw());
        SQLite::Statement insert(FoodDB().Raw(),
                                 "INSERT INTO FOODS SELECT ?, " + NutrientColumns() +
                                     ", ?, '1 bowl', NULL, 100, NULL, NULL FROM FOODS "
                                     "WHERE ID = 23508");
        for (int i = 0; i < count; ++i) {
            insert.bind(1, FirstId + i);
            insert.bind(2, "Granola of my own, number " + std::to_string(i * 7919 % count));
            insert.exec();
            insert.reset();
        }
        transaction.commit();
    }

    /// Positions 1 to 31 of the table.
    static std::string NutrientColumns() {
        std::string columns;
        SQLite::Statement row(FoodDB().Raw(), "SELECT * FROM FOODS LIMIT 1");
        for (int i = 1; i <= NutrientCount; ++i)
            columns += (i > 1 ? ", " : "") + std::string(row.getColumnName(i));
        return columns;
    }
};

struct Opened {
    frmFoodList screen;

    Opened() {
        screen.resize(Nest);
        screen.show();
        QApplication::processEvents();
    }
    QLineEdit& Field(const char* name) {
        return *screen.findChild<QLineEdit*>(QString::fromLatin1(name));
    }
    void Press(const char* name) {
        Q_EMIT screen.findChild<ucButton*>(QString::fromLatin1(name))->Click();
    }
};

/// Reads each value with its stored type.
void ReadAll(const char* sql) {
    SQLite::Statement statement(FoodDB().Raw(), sql);
    while (statement.executeStep())
        for (int i = 0; i < statement.getColumnCount(); ++i) {
            const SQLite::Column value = statement.getColumn(i);
            if (value.isText())
                benchmark::DoNotOptimize(value.getText());
            else
                benchmark::DoNotOptimize(value.getDouble());
        }
}

void Run(const std::string& sql) {
    SQLite::Statement(FoodDB().Raw(), sql).exec();
}

std::string SaveSQL(int id, int calories) {
    return "UPDATE foods SET FoodName = 'Granola', Calories = " + std::to_string(calories) +
           " WHERE ID = " + std::to_string(id);
}

void ListOurs(benchmark::State& state) {
    const ManyFoods foods;
    Opened opened;
    for (auto _ : state) {
        opened.screen.ListFoods();
        QApplication::processEvents();
    }
}

void OpenOurs(benchmark::State& state, int count) {
    const ManyFoods foods(count);
    for (auto _ : state) {
        Opened opened;
        benchmark::DoNotOptimize(opened.screen.grab());
    }
}

void ListLimit(benchmark::State& state) {
    const ManyFoods foods;
    for (auto _ : state)
        ReadAll(ListSQL);
}

void OpenLimit(benchmark::State& state) {
    for (auto _ : state)
        state.SetIterationTime(OpenTime);
}

void SaveOurs(benchmark::State& state) {
    const ManyFoods foods;
    Opened opened;
    int calories = 0;
    for (auto _ : state) {
        opened.Field("txtCals").setText(QString::number(++calories));
        opened.Press("cmdSave");
    }
}

void SaveLimit(benchmark::State& state) {
    const ManyFoods foods;
    int calories = 0;
    for (auto _ : state) {
        Run(SaveSQL(FirstId, ++calories));
        ReadAll(ListSQL);
    }
}

void AddOurs(benchmark::State& state) {
    const ManyFoods foods;
    Opened opened;
    for (auto _ : state) {
        opened.Press("cmdNewBut");
        opened.Press("cmdSave");
    }
}

void AddLimit(benchmark::State& state) {
    const ManyFoods foods;
    int id = FirstId + Foods;
    for (auto _ : state) {
        ReadAll("SELECT * FROM foods WHERE ID >= 23508");
        Run("INSERT INTO foods (ID) VALUES (" + std::to_string(id) + ")");
        Run(SaveSQL(id++, 5));
        ReadAll(ListSQL);
    }
}

void TypeInto(QLineEdit& field) {
    TypeLetter(field);
    if (field.text().size() > 100)
        field.clear();
}

void TypeOurs(benchmark::State& state) {
    const ManyFoods foods;
    Opened opened;
    for (auto _ : state)
        TypeInto(opened.Field("txtFoodName"));
}

void TypeLimit(benchmark::State& state) {
    QLineEdit field;
    field.show();
    for (auto _ : state)
        TypeInto(field);
}

[[maybe_unused]] const bool aims = [] {
    Table::Aim("list 5,000 custom foods", 2);
    Table::Aim("open the screen on 5,000 custom foods", 3);
    Table::Aim("open the screen on 50,000 custom foods, 50 ms", 1);
    Table::Aim("save one of 5,000 custom foods", 2);
    Table::Aim("add one to 5,000 custom foods", 2);
    Table::Aim("type a letter into a custom food", 4);
    return true;
}();
} // namespace

BENCHMARK(ListOurs)->Name("list 5,000 custom foods/ours");
BENCHMARK(ListLimit)->Name("list 5,000 custom foods/limit");
BENCHMARK_CAPTURE(OpenOurs, many, Foods)->Name("open the screen on 5,000 custom foods/ours");
BENCHMARK(ListLimit)->Name("open the screen on 5,000 custom foods/limit");
BENCHMARK_CAPTURE(OpenOurs, very_many, VeryMany)
    ->Name("open the screen on 50,000 custom foods, 50 ms/ours");
BENCHMARK(OpenLimit)->Name("open the screen on 50,000 custom foods, 50 ms/limit")->UseManualTime();
BENCHMARK(SaveOurs)->Name("save one of 5,000 custom foods/ours");
BENCHMARK(SaveLimit)->Name("save one of 5,000 custom foods/limit");
BENCHMARK(AddOurs)->Name("add one to 5,000 custom foods/ours");
BENCHMARK(AddLimit)->Name("add one to 5,000 custom foods/limit");
BENCHMARK(TypeOurs)->Name("type a letter into a custom food/ours");
BENCHMARK(TypeLimit)->Name("type a letter into a custom food/limit");
