#pragma once

#include <QByteArray>
#include <QHash>
#include <QStringList>

#include <memory>

struct zip;

/// Reads the members of a zip file into memory. The names of members are for people: nothing is
/// ever written under them. A file that is no zip, is damaged or encrypted, or unpacks to more than
/// its limits allow fails with ErrorNumber::FileAccess.
class ZipReader {
public:
    struct Limits {
        int members = 100'000;
        qint64 total = 512 << 20; ///< bytes of all members that are read
        qint64 ratio = 250;       ///< of a large member to its packed size
    };
    static bool IsZip(const QByteArray& start); ///< the first four bytes tell

    explicit ZipReader(const QString& path)
        : ZipReader(path, Limits()) {}
    ZipReader(const QString& path, Limits limits);
    ZipReader(const QByteArray& content, Limits limits); ///< a zip in a zip
    ~ZipReader();
    ZipReader(ZipReader&&) noexcept;
    ZipReader& operator=(ZipReader&&) noexcept;

    const QStringList& Names() const {
        return names_;
    }                                     ///< as "folder/file.csv"; folders are left out
    QByteArray Read(const QString& name); ///< a name of Names()

private:
    using Archive = std::unique_ptr<zip, void (*)(zip*)>;
    ZipReader(Archive archive, QByteArray content, Limits limits);
    void ReadNames();
    void RequireWithinLimits(const QString& name, qint64 unpacked, qint64 packed) const;

    QByteArray content_; ///< outlives the archive
    Archive archive_;
    Limits limits_;
    QStringList names_;
    QHash<QString, qint64> places_;
    qint64 total_ = 0; ///< bytes read so far
};
