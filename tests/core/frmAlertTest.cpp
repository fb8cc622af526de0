#include "core/CoreTest.h"

#include "core/frmAlert.h"

#include <QApplication>
#include <QLabel>
#include <QScrollArea>
#include <QScrollBar>
#include <QTest>
#include <QTextLayout>
#include <QTimer>

class frmAlertTest : public CoreTest {
protected:
    /// Asks, runs `within` on the open dialog, and returns the answer.
    bool Ask(bool showCancel, const std::function<void(QWidget*)>& within,
             const QString& message = QStringLiteral("Are you sure?"), QObject* owner = nullptr) {
        bool result = false;
        WithModal(within, [&] { result = frmAlert::Ask(message, owner, showCancel); });
        return result;
    }
    static void Press(QWidget* dialog, const char* name) {
        Click(Find(dialog, QLatin1String(name)));
    }
};

TEST_F(frmAlertTest, OkGivesTrueAndCancelFalse) {
    EXPECT_TRUE(Ask(true, [](QWidget* dialog) { Press(dialog, "cmdOK"); }));
    EXPECT_FALSE(Ask(true, [](QWidget* dialog) { Press(dialog, "cmdCancel"); }));
}

TEST_F(frmAlertTest, AnyOtherWayOutGivesFalse) {
    EXPECT_FALSE(Ask(true, [](QWidget* dialog) { dialog->close(); }));
    EXPECT_FALSE(Ask(false, [](QWidget* dialog) { dialog->close(); }));
    EXPECT_FALSE(Ask(true, [](QWidget* dialog) { QTest::keyClick(dialog, Qt::Key_Escape); }));
}

TEST_F(frmAlertTest, CancelShowsForQuestionsOnlyAndIsHiddenAgainByTheNextMessage) {
    Ask(true, [](QWidget* dialog) {
        EXPECT_TRUE(Find(dialog, QStringLiteral("cmdCancel"))->isVisible());
    });
    Ask(false, [](QWidget* dialog) {
        EXPECT_FALSE(Find(dialog, QStringLiteral("cmdCancel"))->isVisible());
    });
}

TEST_F(frmAlertTest, WithoutAnOwnerItIsStillModal) {
    Ask(false, [](QWidget* dialog) {
        EXPECT_TRUE(dialog->isModal());
        EXPECT_EQ(dialog->parentWidget(), nullptr);
        EXPECT_EQ(QApplication::activeModalWidget(), dialog);
    });
}

TEST_F(frmAlertTest, ItStandsOverTheWindowOfItsOwner) {
    QWidget window;
    QWidget inner(&window);
    window.setGeometry(300, 200, 400, 300);
    window.show();
    Ask(
        false,
        [&](QWidget* dialog) {
            EXPECT_EQ(dialog->parentWidget(), &window);
            EXPECT_TRUE(window.geometry().contains(dialog->geometry().center()));
        },
        QStringLiteral("Hello"), &inner);
}

TEST_F(frmAlertTest, AnOwnerThatCannotBeSeenCountsAsNone) {
    QWidget hidden;
    Ask(
        false, [](QWidget* dialog) { EXPECT_EQ(dialog->parentWidget(), nullptr); },
        QStringLiteral("Hello"), &hidden);
}

TEST_F(frmAlertTest, TheAnswerIsFalseWhereTheOwnerGoesWhileItStands) {
    auto* window = new QWidget;
    window->show();
    QTimer::singleShot(0, [window] { delete window; });
    EXPECT_FALSE(frmAlert::Ask(QStringLiteral("Hello"), window, true));
}

