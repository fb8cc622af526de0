#include "JsonSchema.h"

#include <QJsonArray>

#include <algorithm>
#include <cmath>

namespace {
bool IsOfType(const QString& type, const QJsonValue& value) {
    if (type == "integer")
        return value.isDouble() && value.toDouble() == std::floor(value.toDouble());
    return (type == "object" && value.isObject()) || (type == "array" && value.isArray()) ||
           (type == "string" && value.isString()) || (type == "number" && value.isDouble()) ||
           (type == "null" && value.isNull());
}

bool IsOfTypes(const QJsonValue& types, const QJsonValue& value) {
    const QJsonArray all = types.isArray() ? types.toArray() : QJsonArray{types};
    return std::any_of(all.begin(), all.end(),
                       [&](const QJsonValue& type) { return IsOfType(type.toString(), value); });
}

qsizetype Size(const QJsonValue& value) {
    return value.isArray() ? value.toArray().size() : value.toObject().size();
}
} // namespace

QString JsonSchema::Problem(const QJsonObject& rules, const QJsonValue& value,
                            const QString& at) const {
    const QStringList keywords = rules.keys();
    for (const QString& keyword : keywords)
        if (const QString problem = Broken(keyword, rules, value, at); !problem.isEmpty())
            return problem;
    return {};
}

QString JsonSchema::Broken(const QString& keyword, const QJsonObject& rules,
                           const QJsonValue& value, const QString& at) const {
    const QJsonValue rule = rules[keyword];
    const auto unless = [&](bool kept) { return kept ? QString() : at + ": " + keyword; };
    if (keyword == "type")
        return unless(IsOfTypes(rule, value));
    if (keyword == "const")
        return unless(value == rule);
    if (keyword == "enum")
        return unless(rule.toArray().contains(value));
    if (keyword == "required") {
        const QJsonArray names = rule.toArray();
        return unless(std::all_of(names.begin(), names.end(), [&](const QJsonValue& name) {
            return value.toObject().contains(name.toString());
        }));
    }
    if (keyword == "maxItems" || keyword == "maxProperties")
        return unless(Size(value) <= rule.toInt());
    if (keyword == "minProperties")
        return unless(Size(value) >= rule.toInt());
    if (keyword == "items")
        return InItems(rule.toObject(), value.toArray(), at);
    if (keyword == "additionalProperties")
        return InMembers(rules, value.toObject(), at);
    if (keyword == "anyOf")
        return OfNone(rule.toArray(), value, at);
    if (keyword == "$ref")
        return Problem(root_["$defs"][rule.toString().mid(8)].toObject(), value, at);
    const QStringList silent{"$schema", "title", "description", "$defs", "properties"};
    return unless(silent.contains(keyword));
}

QString JsonSchema::InMembers(const QJsonObject& rules, const QJsonObject& value,
                              const QString& at) const {
    const QJsonObject known = rules["properties"].toObject();
    const QJsonValue others = rules["additionalProperties"];
    for (auto member = value.begin(); member != value.end(); ++member) {
        const QString name = at + '/' + member.key();
        if (!known.contains(member.key()) && others == QJsonValue(false))
            return name + ": additionalProperties";
        const QJsonValue rule = known.contains(member.key()) ? known[member.key()] : others;
        if (const QString problem = Problem(rule.toObject(), member.value(), name);
            !problem.isEmpty())
            return problem;
    }
    return {};
}

QString JsonSchema::InItems(const QJsonObject& rules, const QJsonArray& items,
                            const QString& at) const {
    for (qsizetype i = 0; i < items.size(); ++i)
        if (const QString problem = Problem(rules, items[i], at + '/' + QString::number(i));
            !problem.isEmpty())
            return problem;
    return {};
}

QString JsonSchema::OfNone(const QJsonArray& choices, const QJsonValue& value,
                           const QString& at) const {
    for (const QJsonValue& choice : choices)
        if (Problem(choice.toObject(), value, at).isEmpty())
            return {};
    return at + ": anyOf";
}
