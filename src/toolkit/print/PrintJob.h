#pragma once

#include <QString>

#include <functional>

class Pages;

/// What a screen can print.
struct PrintJob {
    QString title; ///< of the document
    QString foot;  ///< of each page, before its number
    std::function<void(Pages& pages)> paint;
};
