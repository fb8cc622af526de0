#pragma once

#include <QString>

#include <cstdint>
#include <functional>
#include <map>
#include <string>

class DocumentStage;

/// What a document says beside its rows.
struct DocumentHead {
    std::map<std::string, std::int64_t> lastKeys; ///< by the name of the section
    std::map<QString, QString> settings;
};

/// Reads a document into the stage, row by row: memory does not grow with the file. The bytes can
/// be anything.
namespace DocumentReader {
/// Fails with a sentence that names the file and the place, and what is wrong there.
DocumentHead Read(const QString& path, DocumentStage& stage,
                  const std::function<void(qint64 done, qint64 total)>& progress);
} // namespace DocumentReader
