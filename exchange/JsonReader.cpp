#include "exchange/JsonReader.h"

#include "exchange/Refusal.h"

#include <nlohmann/json.hpp>

namespace exchange::JsonReader {
namespace {
using nlohmann::json;

/// Hands the events of the library's parser on to the listener and counts the nesting.
class Events : public json::json_sax_t {
public:
    explicit Events(JsonListener& listener)
        : listener_(listener) {}

    bool null() override { return Tell(nullptr); }
    bool boolean(bool value) override { return Tell(value); }
    bool number_integer(json::number_integer_t value) override {
        return Tell(static_cast<double>(value));
    }
    bool number_unsigned(json::number_unsigned_t value) override {
        return Tell(static_cast<double>(value));
    }
    bool number_float(double value, const std::string&) override { return Tell(value); }
    bool string(std::string& value) override { return Tell(std::move(value)); }
    bool binary(json::binary_t&) override { return false; }
    bool start_object(size_t) override { return Begin(JsonGroup::Object); }
    bool start_array(size_t) override { return Begin(JsonGroup::Array); }
    bool end_object() override { return End(); }
    bool end_array() override { return End(); }

    bool key(std::string& name) override {
        listener_.Key(depth_, std::move(name));
        return true;
    }

    bool parse_error(size_t, const std::string&, const json::exception&) override {
        throw Refusal(400, "The body is not JSON.");
    }

private:
    bool Tell(JsonValue value) {
        listener_.Value(depth_, std::move(value));
        return true;
    }

    bool Begin(JsonGroup group) {
        Tell(group);
        if (++depth_ > DeepestNesting)
            throw Refusal(400, "The body is nested too deeply.");
        return true;
    }

    bool End() {
        listener_.End(--depth_);
        return true;
    }

    JsonListener& listener_;
    int depth_ = 0;
};
} // namespace

void Read(const std::string& text, JsonListener& listener) {
    Events events(listener);
    json::sax_parse(text, &events);
}

} // namespace exchange::JsonReader
