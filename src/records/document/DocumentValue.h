#pragma once

#include <nlohmann/json_fwd.hpp>

namespace SQLite {
class Statement;
}

/// Values of a document, as `JsonText` writes them.
namespace DocumentValue {
/// Gives the parameter of a statement the value. False for what stands for no value: true, false, a
/// list, or another object than those of `JsonText`.
bool Bind(SQLite::Statement& statement, int parameter, const nlohmann::json& value);
} // namespace DocumentValue
