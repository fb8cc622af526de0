#pragma once

#include <QString>
#include <QStringList>

/// The words of a search term and the statements that look for them. Words go into a statement
/// unchanged: a percent sign is a wildcard, and with a quote the store refuses the statement.
class SearchTerms {
public:
    explicit SearchTerms(const QString& term); ///< splits at each blank and keeps empty words
    /// The term that finds a food by its name, without the characters that a term cannot hold.
    static QString ForName(QString name);
    /// A term in which a quote is a character like any other.
    static SearchTerms Quoted(QString term);

    /// The settings keep no more than this. It also limits the number of words in a statement.
    static constexpr int Longest = 255;
    static QString Refusal(const QString& term); ///< the message; empty if it can be searched for

    const QStringList& Words() const { return words_; }
    QString RecipeSQL() const; ///< on users.mdb
    QString CustomSQL() const; ///< on foods.mdb
    QString StockSQL() const;  ///< on foods.mdb

private:
    QString Clauses(const QString& column) const;
    QString CatalogueSQL(const QString& ending) const;

    QStringList words_;
};
