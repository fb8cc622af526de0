#include "records/recipefiles/ForeignJson.h"

#include "records/text/JsonInput.h"
#include "runtime/Convert.h"

#include <QJsonArray>
#include <QRegularExpression>

#include <optional>

namespace {
struct Entity {
    const char* name;
    char32_t letter;
};
constexpr Entity Entities[] = {
    {"amp", U'&'},         {"lt", U'<'},          {"gt", U'>'},          {"quot", U'"'},
    {"apos", U'\''},       {"nbsp", U' '},        {"deg", U'\u00B0'},    {"frac12", U'\u00BD'},
    {"frac14", U'\u00BC'}, {"frac34", U'\u00BE'}, {"eacute", U'\u00E9'}, {"egrave", U'\u00E8'},
    {"ecirc", U'\u00EA'},  {"agrave", U'\u00E0'}, {"ntilde", U'\u00F1'}, {"uuml", U'\u00FC'},
    {"ouml", U'\u00F6'},   {"auml", U'\u00E4'},   {"ndash", U'\u2013'},  {"mdash", U'\u2014'},
    {"rsquo", U'\u2019'},  {"lsquo", U'\u2018'},  {"ldquo", U'\u201C'},  {"rdquo", U'\u201D'},
};

std::optional<char32_t> Letter(const QString& name) {
    constexpr uint highest = 0x10FFFF;
    if (name.startsWith(u'#')) {
        const bool hex = name.size() > 1 && name[1].toLower() == u'x';
        const uint code = hex ? name.mid(2).toUInt(nullptr, 16) : name.mid(1).toUInt();
        return code >= U' ' && code <= highest ? std::optional<char32_t>(code) : std::nullopt;
    }
    for (const Entity& entity : Entities)
        if (name == QLatin1String(entity.name))
            return entity.letter;
    return std::nullopt;
}

QString WithoutEntities(const QString& text) {
    static const QRegularExpression entity(QStringLiteral("&(#?[A-Za-z0-9]{1,8});"));
    QString plain;
    qsizetype from = 0;
    for (auto all = entity.globalMatch(text); all.hasNext();) {
        const QRegularExpressionMatch match = all.next();
        const auto letter = Letter(match.captured(1));
        plain += text.mid(from, match.capturedStart() - from);
        plain += letter ? QString::fromUcs4(&*letter, 1) : match.captured();
        from = match.capturedEnd();
    }
    return plain + text.mid(from);
}
} // namespace

QJsonValue ForeignJson::Document(const QByteArray& bytes) {
    const QJsonDocument document = JsonInput::Parsed(bytes, QStringLiteral("It"));
    return document.isArray() ? QJsonValue(document.array()) : QJsonValue(document.object());
}

QString ForeignJson::Plain(const QString& text) {
    static const QRegularExpression lineEnd(QStringLiteral("</(p|li|div|h[1-6])>|<br\\s*/?>"),
                                            QRegularExpression::CaseInsensitiveOption);
    static const QRegularExpression mark(QStringLiteral("</?[A-Za-z][^<>]{0,1000}>|</?[A-Za-z]>"));
    QString plain = text;
    plain.replace(QLatin1String("\r\n"), QLatin1String("\n"));
    plain.replace(lineEnd, QStringLiteral("\n")).remove(mark);
    return WithoutEntities(plain).trimmed();
}

QString ForeignJson::Of(const QJsonValue& value) {
    if (value.isDouble())
        return DecimalText(value.toDouble());
    if (value.isObject())
        for (const char* name : {"name", "text", "url", "@id"})
            if (const QJsonValue part = value[QLatin1String(name)]; part.isString())
                return Plain(part.toString());
    if (value.isArray())
        return Lines(value).join(QLatin1String(", "));
    return Plain(value.toString());
}

QStringList ForeignJson::Lines(const QJsonValue& value) {
    QStringList lines;
    if (value.isArray())
        for (const QJsonValue part : value.toArray())
            lines << Lines(part);
    else
        lines << Of(value).split(u'\n', Qt::SkipEmptyParts);
    return lines;
}

QJsonValue ForeignJson::Either(const QJsonObject& object, const QString& snakeName) {
    if (object.contains(snakeName))
        return object[snakeName];
    QString camel;
    for (const QString& word : snakeName.split(u'_'))
        camel += camel.isEmpty() ? word : word.left(1).toUpper() + word.mid(1);
    return object[camel];
}
