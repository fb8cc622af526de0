#pragma once

#include <QByteArray>

/// Some programs write it at the start of a text in UTF-8. It is not part of the text.
namespace ByteOrderMark {
inline constexpr QByteArrayView Bytes("\xEF\xBB\xBF");

inline QByteArray Removed(const QByteArray& text) {
    return text.startsWith(Bytes) ? text.mid(Bytes.size()) : text;
}
} // namespace ByteOrderMark
