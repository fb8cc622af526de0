#pragma once

#include "records/RecordsTest.h"
#include "records/peers/PeerImport.h"

/// Brings files of other programs into the records of Anna, who has logged nothing.
class PeerTest : public RecordsTest {
protected:
    using Options = PeerImport::Options;
    using Result = PeerImport::Result;
    using Kind = Reject::Kind;

    void SetUp() override;
    void SetUpRecordsAnew(); ///< the delivered files, and Anna

    static QString Sample(const QString& name); ///< a file of the folder `samples`
    QString Write(const QString& name, const QByteArray& content) const;

    /// A file that is not of the folder `samples` is named with its path.
    Options From(const QString& program, const QStringList& files) const;
    Result Import(const Options& options) const;
    Result Import(const QString& program, const QStringList& files) const {
        return Import(From(program, files));
    }
    QString Failure(const Options& options) const; ///< the message; empty if there is none

    /// Of the records as they are now.
    QVariant User(const QString& sql);
    QVariant Food(const QString& sql);
    QList<QVariantList> UserRows(const QString& sql);

    /// "line 3: reason" of each row that is not taken as it stands.
    static QStringList Listed(const Result& result, Kind kind);
};
