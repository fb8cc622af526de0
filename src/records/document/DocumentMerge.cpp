#include "records/document/DocumentMerge.h"

#include "records/document/CountedMerge.h"
#include "records/document/DocumentKeys.h"
#include "records/document/DocumentReader.h"
#include "records/document/DocumentStage.h"
#include "records/document/KeyedMerge.h"
#include "records/document/WeightMerge.h"
#include "runtime/RuntimeError.h"
#include "store/Connection.h"

#include <SQLiteCpp/SQLiteCpp.h>

namespace {
namespace Sections = DocumentSections;

void RequireNone(const std::string& rows, const QString& sentence) {
    SQLite::Statement found(UserDB().Raw(), rows);
    if (found.executeStep())
        throw RuntimeError(ErrorNumber::TypeMismatch, sentence.arg(found.getColumn(0).getInt64()));
}

/// Of the rows of the document; 0 without any.
std::int64_t HighestKey(const DocumentSection& section) {
    return UserDB()
        .Raw()
        .execAndGet("SELECT ifnull(max(key), 0) FROM " + DocumentStage::Table(section))
        .getInt64();
}

void RequireSoundKeys() {
    for (const DocumentSection* section : Sections::Lists())
        if (section->key != nullptr)
            RequireNone("SELECT key FROM " + DocumentStage::Table(*section) +
                            " WHERE key IS NOT NULL GROUP BY key HAVING count(*) > 1",
                        "The file holds two " + QString(section->name) + " with the key %1.");
    RequireNone("SELECT RecipeID FROM " + DocumentStage::Table(Sections::LooseIngredients) +
                    " WHERE RecipeID IN (SELECT key FROM " +
                    DocumentStage::Table(Sections::Recipes) + ")",
                QStringLiteral("The file holds an ingredient of recipe %1 outside of it."));
}

/// New rows get keys above the last one. A very high one is believed only if a row has such a key.
void RequireKeysLeft(const DocumentHead& head) {
    constexpr std::int64_t highest = 2'000'000'000; // some millions below the last possible key
    for (const DocumentSection* section : {&Sections::Profiles, &Sections::Recipes}) {
        const auto last = head.lastKeys.find(section->name);
        if (last != head.lastKeys.end() && last->second > highest &&
            last->second > HighestKey(*section))
            throw RuntimeError(ErrorNumber::TypeMismatch,
                               QStringLiteral("The file says that the last key of %1 was %2, which "
                                              "leaves none for new ones. Remove its member "
                                              "\"lastKeys\".")
                                   .arg(QLatin1String(section->name))
                                   .arg(last->second));
    }
}

/// A key that the records of the document have given is not given again here.
void TakeLastKey(const DocumentSection& section, const DocumentHead& head) {
    const auto last = head.lastKeys.find(section.name);
    if (last == head.lastKeys.end())
        return;
    for (const char* sql :
         {"INSERT INTO sqlite_sequence (seq, name) SELECT ?1, ?2 WHERE NOT EXISTS "
          "(SELECT 1 FROM sqlite_sequence WHERE name = ?2)",
          "UPDATE sqlite_sequence SET seq = max(seq, ?1) WHERE name = ?2"}) {
        SQLite::Statement raise(UserDB().Raw(), sql);
        raise.bind(1, last->second);
        raise.bind(2, section.table);
        raise.exec();
    }
}

void MergeProfiles(const DocumentHead& head, ImportReport& report) {
    KeyedMerge profiles(Sections::Profiles, report);
    profiles.RunByName();
    if (profiles.IsFirst())
        TakeLastKey(Sections::Profiles, head);
}

void MergeFoods(ImportReport& report) {
    KeyedMerge(Sections::Foods, report).Run();
}

void MergeRecipes(const DocumentHead& head, ImportReport& report) {
    KeyedMerge recipes(Sections::Recipes, report);
    recipes.Run();
    if (recipes.IsFirst())
        TakeLastKey(Sections::Recipes, head);
}

/// Rows of a key that the document does not hold, where the records give that key to another row.
void RefuseOthers(const DocumentSection& rows, const char* column, const DocumentSection& referred,
                  ImportReport& report) {
    const std::string condition = std::string(" WHERE ") + column + " NOT IN (SELECT old FROM " +
                                  DocumentKeys::Table(referred) + ") AND " + column +
                                  " IN (SELECT " + referred.key + " FROM " + referred.table + ")";
    const std::string staged = DocumentStage::Table(rows);
    SQLite::Statement found(UserDB().Raw(), std::string("SELECT ") + column + ", count(*) FROM " +
                                                staged + condition + " GROUP BY 1");
    while (found.executeStep())
        report.refused.push_back(
            QStringLiteral("%1: %2 left out. They belong to the key %3 of %4, which the file does "
                           "not hold and which is somebody else's here.")
                .arg(QLatin1String(rows.name))
                .arg(found.getColumn(1).getInt64())
                .arg(found.getColumn(0).getInt64())
                .arg(QLatin1String(referred.name)));
    UserDB().Raw().exec("DELETE FROM " + staged + condition);
}

void FollowKeys(ImportReport& report) {
    for (const DocumentSection* rows : {&Sections::Log, &Sections::Weights}) {
        RefuseOthers(*rows, "UID", Sections::Profiles, report);
        DocumentKeys::Follow(*rows, "UID", Sections::Profiles);
    }
    RefuseOthers(Sections::LooseIngredients, "RecipeID", Sections::Recipes, report);
    DocumentKeys::Follow(Sections::Log, "ID", Sections::Foods, "ID > 23508");
    DocumentKeys::Follow(Sections::Log, "ID", Sections::Recipes,
                         "ID <= 23508 AND ID NOT IN (SELECT ID FROM FOODS)");
}
} // namespace

void DocumentMerge::Run(const DocumentHead& head, ImportReport& report) {
    RequireSoundKeys();
    RequireKeysLeft(head);
    DocumentKeys::Make();
    MergeProfiles(head, report);
    MergeFoods(report);
    MergeRecipes(head, report);
    FollowKeys(report);
    CountedMerge::Run(DocumentSections::LooseIngredients, report);
    CountedMerge::Run(DocumentSections::Log, report);
    WeightMerge::Run(report);
}
