#pragma once

#include "CommandTest.h"

#include <QJsonObject>

/// Records of two persons, Anna and Ben. Today is 2 March 2026.
class UseTest : public CommandTest {
protected:
    static constexpr auto Butter = "16096"; ///< 717 kcal in 100 grams; a tablespoon weighs 14.2

    void SetUp() override;
    void Store(const char* sql, bool foods = false); ///< plain SQL on a closed file
    QVariant Stored(const QString& sql);             ///< its first value, from users.mdb
    int Logged() { return Stored(QStringLiteral("SELECT count(*) FROM USER_FOODS")).toInt(); }
    static QJsonObject Facts(const Run& run);
};
