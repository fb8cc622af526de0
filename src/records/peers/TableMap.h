#pragma once

#include "records/peers/PeerAmounts.h"
#include "records/peers/PeerChoices.h"
#include "records/peers/PeerNumber.h"

#include <list>
#include <string>

/// What a person tells about the columns of a table of their own, in a TOML file.
struct TableMap {
    enum class Kind { Log, Weights, Foods };
    enum class Basis { Entry, Quantity, HundredGrams };

    Kind kind = Kind::Log;
    char separator = ',';
    NumberFormat numbers;
    QString dateFormat = QStringLiteral("yyyy-MM-dd");
    /// The names of columns; empty where there is none.
    std::string date, meal, name, serving, quantity, grams, weight;
    Basis basis = Basis::Entry; ///< what the amounts are given for
    std::optional<WeightUnit> weightUnit;
    std::vector<AmountColumn> amounts;
    std::list<std::string> amountNames; ///< keeps what the names of `amounts` point to
    QHash<QString, int> meals;          ///< as in PeerChoices

    TableMap() = default;
    TableMap(TableMap&&) = default;
    TableMap& operator=(TableMap&&) = default;

    /// Fails for what is no TOML, an unknown key, a wrong value and a missing column, and says
    /// which.
    static TableMap Of(const QString& path);
};
