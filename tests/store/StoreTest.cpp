#include "StoreTest.h"

#include "store/Schema.h"

#include <QFile>

#include <SQLiteCpp/SQLiteCpp.h>

void StoreTest::SetUp() {
    ASSERT_TRUE(folder_.isValid());
    Schema::Create(UsersFile(), DatabaseKind::Users);
    Schema::Create(FoodsFile(), DatabaseKind::Foods);
    users_.Open(UsersFile(), DatabaseKind::Users);
    foods_.Open(FoodsFile(), DatabaseKind::Foods);
}

void StoreTest::AddFood(int id, const QString& name) {
    SQLite::Statement insert(foods_.Raw(), "INSERT INTO FOODS (ID, FoodName) VALUES (?, ?)");
    insert.bind(1, id);
    insert.bind(2, name.toStdString());
    insert.exec();
}

void StoreTest::AddLog(int uid, const QString& isoDate, const QString& meal, double calories) {
    SQLite::Statement insert(
        users_.Raw(), "INSERT INTO USER_FOODS (UID, UDate, Meal, Calories) VALUES (?, ?, ?, ?)");
    insert.bind(1, uid);
    insert.bind(2, isoDate.toStdString());
    insert.bind(3, meal.toStdString());
    insert.bind(4, calories);
    insert.exec();
}

void StoreTest::Run(Connection& connection, const QString& sql) {
    connection.Raw().exec(sql.toStdString());
}

QVariant StoreTest::First(Connection& connection, const QString& sql) {
    SQLite::Statement statement(connection.Raw(), sql.toStdString());
    if (!statement.executeStep() || statement.getColumn(0).isNull())
        return {};
    const SQLite::Column column = statement.getColumn(0);
    if (column.isInteger())
        return qlonglong(column.getInt64());
    if (column.isFloat())
        return column.getDouble();
    const std::string text = column.getString();
    return QString::fromUtf8(text.data(), qsizetype(text.size()));
}

QStringList StoreTest::Column(Connection& connection, const QString& sql) {
    SQLite::Statement statement(connection.Raw(), sql.toStdString());
    QStringList values;
    while (statement.executeStep())
        values << QString::fromStdString(statement.getColumn(0).getString());
    return values;
}

int ErrorOf(const std::function<void()>& action) {
    try {
        action();
    } catch (const RuntimeError& error) {
        EXPECT_FALSE(error.Description().isEmpty());
        return error.Number();
    }
    return 0;
}

QString ErrorTextOf(const std::function<void()>& action) {
    try {
        action();
    } catch (const RuntimeError& error) {
        return error.Description();
    }
    return {};
}

QByteArray Contents(const QString& path) {
    QFile file(path);
    EXPECT_TRUE(file.open(QIODevice::ReadOnly)) << path.toStdString();
    return file.readAll();
}
