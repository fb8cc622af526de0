#pragma once

#include <QString>
#include <QStringList>

/// The words of a search term and the statements that look for them. A word goes into the statement
/// as it stands: a percent sign acts as a wildcard, and a quote makes the store refuse it.
class SearchTerms {
public:
    explicit SearchTerms(const QString& term); ///< split at each blank, empty words kept

    const QStringList& Words() const { return words_; }
    QString RecipeSQL() const; ///< on users.mdb
    QString CustomSQL() const; ///< on foods.mdb
    QString StockSQL() const;  ///< on foods.mdb

private:
    QString Clauses(const QString& column) const;
    QString CatalogueSQL(const QString& ending) const;

    QStringList words_;
};
