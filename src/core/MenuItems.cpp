#include "core/MenuItems.h"

#include "core/Navigation.h"
#include "core/OpenURL.h"
#include "core/frmHOME.h"
#include "core/frmPrefs.h"
#include "core/frmSplash.h"
#include "model/User.h"
#include "model/ui/frmProfile.h"
#include "recipes/ui/frmImport.h"
#include "recipes/ui/frmRecipeManager.h"
#include "runtime/Server.h"

#include <QTimer>

namespace {

void Exit(frmHOME& frame) {
    Q_EMIT frame.QuitRequested();
}

/// If the recipe screen is in front, it shows the imported recipe.
void ImportRecipes(frmHOME& frame) {
    frmImport(&frame).ShowModal();
    if (auto* recipes = qobject_cast<frmRecipeManager*>(TheNavigation().Front()))
        recipes->DoWinInit();
}

void Preferences(frmHOME& frame) {
    frmPrefs(&frame).ShowModal();
}

void EditMyProfile(frmHOME&) {
    frmProfile::EditUser(User::Current().UID);
}

void Contents(frmHOME&) {
    OpenHelp(QStringLiteral("contents"));
}

void WebSite(frmHOME&) {
    OpenURL(Server::Address() + "/index.asp?ref=Halvane");
}

void About(frmHOME& frame) {
    frmSplash about(&frame);
    about.tmrClose()->stop();
    about.exec();
}

constexpr std::array<MenuItems::Title, MenuItems::MenuCount> TitleRows = {{
    {"lblFile", "picFile", "File"},
    {"lblEdit", "picEdit", "Edit"},
    {"lblHelp", "picHelp", "Help"},
}};

using MenuItems::Edit;
using MenuItems::File;
using MenuItems::Help;

constexpr std::array<MenuItems::Item, 13> ItemRows = {{
    {File, "  New", true, nullptr},
    {File, "  Open", true, nullptr},
    {File, " Import Recipes", true, ImportRecipes},
    {File, "  Log off", false, nullptr},
    {File, "  Exit", true, Exit},
    {Edit, "  Create & Edit Users", false, nullptr},
    {Edit, "  Preferences", true, Preferences},
    {Edit, "  Edit My Profile...", true, EditMyProfile},
    {Edit, "  Copy", true, nullptr},
    {Edit, "  Edit", true, nullptr},
    {Help, "  Contents", true, Contents},
    {Help, "  Brindlewick Web Site", true, WebSite},
    {Help, "  About Halvane", true, About},
}};

} // namespace

const std::array<MenuItems::Title, MenuItems::MenuCount>& MenuItems::Titles() {
    return TitleRows;
}

const std::array<MenuItems::Item, 13>& MenuItems::All() {
    return ItemRows;
}
