#include "records/text/CsvReader.h"
#include "records/text/CsvHeader.h"
#include "records/text/CsvText.h"
#include "runtime/RuntimeError.h"
#include "support/Failure.h"

#include <QBuffer>
#include <QRandomGenerator>

#include <gtest/gtest.h>

namespace {
class CsvReaderTest : public ::testing::Test {
protected:
    using Records = QList<QStringList>;

    static Records All(const QByteArray& bytes, char separator = ',') {
        QBuffer device;
        device.setData(bytes);
        device.open(QIODevice::ReadOnly);
        CsvReader reader(device, separator);
        Records records;
        while (reader.Next()) {
            records << QStringList();
            for (int i = 0; i < reader.Count(); ++i)
                records.last() << reader.Text(i);
        }
        return records;
    }
    static QString MessageFor(const QByteArray& bytes) {
        try {
            All(bytes);
        } catch (const RuntimeError& error) {
            return error.Description();
        }
        return {};
    }
};

/// Gives one byte at a time, as a slow pipe may.
class Dripping : public QBuffer {
protected:
    qint64 readData(char* data, qint64 most) override {
        return QBuffer::readData(data, std::min<qint64>(most, 1));
    }
};

/// A device that is one endless line.
class Endless : public QIODevice {
public:
    qint64 given = 0;

protected:
    qint64 readData(char* data, qint64 most) override {
        std::fill_n(data, most, 'x');
        given += most;
        return most;
    }
    qint64 writeData(const char*, qint64) override { return -1; }
};
} // namespace

TEST_F(CsvReaderTest, FieldsMayBeBareOrQuoted) {
    EXPECT_EQ(All("a,\"b, c\",\"d \"\"e\"\"\"\n,\"\",\n"),
              Records({{"a", "b, c", "d \"e\""}, {"", "", ""}}));
}

TEST_F(CsvReaderTest, AQuotedFieldMayHoldLineEnds) {
    EXPECT_EQ(All("\"a\r\nb\nc\",d\n"), Records({{"a\r\nb\nc", "d"}}));
}

TEST_F(CsvReaderTest, EveryKindOfLineEndIsTaken) {
    const Records expected{{"a", "b"}, {"c", "d"}};
    for (const char* text : {"a,b\nc,d\n", "a,b\r\nc,d\r\n", "a,b\rc,d\r", "a,b\nc,d"})
        EXPECT_EQ(All(text), expected) << text;
}

TEST_F(CsvReaderTest, AByteOrderMarkAndEmptyLinesArePassedOver) {
    EXPECT_EQ(All("\xEF\xBB\xBF\n\"a\",b\r\n\r\n\nc\n\n"), Records({{"a", "b"}, {"c"}}));
    EXPECT_EQ(All(""), Records());
    EXPECT_EQ(All("\xEF\xBB\xBF"), Records());
}

TEST_F(CsvReaderTest, AByteOrderMarkWithinTheFileBelongsToItsField) {
    EXPECT_EQ(All("\xEF\xBB\xBF\xEF\xBB\xBFx,\"\xEF\xBB\xBFy\"\n"),
              Records({{u"\uFEFFx"_qs, u"\uFEFFy"_qs}}));
}

TEST_F(CsvReaderTest, AQuoteWithinABareFieldIsACharacter) {
    EXPECT_EQ(All("3\" dia,b\n"), Records({{"3\" dia", "b"}}));
}

TEST_F(CsvReaderTest, AnotherSeparatorCanBeChosen) {
    EXPECT_EQ(All("a;1,5;\"b;c\"\n", ';'), Records({{"a", "1,5", "b;c"}}));
}

TEST_F(CsvReaderTest, ARecordKnowsItsLineWhateverStandsBefore) {
    QBuffer device;
    device.setData("a\r\n\r\n\"b\nc\"\nd\n");
    device.open(QIODevice::ReadOnly);
    CsvReader reader(device);
    QList<int> lines;
    while (reader.Next())
        lines << reader.Line();
    EXPECT_EQ(lines, QList<int>({1, 3, 5}));
}

TEST_F(CsvReaderTest, AFieldBehindTheLastIsEmpty) {
    QBuffer device;
    device.setData("a\n");
    device.open(QIODevice::ReadOnly);
    CsvReader reader(device);
    ASSERT_TRUE(reader.Next());
    EXPECT_EQ(reader.Text(1), "");
    EXPECT_EQ(reader.Text(-1), "");
}

