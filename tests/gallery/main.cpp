#include "gallery/Specimens.h"

#include "drawing/Pictures.h"
#include "drawing/Style.h"
#include "runtime/AppState.h"
#include "toolkit/ApplyStyle.h"
#include "toolkit/Labels.h"
#include "toolkit/MonthCalendar.h"

#include <QApplication>
#include <QDir>
#include <QGridLayout>
#include <QScreen>

namespace {

constexpr int PictureSizes[] = {16, 24, 48};
constexpr int PictureColumns = 6;

QWidget* InCell(QWidget* parent, const Specimen& specimen) {
    auto* cell = new QWidget(parent);
    QWidget* control = specimen.make(cell);
    QLabel* caption = MakeLabel(cell, QString(), specimen.state, TextRole::Small);
    caption->move(0, control->height() + 4);
    cell->setFixedSize(qMax(control->width(), caption->width()) + 12,
                       control->height() + caption->height() + 10);
    return cell;
}

/// A row a control, a column a state.
QWidget* MakeControls() {
    auto* page = new QWidget;
    auto* grid = new QGridLayout(page);
    QString control;
    int row = -1;
    int column = 0;
    for (const Specimen& specimen : Specimens()) {
        if (specimen.control != control) {
            control = specimen.control;
            column = 0;
            grid->addWidget(MakeLabel(page, QString(), control, TextRole::Strong), ++row, 0);
        }
        grid->addWidget(InCell(page, specimen), row, ++column, Qt::AlignLeft | Qt::AlignTop);
    }
    return page;
}

void BringIntoStates(QWidget* page) {
    const QList<Specimen> list = Specimens();
    const auto* grid = static_cast<QGridLayout*>(page->layout());
    qsizetype next = 0;
    for (int item = 0; item < grid->count(); ++item) {
        const QWidget* cell = grid->itemAt(item)->widget();
        if (!cell->children().isEmpty() && next < list.size())
            list[next++].apply(static_cast<QWidget*>(cell->children().first()));
    }
}

QWidget* PictureCell(QWidget* parent, const QString& name) {
    auto* cell = new QWidget(parent);
    int left = 0;
    for (const int size : PictureSizes) {
        auto* picture = new QLabel(cell);
        picture->setPixmap(
            Pictures::Get(name, {size, size}, TheStyle().quietInk, cell->devicePixelRatioF()));
        picture->move(left, 48 - size);
        left += size + 6;
    }
    MakeLabel(cell, QString(), name, TextRole::Small)->move(0, 52);
    cell->setFixedSize(left + 20, 70);
    return cell;
}

QWidget* MakePictures() {
    auto* page = new QWidget;
    auto* grid = new QGridLayout(page);
    const QStringList files = QDir(QStringLiteral(":/assets")).entryList(QDir::Files, QDir::Name);
    for (int i = 0; i < files.size(); ++i)
        grid->addWidget(PictureCell(page, files[i].chopped(4)), i / PictureColumns,
                        i % PictureColumns);
    return page;
}

QWidget* MakeCalendar() {
    auto* calendar = new MonthCalendar;
    calendar->setSelectedDate(QDate(2026, 11, 21));
    calendar->resize(280, 210);
    return calendar;
}

/// With a folder as argument, the pages are saved there and the program ends.
void SavePages(const QString& folder, const QList<QPair<QString, QWidget*>>& pages) {
    for (const auto& page : pages)
        page.second->screen()
            ->grabWindow(page.second->winId())
            .save(folder + u'/' + page.first + ".png");
}

} // namespace

int main(int argc, char** argv) {
    QApplication application(argc, argv);
    App().AppInfo.OSVERSION = 2;
    ApplyStyle(application);
    const QList<QPair<QString, QWidget*>> pages{{QStringLiteral("controls"), MakeControls()},
                                                {QStringLiteral("pictures"), MakePictures()},
                                                {QStringLiteral("calendar"), MakeCalendar()}};
    for (const auto& page : pages)
        page.second->show();
    QApplication::processEvents();
    BringIntoStates(pages.first().second);
    QApplication::processEvents();
    if (argc > 1) {
        SavePages(QString::fromLocal8Bit(argv[1]), pages);
        return 0;
    }
    return QApplication::exec();
}
