#include "DocumentTest.h"

#include "runtime/RuntimeError.h"

#include <QRandomGenerator>

namespace {
struct Case {
    const char* members; ///< of a document
    const char* message; ///< a part of it
};
constexpr Case Cases[] = {
    {R"("nonsense":1)", "nonsense: this version of Halvane does not know this member."},
    {R"("log":1)", "log, row 1: it is not a list."},
    {R"("log":{"a":1})", "log, row 1: it is not a list."},
    {R"("log":[1])", "log, row 1: it is not an object."},
    {R"("log":[[]])", "log, row 1: it is not an object."},
    {R"("log":[{},{"x":1}])", "log, row 2: there is no member \"x\" here."},
    {R"("log":[{"key":1}])", "there is no member \"key\" here."},
    {R"("log":[{"meal":true}])", "the member \"meal\" is neither a number nor a text."},
    {R"("log":[{"meal":[]}])", "the member \"meal\" is neither a number nor a text."},
    {R"("log":[{"meal":{"binary":"???"}}])", "the member \"meal\" is neither"},
    {R"("log":[{"meal":{"number":"NaN"}}])", "the member \"meal\" is neither"},
    {R"("log":[{"meal":"a","meal":"b"}])", "log, row 1: the member \"meal\" is there twice."},
    {R"("log":[],"log":[])", "log, row 1: the member \"log\" is there twice."},
    {R"("log":[{"amounts":[1,2]}])", "it does not hold one amount for each nutrient"},
    {R"("log":[{"amounts":[[]]}])", "amount 1 is neither a number nor a text."},
    {R"("log":[{"quantity":1e999}])", "log, row 1: a number is beyond all bounds."},
    {R"("profiles":[{"key":"1"}])", "the member \"key\" is not a whole number."},
    {R"("profiles":[{"key":1},{"key":1}])", "The file holds two profiles with the key 1."},
    {R"("recipes":[{"key":1}],"looseIngredients":[{"recipe":1}])",
     "The file holds an ingredient of recipe 1 outside of it."},
    {R"("recipes":[{"ingredients":{}}])", "the member \"ingredients\" is not a list."},
    {R"("recipes":[{"ingredients":[1]}])", "it is not an object."},
    {R"("lastKeys":{"profiles":1.5})", "the member \"profiles\" is not a whole number."},
    {R"("lastKeys":{"profiles":2147483647},"profiles":[{"key":7,"name":"Anna"}])",
     "The file says that the last key of profiles was 2147483647, which leaves none for new ones."},
    {R"("lastKeys":{"recipes":9223372036854775807})", "the last key of recipes was"},
    {R"("settings":{"FAST":1})", "settings: the member \"FAST\" is not a text."},
    {R"("log":[{"food":[[[[[[[[1]]]]]]]]}])", "lists and objects stand too deep"},
};
} // namespace

class DocumentHostileTest : public DocumentTest {};

TEST_F(DocumentHostileTest, EachMistakeIsNamedWithItsPlaceAndChangesNothing) {
    const Place place = Empty();
    for (const Case& wrong : Cases) {
        const QString message = place.Refusal(Document(wrong.members));
        EXPECT_TRUE(message.contains(wrong.message)) << wrong.members << '\n'
                                                     << message.toStdString();
    }
}

TEST_F(DocumentHostileTest, WhatIsNoExportIsSaidToBeNone) {
    const Place place = Empty();
    for (const char* text : {"[]", "1", "\"halvane-records\"", "{}", R"({"log":[]})",
                             R"({"format":"x"})", R"({"format":"halvane-records"})"}) {
        const QString message = place.Refusal(text);
        EXPECT_TRUE(message.endsWith("this is not an export of Halvane's records."))
            << text << '\n'
            << message.toStdString();
    }
}

TEST_F(DocumentHostileTest, AnotherVersionIsRefusedBeforeItsRowsAreRead) {
    const QString message = Empty().Refusal(R"({"format":"halvane-records","version":2,"new":1})");
    EXPECT_TRUE(
        message.endsWith("version: this version of Halvane reads version 1 of the format only."))
        << message.toStdString();
}

TEST_F(DocumentHostileTest, AnUnknownNutrientOrUnitIsRefused) {
    for (const char* nutrient :
         {R"({"name":"Gold","unit":"mg"})", R"({"name":"Zinc","unit":"g"})", "1"}) {
        const QString message =
            Empty().Refusal(QByteArray(R"({"format":"halvane-records","version":1,"nutrients":[)") +
                            nutrient + "]}");
        EXPECT_TRUE(message.contains("is not known")) << message.toStdString();
    }
}

TEST_F(DocumentHostileTest, WhatIsNotJsonIsToldWithItsLineAndColumn) {
    const Place place = Empty();
    const QString message = place.Refusal("{\n\"format\": nonsense}");
    EXPECT_TRUE(message.endsWith("line 2, column 12: this is not JSON in UTF-8."))
        << message.toStdString();
    for (const QByteArray& text : {QByteArray(), QByteArray("\xff\xfe{\0}\0", 6),
                                   QByteArray("\0", 1), QByteArray("{\"format\":\"\xc3\x28\"}")})
        EXPECT_NE(place.Refusal(text), "");
}

TEST_F(DocumentHostileTest, AFileThatIsCutOffAnywhereIsRefused) {
    const Place source = Empty();
    source.Import(Document(R"("profiles":[{"key":1,"name":"Anna"}],
                              "log":[{"profile":1,"food":"Oats","amounts":[5]}])"));
    const QByteArray whole = source.Export().trimmed();
    const Place place = Empty();
    for (qsizetype length = 0; length < whole.size(); length += 37)
        EXPECT_NE(place.Refusal(whole.left(length)), "") << length;
    EXPECT_TRUE(place.Refusal(whole.left(whole.size() / 2)).contains("the file ends too early"));
}

TEST_F(DocumentHostileTest, DeepListsAreRefusedAtOnce) {
    const Place place = Empty();
    for (const QByteArray& text :
         {QByteArray(10'000'000, '['), Document("\"log\":" + QByteArray(1'000'000, '[')),
          Document("\"settings\":" + QByteArray("{\"a\":").repeated(100'000))})
        EXPECT_NE(place.Refusal(text), "");
}

TEST_F(DocumentHostileTest, ATextOfManyMegabytesIsTakenAsItIs) {
    const Place place = Empty();
    place.Import(Document("\"log\":[{\"food\":\"" + QByteArray(20'000'000, 'x') + "\"}]"));
    EXPECT_EQ(place.Value("SELECT length(FoodName) FROM USER_FOODS"), "20000000");
}

TEST_F(DocumentHostileTest, NoBytesCrashTheReader) {
    const QByteArray sound = Document(R"("profiles":[{"key":1,"name":"Anna","targets":[5]}],
        "recipes":[{"key":1,"ingredients":[{"food":"Egg","amounts":[{"number":"Infinity"}]}]}],
        "log":[{"profile":1,"food":"Oats"}],"weights":[{"profile":1,"weight":150}])");
    QRandomGenerator random(20261122);
    const Place place = Empty();
    for (int i = 0; i < 300; ++i) {
        QByteArray text = sound;
        for (int changes = random.bounded(1, 4); changes > 0; --changes)
            text[random.bounded(int(text.size()))] = "{}[]\",:0\\\xff"[random.bounded(10)];
        try {
            place.Import(text, {.dryRun = true});
        } catch (const RuntimeError& failure) {
            EXPECT_FALSE(failure.Description().isEmpty());
        }
    }
}
