#include "analysis/ViewButtons.h"

#include "toolkit/Style.h"
#include "toolkit/ucButtonA.h"

namespace {

// Pixels.
constexpr int stripHeight = 34;
constexpr int firstLeft = 6;
constexpr int pictureSize = 16;

struct ViewButton {
    const char *name, *picture, *tip;
};
constexpr ViewButton views[] = {
    {"cmdBar", "bars", "Bar chart of percent RDI"},
    {"cmdVals", "values", "Numeric daily totals"},
    {"cmdPIEChart", "pie", "Pie chart of caloric breakdown"},
};

} // namespace

ViewButtons::ViewButtons(QWidget* parent)
    : QWidget(parent) {
    setObjectName(QStringLiteral("Picture1"));
    for (size_t mode = 0; mode < buttons_.size(); ++mode)
        buttons_[mode] = AddButton(int(mode));
}

ucButtonA* ViewButtons::AddButton(int mode) {
    const ViewButton& view = views[mode];
    auto* button = new ucButtonA(this);
    button->setObjectName(QLatin1String(view.name));
    button->SetPictures(QLatin1String(view.picture), QLatin1String(view.tip));
    button->SetPictureSize(QSize(pictureSize, pictureSize));
    button->SetBordered(true);
    const QString lowerName = button->objectName().toLower();
    connect(button, &ucButtonA::Click, this, [this, mode] { Q_EMIT Asked(mode); });
    connect(button, &ucButtonA::MouseMove, this, [this, lowerName] { Q_EMIT Hovered(lowerName); });
    return button;
}

void ViewButtons::SetChosen(int mode) {
    for (size_t i = 0; i < buttons_.size(); ++i)
        buttons_[i]->SetChosen(int(i) == mode);
}

void ViewButtons::ResetAllBut(const QString& name) {
    for (ucButtonA* button : buttons_)
        if (button->objectName().toLower() != name)
            button->Reset();
}

int ViewButtons::Right() const {
    return buttons_.back()->geometry().right() + 1;
}

QSize ViewButtons::sizeHint() const {
    return {Right() + firstLeft, stripHeight};
}

void ViewButtons::resizeEvent(QResizeEvent*) {
    int left = firstLeft;
    for (ucButtonA* button : buttons_) {
        button->resize(button->sizeHint());
        button->move(left, (height() - button->height()) / 2);
        left += button->width() + TheStyle().groupGap;
    }
}
