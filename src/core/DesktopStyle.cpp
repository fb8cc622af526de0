#include "core/DesktopStyle.h"

#include "drawing/Contrast.h"

#include <QDBusArgument>
#include <QDBusConnection>
#include <QDBusMessage>
#include <QPalette>

#include <algorithm>

namespace {

constexpr const char* Appearance = "org.freedesktop.appearance";
constexpr const char* Interface = "org.gnome.desktop.interface";
constexpr const char* Access = "org.gnome.desktop.a11y.interface";

constexpr int LongestWait = 250; ///< milliseconds
constexpr uint PrefersDark = 1;
constexpr uint PrefersLight = 2;
/// No palette for usual eyes has more than that on a ground that is purely black.
constexpr double HighContrast = 19;

QVariant ValueOf(const DesktopStyle::PortalSettings& settings, const char* group,
                 const char* name) {
    const QVariant value = settings.value(QLatin1String(group)).value(QLatin1String(name));
    return value.userType() == qMetaTypeId<QDBusVariant>() ? value.value<QDBusVariant>().variant()
                                                           : value;
}

bool WantsHighContrast(const DesktopStyle::PortalSettings& settings) {
    return ValueOf(settings, Appearance, "contrast").toUInt() == 1 ||
           ValueOf(settings, Access, "high-contrast").toBool() ||
           ValueOf(settings, Interface, "gtk-theme").toString().startsWith(u"HighContrast");
}

QDBusMessage Question() {
    QDBusMessage question = QDBusMessage::createMethodCall(
        QStringLiteral("org.freedesktop.portal.Desktop"),
        QStringLiteral("/org/freedesktop/portal/desktop"),
        QStringLiteral("org.freedesktop.portal.Settings"), QStringLiteral("ReadAll"));
    question << QStringList{QLatin1String(Appearance), QLatin1String(Interface),
                            QLatin1String(Access)};
    question.setAutoStartService(false);
    return question;
}

} // namespace

StyleKind DesktopStyle::SeenIn(const QPalette& platform) {
    const QColor text = platform.color(QPalette::WindowText);
    const QColor ground = platform.color(QPalette::Window);
    if (ground == Qt::black && Contrast(text, ground) >= HighContrast)
        return StyleKind::HighContrast;
    return text.lightness() > ground.lightness() ? StyleKind::Dark : StyleKind::Light;
}

std::optional<StyleKind> DesktopStyle::ToldBy(const PortalSettings& settings) {
    if (WantsHighContrast(settings))
        return StyleKind::HighContrast;
    const uint scheme = ValueOf(settings, Appearance, "color-scheme").toUInt();
    if (scheme == PrefersDark)
        return StyleKind::Dark;
    if (scheme == PrefersLight)
        return StyleKind::Light;
    return {};
}

/// Without an address, asking for the bus could start one.
DesktopStyle::PortalSettings DesktopStyle::FromPortal() {
    if (qEnvironmentVariableIsEmpty("DBUS_SESSION_BUS_ADDRESS"))
        return {};
    const QDBusMessage reply =
        QDBusConnection::sessionBus().call(Question(), QDBus::Block, LongestWait);
    if (reply.type() != QDBusMessage::ReplyMessage || reply.signature() != u"a{sa{sv}}")
        return {};
    return qdbus_cast<PortalSettings>(reply.arguments().constFirst());
}

StyleKind DesktopStyle::Wanted(const QPalette& platform) {
    const std::optional<StyleKind> told = ToldBy(FromPortal());
    return told ? *told : SeenIn(platform);
}
