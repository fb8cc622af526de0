#pragma once

#include <QString>

/// The name and the version of the file that holds all records of a person. A new version is needed
/// where an older program would misread a file.
namespace DocumentFormat {
inline constexpr auto Name = "halvane-records";
inline constexpr int Version = 1;

inline QString NotOne() {
    return QStringLiteral("this is not an export of Halvane's records");
}
} // namespace DocumentFormat
