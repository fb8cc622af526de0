#pragma once

#include <QString>

#include <string>

/// What a person calls the rows of a section of an export: "12 log entries".
namespace SectionNames {
QString Counted(const std::string& section, int rows);
} // namespace SectionNames
