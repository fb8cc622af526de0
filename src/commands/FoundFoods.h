#pragma once

class FoodList;
class QJsonObject;
class Session;
struct Food;

/// How the commands print foods and recipes.
namespace FoundFoods {
QJsonObject Facts(const Food& food);
/// The first ones, and how many more there are.
void Print(const Session& session, const FoodList& foods, int most);
} // namespace FoundFoods
