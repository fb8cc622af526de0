#include "commands/LoggedLine.h"

#include "analysis/NutrientFigure.h"
#include "intake/DayLog.h"
#include "runtime/Convert.h"

#include <QJsonObject>

QString LoggedLine::Text(const LoggedFood& food) {
    return food.name + u", " + food.serving + u" (x " + DecimalText(food.quantity) + u"), " +
           DecimalText(NutrientFigure::numFix(food.calories)) + u" kcal";
}

QJsonObject LoggedLine::Facts(const LoggedFood& food) {
    return {{"key", food.RecID},
            {"name", food.name},
            {"serving", food.serving},
            {"quantity", food.quantity},
            {"calories", food.calories}};
}
