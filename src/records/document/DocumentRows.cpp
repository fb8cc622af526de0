#include "records/document/DocumentRows.h"

#include "records/document/DocumentStage.h"
#include "records/document/JsonText.h"
#include "store/Connection.h"

#include <QCryptographicHash>

#include <SQLiteCpp/Database.h>

#include <sqlite3.h>

namespace {
enum Column { RowColumn, KeyColumn, FirstField };

std::string RecordsStatement(const DocumentSection& section) {
    const std::string key = section.key == nullptr ? "NULL" : section.key;
    return "SELECT rowid, " + key + ", " + section.Columns() + " FROM " + section.table +
           " WHERE " + section.rows + " ORDER BY rowid";
}

/// Rows with a key come in the order of their keys.
std::string StageStatement(const DocumentSection& section) {
    return "SELECT rowid, key, " + section.Columns() + " FROM " + DocumentStage::Table(section) +
           (section.parent == nullptr ? "" : " WHERE key = ?1") +
           " ORDER BY key IS NULL, key, rowid";
}

QByteArray Statement(const DocumentSection& section, DocumentRows::From from) {
    return QByteArray::fromStdString(from == DocumentRows::From::Records ? RecordsStatement(section)
                                                                         : StageStatement(section));
}

std::vector<std::string> Captions(const DocumentSection& section) {
    std::vector<std::string> captions;
    for (const DocumentField& field : section.fields)
        captions.push_back((captions.empty() ? "\"" : ",\"") + std::string(field.name) + "\":");
    return captions;
}
} // namespace

DocumentRows::DocumentRows(const DocumentSection& section, From from)
    : section_(section)
    , rows_(UserDB().Raw().getHandle(), UserDB().Path(), Statement(section, from))
    , captions_(Captions(section)) {
    if (section.children != nullptr)
        children_ = std::make_unique<DocumentRows>(*section.children, from);
}

bool DocumentRows::Next() {
    return rows_.Step();
}

void DocumentRows::StandIn(std::int64_t parent) {
    rows_.Reset();
    rows_.Bind(1, qlonglong(parent));
}

std::int64_t DocumentRows::Row() const {
    return sqlite3_column_int64(rows_.Handle(), RowColumn);
}

std::optional<std::int64_t> DocumentRows::Key() const {
    if (sqlite3_column_type(rows_.Handle(), KeyColumn) == SQLITE_NULL)
        return {};
    return sqlite3_column_int64(rows_.Handle(), KeyColumn);
}

std::string DocumentRows::Text(int field) const {
    if (sqlite3_column_type(rows_.Handle(), FirstField + field) != SQLITE_TEXT)
        return {};
    const auto* text = sqlite3_column_text(rows_.Handle(), FirstField + field);
    return {reinterpret_cast<const char*>(text),
            size_t(sqlite3_column_bytes(rows_.Handle(), FirstField + field))};
}

void DocumentRows::AddTo(JsonText& text) {
    text.Add("{");
    if (section_.key != nullptr) {
        text.Add("\"key\":");
        text.AddColumn(rows_.Handle(), KeyColumn);
        text.Add(",");
    }
    AddAllButKey(text);
    text.Add("}");
}

std::string DocumentRows::Identity() {
    JsonText text;
    AddAllButKey(text);
    const auto bytes = QByteArray::fromRawData(text.Text().data(), qsizetype(text.Text().size()));
    return QCryptographicHash::hash(bytes, QCryptographicHash::Blake2b_256).toStdString();
}

std::string DocumentRows::Start(int count) const {
    JsonText text;
    AddFields(text, count);
    return text.Text();
}

void DocumentRows::AddAllButKey(JsonText& text) {
    AddFields(text, int(captions_.size()));
    if (section_.amounts != nullptr)
        AddAmounts(text);
    if (children_)
        AddChildren(text);
}

void DocumentRows::AddFields(JsonText& text, int count) const {
    for (int field = 0; field < count; ++field) {
        text.Add(captions_[size_t(field)]);
        text.AddColumn(rows_.Handle(), FirstField + field);
    }
}

void DocumentRows::AddAmounts(JsonText& text) const {
    text.Add(",\"");
    text.Add(section_.amounts);
    text.Add("\":[");
    const int first = FirstField + int(captions_.size());
    for (int i = 0; i < NutrientCount; ++i) {
        if (i > 0)
            text.Add(",");
        text.AddColumn(rows_.Handle(), first + i);
    }
    text.Add("]");
}

void DocumentRows::AddChildren(JsonText& text) {
    text.Add(",\"");
    text.Add(section_.children->name);
    text.Add("\":[");
    children_->StandIn(Row());
    for (bool first = true; children_->Next(); first = false) {
        text.Add(first ? "\n" : ",\n");
        children_->AddTo(text);
    }
    text.Add("]");
}
