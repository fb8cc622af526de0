#include "IntakeTest.h"

#include "model/Nutrients.h"
#include "model/User.h"
#include "runtime/AppState.h"
#include "store/Connection.h"

#include <SQLiteCpp/SQLiteCpp.h>

#include <algorithm>

const QDate IntakeTest::day(2002, 3, 4);

void IntakeTest::SetUp() {
    HalvaneTest::SetUp();
    OpenEmptyDatabases();
    AddUser();
    App().CurrentDate = day;
}

ScaledFood IntakeTest::Scaled(const QString& name, double calories, double quantity,
                              const QString& serving) {
    ScaledFood item;
    for (const NutrientInfo& nutrient : Nutrients())
        item.Add(QLatin1String(nutrient.logColumn),
                 nutrient.id == Nutrient::Calories ? calories : 1.0);
    item.Add(QStringLiteral("FOODNAME"), name);
    item.Add(QStringLiteral("SERVING"), serving);
    item.Add(QStringLiteral("ID"), 4711);
    item.Add(QStringLiteral("QTY"), quantity);
    return item;
}

void IntakeTest::Log(const QString& name, const QString& meal, QDate on, double calories,
                     double quantity, const QString& serving) {
    SQLite::Statement insert(UserDB().Raw(),
                             "INSERT INTO USER_FOODS (UID, FoodName, Serving, ID, Meal, UDate, "
                             "QTY, Calories) VALUES (?, ?, ?, 1, ?, ?, ?, ?)");
    insert.bind(1, User::Current().UID);
    insert.bind(2, name.toStdString());
    insert.bind(3, serving.toStdString());
    insert.bind(4, meal.toStdString());
    insert.bind(5, on.toString(Qt::ISODate).toStdString());
    insert.bind(6, quantity);
    insert.bind(7, calories);
    insert.exec();
}

int IntakeTest::LogCount(const QString& condition) {
    return Users("SELECT count(*) FROM USER_FOODS WHERE " + condition).toInt();
}

QList<ucAte*> IntakeTest::Lines(const QWidget* root) {
    QList<ucAte*> lines;
    for (ucAte* line : root->findChildren<ucAte*>())
        if (line->isVisible())
            lines << line;
    std::sort(lines.begin(), lines.end(),
              [](const ucAte* a, const ucAte* b) { return a->y() < b->y(); });
    return lines;
}

QStringList IntakeTest::Names(const QWidget* root) {
    QStringList names;
    for (const ucAte* line : Lines(root))
        names << line->FoodName();
    return names;
}
