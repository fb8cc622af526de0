#include "core/OpenURL.h"

#include "runtime/AppState.h"

#include <QDesktopServices>

namespace {

Browser& ChosenBrowser() {
    static Browser browser;
    return browser;
}

} // namespace

void SetBrowser(Browser browser) {
    ChosenBrowser() = std::move(browser);
}

void OpenURL(const QString& address) {
    const QUrl url = QUrl::fromUserInput(address);
    if (!url.isValid())
        return;
    if (const Browser& browser = ChosenBrowser())
        browser(url);
    else
        QDesktopServices::openUrl(url);
}

void OpenHelp(const QString& topic) {
    Q_UNUSED(topic)
    OpenURL(App().AppInfo.HELPPATH + "index.html");
}
