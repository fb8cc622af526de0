#pragma once

#include <string>
#include <variant>

namespace exchange {

/// One value of a JSON text. Of an array or an object this is its beginning alone.
enum class JsonGroup { Array, Object };
using JsonValue = std::variant<std::nullptr_t, bool, double, std::string, JsonGroup>;

/// Is told what a JSON text holds, in its order, and keeps what it needs. `depth` is the number of
/// arrays and objects around the value. Each operation may refuse the text by an exception.
class JsonListener {
public:
    virtual ~JsonListener() = default;
    virtual void Key(int depth, std::string&& name) = 0;
    virtual void Value(int depth, JsonValue&& value) = 0;
    virtual void End(int depth) = 0; ///< of the array or object whose beginning stood at `depth`
};

/// Reads the JSON text of a request in one pass. It makes no tree: a body costs what its bytes cost
/// and what the listener does with them, whatever its shape.
namespace JsonReader {
inline constexpr int DeepestNesting = 4;

/// Fails with a Refusal if the text is no JSON, is no UTF-8, or is nested too deeply.
void Read(const std::string& text, JsonListener& listener);
} // namespace JsonReader

} // namespace exchange
