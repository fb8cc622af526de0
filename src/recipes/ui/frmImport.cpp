#include "recipes/ui/frmImport.h"

#include "drawing/Style.h"
#include "recipes/net/RecipeExchange.h"
#include "runtime/Convert.h"
#include "runtime/Seams.h"
#include "runtime/Server.h"
#include "toolkit/Labels.h"
#include "toolkit/ucButton.h"

#include <QLineEdit>

namespace {

constexpr QSize ImportSize(460, 172);
constexpr int IntroHeight = 34;

QString FailureText() {
    return "The recipe could not be imported. Please try again or contact " + Server::Support() +
           " for assistance.";
}

} // namespace

frmImport::frmImport(QWidget* owner)
    : ExchangeDialog(QStringLiteral("frmImport"), QStringLiteral("Import Recipe"), ImportSize,
                     owner) {
    const Style& style = TheStyle();
    QRect place = Inner().adjusted(style.nestEdge, style.nestEdge, -style.nestEdge, 0);
    place.setHeight(IntroHeight);
    QLabel* intro =
        MakeLabel(this, QStringLiteral("Label1"),
                  QStringLiteral("Enter the recipe ID you wish to import into the field "
                                 "below. If you don't know the recipe ID, you can "
                                 "search for recipes in the OnLine Community."));
    intro->setWordWrap(true);
    intro->setAlignment(Qt::AlignLeft | Qt::AlignTop);
    intro->setGeometry(place);
    txtRecID_ =
        AddField(place.bottom() + style.boxGap, "ucAALBL1", "Recipe ID to import:", "txtRecID");
    const ucButton* go = AddButtons("cmdGo", "Submit");
    connect(go, &ucButton::Click, this, &frmImport::cmdGo_Click);
    connect(txtRecID_, &QLineEdit::returnPressed, this, &frmImport::cmdGo_Click);
}

void frmImport::cmdGo_Click() {
    if (txtRecID_->text().isEmpty())
        ShowAlert(QStringLiteral("Please enter a recipe ID to import."), this);
    else
        ShowAlert(Import(), parentWidget());
}

QString frmImport::Import() {
    bool found = false;
    if (!Wait([&] { found = RecipeExchange::Import(Exchange(), ToInteger(txtRecID_->text())); }))
        return FailureText();
    if (!found)
        return QStringLiteral("Recipe not found in online database. Please ensure the recipe ID "
                              "you've entered is correct and try again.");
    accept();
    return QStringLiteral("The recipe has been successfully imported!");
}
