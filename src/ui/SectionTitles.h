#pragma once

#include "components/TableModel.h"

#include <QPointer>
#include <QStringList>
#include <QtQml/qqmlregistration.h>

namespace kesto
{

/// The headers of a table, for an index beside it that leads to its sections.
class SectionTitles : public QObject
{
    Q_OBJECT
    QML_ELEMENT
    Q_PROPERTY(kesto::TableModel *table READ table WRITE setTable NOTIFY tableChanged REQUIRED)
    Q_PROPERTY(QStringList titles READ titles NOTIFY titlesChanged)
    Q_PROPERTY(QStringList initials READ initials NOTIFY titlesChanged)

public:
    using QObject::QObject;

    [[nodiscard]] TableModel *table() const { return table_; }
    void setTable(TableModel *table);

    /// Of the sections that have a header.
    [[nodiscard]] const QStringList &titles() const { return titles_; }
    /// The first letters of the titles; what is one to the reader is one here, however many code points it has.
    [[nodiscard]] QStringList initials() const;
    /// The line of the table that the header of a title is in; −1 for a title that does not exist.
    Q_INVOKABLE [[nodiscard]] int line(int title) const { return lines_.value(title, -1); }

Q_SIGNALS:
    void tableChanged();
    void titlesChanged();

private:
    void read();

    QPointer<TableModel> table_;
    QStringList titles_;
    QList<int> lines_;
};

} // namespace kesto
