#pragma once

#include <QString>

class FoodList;
class QJsonObject;
class Session;
struct Food;

/// How the commands name and print foods and recipes.
namespace FoundFoods {
QString KeyOf(const Food& food); ///< "food:16096" or "recipe:3": a command takes it as a FOOD
QJsonObject Facts(const Food& food);
void Print(const Session& session, const FoodList& foods);
} // namespace FoundFoods
