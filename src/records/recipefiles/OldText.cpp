#include "records/recipefiles/OldText.h"

#include <algorithm>

namespace {
constexpr uchar FirstHigh = 0x80;
constexpr uchar LastOfWindowsSigns = 0x9F;

constexpr char16_t Dos[] =
    u"\u00C7\u00FC\u00E9\u00E2\u00E4\u00E0\u00E5\u00E7\u00EA\u00EB\u00E8\u00EF\u00EE\u00EC\u00C4"
    u"\u00C5\u00C9\u00E6\u00C6\u00F4\u00F6\u00F2\u00FB\u00F9\u00FF\u00D6\u00DC\u00A2\u00A3\u00A5"
    u"\u20A7\u0192\u00E1\u00ED\u00F3\u00FA\u00F1\u00D1\u00AA\u00BA\u00BF\u2310\u00AC\u00BD\u00BC"
    u"\u00A1\u00AB\u00BB\u2591\u2592\u2593\u2502\u2524\u2561\u2562\u2556\u2555\u2563\u2551\u2557"
    u"\u255D\u255C\u255B\u2510\u2514\u2534\u252C\u251C\u2500\u253C\u255E\u255F\u255A\u2554\u2569"
    u"\u2566\u2560\u2550\u256C\u2567\u2568\u2564\u2565\u2559\u2558\u2552\u2553\u256B\u256A\u2518"
    u"\u250C\u2588\u2584\u258C\u2590\u2580\u03B1\u00DF\u0393\u03C0\u03A3\u03C3\u00B5\u03C4\u03A6"
    u"\u0398\u03A9\u03B4\u221E\u03C6\u03B5\u2229\u2261\u00B1\u2265\u2264\u2320\u2321\u00F7\u2248"
    u"\u00B0\u2219\u00B7\u221A\u207F\u00B2\u25A0\u00A0";
static_assert(std::size(Dos) == 128 + 1);

QString OfDos(const QByteArray& bytes) {
    QString text(bytes.size(), u' ');
    std::ranges::transform(bytes, text.begin(), [](char c) {
        const auto byte = static_cast<uchar>(c);
        return QChar(byte < FirstHigh ? char16_t(byte) : Dos[byte - FirstHigh]);
    });
    return text;
}
} // namespace

/// The pages of Windows and Latin-1 agree in all bytes but those that mean DOS here.
QString OldText(const QByteArray& bytes) {
    if (QByteArrayView(bytes).isValidUtf8())
        return QString::fromUtf8(bytes);
    const bool isDos = std::ranges::any_of(bytes, [](char c) {
        const auto byte = static_cast<uchar>(c);
        return byte >= FirstHigh && byte <= LastOfWindowsSigns;
    });
    return isDos ? OfDos(bytes) : QString::fromLatin1(bytes);
}
