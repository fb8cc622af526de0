#include "recipes/TransferTest.h"

#include "core/frmAlert.h"
#include "foods/ui/ucSearchResults.h"
#include "recipes/ui/frmRecipeManager.h"
#include "store/Connection.h"

#include <QApplication>
#include <QHelpEvent>
#include <QLabel>
#include <QToolTip>

namespace {
const QString Markup = "<b>Soup</b> <img src=\"http://127.0.0.1:9/x\"> <a href='x'>y</a>";

/// A label that takes markup by itself would paint the text as a page.
void ExpectPlain(const QWidget& window) {
    for (const QLabel* label : window.findChildren<QLabel*>())
        EXPECT_TRUE(label->textFormat() == Qt::PlainText || !Qt::mightBeRichText(label->text()))
            << label->objectName().toStdString();
}

/// What comes up when the pointer rests on the control.
QString TipOf(QWidget* control) {
    QToolTip::hideText();
    QHelpEvent rest(QEvent::ToolTip, control->rect().center(),
                    control->mapToGlobal(control->rect().center()));
    QApplication::sendEvent(control, &rest);
    return QToolTip::text();
}

void ExpectPlainTips(const QWidget& window) {
    for (QWidget* control : window.findChildren<QWidget*>())
        EXPECT_FALSE(TipOf(control).contains("<b>")) << control->objectName().toStdString();
    QToolTip::hideText();
}
} // namespace

class MarkupTest : public TransferTest {
protected:
    void ImportMarkup() {
        QJsonObject recipe = SoupRecipe();
        for (const char* text : {"RecipeName", "ServingName", "Instructions"})
            recipe[QLatin1String(text)] = Markup;
        QByteArray table = Table(SoupRows());
        QString json = QString::fromUtf8(table);
        for (const char* text : {"Food 1", "Food 2", "1 cup"})
            json.replace(QLatin1String(text), QString(Markup).replace(u'"', QLatin1String("\\\"")));
        server->Tell(RecipePath(), 200, Json(recipe));
        server->Tell(RecipePath("/ingredients"), 200, json.toUtf8());
        Open(new frmImport(&window));
        Type("txtRecID", QString::number(Soup));
        ExpectAlert(ImportedText);
        Press("cmdGo");
    }
};

TEST_F(MarkupTest, AnImportedRecipeIsShownAsItsText) {
    ImportMarkup();
    EXPECT_EQ(Users("SELECT RecipeName FROM Recipes"), Markup);
    EXPECT_EQ(Users("SELECT count(*) FROM Ingredients WHERE FoodName = '" +
                    QString(Markup).replace(u'\'', "''") + "'"),
              2);
    frmRecipeManager recipes;
    recipes.resize(window.size());
    recipes.DoWinInit();
    recipes.show();
    ExpectPlain(recipes);
    ExpectPlainTips(recipes);
}

TEST_F(MarkupTest, AnImportedRecipeIsFoundAsItsText) {
    ImportMarkup();
    ucSearchResults panel;
    panel.resize(window.size());
    panel.show();
    Search(panel, "soup");
    EXPECT_EQ(NamesShown(panel), QStringList(Markup));
    ExpectPlain(panel);
    ExpectPlainTips(panel);
}

TEST_F(MarkupTest, AMessageIsShownAsItsText) {
    frmAlert alert("Sent. " + Markup, false, &window);
    alert.show();
    ExpectPlain(alert);
    ExpectPlainTips(alert);
}
