#include "plan/DayKinds.h"

#include "platform/StringTables.h"

namespace kesto::DayKinds
{

const std::array<QString, count> &keys()
{
    static const std::array<QString, count> keys{QStringLiteral("chB"), QStringLiteral("bO"), QStringLiteral("feast")};
    return keys;
}

QString title(int kind)
{
    static const std::array<QString, count> titles{QStringLiteral("Чистый Белок"), QStringLiteral("Белок и овощи"),
                                                   QStringLiteral("Пир")};
    return localized(titles.at(static_cast<size_t>(kind)));
}

QString image(int kind)
{
    static const std::array<QString, count> images{
        QStringLiteral("protein.png"), QStringLiteral("protein_vegetables.png"), QStringLiteral("feast.png")};
    return images.at(static_cast<size_t>(kind));
}

int offeredIn(int period)
{
    switch (period) {
    case 0:
        return 1;
    case 1:
        return 2;
    default:
        return count;
    }
}

} // namespace kesto::DayKinds
