#include "SectionTitles.h"

#include <QTextBoundaryFinder>

namespace kesto
{

void SectionTitles::setTable(TableModel *table)
{
    if (table == table_)
        return;
    if (table_)
        disconnect(table_, nullptr, this, nullptr);
    table_ = table;
    if (table) {
        connect(table, &QAbstractItemModel::modelReset, this, &SectionTitles::read);
        connect(table, &QAbstractItemModel::rowsInserted, this, &SectionTitles::read);
        connect(table, &QAbstractItemModel::rowsRemoved, this, &SectionTitles::read);
        connect(table, &QAbstractItemModel::rowsMoved, this, &SectionTitles::read);
        connect(table, &QAbstractItemModel::dataChanged, this, &SectionTitles::read);
    }
    read();
    Q_EMIT tableChanged();
}

QStringList SectionTitles::initials() const
{
    QStringList letters;
    for (const QString &title : titles_) {
        QTextBoundaryFinder finder(QTextBoundaryFinder::Grapheme, title);
        letters.append(title.left(qMax<qsizetype>(0, finder.toNextBoundary())));
    }
    return letters;
}

void SectionTitles::read()
{
    const QStringList before = titles_;
    titles_.clear();
    lines_.clear();
    int line = 0;
    for (int section = 0; table_ && section < table_->numberOfSections(); ++section) {
        const TableSection &each = table_->section(section);
        if (!each.header.isNull()) {
            titles_.append(each.header);
            lines_.append(line++);
        }
        line += int(each.rows.size()) + (each.footer.isNull() ? 0 : 1);
    }
    if (titles_ != before)
        Q_EMIT titlesChanged();
}

} // namespace kesto
