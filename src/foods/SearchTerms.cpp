#include "foods/SearchTerms.h"

SearchTerms::SearchTerms(const QString& term)
    : words_(term.split(u' ')) {}

SearchTerms SearchTerms::Quoted(QString term) {
    return SearchTerms(term.replace(u'\'', QStringLiteral("''")));
}

QString SearchTerms::ForName(QString name) {
    for (const QChar refused : {u'"', u'*', u'\''})
        name.replace(refused, u' ');
    return name.simplified().left(Longest);
}

QString SearchTerms::Refusal(const QString& term) {
    if (term.size() > Longest)
        return QStringLiteral("Please enter a search term of %1 characters or less.").arg(Longest);
    return term.isEmpty() ? QStringLiteral("Please enter a search term.") : QString();
}

QString SearchTerms::RecipeSQL() const {
    return u"SELECT TOP 300 RecipeName,RecipeID,ServingName FROM Recipes WHERE " +
           Clauses(QStringLiteral("RECIPENAME")) + u" ORDER BY RecipeName";
}

QString SearchTerms::CustomSQL() const {
    return CatalogueSQL(QStringLiteral(" AND ID > 23508 ORDER BY FoodName"));
}

QString SearchTerms::StockSQL() const {
    return CatalogueSQL(QStringLiteral(" AND ID <= 23508 ORDER BY FoodName"));
}

QString SearchTerms::Clauses(const QString& column) const {
    QStringList clauses;
    for (const QString& word : words_)
        clauses << QString(column + u" LIKE '%" + word + u"%' ");
    return clauses.join(u"AND ");
}

QString SearchTerms::CatalogueSQL(const QString& ending) const {
    return u"SELECT TOP 300 FoodName,ID,Serv_Desc_A,Serv_Desc_B  FROM FOODS WHERE " +
           Clauses(QStringLiteral("FoodName")) + ending;
}
