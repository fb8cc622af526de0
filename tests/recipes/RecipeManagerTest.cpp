#include "recipes/RecipeManagerTest.h"

#include <QTest>

void RecipeManagerTest::SetUp() {
    RecipesTest::SetUp();
    window.resize(766, 562);
    window.show();
    ASSERT_TRUE(QTest::qWaitForWindowActive(&window));
}

void RecipeManagerTest::TearDown() {
    screen.reset();
    RecipesTest::TearDown();
}

void RecipeManagerTest::Open() {
    screen = std::make_unique<frmRecipeManager>(&window);
    screen->setGeometry(window.rect());
    Forward();
}

void RecipeManagerTest::Forward() {
    screen->BeforeShow();
    screen->show();
    screen->DoWinInit();
}
