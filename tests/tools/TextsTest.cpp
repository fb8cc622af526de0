#include "support/Places.h"

#include <QFile>
#include <QSet>
#include <QStringList>

#include <gtest/gtest.h>

namespace {

QByteArray Bytes(const char* name) {
    QFile file(Places::Source(QStringLiteral("/data/")) + QLatin1String(name));
    EXPECT_TRUE(file.open(QIODevice::ReadOnly)) << name;
    return file.readAll();
}

QStringList Lines(const char* name) {
    QStringList lines = QString::fromUtf8(Bytes(name)).split(u'\n');
    EXPECT_EQ(lines.takeLast(), QString()) << name << " ends without a line end";
    return lines;
}

} // namespace

TEST(Tips, ThereAreAtLeast40) {
    EXPECT_GE(Lines("tips.txt").size(), 40);
}

TEST(Tips, EachIsALineOfItsOwnThatFitsItsBox) {
    for (const QString& tip : Lines("tips.txt")) {
        EXPECT_FALSE(tip.isEmpty());
        EXPECT_EQ(tip, tip.trimmed());
        EXPECT_LE(tip.size(), 220) << tip.toStdString();
        EXPECT_TRUE(tip.endsWith(u'.')) << tip.toStdString();
    }
}

TEST(Tips, NoneStandsTwice) {
    const QStringList tips = Lines("tips.txt");
    EXPECT_EQ(QSet<QString>(tips.begin(), tips.end()).size(), tips.size());
}

TEST(Tips, LineEndsAreLineFeedsAlone) {
    EXPECT_FALSE(Bytes("tips.txt").contains('\r'));
}

TEST(Agreement, ReadsWellWithItsLineBreaksRemoved) {
    const QStringList lines = Lines("agreement.txt");
    for (const QString& line : lines.mid(0, lines.size() - 1))
        EXPECT_TRUE(line.endsWith(u' ')) << line.toStdString();
    EXPECT_FALSE(lines.join(QString()).contains(QStringLiteral("  ")));
}

TEST(Agreement, IsShortEnoughToBeRead) {
    const qsizetype words = Lines("agreement.txt").join(QString()).split(u' ').size();
    EXPECT_GE(words, 300);
    EXPECT_LE(words, 500);
}

/// The nutrition facts have no blanks: an unknown value is shown and counted as 0.
TEST(Texts, SayThatAnUnknownValueShowsAsZeroAndNoneThatItIsABlank) {
    for (const char* name : {"tips.txt", "agreement.txt", "help/facts.html"}) {
        const QString text = Lines(name).join(u' ');
        EXPECT_TRUE(text.contains(QStringLiteral("shows as 0"))) << name;
        EXPECT_FALSE(text.contains(QStringLiteral("blank"), Qt::CaseInsensitive)) << name;
    }
}
