#pragma once

#include "records/peers/PeerFile.h"
#include "records/peers/PeerTable.h"

#include <array>
#include <span>

/// A kind of table that a program exports: columns that tell it, and what reads it.
template <class Reader> struct TableKind {
    std::array<const char*, 5> columns;
    void (Reader::*read)(PeerTable& table);
};

/// The files of one program, handed to its reader.
class PeerTables {
public:
    PeerTables(const QString& program, const std::vector<PeerFile>& files, NumberFormat numbers,
               Imported& into)
        : program_(program)
        , files_(files)
        , numbers_(numbers)
        , into_(into) {}

    /// A file is of the first kind whose columns it has. The kinds are read in the order of the
    /// list, so that a reader knows what the kinds before have told. A file of no kind is listed;
    /// one that a person has named fails.
    template <class Reader>
    void Read(Reader& reader, std::span<const TableKind<Reader>> kinds) const {
        std::vector<const TableKind<Reader>*> kindOf;
        for (const PeerFile& file : files_)
            kindOf.push_back(KindOf(file, kinds));
        for (const TableKind<Reader>& kind : kinds)
            for (size_t i = 0; i < files_.size(); ++i)
                if (kindOf[i] == &kind) {
                    PeerTable table(files_[i], numbers_);
                    (reader.*kind.read)(table);
                }
    }

    /// Lists each row as left out.
    static void LeaveOut(PeerTable& table, const QString& reason, Imported& into);

private:
    template <class Reader>
    const TableKind<Reader>* KindOf(const PeerFile& file,
                                    std::span<const TableKind<Reader>> kinds) const {
        const auto table = Opened(file);
        for (const TableKind<Reader>& kind : kinds)
            if (table && table->Has(kind.columns))
                return &kind;
        if (table)
            TellUnknown(file);
        return nullptr;
    }
    std::optional<PeerTable> Opened(const PeerFile& file) const;
    void TellUnknown(const PeerFile& file) const;

    QString program_;
    const std::vector<PeerFile>& files_;
    NumberFormat numbers_;
    Imported& into_;
};