TEST_F(frmAlertTest, ALongMessageWrapsAndTheSizeStays) {
    QSize plain;
    Ask(
        false, [&](QWidget* dialog) { plain = dialog->size(); }, QStringLiteral("Short."));
    const QString message =
        QStringLiteral("Your profile has been created. The RDI values created should be used only "
                       "as guidelines. You can edit these values by using the 'Edit My Profile' "
                       "feature (under the 'Edit' menu). Another sentence makes it as long as the "
                       "longest message that the program has, three hundred letters.");
    Ask(
        false,
        [&](QWidget* dialog) {
            EXPECT_EQ(dialog->size(), plain);
            EXPECT_EQ(dialog->minimumSize(), dialog->maximumSize());
            auto* label = Find<QLabel>(dialog, QStringLiteral("lblMSG"));
            EXPECT_TRUE(label->wordWrap());
            EXPECT_EQ(label->text(), message);
            EXPECT_EQ(dialog->findChild<QScrollArea*>()->verticalScrollBar()->maximum(), 0)
                << "a message of the usual length needs no scrolling";
        },
        message);
}

TEST_F(frmAlertTest, TheLinesOfAMessageAreAboutEquallyLong) {
    const QString message =
        QStringLiteral("There is no weight entry from 11/15/2026 to 11/21/2026, so the percent "
                       "bars and the average values of this period cannot be worked out. Enter a "
                       "weight for one of its days on the screen \"Daily Details\", in the field "
                       "\"Enter today's weight:\".");
    Ask(
        false,
        [](QWidget* dialog) {
            const auto* label = Find<QLabel>(dialog, QStringLiteral("lblMSG"));
            const int width = label->contentsRect().width();
            QTextLayout layout(label->text(), label->font());
            layout.beginLayout();
            for (QTextLine line = layout.createLine(); line.isValid(); line = layout.createLine())
                line.setLineWidth(width);
            layout.endLayout();
            ASSERT_GT(layout.lineCount(), 1);
            for (int i = 0; i < layout.lineCount(); ++i)
                EXPECT_GT(layout.lineAt(i).naturalTextWidth(), width / 2) << i;
        },
        message);
}

TEST_F(frmAlertTest, AMessageBeyondThePlaceCanBeScrolledToItsEnd) {
    Ask(
        false,
        [](QWidget* dialog) {
            auto* area = dialog->findChild<QScrollArea*>();
            EXPECT_GT(area->verticalScrollBar()->maximum(), 0);
            EXPECT_GE(area->widget()->height(),
                      area->widget()->heightForWidth(area->widget()->width()));
            EXPECT_EQ(area->horizontalScrollBar()->maximum(), 0);
        },
        QStringLiteral("many words ").repeated(200));
}

TEST_F(frmAlertTest, AMessageIsPlainTextWhateverItHolds) {
    const QString message = QStringLiteral("<b>5 & 6</b> & <script>");
    Ask(
        false,
        [&](QWidget* dialog) {
            auto* label = Find<QLabel>(dialog, QStringLiteral("lblMSG"));
            EXPECT_EQ(label->textFormat(), Qt::PlainText);
            EXPECT_EQ(label->text(), message);
        },
        message);
}

TEST_F(frmAlertTest, AQuestionWaitsOnCancelAndAMessageOnOk) {
    Ask(true, [](QWidget* dialog) {
        EXPECT_EQ(dialog->focusWidget()->objectName(), QStringLiteral("cmdCancel"));
        EXPECT_FALSE(Find(dialog, QStringLiteral("cmdOK"))->property("MainAction").toBool());
    });
    EXPECT_TRUE(Ask(false, [](QWidget* dialog) {
        EXPECT_EQ(dialog->focusWidget()->objectName(), QStringLiteral("cmdOK"));
        QTest::keyClick(dialog->focusWidget(), Qt::Key_Return);
    }));
}

TEST_F(frmAlertTest, TheTitleIsTheProgramsName) {
    Ask(false, [](QWidget* dialog) {
        EXPECT_EQ(dialog->windowTitle(), QStringLiteral("Halvane"));
        EXPECT_EQ(Find(dialog, QStringLiteral("ucTitle"))->property("Caption").toString(),
                  QStringLiteral("Halvane"));
    });
}

TEST_F(frmAlertTest, AMessageCanComeWhileAnotherStands) {
    EXPECT_TRUE(Ask(true, [](QWidget* outer) {
        QTimer::singleShot(0, [] { QApplication::activeModalWidget()->close(); });
        EXPECT_FALSE(frmAlert::Ask(QStringLiteral("Really?"), outer, true));
        Press(outer, "cmdOK");
    }));
}
