#include "exchange/Template.h"

#include <algorithm>
#include <stdexcept>

namespace exchange {
namespace {
constexpr size_t UsualSize = 8192;

/// The entity of a letter; empty if the letter needs none.
constexpr std::string_view EscapeOf(char letter) {
    switch (letter) {
    case '&':
        return "&amp;";
    case '<':
        return "&lt;";
    case '>':
        return "&gt;";
    case '"':
        return "&quot;";
    case '\'':
        return "&apos;";
    default:
        return {};
    }
}

void AppendEscaped(std::string& page, std::string_view text) {
    size_t plain = 0;
    for (size_t i = 0; i < text.size(); ++i)
        if (const auto escape = EscapeOf(text[i]); !escape.empty()) {
            page.append(text.substr(plain, i - plain)).append(escape);
            plain = i + 1;
        }
    page.append(text.substr(plain));
}

[[noreturn]] void Fail(std::string_view tag) {
    throw std::logic_error("a template lacks the end of \"" + std::string(tag) + "\"");
}
} // namespace

struct Template::Tag {
    char mark; ///< blank if it has none
    std::string_view name;
    size_t end;

    static Tag Read(std::string_view text, size_t begin);
};

/// The values of an entry, and the scope around its list.
struct Template::Scope {
    const Values& values;
    const Scope* around;

    const Values::Value* Find(std::string_view name) const;
    bool Shows(std::string_view name) const;
    std::string_view TextOf(std::string_view name) const;

    /// Null if there is no such value, or if it has another type.
    template <class T> const T* Get(std::string_view name) const {
        const auto* value = Find(name);
        return value ? std::get_if<T>(value) : nullptr;
    }
};

/// If a section's tag is alone on its line, the line end belongs to the tag.
Template::Tag Template::Tag::Read(std::string_view text, size_t begin) {
    const auto closing = text.substr(begin).starts_with("{{{") ? "}}}" : "}}";
    const auto last = text.find(closing, begin);
    const auto inner = text.substr(begin + 2, std::min(last, text.size()) - begin - 2);
    if (last == std::string_view::npos || inner.empty())
        Fail(inner);
    Tag tag{' ', inner, last + std::string_view(closing).size()};
    if (std::string_view("{#^/").find(inner.front()) == std::string_view::npos)
        return tag;
    tag.mark = inner.front();
    tag.name.remove_prefix(1);
    const bool beginsLine = begin == 0 || text[begin - 1] == '\n';
    if (tag.mark != '{' && beginsLine && text.substr(tag.end).starts_with('\n'))
        ++tag.end;
    return tag;
}

void Values::Put(std::string_view name, Value value) {
    constexpr size_t usual = 4;
    if (values_.empty())
        values_.reserve(usual);
    values_.emplace_back(name, std::move(value));
}

void Values::Insert(std::string_view name, const Template& part, Values values) {
    List one;
    one.push_back(std::move(values));
    Put(name, Part{&part, std::move(one)});
}

const Values::Value* Values::Find(std::string_view name) const {
    const auto found = std::find_if(values_.begin(), values_.end(),
                                    [name](const auto& entry) { return entry.first == name; });
    return found == values_.end() ? nullptr : &found->second;
}

const Values::Value* Template::Scope::Find(std::string_view name) const {
    const auto* value = values.Find(name);
    return value || !around ? value : around->Find(name);
}

std::string_view Template::Scope::TextOf(std::string_view name) const {
    const auto* text = Get<std::string>(name);
    return text ? std::string_view(*text) : std::string_view();
}

bool Template::Scope::Shows(std::string_view name) const {
    const auto* shown = Get<bool>(name);
    return shown ? *shown : !TextOf(name).empty();
}

Template::Template(std::string_view text) {
    std::vector<size_t> open;
    size_t at = 0;
    for (auto begin = text.find("{{"); begin != std::string_view::npos;
         begin = text.find("{{", at)) {
        AddLiteral(text.substr(at, begin - at));
        const auto tag = Tag::Read(text, begin);
        AddTag(tag, open);
        at = tag.end;
    }
    AddLiteral(text.substr(at));
    if (!open.empty())
        Fail(pieces_[open.back()].text);
}

void Template::AddLiteral(std::string_view text) {
    if (!text.empty())
        pieces_.push_back({Kind::Literal, text});
}

void Template::AddTag(const Tag& tag, std::vector<size_t>& open) {
    if (tag.mark == '/') {
        if (open.empty() || pieces_[open.back()].text != tag.name)
            Fail(tag.name);
        pieces_[open.back()].end = pieces_.size();
        open.pop_back();
    } else if (tag.mark == '#' || tag.mark == '^') {
        open.push_back(pieces_.size());
        pieces_.push_back({tag.mark == '#' ? Kind::Section : Kind::Inverted, tag.name});
    } else {
        pieces_.push_back({tag.mark == '{' ? Kind::Part : Kind::Text, tag.name});
    }
}

std::string Template::Filled(const Values& values) const {
    std::string page;
    page.reserve(UsualSize);
    Write(page, 0, pieces_.size(), {values, nullptr});
    return page;
}

void Template::Write(std::string& page, size_t begin, size_t end, const Scope& scope) const {
    for (size_t i = begin; i < end; ++i) {
        const auto& piece = pieces_[i];
        switch (piece.kind) {
        case Kind::Literal:
            page.append(piece.text);
            break;
        case Kind::Text:
            AppendEscaped(page, scope.TextOf(piece.text));
            break;
        case Kind::Part:
            WritePart(page, piece.text, scope);
            break;
        default:
            WriteSection(page, i, scope);
            i = piece.end - 1;
        }
    }
}

void Template::WritePart(std::string& page, std::string_view name, const Scope& scope) {
    if (const auto* part = scope.Get<Values::Part>(name))
        part->form->Write(page, 0, part->form->pieces_.size(), {part->values.front(), nullptr});
}

void Template::WriteSection(std::string& page, size_t section, const Scope& scope) const {
    const auto& piece = pieces_[section];
    const bool inverted = piece.kind == Kind::Inverted;
    const auto* list = scope.Get<Values::List>(piece.text);
    if (list && !inverted)
        for (const auto& entry : *list)
            Write(page, section + 1, piece.end, {entry, &scope});
    else if (list ? list->empty() : scope.Shows(piece.text) != inverted)
        Write(page, section + 1, piece.end, scope);
}

} // namespace exchange
