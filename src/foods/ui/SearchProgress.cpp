#include "foods/ui/SearchProgress.h"

#include "drawing/DevicePixels.h"
#include "drawing/Style.h"
#include "toolkit/Labels.h"

#include <QPainter>

namespace {

constexpr int FrameMilliseconds = 16;
constexpr QSize BarSize(280, 12);
constexpr QSize PanelSize(320, 64);

/// The empty bar, filled from the left with as much of the picture as the fraction says.
class Bar : public QWidget {
public:
    Bar(SearchProgress* panel, const QLabel* fill)
        : QWidget(panel)
        , panel_(panel)
        , fill_(fill) {}

protected:
    void paintEvent(QPaintEvent*) override {
        QPainter painter(this);
        painter.fillRect(rect(), TheStyle().rule);
        const QRect filled(0, 0, panel_->FilledPixels(), height());
        painter.drawPixmap(filled, fill_->pixmap(Qt::ReturnByValue), filled);
    }

private:
    SearchProgress* panel_;
    const QLabel* fill_;
};

QPixmap FillPicture() {
    QPixmap picture(BarSize);
    QPainter painter(&picture);
    const auto& rows = TheStyle().barNormal;
    for (int y = 0; y < BarSize.height(); ++y)
        painter.fillRect(0, y, BarSize.width(), 1,
                         rows[y * int(std::size(rows)) / BarSize.height()]);
    return picture;
}

} // namespace

SearchProgress::SearchProgress(QWidget* parent)
    : QWidget(parent) {
    setObjectName(QStringLiteral("picStatus"));
    caption_ = MakeLabel(this, QStringLiteral("lblStatus"), QStringLiteral("Search Progress"));
    picSlide_ = MakeLabel(this, QStringLiteral("picSlide"), {});
    picSlide_->setPixmap(FillPicture());
    picSlide_->hide();
    picHome_ = new Bar(this, picSlide_);
    picHome_->setObjectName(QStringLiteral("picHome"));
    picHome_->setAccessibleName(caption_->text());
    resize(PanelSize);
    const int left = (width() - BarSize.width()) / 2;
    caption_->setGeometry(left, 11, BarSize.width(), 18);
    picHome_->setGeometry(QRect(QPoint(left, 36), BarSize));
    hide();
}

void SearchProgress::Begin() {
    fraction_ = 0;
    show();
    raise();
    repaint();
    painted_.start();
}

void SearchProgress::SetFraction(double fraction) {
    const int before = FilledPixels();
    fraction_ = fraction;
    if (FilledPixels() == before || !isVisible() || painted_.elapsed() < FrameMilliseconds)
        return;
    picHome_->repaint();
    painted_.restart();
}

int SearchProgress::FilledPixels() const {
    return int(picHome_->width() * fraction_);
}

void SearchProgress::paintEvent(QPaintEvent*) {
    QPainter painter(this);
    painter.fillRect(rect(), TheStyle().paper);
    PaintFrame(painter, rect(), TheStyle().frame);
}
