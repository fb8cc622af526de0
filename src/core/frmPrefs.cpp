#include "core/frmPrefs.h"

#include "core/StyleChoice.h"
#include "drawing/Style.h"
#include "runtime/AppState.h"
#include "runtime/SettingTable.h"
#include "runtime/Settings.h"
#include "toolkit/ButtonRow.h"
#include "toolkit/Labels.h"
#include "toolkit/RadioGroup.h"
#include "toolkit/ucButton.h"
#include "toolkit/ucRadio.h"

#include <QCheckBox>
#include <QHBoxLayout>
#include <QVBoxLayout>

namespace {

constexpr QSize PrefsSize(460, 376);
constexpr int NoteIndent = 22; ///< notes begin below the captions, not below the boxes

void Store(const QCheckBox* box, const Setting& setting, bool& inMemory) {
    SetRegValue(setting, QLatin1String(box->isChecked() ? "True" : "False"));
    inMemory = box->isChecked();
}

} // namespace

frmPrefs::frmPrefs(QWidget* owner)
    : Dialog(QStringLiteral("frmPrefs"), QStringLiteral("Preferences"), owner) {
    setFixedSize(PrefsSize);
    auto* save = MakeButton(this, QStringLiteral("cmdSave"), QStringLiteral("Save"));
    auto* cancel = MakeButton(this, QStringLiteral("cmdCancel"), QStringLiteral("Cancel"));
    LayBoxes(LayButtonRow(Inner(), {save, cancel}));
    setTabOrder(opStyle_.back(), save);
    setTabOrder(save, cancel);
    save->SetMainAction(true);
    connect(save, &ucButton::Click, this, &frmPrefs::Save);
    connect(cancel, &ucButton::Click, this, &QDialog::reject);
    Read();
}

void frmPrefs::LayBoxes(const QRect& place) {
    auto* area = new QWidget(this);
    area->setGeometry(place);
    area->setMouseTracking(true);
    auto* column = new QVBoxLayout(area);
    column->setContentsMargins(0, 0, 0, 0);
    column->setSpacing(TheStyle().groupGap);
    ckFast_ = AddBox(column, "ckFast", "Use more memory to increase performance", "");
    ckLimit_ = AddBox(column, "ckLimit", "Limit search results to 50",
                      "Check this box to speed up search results or if you are seeing graphical "
                      "problems with your search results.");
    ckAUTO_ = AddBox(column, "ckAUTO", "Automatically adjust intake needs",
                     "Checking this box will force Halvane to adjust your caloric need and RDIs "
                     "for protein carbohydrates and fat each time you weigh in.");
    ckDrop_ = AddBox(column, "ckDrop", "Use drop shadows behind windows",
                     "may cause Halvane to repaint incorrectly on computers with insufficient "
                     "RAM.");
    AddStyles(column);
    column->addStretch();
}

void frmPrefs::AddStyles(QVBoxLayout* column) {
    static_assert(std::tuple_size_v<decltype(opStyle_)> == std::size(StyleChoice::All));
    QWidget* area = column->parentWidget();
    auto* line = new QHBoxLayout;
    line->setSpacing(TheStyle().boxGap);
    line->addWidget(MakeLabel(area, QStringLiteral("lblStyle"), QStringLiteral("Style:")));
    for (size_t i = 0; i < opStyle_.size(); ++i) {
        opStyle_[i] = new ucRadio(QLatin1String(StyleChoice::All[i].caption), area);
        opStyle_[i]->setObjectName(QStringLiteral("opStyle%1").arg(i));
        opStyle_[i]->setAccessibleDescription(QStringLiteral("Style"));
        line->addWidget(opStyle_[i]);
    }
    line->addStretch();
    column->addLayout(line);
    RadioGroup::Join(opStyle_);
    AddNote(column, QStringLiteral("lblStyleNote"),
            "The chosen style counts from the next start of Halvane.");
}

QCheckBox* frmPrefs::AddBox(QVBoxLayout* column, const char* name, const char* caption,
                            const char* note) {
    QWidget* area = column->parentWidget();
    auto* box = new QCheckBox(QLatin1String(caption), area);
    box->setObjectName(QLatin1String(name));
    box->setAccessibleName(box->text());
    box->setAccessibleDescription(QLatin1String(note));
    column->addWidget(box);
    if (*note)
        AddNote(column, box->objectName() + "Note", note);
    column->addSpacing(TheStyle().boxGap);
    return box;
}

void frmPrefs::AddNote(QVBoxLayout* column, const QString& name, const char* note) {
    QWidget* area = column->parentWidget();
    QLabel* text = MakeLabel(area, name, QLatin1String(note), TextRole::Quiet);
    text->setWordWrap(true);
    const int room = area->width() - NoteIndent;
    text->setContentsMargins(NoteIndent, 0, room - BalancedWidth(text->text(), text->font(), room),
                             0);
    column->addWidget(text);
}

/// Unlike at start, the stored texts are compared exactly.
void frmPrefs::Read() {
    ckAUTO_->setChecked(GetRegValue(Settings::AutoRDI) != QLatin1String("False"));
    ckLimit_->setChecked(App().AppInfo.LIMITRESULTS);
    ckFast_->setChecked(GetRegValue(Settings::Fast) == QLatin1String("True"));
    RadioGroup::Select(opStyle_, StyleChoice::Stored());
}

void frmPrefs::Save() {
    AppInfo& info = App().AppInfo;
    Store(ckLimit_, Settings::Limit50, info.LIMITRESULTS);
    Store(ckAUTO_, Settings::AutoRDI, info.AUTOUPDATERDI);
    Store(ckFast_, Settings::Fast, info.FAST);
    StyleChoice::Keep(RadioGroup::Selected(opStyle_));
    accept();
}
