#include "records/document/DocumentKeys.h"

#include "records/document/DocumentStage.h"
#include "store/Connection.h"

#include <SQLiteCpp/SQLiteCpp.h>

void DocumentKeys::Make() {
    for (const DocumentSection* section : DocumentSections::Lists())
        if (section->key != nullptr)
            UserDB().Raw().exec("CREATE TABLE " + Table(*section) +
                                " (old INTEGER PRIMARY KEY, new INTEGER)");
}

std::string DocumentKeys::Table(const DocumentSection& section) {
    return std::string("temp.keys_of_") + section.name;
}

void DocumentKeys::Note(const DocumentSection& section, std::int64_t old, std::int64_t now) {
    SQLite::Statement note(UserDB().Raw(), "INSERT INTO " + Table(section) + " VALUES (?, ?)");
    note.bind(1, old);
    note.bind(2, now);
    note.exec();
}

void DocumentKeys::Follow(const DocumentSection& rows, const char* column,
                          const DocumentSection& referred, const char* condition) {
    const std::string name = column;
    const std::string keys = Table(referred);
    UserDB().Raw().exec("UPDATE " + DocumentStage::Table(rows) + " SET " + name +
                        " = (SELECT new FROM " + keys + " WHERE old = " + name + ") WHERE " + name +
                        " IN (SELECT old FROM " + keys + ") AND " + condition);
}
