#pragma once

#include <QString>

class QJsonObject;
struct LoggedFood;

/// How the commands print one line of a day's list.
namespace LoggedLine {
QString Text(const LoggedFood& food); ///< "Butter, salted, 1 tbsp (x 2), 203.63 kcal"
QJsonObject Facts(const LoggedFood& food);
} // namespace LoggedLine
