#include "runtime/TextLines.h"

#include "runtime/RuntimeError.h"
#include "runtime/WholeFile.h"

#include <QFile>
#include <QTemporaryDir>

#include <gtest/gtest.h>

class TextLinesTest : public ::testing::Test {
protected:
    QString Write(const QByteArray& bytes) const {
        QFile file(folder_.filePath(QStringLiteral("text.txt")));
        EXPECT_TRUE(file.open(QIODevice::WriteOnly));
        file.write(bytes);
        return file.fileName();
    }
    QStringList Lines(const QByteArray& bytes, TextCoding coding = TextCoding::Utf8) const {
        return ReadLines(Write(bytes), coding);
    }

    const QTemporaryDir folder_;
};

TEST_F(TextLinesTest, TheLastLineNeedsNoEnd) {
    EXPECT_EQ(Lines("a\nb\n"), QStringList({"a", "b"}));
    EXPECT_EQ(Lines("a\nb"), QStringList({"a", "b"}));
    EXPECT_EQ(Lines("a\r\nb\r\n"), QStringList({"a", "b"}));
    EXPECT_EQ(Lines("a\n\n"), QStringList({"a", ""}));
    EXPECT_EQ(Lines("\na"), QStringList({"", "a"}));
}

TEST_F(TextLinesTest, AnEmptyFileHasNoLines) {
    EXPECT_TRUE(Lines("").isEmpty());
    EXPECT_TRUE(Lines("\n").isEmpty());
}

TEST_F(TextLinesTest, BytesAreReadInTheirCoding) {
    EXPECT_EQ(Lines("cr\xC3\xA8me"), QStringList(QStringLiteral("cr\u00E8me")));
    EXPECT_EQ(Lines("cr\xE8me", TextCoding::Latin1), QStringList(QStringLiteral("cr\u00E8me")));
}

TEST_F(TextLinesTest, AFileThatIsMissingOrCannotBeReadIsAFailureThatNamesIt) {
    const std::pair<QString, int> failures[] = {
        {folder_.filePath(QStringLiteral("none.txt")), ErrorNumber::FileNotFound},
        {QStringLiteral("/proc/self/mem"), ErrorNumber::FileAccess}};
    for (const auto& [path, number] : failures)
        try {
            WholeFile(path);
            FAIL() << path.toStdString();
        } catch (const RuntimeError& error) {
            EXPECT_EQ(error.Number(), number);
            EXPECT_TRUE(error.Description().startsWith(path));
        }
}
