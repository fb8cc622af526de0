#pragma once

#include <QByteArray>

/// A double as the shortest decimal digits that read back as the same double.
/// The value is 0.DIGITS times ten to the power of `point`; zero has no digits and no sign.
struct Decimal {
    bool negative = false;
    QByteArray digits;
    int point = 0;

    /// The value must be finite.
    static Decimal Of(double value);

    /// Multiplies by ten to the power of `places`.
    void Shift(int places);

    /// Keeps that many decimals; halves go away from zero.
    void RoundTo(int decimals);

    QByteArray WholePart() const; ///< digits before the point, empty for none
    QByteArray Fraction() const;  ///< digits after the point, without zeros at the end
};