TEST_F(CsvReaderTest, ARecordCanBeWrittenAgain) {
    const QByteArray text = "\xEF\xBB\xBFz,\"b, \"\"c\"\"\",,\"d\ne\"";
    QBuffer device;
    device.setData("\xEF\xBB\xBF" + text); // the file's own mark
    device.open(QIODevice::ReadOnly);
    CsvReader reader(device);
    ASSERT_TRUE(reader.Next());
    EXPECT_EQ(reader.Source().toUtf8(), text);
}

TEST_F(CsvReaderTest, WhatIsBrokenIsRefusedWithItsLine) {
    EXPECT_EQ(MessageFor("a\nb,\"c\nd\n"),
              "Line 2 cannot be read: a quote is opened here and never closed.");
    EXPECT_EQ(MessageFor("a\n\"b\"c\n"),
              "Line 2 cannot be read: there is text after a closing quote.");
    EXPECT_EQ(MessageFor("a\nM\xFCsli\n"),
              "Line 2 cannot be read: it is not in UTF-8. Save the file as UTF-8 first.");
    EXPECT_EQ(MessageFor("\xFF\xFE"
                         "a\0"),
              "Line 1 cannot be read: it is not in UTF-8. Save the file as UTF-8 first.");
}

TEST_F(CsvReaderTest, AnEndlessLineIsRefusedBeforeItFillsTheMemory) {
    for (const char* start : {"", "\""}) {
        Endless device;
        device.open(QIODevice::ReadOnly);
        device.ungetChar('x');
        if (*start)
            device.ungetChar(*start);
        CsvReader reader(device);
        EXPECT_EQ(FailureOf([&] { reader.Next(); }), ErrorNumber::TypeMismatch);
        EXPECT_LT(device.given, 6 << 20);
    }
}

TEST_F(CsvReaderTest, TooManyFieldsAreRefused) {
    EXPECT_EQ(MessageFor(QByteArray(10'000, ',')),
              "Line 1 cannot be read: it has more than 10000 fields.");
    EXPECT_EQ(MessageFor(QByteArray(9'999, ',')), "");
}

TEST_F(CsvReaderTest, TheSizeOfThePiecesThatArriveDoesNotMatter) {
    const QByteArray text = "\xEF\xBB\xBF"
                            "\"a\",\"b\r\n\"\"c\",d\r\n\n\"\",\xC2\xB5g,x\r\n";
    Dripping device;
    device.setData(text);
    device.open(QIODevice::ReadOnly | QIODevice::Unbuffered);
    CsvReader reader(device);
    Records records;
    while (reader.Next())
        records << QStringList{reader.Text(0), reader.Text(1), reader.Text(2)};
    EXPECT_EQ(records, Records({{"a", "b\r\n\"c", "d"}, {"", "\u00B5g", "x"}}));
}

TEST_F(CsvReaderTest, WhateverIsWrittenIsReadBack) {
    QRandomGenerator random(1);
    const QString characters = QStringLiteral("a,\"\n\r;=\u00B5 ");
    Records expected;
    std::string text;
    for (int record = 0; record < 20'000; ++record) {
        expected << QStringList("x");
        for (int field = random.bounded(4); field > 0; --field) {
            QString value;
            for (int i = random.bounded(12); i > 0; --i)
                value += characters[random.bounded(characters.size())];
            expected.last() << value;
        }
        for (const QString& value : expected.last())
            text += CsvText::Cell(value.toStdString()) + ',';
        text.back() = '\n';
    }
    EXPECT_TRUE(All(QByteArray::fromStdString(text)) == expected);
}

TEST_F(CsvReaderTest, RandomBytesAreReadOrRefused) {
    QRandomGenerator random(2);
    constexpr char bytes[] = "a,\"\n\r\xC2\xB5\xFF";
    for (int i = 0; i < 20'000; ++i) {
        QByteArray text;
        for (int length = random.bounded(30); length > 0; --length)
            text += bytes[random.bounded(int(sizeof bytes))];
        const int failure = FailureOf([&] { All(text); });
        EXPECT_TRUE(failure == 0 || failure == ErrorNumber::TypeMismatch);
    }
}

TEST(CsvHeader, FindsColumnsByNameWhateverBlanksCaseAndMicroSign) {
    QBuffer device;
    device.setData("\xEF\xBB\xBF Day ,Folate (\xC2\xB5g),Fat (g),fat (g)\n");
    device.open(QIODevice::ReadOnly);
    CsvReader reader(device);
    ASSERT_TRUE(reader.Next());
    const CsvHeader header(reader);
    EXPECT_EQ(header.Count(), 4);
    EXPECT_EQ(header.Find(u"day"), 0);
    EXPECT_EQ(header.Find(u"FOLATE (\u03BCg)"), 1);
    EXPECT_EQ(header.Find(u"Fat (g)"), 2);
    EXPECT_FALSE(header.Has(u"Fat"));
}
