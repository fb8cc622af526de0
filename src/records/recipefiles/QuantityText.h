#pragma once

#include <QString>

#include <optional>

/// Reads quantities as recipes write them: "1 1/2", "1½", "0.5", "1,5", ".5", "2-3", "2 to 3".
namespace QuantityText {
struct Amount {
    std::optional<double> value; ///< the middle of a range
    QString rest;                ///< what follows
};

Amount Leading(const QString& text);
} // namespace QuantityText
