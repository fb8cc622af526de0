#pragma once

#include "records/document/JsonText.h"

#include <QtGlobal>

#include <functional>
#include <map>

struct DocumentSection;

/// Writes the open records as a document, in pieces: memory does not grow with the records.
class DocumentWriter {
public:
    using Sink = std::function<void(std::string_view piece)>;
    using Progress = std::function<void(qint64 done, qint64 total)>;

    DocumentWriter(Sink sink, Progress progress);

    /// Both files are read as they are at one moment.
    void Write();
    const std::map<std::string, int>& Counts() const { return counts_; } ///< rows of each section

private:
    void AddHead();
    void AddNutrients();
    void AddLastKeys();
    void AddSettings();
    void AddList(const DocumentSection& section);
    void CountRow(int& count);
    void Flush();

    Sink sink_;
    Progress progress_;
    JsonText text_;
    std::map<std::string, int> counts_;
    qint64 done_ = 0;
    qint64 total_ = 0;
};
