#include "platform/TextOrder.h"

#include <QString>

#include <algorithm>

namespace kesto
{

namespace
{
// Moves the surrogates above the rest of the plane, where the code points that they stand for belong.
int rank(QChar unit)
{
    const int code = unit.unicode();
    if (code < 0xd800)
        return code;
    return unit.isSurrogate() ? code + 0x2000 : code - 0x800;
}

QString searchForm(const QString &text)
{
    // Composed first, so that ё is one character.
    return text.normalized(QString::NormalizationForm_C).toCaseFolded().replace(u'ё', u'е');
}
} // namespace

int compareLiterally(QStringView left, QStringView right)
{
    const auto [inLeft, inRight] = std::mismatch(left.begin(), left.end(), right.begin(), right.end());
    if (inLeft == left.end() || inRight == right.end())
        return (left.size() > right.size()) - (left.size() < right.size());
    return rank(*inLeft) - rank(*inRight);
}

int compareCaseInsensitively(const QString &left, const QString &right)
{
    return compareLiterally(left.toCaseFolded(), right.toCaseFolded());
}

bool matchesSearch(const QString &text, const QString &wanted) { return searchForm(text).contains(searchForm(wanted)); }

} // namespace kesto
