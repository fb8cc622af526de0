#include "support/Places.h"

#include <QDir>
#include <QFile>
#include <QRegularExpression>
#include <QSet>

#include <gtest/gtest.h>

namespace {

QDir Help() {
    return QDir(Places::Build("/delivered/help"));
}

QStringList Pages() {
    return Help().entryList({QStringLiteral("*.html")});
}

QString Text(const QString& page) {
    QFile file(Help().filePath(page));
    EXPECT_TRUE(file.open(QIODevice::ReadOnly)) << page.toStdString();
    return QString::fromUtf8(file.readAll());
}

QStringList Found(const QString& text, const char* pattern) {
    QStringList found;
    for (const auto& match : QRegularExpression(QString::fromUtf8(pattern)).globalMatch(text))
        found << match.captured(1);
    return found;
}

} // namespace

TEST(Help, BeginsWithItsContentsAndHasAPageForEveryScreen) {
    const QStringList pages = Pages();
    for (const char* page : {"index", "home", "day", "search", "facts", "profile", "reports",
                             "my-foods", "recipes", "exchange", "preferences", "numbers", "shortcuts"})
        EXPECT_TRUE(pages.contains(QLatin1String(page) + ".html")) << page;
}

TEST(Help, EveryLinkAndPictureIsThere) {
    for (const QString& page : Pages()) {
        const QString text = Text(page);
        const QStringList targets = Found(text, "(?:href|src)=\"([^\"#]+)\"");
        EXPECT_GE(targets.size(), Pages().size()) << page.toStdString();
        for (const QString& target : targets)
            EXPECT_TRUE(Help().exists(target))
                << page.toStdString() << " leads to " << target.toStdString();
    }
}

TEST(Help, EveryPageIsReachedFromEveryOtherAndMarksItself) {
    const QStringList pages = Pages();
    for (const QString& page : pages) {
        const QString text = Text(page);
        for (const QString& other : pages)
            EXPECT_TRUE(text.contains(QString("href=\"" + other + '"'))) << page.toStdString();
        EXPECT_EQ(Found(text, "href=\"([^\"]+)\" aria-current=\"page\""), QStringList{page});
    }
}

TEST(Help, EveryPageHasATitleOfItsOwn) {
    QSet<QString> titles;
    for (const QString& page : Pages()) {
        const QStringList title = Found(Text(page), "<title>([^<]+) – Halvane help</title>");
        const QStringList heading = Found(Text(page), "<h1>([^<]+)</h1>");
        ASSERT_EQ(title.size(), 1) << page.toStdString();
        EXPECT_EQ(title, heading);
        titles << title.first();
    }
    EXPECT_EQ(titles.size(), Pages().size());
}

TEST(Help, EveryPictureIsDescribedAndSized) {
    for (const QString& page : Pages())
        for (const QString& picture : Found(Text(page), "<img ([^>]+)>"))
            for (const char* attribute : {"width=\"", "height=\"", "alt=\""})
                EXPECT_TRUE(picture.contains(QLatin1String(attribute)))
                    << page.toStdString() << ": " << attribute;
}

TEST(Help, RunsNoScriptAndLoadsNothingFromElsewhere) {
    for (const QString& page : Pages()) {
        EXPECT_FALSE(Text(page).contains(QStringLiteral("<script"))) << page.toStdString();
        EXPECT_FALSE(Text(page).contains(QStringLiteral("//"))) << page.toStdString();
    }
}

TEST(Help, LeavesNoPlaceholderUnfilled) {
    for (const QString& page : Pages())
        EXPECT_FALSE(QRegularExpression(QStringLiteral("@\\w+@")).match(Text(page)).hasMatch())
            << page.toStdString();
}
