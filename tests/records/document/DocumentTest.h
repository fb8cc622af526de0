#pragma once

#include "records/RecordsFolder.h"
#include "records/document/RecordsDocument.h"
#include "support/HalvaneTest.h"

#include <memory>

/// Folders of records that hold nothing but some stock foods, and their exports.
class DocumentTest : public HalvaneTest {
protected:
    /// A folder of records of its own.
    class Place {
    public:
        explicit Place(const QString& model); ///< copies the two files from there

        RecordsFolder Records() const { return RecordsFolder(folder_.path()); }
        /// Runs statements on both files.
        void Fill(const QByteArray& sql) const;
        QVariant Value(const QByteArray& sql) const; ///< the first one that the statement gives
        QByteArray Export() const;
        ImportReport Import(const QByteArray& document,
                            RecordsDocument::ImportOptions options = {}) const;
        /// The message with which the import is refused; empty if it is not.
        QString Refusal(const QByteArray& document) const;

    private:
        QTemporaryDir folder_;
    };

    void SetUp() override;
    Place Empty() const { return Place(Folder()); }
    static int Added(const ImportReport& report); ///< rows of all sections
};

/// A document with the sections given as members, and one nutrient.
QByteArray Document(const QByteArray& members);
