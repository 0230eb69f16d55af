#include "journal/WaterVals.h"

namespace kesto
{

QVariantMap defultsWaterVals()
{
    QVariantMap portions;
    int key = 0;
    for (const int millilitres : {150, 300, 50, 250, 200, 300, 500, 1000})
        portions.insert(QString::number(++key), millilitres);
    return portions;
}

} // namespace kesto
