#include "AnalysisTest.h"

#include "model/Nutrients.h"
#include "model/User.h"

#include <QWidget>

void AnalysisTest::SetUp() {
    HalvaneTest::SetUp();
    OpenEmptyDatabases();
    AddUser();
}

void AnalysisTest::Eat(const Amounts& amounts, QDate day, const QString& meal) {
    EatAs(User::Current().UID, amounts, day, meal);
}

void AnalysisTest::EatAs(qint32 uid, const Amounts& amounts, QDate day, const QString& meal) {
    QString columns = QStringLiteral("UID,UDate,Meal,FoodName,Serving,ID,QTY");
    QString values = QStringLiteral("%1,'%2','%3','Food','1 cup',1,1")
                         .arg(QString::number(uid), day.toString(Qt::ISODate), meal);
    for (const NutrientInfo& nutrient : Nutrients()) {
        const QString column = QLatin1String(nutrient.logColumn);
        columns += u',' + column;
        values += u',' + QString::number(amounts.value(column, 0), 'g', 17);
    }
    Users(QStringLiteral("INSERT INTO USER_FOODS (") + columns + QStringLiteral(") VALUES (") +
          values + u')');
}

void AnalysisTest::EatCalories(double calories, QDate day) {
    Eat({{QStringLiteral("Calories"), calories}}, day);
}

void AnalysisTest::Weigh(double weight, QDate day) {
    Users(QStringLiteral("INSERT INTO USER_WEIGHTS (UID,UDate,Weight) VALUES (%1,'%2',%3)")
              .arg(QString::number(User::Current().UID), day.toString(Qt::ISODate),
                   QString::number(weight, 'g', 17)));
}

QString AnalysisTest::Caption(const QWidget& chart, const char* name) {
    return Find(&chart, QString::fromLatin1(name))->property("Caption").toString();
}

QStringList AnalysisTest::PieCaptions(const QWidget& chart) {
    return {Caption(chart, "aafat"), Caption(chart, "aaprotein"), Caption(chart, "aacarbs")};
}

QString AnalysisTest::PieText(const QWidget& chart) {
    return Find(&chart, QStringLiteral("picPIE"))->accessibleDescription();
}
