#pragma once

#include "drawing/Style.h"

/// The style for pages (see UseStyleOnPaper) as long as it lives, for a process with windows.
/// Nothing may be shown meanwhile.
class StyleOnPaper {
public:
    StyleOnPaper();
    ~StyleOnPaper();
    StyleOnPaper(const StyleOnPaper&) = delete;
    StyleOnPaper& operator=(const StyleOnPaper&) = delete;

private:
    Style onScreen_;
};
