#include "components/TableModel.h"

#include <algorithm>
#include <iterator>

namespace kesto
{

namespace
{

/// One line of a section, to compare and to find what it is.
struct Place
{
    TableLine::Type type = TableLine::Type::Row;
    int row = -1;
};

int lineCount(const TableSection &section)
{
    return static_cast<int>(section.rows.size()) + (section.header.isNull() ? 0 : 1) +
           (section.footer.isNull() ? 0 : 1);
}

Place placeAt(const TableSection &section, int offset)
{
    const int header = section.header.isNull() ? 0 : 1;
    if (offset < header)
        return {.type = TableLine::Type::Header};
    const int row = offset - header;
    return row < section.rows.size() ? Place{.row = row} : Place{.type = TableLine::Type::Footer};
}

bool equalLines(const TableSection &left, int leftOffset, const TableSection &right, int rightOffset)
{
    const Place one = placeAt(left, leftOffset);
    const Place other = placeAt(right, rightOffset);
    if (one.type != other.type)
        return false;
    switch (one.type) {
    case TableLine::Type::Header:
        return left.header == right.header;
    case TableLine::Type::Footer:
        return left.footer == right.footer;
    case TableLine::Type::Row:
        break;
    }
    return left.rows.at(one.row) == right.rows.at(other.row);
}

TableSection withoutLines(TableSection section, int first, int count)
{
    for (int offset = first + count - 1; offset >= first; --offset) {
        const Place line = placeAt(section, offset);
        if (line.type == TableLine::Type::Row)
            section.rows.removeAt(line.row);
        else
            (line.type == TableLine::Type::Header ? section.header : section.footer) = QString();
    }
    return section;
}

} // namespace

int TableModel::rowCount(const QModelIndex &parent) const { return parent.isValid() ? 0 : firstLines_.last(); }

QHash<int, QByteArray> TableModel::roleNames() const { return {{LineRole, "shown"}}; }

int TableModel::sectionOf(int line) const
{
    // The last section that begins at or before the line: of empty sections none has a line.
    const auto after = std::upper_bound(firstLines_.begin(), firstLines_.end() - 1, line);
    return static_cast<int>(std::distance(firstLines_.begin(), after)) - 1;
}

TableLine TableModel::lineAt(int line) const
{
    const int number = sectionOf(line);
    const TableSection &section = sections_.at(number);
    const int offset = line - firstLine(number);
    const Place place = placeAt(section, offset);
    TableLine found;
    if (place.type == TableLine::Type::Row) {
        static_cast<TableRow &>(found) = section.rows.at(place.row);
    } else {
        found.title = place.type == TableLine::Type::Header ? section.header : section.footer;
        found.selectable = false;
    }
    found.type = place.type;
    found.section = number;
    found.row = place.row;
    found.isLast = place.row >= 0 && place.row == section.rows.size() - 1;
    found.followsRow = line > 0 && isRow(line - 1);
    return found;
}

bool TableModel::isRow(int line) const
{
    const int section = sectionOf(line);
    return placeAt(sections_.at(section), line - firstLine(section)).type == TableLine::Type::Row;
}

QVariant TableModel::data(const QModelIndex &index, int role) const
{
    return index.isValid() && role == LineRole ? QVariant::fromValue(lineAt(index.row())) : QVariant();
}

int TableModel::numberOfRowsInSection(int section) const { return static_cast<int>(sections_.at(section).rows.size()); }

bool TableModel::contains(const ShownPath &path) const
{
    return path.section >= 0 && path.section < numberOfSections() && path.row >= 0 &&
           path.row < numberOfRowsInSection(path.section);
}

const TableRow &TableModel::rowAt(const ShownPath &path) const { return sections_.at(path.section).rows.at(path.row); }

int TableModel::line(const ShownPath &path) const
{
    return firstLine(path.section) + (section(path.section).header.isNull() ? 0 : 1) + path.row;
}

std::optional<ShownPath> TableModel::pathOf(int section, const RowId &id) const
{
    for (int row = 0; section >= 0 && section < numberOfSections() && row < numberOfRowsInSection(section); ++row) {
        const RowId &present = rowAt({section, row}).id;
        if (present == id || (!present.isSet() && RowId(row) == id))
            return ShownPath{section, row};
    }
    return std::nullopt;
}

void TableModel::countLines()
{
    firstLines_ = {0};
    for (const TableSection &section : std::as_const(sections_))
        firstLines_.append(firstLines_.last() + lineCount(section));
}

// The line after them knows whether it follows a row.
void TableModel::linesChanged(int first, int last)
{
    last = std::min(last + 1, rowCount() - 1);
    if (first <= last)
        Q_EMIT dataChanged(index(first), index(last), {LineRole});
}

void TableModel::renumbered(int section) { linesChanged(firstLine(section), firstLine(section + 1) - 1); }

void TableModel::renumberedFrom(int section)
{
    if (section < numberOfSections())
        linesChanged(firstLine(section), rowCount() - 1);
}

void TableModel::setSections(const QList<TableSection> &sections)
{
    if (sections.size() == sections_.size()) {
        for (int at = 0; at < sections.size(); ++at)
            replaceSection(at, sections.at(at));
        return;
    }
    beginResetModel();
    sections_ = sections;
    countLines();
    endResetModel();
}

void TableModel::insertSection(int at, const TableSection &section)
{
    const int count = lineCount(section);
    const int first = firstLine(at);
    if (count > 0)
        beginInsertRows({}, first, first + count - 1);
    sections_.insert(at, section);
    countLines();
    if (count > 0)
        endInsertRows();
    renumberedFrom(at + 1);
}

void TableModel::removeSection(int at)
{
    const int count = lineCount(section(at));
    const int first = firstLine(at);
    if (count > 0)
        beginRemoveRows({}, first, first + count - 1);
    sections_.removeAt(at);
    countLines();
    if (count > 0)
        endRemoveRows();
    renumberedFrom(at);
}

void TableModel::replaceSection(int at, const TableSection &section)
{
    const TableSection before = sections_.at(at);
    const int oldCount = lineCount(before);
    const int newCount = lineCount(section);
    const int most = std::min(oldCount, newCount);
    int front = 0;
    while (front < most && equalLines(before, front, section, front))
        ++front;
    int back = 0;
    while (back < most - front && equalLines(before, oldCount - 1 - back, section, newCount - 1 - back))
        ++back;
    const int changed = most - front - back;
    const int first = firstLine(at) + front;

    // What stays in number changes while nothing else does.
    const int others = front + changed;
    if (newCount > oldCount) {
        sections_[at] = withoutLines(section, others, newCount - oldCount);
        linesChanged(first, first + changed - 1);
        beginInsertRows({}, first + changed, first + changed + newCount - oldCount - 1);
        sections_[at] = section;
        countLines();
        endInsertRows();
    } else if (newCount < oldCount) {
        beginRemoveRows({}, first + changed, first + changed + oldCount - newCount - 1);
        sections_[at] = withoutLines(before, others, oldCount - newCount);
        countLines();
        endRemoveRows();
        sections_[at] = section;
        linesChanged(first, first + changed - 1);
    } else {
        sections_[at] = section;
        linesChanged(first, first + changed - 1);
    }
    if (newCount != oldCount || before.rows.size() != section.rows.size())
        renumbered(at);
}

void TableModel::setRow(const ShownPath &path, const TableRow &row)
{
    TableRow &present = sections_[path.section].rows[path.row];
    if (present == row)
        return;
    present = row;
    linesChanged(line(path), line(path));
}

void TableModel::insertRow(const ShownPath &path, const TableRow &row)
{
    beginInsertRows({}, line(path), line(path));
    sections_[path.section].rows.insert(path.row, row);
    countLines();
    endInsertRows();
    renumbered(path.section);
}

void TableModel::removeRow(const ShownPath &path)
{
    beginRemoveRows({}, line(path), line(path));
    sections_[path.section].rows.removeAt(path.row);
    countLines();
    endRemoveRows();
    renumbered(path.section);
}

void TableModel::moveRow(const ShownPath &from, const ShownPath &to)
{
    if (from == to)
        return;
    // The list wants the line before which it goes, counted with the row still in its old place.
    const int source = line(from);
    const bool down = from.section == to.section && to.row > from.row;
    const bool moves = beginMoveRows({}, source, source, {}, line(to) + (down ? 1 : 0));
    const TableRow row = sections_[from.section].rows.takeAt(from.row);
    sections_[to.section].rows.insert(to.row, row);
    countLines();
    if (moves) // not from the end of a section to the beginning of the next where no header is between
        endMoveRows();
    linesChanged(line(to), line(to));
    renumbered(from.section);
    if (from.section != to.section)
        renumbered(to.section);
}

} // namespace kesto
