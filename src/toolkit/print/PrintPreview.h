#pragma once

#include "toolkit/Dialog.h"
#include "toolkit/print/PrintJob.h"

#include <QPrinter>

#include <array>

class QLabel;
class QPrintPreviewWidget;
class ucRadio;

/// The pages of a job as they will be printed. The person chooses the paper here. The platform's
/// dialog prints the pages or writes them as PDF.
class PrintPreview : public Dialog {
    Q_OBJECT

public:
    PrintPreview(PrintJob job, QWidget* owner);

private:
    void SetUpPrinter();
    void AddPapers();
    QRect AddButtons(); ///< gives the place above them
    void PlacePapers(QPoint place, int height);
    void AddPages(const QRect& place);
    void ShowMadePages(); ///< their number, and each without its shadow
    void UsePaper(size_t paper);
    void Print();
    bool PaintOn(QPrinter& device) const; ///< false if it cannot be written
    bool HasWritten() const;              ///< the whole PDF, if it makes one

    PrintJob job_;
    QPrinter printer_;
    std::array<ucRadio*, 2> opPaper_{};
    QLabel* lblPages_ = nullptr;
    QPrintPreviewWidget* pages_ = nullptr;
};
