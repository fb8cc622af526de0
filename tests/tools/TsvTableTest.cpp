#include "foods/delivery/TsvTable.h"
#include "runtime/RuntimeError.h"

#include <QFile>
#include <QTemporaryDir>

#include <gtest/gtest.h>

namespace {

class TsvTableTest : public ::testing::Test {
protected:
    QString Path() const { return folder_.filePath(QStringLiteral("table.tsv")); }
    void Put(const QByteArray& bytes) {
        QFile file(Path());
        ASSERT_TRUE(file.open(QIODevice::WriteOnly));
        ASSERT_EQ(file.write(bytes), bytes.size());
    }
    QTemporaryDir folder_;
};

} // namespace

TEST_F(TsvTableTest, WhatIsWrittenReadsBackTheSame) {
    TsvTable table({QStringLiteral("key"), QStringLiteral("text")});
    table.Append({QStringLiteral("INFANT_0_6 "), QString()});
    table.Append({QStringLiteral("\"quoted\""), QStringLiteral("3/8\" thick, Cr\u00E8me")});
    table.Write(Path());
    const TsvTable read = TsvTable::Read(Path());
    EXPECT_EQ(read.Columns(), table.Columns());
    EXPECT_EQ(read.Rows(), table.Rows());
}

TEST_F(TsvTableTest, TabWithinAFieldIsRefusedAndTheFileLeftAlone) {
    Put("a\nold\n");
    TsvTable table({QStringLiteral("a")});
    table.Append({QStringLiteral("x\ty")});
    EXPECT_THROW(table.Write(Path()), RuntimeError);
    EXPECT_EQ(TsvTable::Read(Path()).Rows().first().first(), QStringLiteral("old"));
}

TEST_F(TsvTableTest, RowWithAFieldTooFewIsRefusedWithItsLine) {
    Put("a\tb\n1\t2\n3\n");
    try {
        TsvTable::Read(Path());
        ADD_FAILURE() << "the row was taken";
    } catch (const RuntimeError& error) {
        EXPECT_TRUE(error.Description().endsWith(QStringLiteral("table.tsv:3: 1 fields")));
    }
}

TEST_F(TsvTableTest, EmptyAndMissingFilesAreRefused) {
    EXPECT_THROW(TsvTable::Read(Path()), RuntimeError);
    Put("");
    EXPECT_THROW(TsvTable::Read(Path()), RuntimeError);
}

TEST_F(TsvTableTest, UnknownColumnIsRefused) {
    EXPECT_THROW(TsvTable({QStringLiteral("a")}).Position(QStringLiteral("b")), RuntimeError);
}
