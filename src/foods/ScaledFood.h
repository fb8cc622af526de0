#pragma once

#include <QList>
#include <QMetaType>
#include <QString>
#include <QVariant>

/// A chosen food on its way through the program: 31 finished amounts for the whole quantity, keyed
/// by column name without regard to case and kept in the order of adding, then FOODNAME, SERVING,
/// ID and QTY.
class ScaledFood {
public:
    struct Entry {
        QString key;
        QVariant value;
    };

    void Add(const QString& key,
             const QVariant& value);         ///< a key that is there already fails (457)
    QVariant Item(const QString& key) const; ///< an unknown key fails (5)
    QVariant Item(int position) const; ///< in the order of adding, from 1; none there fails (9)
    double Amount(const QString& key) const { return Item(key).toDouble(); }
    QString Text(const QString& key) const { return Item(key).toString(); }
    const QList<Entry>& Entries() const { return entries_; }

    /// Serving `serv` ("A" or "B") of a catalogue food at quantity `qty`, from the row of that key.
    static ScaledFood FromCatalogue(qint32 id, const QString& serv, double qty);
    /// The whole recipe times `qty`; the yield plays no part.
    static ScaledFood FromRecipe(qint32 recipeID, double qty);

private:
    const Entry* Find(const QString& key) const;

    QList<Entry> entries_;
};
Q_DECLARE_METATYPE(ScaledFood)
