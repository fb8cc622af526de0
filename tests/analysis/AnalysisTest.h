#pragma once

#include "support/HalvaneTest.h"

#include <QDate>
#include <QMap>

/// Amounts by column; the others are 0.
using Amounts = QMap<QString, double>;

/// Empty databases, one user, and ways to fill that user's logs.
class AnalysisTest : public HalvaneTest {
protected:
    void SetUp() override;

    /// Logs one food for the current user, or for another.
    void Eat(const Amounts& amounts, QDate day, const QString& meal = QStringLiteral("Lunch"));
    void EatAs(qint32 uid, const Amounts& amounts, QDate day,
               const QString& meal = QStringLiteral("Lunch"));
    /// A food that has only calories.
    void EatCalories(double calories, QDate day);
    void Weigh(double weight, QDate day);
    QString Caption(const QWidget& chart, const char* name);
    QStringList PieCaptions(const QWidget& chart); ///< fat, protein, carbohydrate
    QString PieText(const QWidget& chart);         ///< what assistive programs read of the pie
};
