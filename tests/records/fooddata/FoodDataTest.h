#pragma once

#include "records/RecordsTest.h"
#include "records/fooddata/FoodImport.h"

/// An invented download in a folder of its own, with the columns of a real one: oats (9900001) of
/// the standard reference, beans (9900002) of the foundation foods, porridge (9900003) of the
/// survey and crisps (9900004) with a brand.
class FoodDataTest : public RecordsTest {
protected:
    using Row = QStringList;

    void SetUp() override;
    QString Download() const { return download_.path(); }
    /// Writes the file with every field in quotes. The first row has the names of the columns.
    void Write(const QString& file, const QList<Row>& rows) const;
    void WriteBytes(const QString& file, const QByteArray& bytes) const;
    /// Adds a row to a file of the download.
    void Add(const QString& file, const Row& row) const;
    /// Adds an amount in 100 g.
    void AddAmount(const QString& food, const QString& nutrient, const QString& amount) const;

    FoodTally Import(const QStringList& only = {}, bool dryRun = false) const;
    QString Refusal() const; ///< of an import that fails
    /// A value of the own food of that number.
    QVariant Own(const QString& number, const QString& column);
    int OwnFoods();

private:
    QTemporaryDir download_;
};
