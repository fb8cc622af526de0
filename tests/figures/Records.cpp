#include "figures/Records.h"

#include "runtime/AppPath.h"
#include "runtime/AppState.h"
#include "store/Connection.h"
#include "store/Schema.h"
#include "support/Places.h"

#include <QFile>
#include <QSettings>

#include <SQLiteCpp/SQLiteCpp.h>

namespace {

void Open(Connection& connection, const QString& name, DatabaseKind kind) {
    const QString path = FileBeside(name);
    QFile::copy(Places::Build("/delivered/" + name), path);
    connection.Open(path, kind);
    connection.Raw().exec("PRAGMA synchronous = OFF");
    connection.Raw().exec("PRAGMA journal_mode = MEMORY");
}

} // namespace

Records::Records() {
    QSettings::setPath(QSettings::IniFormat, QSettings::UserScope, folder_.path());
    SetApplicationPath(folder_.path());
    Open(UserDB(), QStringLiteral("users.mdb"), DatabaseKind::Users);
    Open(FoodDB(), QStringLiteral("foods.mdb"), DatabaseKind::Foods);
    App().AppStarted = true;
}

Records::~Records() {
    UserDB().Close();
    FoodDB().Close();
}

void Records::Clear() {
    for (const char* table : {"profiles", "USER_FOODS", "USER_WEIGHTS", "Recipes", "Ingredients"})
        UserDB().Raw().exec("DELETE FROM " + std::string(table));
    FoodDB().Raw().exec("DELETE FROM FOODS WHERE ID > " + std::to_string(Schema::LastStockFood));
}
