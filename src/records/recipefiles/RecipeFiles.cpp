#include "records/recipefiles/RecipeFiles.h"

#include "records/archive/ZipReader.h"
#include "records/recipefiles/JsonText.h"
#include "records/recipefiles/MarkdownRecipes.h"
#include "records/recipefiles/MealMasterRecipes.h"
#include "records/recipefiles/MealieRecipes.h"
#include "records/recipefiles/SchemaRecipes.h"
#include "records/recipefiles/TandoorRecipes.h"
#include "runtime/RuntimeError.h"

#include <QFile>
#include <QJsonArray>
#include <QJsonObject>

namespace {
using Drafts = QList<RecipeDraft>;

constexpr qint64 MostBytes = 64 << 20;
constexpr int MostZipsInZips = 1;

QByteArray BytesOf(const QString& path) {
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly))
        throw RuntimeError(ErrorNumber::FileNotFound, file.errorString());
    if (file.size() > MostBytes)
        throw RuntimeError(ErrorNumber::TypeMismatch,
                           QStringLiteral("A file of recipes has at most 64 megabytes."));
    return file.readAll();
}

Drafts OfJson(const QJsonValue& document) {
    const QJsonObject object = document.toObject();
    if (MealieRecipes::IsBackup(object))
        return MealieRecipes::ReadBackup(object);
    if (MealieRecipes::IsRecipe(object))
        return {MealieRecipes::Read(object)};
    if (TandoorRecipes::IsRecipe(object))
        return {TandoorRecipes::Read(object)};
    Drafts recipes = SchemaRecipes::Read(document);
    if (recipes.isEmpty())
        for (const QJsonValue one : document.toArray())
            if (one.isObject())
                recipes << OfJson(one);
    return recipes;
}

Drafts OfText(const QByteArray& bytes) {
    const QByteArray start = bytes.left(1000).trimmed();
    if (MealMasterRecipes::IsFile(bytes))
        return MealMasterRecipes::Read(bytes);
    if (start.startsWith('<'))
        return SchemaRecipes::ReadPage(QString::fromUtf8(bytes));
    return MarkdownRecipes::Read(QString::fromUtf8(bytes));
}

/// A byte order mark is no part of the text.
QByteArray WithoutMark(const QByteArray& bytes) {
    return bytes.startsWith("\xEF\xBB\xBF") ? bytes.mid(3) : bytes;
}

Drafts OfZip(const QByteArray& bytes, int depth);

Drafts OfBytes(const QByteArray& bytes, int depth) {
    if (ZipReader::IsZip(bytes.left(4)))
        return depth > MostZipsInZips ? Drafts() : OfZip(bytes, depth);
    const QByteArray text = WithoutMark(bytes);
    const QByteArray start = text.left(1000).trimmed();
    const bool isJson = start.startsWith('{') || start.startsWith('[');
    return isJson ? OfJson(JsonText::Document(text)) : OfText(text);
}

/// Pictures and settings stand beside the recipes.
bool MayHoldRecipes(const QString& name) {
    return name.endsWith(QLatin1String(".json")) || name.endsWith(QLatin1String(".zip"));
}

Drafts OfZip(const QByteArray& bytes, int depth) {
    ZipReader zip(bytes, ZipReader::Limits());
    Drafts recipes;
    for (const QString& name : zip.Names())
        if (MayHoldRecipes(name))
            recipes << OfBytes(zip.Read(name), depth + 1);
    return recipes;
}
} // namespace

Drafts RecipeFiles::Read(const QString& path) {
    try {
        Drafts recipes = OfBytes(BytesOf(path), 0);
        if (recipes.isEmpty())
            throw RuntimeError(ErrorNumber::TypeMismatch,
                               QStringLiteral("There is no recipe in it that can be read."));
        for (RecipeDraft& draft : recipes)
            Complete(draft);
        return recipes;
    } catch (const RuntimeError& failure) {
        throw RuntimeError(failure.Number(), path + u": " + failure.Description());
    }
}

QByteArray RecipeFiles::Write(const Drafts& recipes, Format format) {
    return format == Format::JsonLd ? SchemaRecipes::Write(recipes)
                                    : MarkdownRecipes::Write(recipes).toUtf8();
}
