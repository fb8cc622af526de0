#include "records/tables/JsonWriter.h"

#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>

#include <gtest/gtest.h>

static QByteArray Written(const std::vector<std::vector<Cell>>& rows) {
    std::string text;
    JsonWriter writer("Title", [&text](std::string_view bytes) { text += bytes; });
    writer.Head({{"Food", "", "food"}, {"Sodium", "mg", "sodium"}});
    for (const std::vector<Cell>& row : rows)
        writer.Row(row);
    writer.End();
    return QByteArray::fromStdString(text);
}

TEST(JsonWriterTest, WritesAnObjectForEachRow) {
    EXPECT_EQ(
        Written({{std::string("Oats"), 1.5}, {std::string("Tea"), Cell()}}),
        "[\n{\"food\": \"Oats\", \"sodium\": 1.5},\n{\"food\": \"Tea\", \"sodium\": null}\n]\n");
}

TEST(JsonWriterTest, ATableWithoutRowsIsAnEmptyArray) {
    EXPECT_TRUE(QJsonDocument::fromJson(Written({})).isArray());
    EXPECT_TRUE(QJsonDocument::fromJson(Written({})).array().isEmpty());
}

TEST(JsonWriterTest, AnyTextReadsBackTheSame) {
    std::string text = "\"quoted\" back\\slash é 漢 ";
    for (char at = 0; at < 0x20; ++at)
        text += at;
    const QJsonDocument document = QJsonDocument::fromJson(Written({{text, 0.0}}));
    EXPECT_EQ(document.array()[0].toObject()["food"].toString().toStdString(), text);
}
