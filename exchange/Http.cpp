#include "exchange/Http.h"

#include <algorithm>

namespace exchange {
namespace {
auto IsNamed(std::string_view name) {
    return [name](const auto& entry) { return entry.first == name; };
}
} // namespace

bool Request::HasParam(std::string_view name) const {
    return std::any_of(params.begin(), params.end(), IsNamed(name));
}

std::string Request::Param(std::string_view name) const {
    const auto found = std::find_if(params.begin(), params.end(), IsNamed(name));
    return found == params.end() ? std::string() : found->second;
}

std::string Request::Header(std::string_view name) const {
    const auto found = std::find_if(headers.rbegin(), headers.rend(), IsNamed(name));
    return found == headers.rend() ? std::string() : found->second;
}

void Reply::SetHeader(std::string name, std::string value) {
    const auto found = std::find_if(headers.begin(), headers.end(), IsNamed(name));
    if (found == headers.end())
        headers.emplace_back(std::move(name), std::move(value));
    else
        found->second = std::move(value);
}

void Reply::SetContent(std::string content, std::string contentType) {
    body = std::move(content);
    type = std::move(contentType);
}

} // namespace exchange
