#include "records/document/DocumentRowReader.h"

#include "records/document/DocumentStage.h"
#include "records/document/DocumentValue.h"
#include "runtime/RuntimeError.h"
#include "store/Connection.h"

#include <algorithm>

#include <SQLiteCpp/SQLiteCpp.h>
#include <nlohmann/json.hpp>

namespace {
using Json = nlohmann::json;

enum Parameter { KeyParameter = 1, FirstField = 2 };

[[noreturn]] void Refuse(const QString& reason) {
    throw RuntimeError(ErrorNumber::TypeMismatch, reason);
}

QString Quoted(std::string_view name) {
    return u'"' + QString::fromUtf8(name.data(), qsizetype(std::min<size_t>(name.size(), 60))) +
           u'"';
}

/// The place of a nutrient among the amounts of a row of the store.
int PlaceOf(const Json& nutrient) {
    const auto order = StoredOrder();
    const auto found = std::ranges::find_if(order, [&](Nutrient id) {
        return nutrient == Json{{"name", Info(id).property}, {"unit", Info(id).unit}};
    });
    if (found == order.end())
        Refuse("the nutrient " + QString::fromStdString(nutrient.dump()) + " is not known");
    return int(found - order.begin());
}

void ReadKey(SQLite::Statement& insert, const Json& key) {
    if (!key.is_number_integer() && !key.is_null())
        Refuse(QStringLiteral("the member \"key\" is not a whole number"));
    DocumentValue::Bind(insert, KeyParameter, key);
}

void ReadField(SQLite::Statement& insert, const DocumentSection& section, const std::string& name,
               const Json& value) {
    const DocumentField* field = section.FindField(name);
    if (field == nullptr)
        Refuse("there is no member " + Quoted(name) + " here");
    if (!DocumentValue::Bind(insert, FirstField + int(field - section.fields.data()), value))
        Refuse("the member " + Quoted(name) + " is neither a number nor a text");
}

bool Is(const char* member, const std::string& name) {
    return member != nullptr && name == member;
}
} // namespace

void DocumentRowReader::ReadNutrients(const Json& list) {
    for (const Json& nutrient : list) {
        const int place = PlaceOf(nutrient);
        if (std::ranges::find(places_, place) != places_.end())
            Refuse("the nutrient " + QString::fromStdString(nutrient.dump()) + " is there twice");
        places_.push_back(place);
    }
}

void DocumentRowReader::ReadRow(const DocumentSection& section, const Json& row,
                                std::optional<std::int64_t> parent) {
    if (!row.is_object())
        Refuse(QStringLiteral("it is not an object"));
    SQLite::Statement& insert = stage_.Insert(section);
    if (parent)
        insert.bind(KeyParameter, *parent);
    for (const auto& [name, value] : row.items()) {
        if (section.key != nullptr && name == "key")
            ReadKey(insert, value);
        else if (Is(section.amounts, name))
            ReadAmounts(insert, FirstField + int(section.fields.size()), value);
        else if (section.children == nullptr || name != section.children->name)
            ReadField(insert, section, name, value);
    }
    insert.exec();
    if (section.children != nullptr && row.contains(section.children->name))
        ReadChildren(*section.children, row[section.children->name]);
}

void DocumentRowReader::ReadAmounts(SQLite::Statement& insert, int first,
                                    const Json& amounts) const {
    if (!amounts.is_array() || amounts.size() != places_.size())
        Refuse(QStringLiteral("it does not hold one amount for each nutrient of the file"));
    for (size_t i = 0; i < places_.size(); ++i)
        if (!DocumentValue::Bind(insert, first + places_[i], amounts[i]))
            Refuse(QStringLiteral("amount %1 is neither a number nor a text").arg(i + 1));
}

void DocumentRowReader::ReadChildren(const DocumentSection& section, const Json& rows) {
    if (!rows.is_array())
        Refuse("the member " + Quoted(section.name) + " is not a list");
    const std::int64_t parent = UserDB().Raw().getLastInsertRowid();
    for (const Json& row : rows)
        ReadRow(section, row, parent);
}
