#include "Ground.h"
#include "Table.h"

#include "model/Profiles.h"
#include "model/User.h"
#include "records/RecordsFolder.h"
#include "records/peers/PeerImport.h"
#include "runtime/AppPath.h"
#include "store/Connection.h"

#include <QFile>

#include <SQLiteCpp/SQLiteCpp.h>

namespace {
constexpr auto Work = "10,000 rows of another program, imported";
constexpr int Rows = 10'000;
constexpr int RowsADay = 10;

void CloseBoth() {
    UserDB().Close();
    FoodDB().Close();
}

QString WriteServings() {
    const QString path = FileBeside(QStringLiteral("servings.csv"));
    QFile file(path);
    if (!file.open(QIODevice::WriteOnly))
        return path;
    file.write("Day,Group,Food Name,Amount,Energy (kcal),Water (g),Protein (g),Carbs (g),Fat (g),"
               "Fiber (g),Iron (mg),Sodium (mg)\n");
    for (int i = 0; i < Rows; ++i)
        file.write(Ground::Day(i / RowsADay).toString(Qt::ISODate).toUtf8() + ",Lunch,Oats " +
                   QByteArray::number(i) + ",40.00 g,151.5,4.32,5.26,27.08,2.61,4.04,1.7,2.4\n");
    return path;
}

/// The same rows, written by the bare store in one commit.
void InsertRows(SQLite::Database& users) {
    SQLite::Transaction transaction(users);
    SQLite::Statement insert(users, "INSERT INTO USER_FOODS (UID, UDate, Meal, FoodName, Serving, "
                                    "QTY, Calories, Water, Protein, carbs, TotalFat, fiber, Iron, "
                                    "Sodium) VALUES (1, ?, 'Lunch', ?, '40 g', 1, 151.5, 4.32, "
                                    "5.26, 27.08, 2.61, 4.04, 1.7, 2.4)");
    for (int i = 0; i < Rows; ++i) {
        insert.bind(1, Ground::Day(i / RowsADay).toString(Qt::ISODate).toStdString());
        insert.bind(2, "Oats " + std::to_string(i));
        insert.exec();
        insert.reset();
    }
    transaction.commit();
}

void ImportOurs(benchmark::State& state) {
    for (auto _ : state) {
        state.PauseTiming();
        const Ground ground(false);
        CloseBoth();
        PeerImport::Options options;
        options.from = QStringLiteral("cronometer");
        options.files << WriteServings();
        options.choosePerson = [] { User::Current() = *Profiles::First(); };
        state.ResumeTiming();
        PeerImport::Run(RecordsFolder(ApplicationPath()), options);
    }
}

void ImportLimit(benchmark::State& state) {
    for (auto _ : state) {
        state.PauseTiming();
        const Ground ground(false);
        CloseBoth();
        state.ResumeTiming();
        SQLite::Database users(RecordsFolder(ApplicationPath()).Users().toStdString(),
                               SQLite::OPEN_READWRITE);
        InsertRows(users);
    }
}

[[maybe_unused]] const bool aim = [] {
    Table::Aim(Work, 10);
    return true;
}();
} // namespace

BENCHMARK(ImportOurs)->Name(std::string(Work) + "/ours")->UseRealTime();
BENCHMARK(ImportLimit)->Name(std::string(Work) + "/limit")->UseRealTime();
