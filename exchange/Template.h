#pragma once

#include <string>
#include <string_view>
#include <utility>
#include <variant>
#include <vector>

namespace exchange {

class Template;

/// The values that fill a template, by name. The names must outlive them.
class Values {
public:
    using List = std::vector<Values>;

    void Set(std::string_view name, std::string text) { Put(name, std::move(text)); }
    void Show(std::string_view name, bool shown) { Put(name, shown); }
    void Each(std::string_view name, List list) { Put(name, std::move(list)); }
    /// Another template, which must outlive it, with values of its own.
    void Insert(std::string_view name, const Template& part, Values values);

private:
    friend class Template;
    struct Part {
        const Template* form;
        List values; ///< one entry
    };
    using Value = std::variant<std::string, bool, List, Part>;

    void Put(std::string_view name, Value value);
    const Value* Find(std::string_view name) const;

    std::vector<std::pair<std::string_view, Value>> values_;
};

/// A page, or a part of one, with places for values. `{{name}}` is replaced by a text, escaped for
/// HTML, and `{{{name}}}` by another template: no text is ever written unescaped. A section from
/// `{{#name}}` to `{{/name}}` is written if the value is true or a text that is not empty, and once
/// for each entry of a list; with `{{^name}}` it is written otherwise. A name without a value is an
/// empty text. An entry of a list also sees the values around the list.
class Template {
public:
    /// `text` must outlive it. Fails with std::logic_error if a tag or a section has no end.
    explicit Template(std::string_view text);
    std::string Filled(const Values& values) const;

private:
    enum class Kind { Literal, Text, Part, Section, Inverted };
    struct Piece {
        Kind kind;
        std::string_view text; ///< the literal, or the name
        size_t end = 0;        ///< of a section: the piece behind it
    };
    struct Tag;
    struct Scope;

    void AddLiteral(std::string_view text);
    void AddTag(const Tag& tag, std::vector<size_t>& open);
    void Write(std::string& page, size_t begin, size_t end, const Scope& scope) const;
    static void WritePart(std::string& page, std::string_view name, const Scope& scope);
    void WriteSection(std::string& page, size_t section, const Scope& scope) const;

    std::vector<Piece> pieces_;
};

} // namespace exchange
