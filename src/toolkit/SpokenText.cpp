#include "toolkit/SpokenText.h"

QString SpokenText::attributes(int, int* from, int* to) const {
    *from = 0;
    *to = characterCount();
    return {};
}
