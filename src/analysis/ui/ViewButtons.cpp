#include "analysis/ui/ViewButtons.h"

#include "drawing/Style.h"
#include "toolkit/ucButtonA.h"

namespace {

// Pixels.
constexpr int StripHeight = 34;
constexpr int FirstLeft = 6;
constexpr int PictureSize = 16;

} // namespace

ViewButtons::ViewButtons(std::span<const ViewButton> views, QWidget* parent)
    : QWidget(parent) {
    for (const ViewButton& view : views)
        buttons_.push_back(AddButton(view));
    PlaceButtons();
}

ucButtonA* ViewButtons::AddButton(const ViewButton& view) {
    const int number = int(buttons_.size());
    auto* button = new ucButtonA(this);
    button->setObjectName(QLatin1String(view.name));
    button->SetPictures(QLatin1String(view.picture), QLatin1String(view.tip));
    button->SetPictureSize(QSize(PictureSize, PictureSize));
    button->SetBordered(true);
    const QString lowerName = button->objectName().toLower();
    connect(button, &ucButtonA::Click, this, [this, number] { Q_EMIT Asked(number); });
    connect(button, &ucButtonA::MouseMove, this, [this, lowerName] { Q_EMIT Hovered(lowerName); });
    return button;
}

void ViewButtons::SetChosen(int view) {
    for (size_t i = 0; i < buttons_.size(); ++i)
        buttons_[i]->SetChosen(int(i) == view);
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
    return {Right() + FirstLeft, StripHeight};
}

void ViewButtons::resizeEvent(QResizeEvent*) {
    PlaceButtons();
}

void ViewButtons::PlaceButtons() {
    int left = FirstLeft;
    for (ucButtonA* button : buttons_) {
        button->resize(button->sizeHint());
        button->move(left, (height() - button->height()) / 2);
        left += button->width() + TheStyle().groupGap;
    }
}
