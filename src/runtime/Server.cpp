#include "runtime/Server.h"

namespace {

/// A setting of the build, and the value that a test has set instead.
struct BuildSetting {
    QString built;
    QString instead;

    const QString& Value() const { return instead.isEmpty() ? built : instead; }
};

BuildSetting& AddressSetting() {
    static BuildSetting setting{QStringLiteral(HALVANE_SERVER), {}};
    return setting;
}

BuildSetting& SupportSetting() {
    static BuildSetting setting{QStringLiteral(HALVANE_SUPPORT), {}};
    return setting;
}

} // namespace

QString Server::Address() {
    QString address = AddressSetting().Value();
    while (address.endsWith(u'/'))
        address.chop(1);
    return address;
}

QString Server::Support() {
    return SupportSetting().Value();
}

void Server::SetAddress(const QString& address) {
    AddressSetting().instead = address;
}

void Server::SetSupport(const QString& support) {
    SupportSetting().instead = support;
}
