#include "records/recipefiles/RecipeFiles.h"

#include "records/archive/ZipReader.h"
#include "records/recipefiles/ForeignJson.h"
#include "records/recipefiles/MarkdownRecipes.h"
#include "records/recipefiles/MealMasterRecipes.h"
#include "records/recipefiles/MealieRecipes.h"
#include "records/recipefiles/SchemaRecipes.h"
#include "records/recipefiles/TandoorRecipes.h"
#include "records/text/ByteOrderMark.h"
#include "runtime/RuntimeError.h"

#include <QFile>
#include <QJsonArray>
#include <QJsonObject>

namespace {
using Drafts = QList<RecipeDraft>;

constexpr qint64 MostBytes = 64 << 20;   ///< of a file that is no zip
constexpr qint64 MostUnpacked = 1 << 30; ///< of all zips in a file together
constexpr int MostZipsInZips = 1;
constexpr int MostIngredients = 1000;
constexpr qsizetype MostCharacters = 1'000'000; ///< of a recipe

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

Drafts OfPlain(const QByteArray& bytes) {
    const QByteArray text = ByteOrderMark::Removed(bytes);
    const QByteArray start = text.left(1000).trimmed();
    const bool isJson = start.startsWith('{') || start.startsWith('[');
    return isJson ? OfJson(ForeignJson::Document(text)) : OfText(text);
}

/// Reads the recipes of a zip and of the zips in it.
class ZipWalk {
public:
    Drafts Recipes(ZipReader zip, int depth = 0) {
        Drafts recipes;
        for (const QString& name : zip.Names())
            if (MayHoldRecipes(name))
                recipes << Member(zip.Read(name), depth);
        return recipes;
    }

private:
    /// Pictures and settings stand beside the recipes.
    static bool MayHoldRecipes(const QString& name) {
        return name.endsWith(QLatin1String(".json")) || name.endsWith(QLatin1String(".zip"));
    }

    Drafts Member(const QByteArray& bytes, int depth) {
        unpacked_ += bytes.size();
        if (unpacked_ > MostUnpacked)
            throw RuntimeError(ErrorNumber::TypeMismatch,
                               QStringLiteral("It unpacks to more than a gigabyte."));
        if (!ZipReader::IsZip(bytes.left(4)))
            return OfPlain(bytes);
        return depth < MostZipsInZips ? Recipes(ZipReader(bytes, ZipReader::Limits()), depth + 1)
                                      : Drafts();
    }

    qint64 unpacked_ = 0;
};

/// A food is searched for each line.
void RequireFewIngredients(const RecipeDraft& draft) {
    if (draft.ingredients.size() > MostIngredients)
        throw RuntimeError(
            ErrorNumber::TypeMismatch,
            QStringLiteral("A recipe has at most %1 ingredients.").arg(MostIngredients));
}

/// The recipe screen shows all of it.
void RequireFewCharacters(const RecipeDraft& draft) {
    qsizetype count = 0;
    for (const RecipeFieldInfo& field : RecipeFields())
        count += draft.values[field.id].toString().size();
    for (const IngredientLine& line : draft.ingredients)
        count += line.text.size();
    for (const QString& remark : draft.remarks)
        count += remark.size();
    if (count > MostCharacters)
        throw RuntimeError(
            ErrorNumber::TypeMismatch,
            QStringLiteral("A recipe has at most %1 characters.").arg(MostCharacters));
}

Drafts OfFile(const QString& path) {
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly))
        throw RuntimeError(ErrorNumber::FileNotFound, file.errorString());
    if (ZipReader::IsZip(file.peek(4)))
        return ZipWalk().Recipes(ZipReader(path));
    if (file.size() > MostBytes)
        throw RuntimeError(ErrorNumber::TypeMismatch,
                           QStringLiteral("A file of recipes has at most 64 megabytes."));
    const QByteArray bytes = file.readAll();
    if (file.error() != QFileDevice::NoError)
        throw RuntimeError(ErrorNumber::FileAccess, file.errorString());
    return OfPlain(bytes);
}
} // namespace

Drafts RecipeFiles::Read(const QString& path) {
    try {
        Drafts recipes = OfFile(path);
        if (recipes.isEmpty())
            throw RuntimeError(ErrorNumber::TypeMismatch,
                               QStringLiteral("There is no recipe in it that can be read."));
        for (RecipeDraft& draft : recipes) {
            RequireFewIngredients(draft);
            RequireFewCharacters(draft);
            Complete(draft);
        }
        return recipes;
    } catch (const RuntimeError& failure) {
        throw RuntimeError(failure.Number(), path + u": " + failure.Description());
    }
}

QByteArray RecipeFiles::Write(const Drafts& recipes, Format format) {
    return format == Format::JsonLd ? SchemaRecipes::Write(recipes)
                                    : MarkdownRecipes::Write(recipes).toUtf8();
}
