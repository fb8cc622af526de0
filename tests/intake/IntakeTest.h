#pragma once

#include "foods/ScaledFood.h"
#include "support/HalvaneTest.h"
#include "toolkit/ucAte.h"

#include <QDate>

/// A user with an empty log and both databases open; the chosen day is 4 March 2002.
class IntakeTest : public HalvaneTest {
protected:
    void SetUp() override;

    static const QDate day;

    /// A food with the given calories; the other 30 amounts are 1.
    static ScaledFood Scaled(const QString& name, double calories = 100, double quantity = 1,
                             const QString& serving = QStringLiteral("1 cup"));
    /// Writes a row of the log with plain SQL.
    void Log(const QString& name, const QString& meal, QDate on = day, double calories = 100,
             double quantity = 1, const QString& serving = QStringLiteral("1 cup"));
    int LogCount(const QString& condition = QStringLiteral("1"));

    /// The visible lines under `root`, from top to bottom.
    static QList<ucAte*> Lines(const QWidget* root);
    static QStringList Names(const QWidget* root);
};
