#pragma once

#include <string>
#include <string_view>

/// Appends a text as JSON writes it: in quotes, with escapes. The text is UTF-8.
void AppendJsonQuoted(std::string& json, std::string_view text);
