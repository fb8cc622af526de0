#include "foods/SearchTerms.h"

SearchTerms::SearchTerms(const QString& term)
    : words_(term.split(u' ')) {}

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
