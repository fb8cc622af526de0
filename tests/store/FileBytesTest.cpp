#include "store/FileBytes.h"

#include <QFile>
#include <QTemporaryDir>

#include <gtest/gtest.h>

/// Two files that begin with the same bytes.
class FileBytesTest : public ::testing::Test {
protected:
    QString Write(const char* name, const QByteArray& bytes) const {
        QFile file(folder_.filePath(QLatin1String(name)));
        EXPECT_TRUE(file.open(QIODevice::WriteOnly));
        file.write(bytes);
        return file.fileName();
    }
    /// Whether files still count as the same if this byte of one is another.
    bool SameWithout(qsizetype at) const {
        QByteArray changed = bytes_;
        changed[at] = 'b';
        return FileBytes::Same(Write("one", bytes_), Write("other", changed));
    }

    const QTemporaryDir folder_;
    const QByteArray bytes_ = QByteArray(5000, 'a');
};

TEST_F(FileBytesTest, FilesAreTheSameWhateverTheMarksOfACopyAre) {
    EXPECT_TRUE(FileBytes::Same(Write("one", bytes_), Write("other", bytes_)));
    for (const qsizetype mark : {24, 27, 40, 43, 92, 99})
        EXPECT_TRUE(SameWithout(mark)) << mark;
}

TEST_F(FileBytesTest, EveryOtherByteTellsThemApart) {
    for (const qsizetype at : {0, 23, 28, 39, 44, 91, 100, 511, 512, 4999})
        EXPECT_FALSE(SameWithout(at)) << at;
}

TEST_F(FileBytesTest, FilesOfTwoLengthsAreNotTheSame) {
    EXPECT_FALSE(FileBytes::Same(Write("one", bytes_), Write("other", bytes_ + 'a')));
    EXPECT_TRUE(FileBytes::Same(Write("one", ""), Write("other", "")));
}

TEST_F(FileBytesTest, FilesTooShortForAMarkAreCompared) {
    EXPECT_TRUE(FileBytes::Same(Write("one", "ab"), Write("other", "ab")));
    EXPECT_FALSE(FileBytes::Same(Write("one", "ab"), Write("other", "ac")));
    const QByteArray almost(43, 'a');
    EXPECT_FALSE(FileBytes::Same(Write("one", almost), Write("other", QByteArray(42, 'a') + 'b')));
}

TEST_F(FileBytesTest, AMarkMayEndWithTheFile) {
    for (const qsizetype size : {28, 44, 100})
        EXPECT_TRUE(FileBytes::Same(Write("one", QByteArray(size, 'a')),
                                    Write("other", QByteArray(size - 1, 'a') + 'b')))
            << size;
}

TEST_F(FileBytesTest, AFileThatIsMissingIsTheSameAsNone) {
    const QString one = Write("one", bytes_);
    EXPECT_FALSE(FileBytes::Same(one, folder_.filePath(QStringLiteral("none"))));
    EXPECT_FALSE(FileBytes::Same(folder_.filePath(QStringLiteral("none")), one));
    EXPECT_FALSE(FileBytes::Same(folder_.filePath(QStringLiteral("none")), Write("one", "")));
    EXPECT_FALSE(FileBytes::Same(Write("one", ""), folder_.filePath(QStringLiteral("none"))));
}

TEST_F(FileBytesTest, TheFirstBytesAreReadOrAllOfThem) {
    const QString file = Write("one", "abcdef");
    EXPECT_EQ(FileBytes::Of(file, 4), "abcd");
    EXPECT_EQ(FileBytes::Of(file), "abcdef");
}
