#include "BareStore.h"
#include "RecipeGround.h"
#include "Table.h"
#include "Typing.h"

#include "recipes/ui/frmRecipeManager.h"
#include "store/Connection.h"
#include "toolkit/ucButton.h"

#include <QApplication>
#include <QLineEdit>
#include <QPlainTextEdit>

#include <SQLiteCpp/SQLiteCpp.h>

namespace {
constexpr int Lines = 5000;
constexpr int VeryMany = 50000;
constexpr double OpenTime = 0.05; ///< seconds; from three frames on, a person waits
const QSize Nest(766, 562);

struct Opened {
    frmRecipeManager screen;

    Opened() {
        screen.resize(Nest);
        screen.show();
        screen.DoWinInit();
        QApplication::processEvents();
    }
    template <class T> T& Control(const char* name) {
        return *screen.findChild<T*>(QString::fromLatin1(name));
    }
    void PressEdit() { Q_EMIT Control<ucButton>("cmdEdit").Click(); }
};

/// Reads what the list needs: all recipes, then the card of the first.
void ReadAll(SQLite::Database& users) {
    BareStore::Read(users, "SELECT * FROM Recipes");
    BareStore::Read(users, "SELECT * FROM Recipes WHERE RecipeID = 1");
    BareStore::Read(users, "SELECT Sum(Calories) FROM Ingredients WHERE RecipeID = 1");
    BareStore::Read(users, "SELECT * FROM Ingredients WHERE RecipeID = 1");
}

void ListOurs(benchmark::State& state) {
    const RecipeGround ground;
    Opened opened;
    for (auto _ : state) {
        opened.screen.ListRecipes();
        QApplication::processEvents();
    }
}

void OpenOurs(benchmark::State& state, int recipes) {
    const RecipeGround ground(recipes);
    for (auto _ : state) {
        Opened opened;
        benchmark::DoNotOptimize(opened.screen.grab());
    }
}

void ListLimit(benchmark::State& state) {
    const RecipeGround ground;
    SQLite::Database users = BareStore::Open(UserDB());
    for (auto _ : state)
        ReadAll(users);
}

void OpenLimit(benchmark::State& state) {
    for (auto _ : state)
        state.SetIterationTime(OpenTime);
}

void SaveOurs(benchmark::State& state) {
    const RecipeGround ground;
    Opened opened;
    int count = 0;
    for (auto _ : state) {
        opened.PressEdit();
        opened.Control<QLineEdit>("txtName").setText(QString::number(++count));
        opened.PressEdit();
    }
}

void SaveLimit(benchmark::State& state) {
    const RecipeGround ground;
    SQLite::Database users = BareStore::Open(UserDB());
    int count = 0;
    for (auto _ : state) {
        SQLite::Statement(UserDB().Raw(), "UPDATE Recipes SET RecipeName = '" +
                                              std::to_string(++count) + "' WHERE RecipeID = 1")
            .exec();
        ReadAll(users);
    }
}

QString ManyLines() {
    return QStringLiteral("Stir until it thickens, then taste.\n").repeated(Lines);
}

void TypeOurs(benchmark::State& state) {
    const RecipeGround ground;
    Opened opened;
    opened.PressEdit();
    auto& text = opened.Control<QPlainTextEdit>("txtInstructions");
    text.setPlainText(ManyLines());
    for (auto _ : state)
        TypeLetter(text);
}

void TypeLimit(benchmark::State& state) {
    QPlainTextEdit text;
    text.setPlainText(ManyLines());
    text.show();
    for (auto _ : state)
        TypeLetter(text);
}

[[maybe_unused]] const bool aims = [] {
    Table::Aim("list 5,000 recipes, with the card of one of 100 ingredients", 3);
    Table::Aim("open the screen on 5,000 recipes", 6); // most of it is building the screen
    Table::Aim("open the screen on 50,000 recipes, 50 ms", 1);
    Table::Aim("edit and save one of 5,000 recipes", 3);
    Table::Aim("type a letter into 5,000 lines of instructions", 3);
    return true;
}();
} // namespace

BENCHMARK(ListOurs)->Name("list 5,000 recipes, with the card of one of 100 ingredients/ours");
BENCHMARK(ListLimit)->Name("list 5,000 recipes, with the card of one of 100 ingredients/limit");
BENCHMARK_CAPTURE(OpenOurs, many, RecipeGround::ManyRows)
    ->Name("open the screen on 5,000 recipes/ours");
BENCHMARK(ListLimit)->Name("open the screen on 5,000 recipes/limit");
BENCHMARK_CAPTURE(OpenOurs, very_many, VeryMany)
    ->Name("open the screen on 50,000 recipes, 50 ms/ours");
BENCHMARK(OpenLimit)->Name("open the screen on 50,000 recipes, 50 ms/limit")->UseManualTime();
BENCHMARK(SaveOurs)->Name("edit and save one of 5,000 recipes/ours");
BENCHMARK(SaveLimit)->Name("edit and save one of 5,000 recipes/limit");
BENCHMARK(TypeOurs)->Name("type a letter into 5,000 lines of instructions/ours");
BENCHMARK(TypeLimit)->Name("type a letter into 5,000 lines of instructions/limit");
