#include "records/document/DocumentWriter.h"

#include "records/document/DocumentFormat.h"
#include "records/document/DocumentRows.h"
#include "records/document/DocumentSettings.h"
#include "records/document/KeyGiver.h"
#include "store/Connection.h"
#include "store/ReadTransaction.h"

#include <SQLiteCpp/SQLiteCpp.h>

namespace {
constexpr size_t Piece = 1 << 16;
constexpr int ProgressRows = 1000;

qint64 AllRows() {
    qint64 rows = 0;
    for (const DocumentSection* section : DocumentSections::Lists())
        rows += UserDB()
                    .Raw()
                    .execAndGet(std::string("SELECT count(*) FROM ") + section->table + " WHERE " +
                                section->rows)
                    .getInt64();
    return rows;
}
} // namespace

DocumentWriter::DocumentWriter(Sink sink, Progress progress)
    : sink_(std::move(sink))
    , progress_(std::move(progress)) {}

void DocumentWriter::Write() {
    const ReadTransaction oneMoment(UserDB());
    total_ = AllRows();
    AddHead();
    for (const DocumentSection* section : DocumentSections::Lists())
        AddList(*section);
    text_.Add("\n}\n");
    Flush();
}

void DocumentWriter::AddHead() {
    text_.Add("{\"format\":");
    text_.AddText(DocumentFormat::Name);
    text_.Add(",\n\"version\":");
    text_.AddWhole(DocumentFormat::Version);
    AddNutrients();
    AddLastKeys();
    AddSettings();
}

void DocumentWriter::AddNutrients() {
    const char* before = ",\n\"nutrients\":[\n";
    for (const Nutrient id : StoredOrder()) {
        text_.Add(before);
        text_.Add("{\"name\":");
        text_.AddText(Info(id).property);
        text_.Add(",\"unit\":");
        text_.AddText(Info(id).unit);
        text_.Add("}");
        before = ",\n";
    }
    text_.Add("\n]");
}

void DocumentWriter::AddLastKeys() {
    const char* before = ",\n\"lastKeys\":{";
    for (const DocumentSection* section :
         {&DocumentSections::Profiles, &DocumentSections::Recipes}) {
        text_.Add(before);
        text_.AddText(section->name);
        text_.Add(":");
        text_.AddWhole(KeyGiver(*section).Highest());
        before = ",";
    }
    text_.Add("}");
}

void DocumentWriter::AddSettings() {
    text_.Add(",\n\"settings\":{");
    const char* before = "\n";
    for (const auto& [name, value] : DocumentSettings::All()) {
        text_.Add(before);
        text_.AddText(name.toStdString());
        text_.Add(":");
        text_.AddText(value.toStdString());
        before = ",\n";
    }
    text_.Add("}");
}

void DocumentWriter::AddList(const DocumentSection& section) {
    text_.Add(",\n\"");
    text_.Add(section.name);
    text_.Add("\":[");
    int& count = counts_[section.name];
    for (DocumentRows rows(section, DocumentRows::From::Records); rows.Next(); CountRow(count)) {
        text_.Add(count == 0 ? "\n" : ",\n");
        rows.AddTo(text_);
    }
    text_.Add(count == 0 ? "]" : "\n]");
}

void DocumentWriter::CountRow(int& count) {
    ++count;
    if (++done_ % ProgressRows == 0)
        progress_(done_, total_);
    if (text_.Text().size() > Piece)
        Flush();
}

void DocumentWriter::Flush() {
    sink_(text_.Text());
    text_.Clear();
}
