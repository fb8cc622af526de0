#include "tour/MenuWalk.h"

#include "tour/Guide.h"

#include "core/MenuItems.h"
#include "core/OpenURL.h"
#include "runtime/AppState.h"
#include "runtime/Server.h"

#include <QTest>

namespace {

enum Item { Exit = 4, Preferences = 6, Contents = 10, WebSite = 11, AboutHalvane = 12 };

QString NameOf(int index) {
    return QStringLiteral("lblMenuItem%1").arg(index);
}

} // namespace

MenuWalk::MenuWalk(Guide& guide)
    : guide_(guide) {}

QWidget* MenuWalk::Frame() {
    return guide_.Window(QStringLiteral("frmHOME"));
}

void MenuWalk::Choose(int index) {
    const MenuItems::Title& title = MenuItems::Titles()[MenuItems::All()[index].menu];
    guide_.Press(Frame(), QLatin1String(title.name));
    guide_.Press(Frame(), NameOf(index));
}

void MenuWalk::Look() {
    guide_.Press(Frame(), QStringLiteral("lblFile"));
    guide_.HoverOver(Frame(), NameOf(Exit));
    guide_.Picture(Frame(), QStringLiteral("menu-file"));
    guide_.HoverOver(Frame(), QStringLiteral("lblEdit"));
    guide_.HoverOver(Frame(), NameOf(Preferences));
    guide_.Picture(Frame(), QStringLiteral("menu-edit"));
    guide_.HoverOver(Frame(), QStringLiteral("lblHelp"));
    guide_.Picture(Frame(), QStringLiteral("menu-help"));
    guide_.Press(Frame(), QStringLiteral("lblHelp"));
    guide_.TakeInput(Frame());
    QTest::keyClick(Frame(), Qt::Key_F10);
    guide_.Picture(Frame(), QStringLiteral("menu-keyboard"));
    QTest::keyClick(Frame(), Qt::Key_F10);
    About();
}

void MenuWalk::About() {
    QList<QUrl> opened;
    SetBrowser([&opened](const QUrl& address) {
        opened << address;
        return true;
    });
    Choose(Contents);
    Choose(WebSite);
    SetBrowser({});
    guide_.Check(opened == QList<QUrl>{QUrl::fromLocalFile(App().AppInfo.HELPPATH + "index.html"),
                                       QUrl(Server::Address() + "/index.asp?ref=Halvane")},
                 QStringLiteral("help and web site open in the browser"));
    guide_.Foresee(QStringLiteral("frmSplash"), [this](QWidget* about) {
        guide_.Picture(about, QStringLiteral("about"));
        QTest::mouseClick(about, Qt::LeftButton);
    });
    Choose(AboutHalvane);
}
