#include "records/KeyText.h"

QString KeyText::Of(QLatin1String kind, qint32 key) {
    return kind + u':' + QString::number(key);
}

QString KeyText::OfFood(qint32 key, bool isRecipe) {
    return Of(isRecipe ? Recipe : Food, key);
}
