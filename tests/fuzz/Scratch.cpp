#include "fuzz/Scratch.h"

#include "fuzz/Target.h"
#include "store/Connection.h"
#include "store/Schema.h"

#include <QFile>
#include <QSettings>
#include <QTemporaryDir>

#include <SQLiteCpp/Database.h>

namespace {
constexpr char Separator = '\x1e';
} // namespace

QString Scratch::Folder() {
    static const QTemporaryDir folder;
    static const bool once = [] {
        QSettings::setPath(QSettings::IniFormat, QSettings::UserScope, folder.path());
        return true;
    }();
    Expect(once && folder.isValid());
    return folder.path();
}

QString Scratch::Path(const QString& name) {
    return Folder() + u'/' + name;
}

QString Scratch::Write(const QString& name, const QByteArray& bytes) {
    const QString path = Path(name);
    QFile file(path);
    Expect(file.open(QIODevice::WriteOnly) && file.write(bytes) == bytes.size());
    return path;
}

QByteArrayList Scratch::Parts(const std::string& bytes, int count) {
    QByteArrayList parts = QByteArray::fromStdString(bytes).split(Separator);
    while (parts.size() < count)
        parts << QByteArray();
    return parts;
}

void Scratch::OpenRecords() {
    if (UserDB().state() == Connection::Opened)
        return;
    const QString users = Path(QStringLiteral("users.mdb"));
    const QString foods = Path(QStringLiteral("foods.mdb"));
    Schema::Create(users, DatabaseKind::Users);
    Schema::Create(foods, DatabaseKind::Foods);
    UserDB().Open(users, DatabaseKind::Users);
    FoodDB().OpenTogether(foods, DatabaseKind::Foods, UserDB());
    UserDB().Raw().exec("INSERT INTO FOODS (ID, FoodName) VALUES (23508, 'Rye')");
}
