#pragma once

#include <QJsonObject>
#include <QString>

/// A JSON Schema, for the keywords that ours uses; it fails on any other.
class JsonSchema {
public:
    explicit JsonSchema(QJsonObject schema)
        : root_(std::move(schema)) {}

    /// Where the value breaks a rule, and which; empty if it keeps all.
    QString Problem(const QJsonValue& value) const { return Problem(root_, value, QString()); }

private:
    QString Problem(const QJsonObject& rules, const QJsonValue& value, const QString& at) const;
    QString Broken(const QString& keyword, const QJsonObject& rules, const QJsonValue& value,
                   const QString& at) const;
    QString InMembers(const QJsonObject& rules, const QJsonObject& value, const QString& at) const;
    QString InItems(const QJsonObject& rules, const QJsonArray& items, const QString& at) const;
    QString OfNone(const QJsonArray& choices, const QJsonValue& value, const QString& at) const;

    QJsonObject root_;
};
