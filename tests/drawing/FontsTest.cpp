#include "drawing/Fonts.h"

#include "drawing/SmoothedPrint.h"
#include "drawing/Style.h"
#include "runtime/AppState.h"
#include "support/HalvaneTest.h"
#include "support/Places.h"

#include <QApplication>
#include <QDir>
#include <QFile>
#include <QProcess>
#include <QRawFont>
#include <QTemporaryDir>

namespace {

class FontsTest : public HalvaneTest {
protected:
    void Write(const char* name, const QByteArray& bytes) {
        QFile file(Folder() + u'/' + QLatin1String(name));
        ASSERT_TRUE(file.open(QIODevice::WriteOnly));
        file.write(bytes);
    }
};

} // namespace

TEST_F(FontsTest, EveryFontOfTheStyleIsACutOfTheDeliveredTypeface) {
    const Style& style = TheStyle();
    for (const QFont& font : {style.text, style.small, style.smallStrong, style.strong,
                              style.screenTitle, style.cardTitle, style.control, style.title,
                              style.reading, style.chartNotice, style.raised}) {
        const QRawFont shown = QRawFont::fromFont(font);
        EXPECT_EQ(font.family(), "Inter");
        EXPECT_TRUE(shown.familyName().startsWith("Inter")) << shown.familyName().toStdString();
        EXPECT_EQ(shown.weight(), font.weight()) << font.pointSizeF();
    }
}

TEST_F(FontsTest, AMachineWithoutFontsShowsTheSame) {
    Write("fonts.conf", "<fontconfig></fontconfig>");
    QProcess bare;
    QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
    environment.insert("FONTCONFIG_FILE", Folder() + "/fonts.conf");
    bare.setProcessEnvironment(environment);
    bare.start(QApplication::applicationFilePath(),
               {"--gtest_filter=FontsTest.EveryFontOfTheStyleIsACutOfTheDeliveredTypeface"});
    ASSERT_TRUE(bare.waitForFinished());
    EXPECT_EQ(bare.exitCode(), 0) << bare.readAllStandardOutput().toStdString();
}

TEST_F(FontsTest, AFolderThatIsMissingOrHoldsNoFontLoadsNone) {
    EXPECT_EQ(Fonts::Load(Folder() + "/missing"), "");
    Write("Inter-Regular.otf", "no font");
    Write("OFL.txt", "the licence");
    EXPECT_EQ(Fonts::Load(Folder()), "");
}

TEST_F(FontsTest, WithoutTheFolderAFamilyOfTheMachineIsTaken) {
    EXPECT_NE(Fonts::Family(), ""); // the folder of this test holds no fonts
}

TEST_F(FontsTest, ADamagedFileIsPassedOver) {
    const QString delivered = Places::Build("/delivered/fonts/Inter-Regular.otf");
    ASSERT_TRUE(QFile::copy(delivered, Folder() + "/Inter-Regular.otf"));
    Write("Inter-Black.otf", "no font");
    EXPECT_EQ(Fonts::Load(Folder()), "Inter");
}

TEST_F(FontsTest, AFontCanBeLoadedWhileTheConfigurationIsRead) {
    Fonts::ReadAhead();
    EXPECT_EQ(Fonts::Load(Places::Build("/delivered/fonts")), "Inter");
}

TEST_F(FontsTest, PrintedTextSharesTheFaceOfALabel) {
    App().AppInfo.OSVERSION = 2;
    for (const QFont& font : {TheStyle().text, TheStyle().smallStrong, TheStyle().control})
        EXPECT_EQ(SmoothedFont(font), font);
}
