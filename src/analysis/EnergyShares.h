#pragma once

#include <QString>

#include <array>
#include <optional>

class Nuts;

/// The parts of fat, protein and carbohydrate in the energy of the three, in this order: what a pie
/// shows. Percents are of the whole circle.
class EnergyShares {
public:
    static constexpr size_t Count = 3;
    enum class Content {
        Nothing, ///< none of the three was eaten
        Sectors,
        NoData, ///< nothing was eaten
    };
    /// A share that is too large is drawn as 99.8 %, so that the others can be seen.
    enum class TooLarge {
        FatFrom999,  ///< fat from 99.9 % on, the others above it
        EachFrom999, ///< each from 99.9 % on
    };
    struct Sector {
        double from, to; ///< percent
        bool operator==(const Sector&) const = default;
    };

    EnergyShares() = default; ///< Nothing
    EnergyShares(double fat, double protein, double carbs, TooLarge limit = TooLarge::FatFrom999);
    static EnergyShares NoData();
    /// No data where there are no amounts or less than one kilocalorie.
    static EnergyShares Of(const std::optional<Nuts>& amounts,
                           TooLarge limit = TooLarge::FatFrom999);

    Content What() const { return content_; }
    const std::array<double, Count>& Percents() const { return percents_; }
    std::array<Sector, Count> Sectors() const;
    std::array<QString, Count> Captions() const; ///< "Fat 45%"
    QString Summary() const;                     ///< in words
    bool operator==(const EnergyShares&) const = default;

private:
    Content content_ = Content::Nothing;
    std::array<double, Count> percents_{};
};
