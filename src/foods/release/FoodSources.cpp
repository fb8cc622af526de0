#include "foods/release/FoodSources.h"

#include "foods/release/FoodRelease.h"
#include "runtime/Convert.h"
#include "runtime/RuntimeError.h"
#include "runtime/WholeFile.h"

#include <QCryptographicHash>
#include <QDir>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>

namespace {
constexpr const char* Files[] = {FoodRelease::ValuesFile, FoodRelease::NamesFile,
                                 FoodRelease::WeightsFile};
constexpr int CheckLength = 8;

QString Sha256(const QByteArray& bytes) {
    return QString::fromLatin1(QCryptographicHash::hash(bytes, QCryptographicHash::Sha256).toHex());
}

std::optional<double> Number(const QString& text) {
    return text.isEmpty() ? std::nullopt : std::optional(text.toDouble());
}

FoodSource SourceOf(const ReleaseFood& food) {
    std::vector<std::optional<double>> figures;
    for (const QString& amount : food.nutrients)
        figures.push_back(Number(amount));
    const Measure& a = food.servings.a;
    const Measure& b = food.servings.b;
    figures.push_back(Number(a.grams));
    figures.push_back(Number(b.grams));
    return {food.valuesLine,   food.nameLine,    {a.field, a.line},
            {b.field, b.line}, food.plainFolate, FoodSources::CheckOf(figures)};
}

/// What stands at each place of a food's entry.
QJsonArray Columns() {
    return {"check", "values", "name", "fieldA", "lineA", "fieldB", "lineB", "plainFolate"};
}

QJsonArray ToJson(const FoodSource& food) {
    return {food.check,  food.valuesLine, food.nameLine, food.a.field,
            food.a.line, food.b.field,    food.b.line,   food.plainFolate};
}

FoodSource FoodFrom(const QJsonValue& json) {
    return {json[1].toInt(),
            json[2].toInt(),
            {json[3].toInt(), json[4].toInt()},
            {json[5].toInt(), json[6].toInt()},
            json[7].toBool(),
            json[0].toString()};
}
} // namespace

FoodSources FoodSources::Of(const FoodRelease& release, const QString& name,
                            const QString& folder) {
    FoodSources sources;
    sources.release_ = name;
    sources.fieldCount_ = release.FieldCount();
    for (const char* file : Files)
        sources.hashes_[QLatin1String(file)] =
            Sha256(WholeFile(QDir(folder).filePath(QLatin1String(file))));
    for (const ReleaseFood& food : release.Foods())
        if (food.HasValue())
            sources.foods_[food.number] = SourceOf(food);
    return sources;
}

FoodSources FoodSources::Read(const QString& path) {
    const QJsonObject json = QJsonDocument::fromJson(WholeFile(path)).object();
    FoodSources sources;
    sources.release_ = json["release"].toString();
    sources.fieldCount_ = json["fields"].toInt();
    const QJsonObject hashes = json["sha256"].toObject();
    for (auto hash = hashes.begin(); hash != hashes.end(); ++hash)
        sources.hashes_[hash.key()] = hash.value().toString();
    const QJsonObject foods = json["foods"].toObject();
    for (auto food = foods.begin(); food != foods.end(); ++food)
        sources.foods_[food.key()] = FoodFrom(food.value());
    return sources;
}

/// One food a line, so that a change of the file can be read.
QByteArray FoodSources::Json() const {
    QJsonObject hashes;
    for (auto hash = hashes_.begin(); hash != hashes_.end(); ++hash)
        hashes[hash.key()] = hash.value();
    QJsonObject foods;
    for (auto food = foods_.begin(); food != foods_.end(); ++food)
        foods[food.key()] = ToJson(food.value());
    const QJsonObject all{{"release", release_},
                          {"fields", fieldCount_},
                          {"sha256", hashes},
                          {"columns", Columns()},
                          {"foods", foods}};
    return QJsonDocument(all).toJson(QJsonDocument::Compact).replace("],", "],\n") + '\n';
}

QString FoodSources::Hash(const char* file) const {
    return hashes_.value(QLatin1String(file));
}

std::optional<FoodSource> FoodSources::Find(const QString& number) const {
    const auto found = foods_.find(number);
    return found == foods_.end() ? std::nullopt : std::optional(*found);
}

QString FoodSources::CheckOf(const std::vector<std::optional<double>>& figures) {
    QStringList texts;
    for (const std::optional<double>& figure : figures)
        texts << (figure ? DecimalText(*figure) : QString());
    return Sha256(texts.join(u' ').toUtf8()).left(CheckLength);
}
