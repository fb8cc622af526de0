#pragma once

#include <QString>
#include <QStringList>

/// Which foods of a file are wanted. Without a restriction of one sort, all are; with several, one
/// of them is enough. All sorts must agree.
class FoodFilter {
public:
    /// Takes "type=branded", "category=Snacks" or "words=rye bread". False: it is none of them.
    bool Add(const QString& restriction);

    bool TakesType(const QString& type) const;
    bool TakesCategory(const QString& category) const; ///< the whole name, whatever the case
    bool TakesName(const QString& name) const;         ///< all words stand in the name

    static QStringList Types(); ///< the types that can be asked for

private:
    QStringList types_;
    QStringList categories_;
    QList<QStringList> words_;
};
