#pragma once

#include <QByteArray>
#include <QString>

#include <memory>
#include <vector>

class QIODevice;
struct Imported;

/// A file that a person names, or a member of a zip file that a person names.
struct PeerFile {
    QString name; ///< for messages: "servings.csv", "export.zip: servings.csv"
    QString path;
    QByteArray content; ///< of a member
    bool isMember = false;

    std::unique_ptr<QIODevice> Open() const;
    QByteArray ReadAll() const; ///< refuses a file that is too large to be read at once

    /// Unpacks zip files. Members that are neither CSV nor JSON are listed as left out.
    static std::vector<PeerFile> Of(const QStringList& paths, Imported& into);
};
