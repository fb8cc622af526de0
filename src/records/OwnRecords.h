#pragma once

#include "records/RecordsFolder.h"

/// The records of the person who runs the program. Where the program is installed for all people of
/// a machine, their folder is made at the first start, and the stock foods follow the installed
/// delivery. Where the records stand beside the program, whoever installs it does that, and nothing
/// happens here.
class OwnRecords {
public:
    OwnRecords();
    OwnRecords(RecordsFolder records, QString delivered);

    void MakeFolder() const; ///< if it is missing; only its owner may look into it
    /// Makes both files at the first start, and replaces stock foods that are not the delivered
    /// ones. The caller holds the lock of the records. A file that was lost is never made anew, and
    /// records that cannot be updated stay as they are.
    void Update() const;
    /// The folder, made and updated for a command, which holds no lock. If the records are in use,
    /// the update is left to the next start.
    const RecordsFolder& Ready() const;

private:
    bool AreCurrent() const;
    bool AreThere() const;
    bool IsFirstStart() const;
    void Deliver() const;
    void UpdateAlone() const;

    RecordsFolder records_;
    QString delivered_;
};
