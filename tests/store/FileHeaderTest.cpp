#include "store/FileHeader.h"

#include <QFile>
#include <QTemporaryDir>

#include <gtest/gtest.h>

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
