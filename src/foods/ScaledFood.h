#pragma once

#include <QList>
#include <QMetaType>
#include <QString>
#include <QVariant>

/// A food that a person has chosen, with its quantity. It holds 31 amounts for the whole quantity,
/// each under the name of its column, then FOODNAME, SERVING, ID and QTY. Keys ignore case; entries
/// keep the order in which they were added.
class ScaledFood {
public:
    struct Entry {
        QString key;
        QVariant value;
    };

    void Add(const QString& key,
             const QVariant& value);         ///< a key that is used already fails (457)
    QVariant Item(const QString& key) const; ///< an unknown key fails (5)
    QVariant Item(int position) const;       ///< counted from 1; a wrong position fails (9)
    double Amount(const QString& key) const { return Item(key).toDouble(); }
    QString Text(const QString& key) const { return Item(key).toString(); }
    const QList<Entry>& Entries() const { return entries_; }

    /// A food of the catalogue or a recipe, as the two below.
    static ScaledFood Of(qint32 id, const QString& serv, double qty, bool isRecipe);
    /// `qty` servings of a food of the catalogue. `serv` is "A" or "B". A key without a row fails.
    static ScaledFood FromCatalogue(qint32 id, const QString& serv, double qty);
    /// The sum of all ingredients times `qty`, whatever the yield of the recipe.
    static ScaledFood FromRecipe(qint32 recipeID, double qty);

private:
    const Entry* Find(const QString& key) const;

    QList<Entry> entries_;
};
Q_DECLARE_METATYPE(ScaledFood)
