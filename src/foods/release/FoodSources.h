#pragma once

#include <QHash>
#include <QMap>
#include <QString>

#include <optional>
#include <vector>

class FoodRelease;

/// Where a serving of a stock food comes from. Where both are 0, the release has no such measure.
struct ServingSource {
    int field = 0; ///< of ABBREV.txt, in the 51-field layout: the grams; the text is the next one
    int line = 0;  ///< of WEIGHT.txt
};

/// Where the row of a stock food comes from.
struct FoodSource {
    int valuesLine = 0; ///< of ABBREV.txt
    int nameLine = 0;   ///< of FOOD_DES.txt
    ServingSource a, b;
    bool plainFolate = false; ///< the field for folate is empty: the total is used
    QString check;            ///< of the figures, see CheckOf
};

/// Where each figure of the stock catalogue comes from: the lines of a release, and the hashes by
/// which its files can be known. It is made together with the catalogue and delivered with it.
class FoodSources {
public:
    static FoodSources Of(const FoodRelease& release, const QString& name, const QString& folder);
    static FoodSources Read(const QString& path); ///< fails where there is no such file
    QByteArray Json() const;

    const QString& Release() const { return release_; }
    int FieldCount() const { return fieldCount_; }               ///< of ABBREV.txt
    QString Hash(const char* file) const;                        ///< SHA-256
    std::optional<FoodSource> Find(const QString& number) const; ///< by the release's own number

    /// A short text that changes with any figure: 31 amounts, then the grams of both servings.
    static QString CheckOf(const std::vector<std::optional<double>>& figures);

private:
    QString release_;
    int fieldCount_ = 0;
    QMap<QString, QString> hashes_;
    QHash<QString, FoodSource> foods_;
};
