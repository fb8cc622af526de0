#include "runtime/Settings.h"

#include <QDateTime>
#include <QFile>
#include <QFileInfo>
#include <QSettings>

namespace {
constexpr qsizetype LongestValue = 255;
constexpr int SigningTime = 2; ///< seconds; a process that lives has signed its lock by then

#ifdef Q_OS_WIN
constexpr QSettings::Format StoreFormat = QSettings::NativeFormat;
#else
constexpr QSettings::Format StoreFormat = QSettings::IniFormat;
#endif

/// Each call has its own store object, so that it sees what other processes write.
class Store : public QSettings {
public:
    Store()
        : QSettings(StoreFormat, QSettings::UserScope, QStringLiteral("Brindlewick"),
                    QStringLiteral("HALVANE")) {
        setFallbacksEnabled(false);
        RemoveUnsignedLock(fileName() + ".lock");
    }

private:
    /// A process that was killed between making the lock and signing it leaves an empty file.
    /// QSettings would wait half a minute for it.
    static void RemoveUnsignedLock(const QString& path) {
        const QFileInfo lock(path);
        const QDateTime latest = QDateTime::currentDateTime().addSecs(-SigningTime);
        if (lock.exists() && lock.size() == 0 && lock.lastModified() < latest)
            QFile::remove(path);
    }
};

QString Cut(QString text) {
    if (const qsizetype end = text.indexOf(QChar::Null); end >= 0)
        text.truncate(end);
    const bool splitsPair = text.size() > LongestValue && text.at(LongestValue).isLowSurrogate() &&
                            text.at(LongestValue - 1).isHighSurrogate();
    return text.left(splitsPair ? LongestValue - 1 : LongestValue);
}
} // namespace

QString GetRegValue(const QString& name) {
    return Cut(Store().value(name).toString());
}

void SetRegValue(const QString& name, const QString& value) {
    Store().setValue(name, value);
}
