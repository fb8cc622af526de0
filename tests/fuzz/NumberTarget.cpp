#include "fuzz/Target.h"

#include "runtime/Attempt.h"
#include "runtime/Convert.h"
#include "runtime/Format.h"
#include "runtime/Val.h"

#include <cmath>

namespace {
bool AreNear(double left, double right, double most) {
    return std::abs(left - right) <= most + std::abs(right) * 1e-15;
}

/// What is shown of a number is the number, as far as the mask goes.
void ShowAndRead(double value) {
    Expect(ToDouble(DecimalText(value)) == value);
    const auto read = [value](NumberMask mask) {
        return ToDouble(PlainNumber(Format(value, mask)));
    };
    Expect(AreNear(read(NumberMask::UpToTwoDecimals), value, .005));
    Expect(AreNear(read(NumberMask::WholeNumber), value, .5));
    Format(value, NumberMask::Thousands);
    Format(value, NumberMask::Percent);
}
} // namespace

/// Each conversion gives a finite number or refuses the text, and they agree on what both take.
void Fuzz(const std::string& bytes) {
    const QString text = QString::fromStdString(bytes);
    Expect(std::isfinite(Val(text)));
    ShowAndRead(Val(text));
    double strict = 0;
    const bool isNumber = Attempt([&] { strict = ToDouble(text); });
    Expect(NumberOrZero(text) == strict);
    Expect(!isNumber || Val(text.trimmed()) == strict);
    Attempt([&] { Expect(std::abs(ToInteger(text) - strict) <= .5); });
}
