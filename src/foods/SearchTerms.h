#pragma once

#include <QString>
#include <QStringList>

/// The words of a search term and the statements that look for them. Words go into a statement
/// unchanged: a percent sign is a wildcard, and with a quote the store refuses the statement.
class SearchTerms {
public:
    explicit SearchTerms(const QString& term); ///< splits at each blank and keeps empty words

    const QStringList& Words() const { return words_; }
    QString RecipeSQL() const; ///< on users.mdb
    QString CustomSQL() const; ///< on foods.mdb
    QString StockSQL() const;  ///< on foods.mdb

private:
    QString Clauses(const QString& column) const;
    QString CatalogueSQL(const QString& ending) const;

    QStringList words_;
};
