#include "records/document/DocumentValue.h"

#include <QByteArray>

#include <limits>
#include <optional>

#include <SQLiteCpp/SQLiteCpp.h>
#include <nlohmann/json.hpp>

namespace {
using Json = nlohmann::json;

std::optional<std::string> Decoded(const std::string& base64) {
    const auto decoded = QByteArray::fromBase64Encoding(QByteArray::fromStdString(base64),
                                                        QByteArray::AbortOnBase64DecodingErrors);
    if (!decoded)
        return {};
    return decoded.decoded.toStdString();
}

bool BindInfinity(SQLite::Statement& statement, int parameter, const std::string& name) {
    constexpr double infinity = std::numeric_limits<double>::infinity();
    if (name == "Infinity")
        statement.bind(parameter, infinity);
    else if (name == "-Infinity")
        statement.bind(parameter, -infinity);
    else
        return false;
    return true;
}

bool BindBytes(SQLite::Statement& statement, int parameter, const Json& base64, bool isText) {
    const auto bytes = Decoded(base64.get_ref<const std::string&>());
    if (!bytes)
        return false;
    if (isText)
        statement.bind(parameter, *bytes);
    else
        statement.bind(parameter, bytes->data(), int(bytes->size()));
    return true;
}

/// What JSON has no form for.
bool BindOdd(SQLite::Statement& statement, int parameter, const Json& value) {
    if (value.size() != 1 || !value.front().is_string())
        return false;
    const std::string& member = value.begin().key();
    if (member == "number")
        return BindInfinity(statement, parameter, value.front().get_ref<const std::string&>());
    if (member != "text" && member != "binary")
        return false;
    return BindBytes(statement, parameter, value.front(), member == "text");
}

void BindWhole(SQLite::Statement& statement, int parameter, std::uint64_t value) {
    if (value > std::uint64_t(std::numeric_limits<std::int64_t>::max()))
        statement.bind(parameter, double(value));
    else
        statement.bind(parameter, std::int64_t(value));
}
} // namespace

bool DocumentValue::Bind(SQLite::Statement& statement, int parameter, const Json& value) {
    switch (value.type()) {
    case Json::value_t::null:
        statement.bind(parameter);
        return true;
    case Json::value_t::number_integer:
        statement.bind(parameter, value.get<std::int64_t>());
        return true;
    case Json::value_t::number_unsigned:
        BindWhole(statement, parameter, value.get<std::uint64_t>());
        return true;
    case Json::value_t::number_float:
        statement.bind(parameter, value.get<double>());
        return true;
    case Json::value_t::string:
        statement.bind(parameter, value.get_ref<const std::string&>());
        return true;
    case Json::value_t::object:
        return BindOdd(statement, parameter, value);
    default:
        return false;
    }
}
