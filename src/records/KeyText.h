#pragma once

#include <QString>

/// Keys as the commands print them and take them: "food:16096", "recipe:3", "log:5".
namespace KeyText {
inline constexpr QLatin1String Food("food");
inline constexpr QLatin1String Recipe("recipe");
inline constexpr QLatin1String Entry("log");

QString Of(QLatin1String kind, qint32 key);
QString OfFood(qint32 key, bool isRecipe);
} // namespace KeyText
