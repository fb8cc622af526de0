#pragma once

#include <QString>

class Guide;
class QWidget;
struct PrintJob;

/// What is printed, on the tour: the preview of a screen that is in front, and a picture of each
/// page.
class PrintWalk {
public:
    explicit PrintWalk(Guide& guide);

    void Day();
    void Report();
    void Recipe();
    void Facts(QWidget* facts);

private:
    void Preview(QWidget* window, const QString& picture);
    void ShowPages(const PrintJob& job, const QString& picture);

    Guide& guide_;
};
