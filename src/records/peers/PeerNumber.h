#pragma once

#include <QStringView>

#include <optional>

/// How a file writes its numbers. A null character is none.
struct NumberFormat {
    QChar decimal = u'.';
    QChar thousands = {};
};

namespace PeerNumber {
/// Empty for an unknown number: no text, or "n/a". Fails for what is no number in this format.
std::optional<double> Read(QStringView text, const NumberFormat& format);
} // namespace PeerNumber
