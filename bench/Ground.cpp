#include "Ground.h"

#include "model/Nutrients.h"
#include "model/User.h"
#include "runtime/AppPath.h"
#include "runtime/AppState.h"
#include "runtime/Settings.h"
#include "store/Connection.h"

#include <QFile>
#include <QSettings>

#include <SQLiteCpp/SQLiteCpp.h>

namespace {
const QDate FirstDay(2016, 1, 1);

std::string NutrientColumns(const char* separator) {
    std::string text;
    for (const NutrientInfo& row : Nutrients())
        text += (text.empty() ? "" : separator) + std::string(row.logColumn);
    return text;
}

void OpenBoth() {
    UserDB().Open(FileBeside(QStringLiteral("users.mdb")), DatabaseKind::Users);
    FoodDB().Open(FileBeside(QStringLiteral("foods.mdb")), DatabaseKind::Foods);
    App().AppStarted = true;
}

void AddUser() {
    std::string columns = "UserName, gender, age, height, current_weight, desired_weight, "
                          "activity_level, flagsodium, flagcholesterol, sodiumMAX, cholesterolMAX";
    std::string values = "'Anna', 1, 40, 70, 200, 170, 2, 0, 0, 0, 0";
    for (const NutrientInfo& row : Nutrients()) {
        columns += std::string(", ") + row.profileColumn;
        values += ", 100";
    }
    UserDB().Raw().exec("INSERT INTO profiles (" + columns + ") VALUES (" + values + ")");
}
} // namespace

Ground::Ground(bool withLog) {
    LayOut(folder_.path());
    OpenBoth();
    User::Current().UID = 1;
    User::Current().GetUserProfile(1);
    if (withLog)
        FillLog();
}

Ground::~Ground() {
    UserDB().Close();
    FoodDB().Close();
}

QDate Ground::Day(int index) {
    return FirstDay.addDays(index % Days);
}

void Ground::LayOut(const QString& folder) {
    QSettings::setPath(QSettings::IniFormat, QSettings::UserScope, folder);
    qputenv("XDG_DATA_HOME", QFile::encodeName(folder));
    SetRegValue(QStringLiteral("EULA"), QStringLiteral("YES"));
    SetApplicationPath(folder);
    for (const char* name : {"users.mdb", "foods.mdb", "tips.txt", "agreement.txt"})
        QFile::copy(QStringLiteral(HALVANE_BUILD_DIR "/delivered/") + name, FileBeside(name));
    QFile::link(QStringLiteral(HALVANE_BUILD_DIR "/delivered/fonts"), FileBeside("fonts"));
    OpenBoth();
    AddUser();
    UserDB().Close();
    FoodDB().Close();
}

void Ground::FillLog() {
    SQLite::Transaction transaction(UserDB().Raw());
    std::string values;
    for (int i = 0; i < NutrientCount; ++i)
        values += "?1, ";
    SQLite::Statement insert(UserDB().Raw(), "INSERT INTO USER_FOODS (" + NutrientColumns(", ") +
                                                 ", UID, FoodName, Serving, ID, Meal, UDate, QTY) "
                                                 "VALUES (" +
                                                 values + "?2, ?3, '1 cup', ?4, ?5, ?6, 1)");
    const char* meals[] = {"Breakfast", "Lunch", "Dinner", "Snacks"};
    for (int day = 0; day < Days; ++day)
        for (int entry = 0; entry < EntriesADay; ++entry) {
            insert.bind(1, 1.0 + (day * 7 + entry * 13) % 97);
            insert.bind(2, User::Current().UID);
            insert.bind(3, "Oats, regular and quick, cooked with water " + std::to_string(entry));
            insert.bind(4, 16096 + entry);
            insert.bind(5, meals[entry % 4]);
            insert.bind(6, Day(day).toString(Qt::ISODate).toStdString());
            insert.exec();
            insert.reset();
        }
    FillWeights();
    transaction.commit();
}

void Ground::FillWeights() {
    SQLite::Statement insert(UserDB().Raw(),
                             "INSERT INTO USER_WEIGHTS (UID, UDate, Weight) VALUES (?, ?, ?)");
    for (int day = 0; day < Days; ++day) {
        insert.bind(1, User::Current().UID);
        insert.bind(2, Day(day).toString(Qt::ISODate).toStdString());
        insert.bind(3, 150.0 + (day * 11) % 60);
        insert.exec();
        insert.reset();
    }
}
