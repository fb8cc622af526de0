#include "toolkit/SpokenMenu.h"

#include "support/HalvaneTest.h"

#include <QAccessible>
#include <QApplication>
#include <QMenu>

namespace {

class SpokenMenuTest : public HalvaneTest {
protected:
    void SetUp() override {
        HalvaneTest::SetUp();
        SpokenMenu::Install();
        print = menu.addAction(QStringLiteral("&Print && fold..."), &menu, [this] { ++printed; });
        print->setShortcut(QKeySequence(QStringLiteral("Ctrl+P")));
        menu.addSeparator();
        more = menu.addMenu(QStringLiteral("&More"));
        more->addAction(QStringLiteral("Deep"), &menu, [this] { ++printed; });
        menu.popup(QPoint(50, 50));
    }
    void TearDown() override {
        menu.hide();
        HalvaneTest::TearDown();
    }
    static QAccessibleInterface* ItemOf(QMenu& menu, int index) {
        return QAccessible::queryAccessibleInterface(&menu)->child(index);
    }
    static void Do(QAccessibleInterface* item) {
        QAccessibleActionInterface* actions = item->actionInterface();
        actions->doAction(actions->actionNames().value(0));
    }

    QMenu menu;
    QAction* print = nullptr;
    QMenu* more = nullptr;
    int printed = 0;
};

} // namespace

TEST_F(SpokenMenuTest, AnItemTellsItsNameItsKeyAndItsPlace) {
    QAccessibleInterface* item = ItemOf(menu, 0);
    EXPECT_EQ(item->role(), QAccessible::MenuItem);
    EXPECT_EQ(item->text(QAccessible::Name), "Print & fold...");
    EXPECT_EQ(item->text(QAccessible::Accelerator), "Ctrl+P");
    EXPECT_EQ(item->parent()->object(), &menu);
    EXPECT_EQ(item->parent()->indexOfChild(item), 0);
    EXPECT_TRUE(menu.geometry().contains(item->rect()));
    EXPECT_EQ(
        item->actionInterface()->keyBindingsForAction(QAccessibleActionInterface::pressAction()),
        QStringList(QStringLiteral("Ctrl+P")));
}

TEST_F(SpokenMenuTest, APressActsAfterTheToolHasItsAnswerAndTheMenuHasClosed) {
    bool wasOpen = true;
    QObject::connect(print, &QAction::triggered, &menu, [&] { wasOpen = menu.isVisible(); });
    Do(ItemOf(menu, 0));
    EXPECT_EQ(printed, 0);
    QCoreApplication::sendPostedEvents(print);
    EXPECT_EQ(printed, 1);
    EXPECT_FALSE(wasOpen);
    EXPECT_EQ(QApplication::activePopupWidget(), nullptr);
}

TEST_F(SpokenMenuTest, ADisabledItemOrOneOfAClosedMenuDoesNothing) {
    Do(ItemOf(menu, 0));
    print->setEnabled(false);
    QCoreApplication::sendPostedEvents(print);
    EXPECT_TRUE(ItemOf(menu, 0)->state().disabled);
    print->setEnabled(true);
    menu.hide();
    Do(ItemOf(menu, 0));
    QCoreApplication::sendPostedEvents(print);
    EXPECT_TRUE(ItemOf(menu, 0)->state().invisible);
    EXPECT_EQ(printed, 0);
}

TEST_F(SpokenMenuTest, AnItemThatGoesBeforeItsPressActsIsDropped) {
    Do(ItemOf(menu, 0));
    delete print;
    QCoreApplication::processEvents();
    EXPECT_EQ(printed, 0);
}

TEST_F(SpokenMenuTest, ASeparatorHasNoAction) {
    EXPECT_EQ(ItemOf(menu, 1)->role(), QAccessible::Separator);
    EXPECT_TRUE(ItemOf(menu, 1)->actionInterface()->actionNames().isEmpty());
}

TEST_F(SpokenMenuTest, AnItemWithAMenuShowsIt) {
    QAccessibleInterface* item = ItemOf(menu, 2);
    EXPECT_TRUE(item->state().hasPopup);
    ASSERT_EQ(item->childCount(), 1);
    EXPECT_EQ(item->child(0)->object(), more);
    EXPECT_EQ(item->indexOfChild(item->child(0)), 0);
    Do(item);
    QCoreApplication::sendPostedEvents(more->menuAction());
    EXPECT_EQ(menu.activeAction(), more->menuAction());
    more->popup(QPoint(90, 90));
    Do(ItemOf(*more, 0));
    QCoreApplication::sendPostedEvents(more->actions().at(0));
    EXPECT_EQ(printed, 1);
    EXPECT_FALSE(more->isVisible());
    EXPECT_FALSE(menu.isVisible());
}
