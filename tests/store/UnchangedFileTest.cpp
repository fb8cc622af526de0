#include "store/UnchangedFile.h"

#include "StoreTest.h"

class UnchangedFileTest : public StoreTest {};

TEST_F(UnchangedFileTest, AFailureNamesTheFileThatTheCopyIsOf) {
    const QString none = File(QStringLiteral("none.mdb"));
    EXPECT_TRUE(ErrorTextOf([&] { UnchangedFile file(none); }).contains("none.mdb"));
    const QString copied =
        ErrorTextOf([&] { UnchangedFile file(none, QStringLiteral("original.mdb")); });
    EXPECT_TRUE(copied.contains("original.mdb")) << copied.toStdString();
    EXPECT_FALSE(copied.contains("none.mdb")) << copied.toStdString();
}
