#include "records/archive/ZipReader.h"

#include "records/archive/TestZip.h"
#include "runtime/RuntimeError.h"
#include "support/Failure.h"

#include <QFile>
#include <QRandomGenerator>
#include <QTemporaryDir>

#include <gtest/gtest.h>

namespace {
class ZipReaderTest : public ::testing::Test {
protected:
    QString Path() const { return folder_.filePath("a.zip"); }
    void Write(const QByteArray& content) const {
        QFile file(Path());
        ASSERT_TRUE(file.open(QIODevice::WriteOnly));
        file.write(content);
    }
    static int Failure(const QByteArray& content, ZipReader::Limits limits = {}) {
        return FailureOf([&] {
            ZipReader zip(content, limits);
            for (const QString& name : zip.Names())
                zip.Read(name);
        });
    }

private:
    QTemporaryDir folder_;
};
} // namespace

TEST_F(ZipReaderTest, GivesTheMembersOfAFileByName) {
    Write(TestZip({{"servings.csv", "a,b\n"}, {"folder/", ""}, {"folder/\xC3\xA4.json", "{}"}}));
    ZipReader zip(Path());
    EXPECT_EQ(zip.Names(),
              QStringList({"servings.csv", QString::fromUtf8("folder/\xC3\xA4.json")}));
    EXPECT_EQ(zip.Read("servings.csv"), "a,b\n");
    EXPECT_EQ(zip.Read(zip.Names().last()), "{}");
}

TEST_F(ZipReaderTest, AZipInAZipCanBeRead) {
    const QByteArray outer = TestZip({{"1.zip", TestZip({{"recipe.json", "{}"}})}});
    ZipReader zip(outer, {});
    const QByteArray inner = zip.Read("1.zip");
    EXPECT_TRUE(ZipReader::IsZip(inner));
    EXPECT_EQ(ZipReader(inner, {}).Names(), QStringList("recipe.json"));
}

TEST_F(ZipReaderTest, AMemberThatIsNotThereFails) {
    ZipReader zip(TestZip({{"a", ""}}), {});
    EXPECT_EQ(FailureOf([&] { zip.Read("b"); }), ErrorNumber::FileAccess);
}

TEST_F(ZipReaderTest, WhatIsNoZipFails) {
    EXPECT_EQ(FailureOf([&] { ZipReader zip(Path()); }), ErrorNumber::FileAccess);
    EXPECT_EQ(Failure("no zip"), ErrorNumber::FileAccess);
    EXPECT_FALSE(ZipReader::IsZip("no zip"));
}

TEST_F(ZipReaderTest, AMemberThatIsFarLargerThanItsPackedSizeFails) {
    const QByteArray bomb = TestZip({{"bomb.csv", QByteArray(20 << 20, '0')}});
    EXPECT_LT(bomb.size(), 1 << 17);
    EXPECT_EQ(Failure(bomb), ErrorNumber::FileAccess);
    EXPECT_EQ(Failure(TestZip({{"small.csv", QByteArray(1 << 20, '0')}})), 0);
}

TEST_F(ZipReaderTest, MembersThatTogetherExceedTheLimitFail) {
    const QByteArray content = TestZip({{"a", QByteArray(600, 'a')}, {"b", QByteArray(600, 'b')}});
    EXPECT_EQ(Failure(content, {.total = 1'000}), ErrorNumber::FileAccess);
    EXPECT_EQ(Failure(content, {.total = 1'200}), 0);
    EXPECT_EQ(Failure(content, {.members = 1}), ErrorNumber::FileAccess);
}

TEST_F(ZipReaderTest, ADamagedZipFailsOrGivesWhatItsChecksumAccepts) {
    const QByteArray sound = TestZip({{"a.csv", "Day,Food Name\n2026-03-02,Bread\n"}});
    QRandomGenerator random(3);
    for (int i = 0; i < 2'000; ++i) {
        QByteArray damaged = sound;
        damaged[random.bounded(int(damaged.size()))] = char(random.bounded(256));
        damaged.truncate(random.bounded(4) ? damaged.size() : random.bounded(int(sound.size())));
        const int failure = Failure(damaged);
        EXPECT_TRUE(failure == 0 || failure == ErrorNumber::FileAccess);
    }
}
