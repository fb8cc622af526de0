#pragma once

#include <string>
#include <variant>

namespace exchange {

/// One value of a JSON text. Of an array or an object this is its beginning alone.
enum class JsonGroup { Array, Object };
using JsonValue = std::variant<std::nullptr_t, bool, double, std::string, JsonGroup>;

/// Receives the contents of a JSON text in their order. `depth` is the number of arrays and objects
/// around the value. Each operation may throw to refuse the text.
class JsonListener {
public:
    virtual ~JsonListener() = default;
    virtual void Key(int depth, std::string&& name) = 0;
    virtual void Value(int depth, JsonValue&& value) = 0;
    virtual void End(int depth) = 0; ///< of the array or object whose beginning stood at `depth`
};

/// Reads the JSON text of a request in one pass, without building a tree. So the cost depends on
/// the size of the body, not on its shape.
namespace JsonReader {
inline constexpr int DeepestNesting = 4;

/// Fails with a Refusal if the text is not JSON, not UTF-8, or nested too deeply.
void Read(const std::string& text, JsonListener& listener);
} // namespace JsonReader

} // namespace exchange
