#include "core/StyleChoice.h"

#include "core/CoreTest.h"
#include "core/DesktopStyle.h"
#include "runtime/Settings.h"

#include <QDBusConnection>
#include <QDBusVariant>
#include <QPalette>

namespace {

using StyleChoiceTest = CoreTest;
using DesktopStyle::PortalSettings;

QPalette PaletteOf(const QColor& text, const QColor& ground) {
    QPalette palette;
    palette.setColor(QPalette::WindowText, text);
    palette.setColor(QPalette::Window, ground);
    return palette;
}

const QPalette LightPalette = PaletteOf(Qt::black, QColor(239, 239, 239));
const QPalette DarkPalette = PaletteOf(Qt::white, QColor(49, 49, 49));

PortalSettings Told(const char* group, const char* name, const QVariant& value) {
    return {{QLatin1String(group), {{QLatin1String(name), value}}}};
}

PortalSettings Scheme(uint scheme) {
    return Told("org.freedesktop.appearance", "color-scheme", scheme);
}

} // namespace

TEST_F(StyleChoiceTest, AChosenStyleCountsWhateverTheDesktopHas) {
    static constexpr std::pair<const char*, StyleKind> rows[] = {
        {"LIGHT", StyleKind::Light},
        {"DARK", StyleKind::Dark},
        {"CONTRAST", StyleKind::HighContrast}};
    for (const auto& [stored, kind] : rows) {
        SetRegValue(QStringLiteral("UISTYLE"), QLatin1String(stored));
        EXPECT_EQ(StyleChoice::Wanted(DarkPalette), kind) << stored;
        EXPECT_EQ(StyleChoice::Wanted(LightPalette), kind) << stored;
    }
}

TEST_F(StyleChoiceTest, WithoutAChoiceTheDesktopDecides) {
    qunsetenv("DBUS_SESSION_BUS_ADDRESS");
    EXPECT_EQ(StyleChoice::Wanted(DarkPalette), StyleKind::Dark);
    EXPECT_EQ(StyleChoice::Wanted(LightPalette), StyleKind::Light);
}

TEST_F(StyleChoiceTest, APaletteIsDarkIfItsTextIsLighterThanItsGround) {
    EXPECT_EQ(DesktopStyle::SeenIn(LightPalette), StyleKind::Light);
    EXPECT_EQ(DesktopStyle::SeenIn(DarkPalette), StyleKind::Dark);
    EXPECT_EQ(DesktopStyle::SeenIn(PaletteOf(Qt::lightGray, Qt::black)), StyleKind::Dark);
    EXPECT_EQ(DesktopStyle::SeenIn(PaletteOf(Qt::white, Qt::black)), StyleKind::HighContrast);
    EXPECT_EQ(DesktopStyle::SeenIn(PaletteOf(Qt::yellow, Qt::black)), StyleKind::HighContrast);
}

TEST_F(StyleChoiceTest, TheDesktopTellsItsSchemeAndItsContrast) {
    EXPECT_EQ(DesktopStyle::ToldBy(Scheme(1)), StyleKind::Dark);
    EXPECT_EQ(DesktopStyle::ToldBy(Scheme(2)), StyleKind::Light);
    EXPECT_EQ(DesktopStyle::ToldBy(Told("org.freedesktop.appearance", "contrast", 1U)),
              StyleKind::HighContrast);
    EXPECT_EQ(DesktopStyle::ToldBy(Told("org.gnome.desktop.a11y.interface", "high-contrast", true)),
              StyleKind::HighContrast);
    EXPECT_EQ(DesktopStyle::ToldBy(
                  Told("org.gnome.desktop.interface", "gtk-theme", QStringLiteral("HighContrast"))),
              StyleKind::HighContrast);
}

TEST_F(StyleChoiceTest, AValueMayBeWrappedOnceMore) {
    const auto wrapped = QVariant::fromValue(QDBusVariant(QVariant(1U)));
    EXPECT_EQ(DesktopStyle::ToldBy(Told("org.freedesktop.appearance", "color-scheme", wrapped)),
              StyleKind::Dark);
}

TEST_F(StyleChoiceTest, ADesktopThatTellsNothingOrNonsenseLeavesItToThePalette) {
    EXPECT_EQ(DesktopStyle::ToldBy({}), std::nullopt);
    EXPECT_EQ(DesktopStyle::ToldBy(Scheme(0)), std::nullopt);
    EXPECT_EQ(DesktopStyle::ToldBy(Scheme(17)), std::nullopt);
    EXPECT_EQ(DesktopStyle::ToldBy(Told("org.freedesktop.appearance", "color-scheme", "dark")),
              std::nullopt);
}
