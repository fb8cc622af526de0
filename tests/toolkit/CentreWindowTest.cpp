#include "toolkit/CentreWindow.h"

#include "support/HalvaneTest.h"

#include <QDialog>
#include <QGuiApplication>
#include <QScreen>

namespace {

class CentreWindowTest : public HalvaneTest {
protected:
    /// Where a dialog of that size comes over an owner at that place.
    static QRect Centred(QSize dialog, const QRect& over) {
        QWidget owner;
        owner.setGeometry(over);
        QDialog window(&owner);
        window.setFixedSize(dialog);
        CentreWindow(&window);
        return window.geometry();
    }
    const QRect screen = QGuiApplication::primaryScreen()->availableGeometry();
};

} // namespace

TEST_F(CentreWindowTest, ADialogComesOverTheMiddleOfItsOwner) {
    EXPECT_EQ(Centred({100, 60}, {200, 100, 300, 200}), QRect(300, 170, 100, 60));
}

TEST_F(CentreWindowTest, ADialogOfAnOwnerAtTheEdgeIsSeenAsAWhole) {
    const QSize size(200, 120);
    for (const QPoint corner : {QPoint(-250, 50), QPoint(50, -180), screen.bottomRight()}) {
        const QRect place = Centred(size, {corner, QSize(300, 200)});
        EXPECT_EQ(place.size(), size);
        EXPECT_TRUE(screen.contains(place)) << corner.x() << ' ' << corner.y();
    }
}

TEST_F(CentreWindowTest, ADialogLargerThanTheScreenShowsItsTitle) {
    EXPECT_EQ(Centred(screen.size() + QSize(50, 50), {0, 0, 300, 200}).topLeft(), screen.topLeft());
}

TEST_F(CentreWindowTest, WithoutAnOwnerAWindowComesToTheMiddleOfTheScreen) {
    QWidget window;
    window.resize(101, 61);
    CentreWindow(&window);
    EXPECT_EQ(window.geometry().center(), screen.center());
}
