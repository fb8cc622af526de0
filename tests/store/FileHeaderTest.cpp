#include "store/FileHeader.h"

#include <QFile>
#include <QTemporaryDir>

#include <gtest/gtest.h>

namespace {
QByteArray BigEndian(quint32 value, int bytes) {
    QByteArray text(bytes, '\0');
    for (int i = bytes - 1; i >= 0; --i, value >>= 8)
        text[i] = char(value & 0xFF);
    return text;
}

FileHeader Header(const QList<std::pair<int, QByteArray>>& places) {
    const QTemporaryDir folder;
    QFile file(folder.filePath(QStringLiteral("made.mdb")));
    QByteArray bytes = QByteArray("SQLite format 3").leftJustified(100, '\0');
    for (const auto& [at, value] : places)
        bytes.replace(at, value.size(), value);
    EXPECT_TRUE(file.open(QIODevice::WriteOnly));
    file.write(bytes);
    file.close();
    return FileHeader::Of(file.fileName());
}
} // namespace

TEST(FileHeaderTest, EachNumberIsReadFromItsPlace) {
    const FileHeader header = Header({{16, BigEndian(4096, 2)},
                                      {24, BigEndian(0x01020304, 4)},
                                      {28, BigEndian(7, 4)},
                                      {60, BigEndian(3, 4)},
                                      {68, BigEndian(0x48414C55, 4)}});
    EXPECT_TRUE(header.IsWhole());
    EXPECT_TRUE(header.IsOfDatabase());
    EXPECT_EQ(header.PageSize(), 4096);
    EXPECT_EQ(header.ChangeCount(), 0x01020304U);
    EXPECT_EQ(header.Length(), 7 * 4096);
    EXPECT_EQ(header.SchemaVersion(), 3);
    EXPECT_EQ(header.ApplicationId(), 0x48414C55);
    EXPECT_FALSE(header.HasWriteAheadLog());
}

TEST(FileHeaderTest, TheLargestPageIsWrittenAsOne) {
    EXPECT_EQ(Header({{16, BigEndian(1, 2)}}).PageSize(), 65536);
    EXPECT_EQ(Header({{16, BigEndian(32768, 2)}}).PageSize(), 32768);
}

TEST(FileHeaderTest, AWriteAheadLogIsToldByTheReadVersion) {
    EXPECT_TRUE(Header({{19, "\2"}}).HasWriteAheadLog());
    EXPECT_FALSE(Header({{19, "\1"}}).HasWriteAheadLog());
}

TEST(FileHeaderTest, AHeaderThatIsNotWholeHasNoNumbers) {
    const QTemporaryDir folder;
    const QString path = folder.filePath(QStringLiteral("short.mdb"));
    for (const int length : {0, 16, 99}) {
        QFile file(path);
        ASSERT_TRUE(file.open(QIODevice::WriteOnly));
        file.write(QByteArray(length, 'x'));
        file.close();
        const FileHeader header = FileHeader::Of(path);
        EXPECT_FALSE(header.IsWhole());
        EXPECT_EQ(header.SchemaVersion(), 0) << length;
        EXPECT_EQ(header.ApplicationId(), 0) << length;
        EXPECT_EQ(header.ChangeCount(), 0U) << length;
        EXPECT_EQ(header.Length(), 0) << length;
        EXPECT_FALSE(header.HasWriteAheadLog()) << length;
    }
}
