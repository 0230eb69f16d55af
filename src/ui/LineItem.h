#pragma once

#include "components/TableRow.h"

#include <QQuickItem>
#include <QtQml/qqmlregistration.h>

namespace kesto
{

/// The item behind a line of a table. In C++ because a property declared in QML of Qt 6.4 can't hold a value of ours.
class LineItem : public QQuickItem
{
    Q_OBJECT
    QML_ELEMENT
    Q_PROPERTY(int index MEMBER index_ NOTIFY indexChanged REQUIRED FINAL)
    Q_PROPERTY(kesto::TableLine shown MEMBER shown_ NOTIFY shownChanged REQUIRED FINAL)

public:
    explicit LineItem(QQuickItem *parent = nullptr)
        : QQuickItem(parent)
    {
        setFlag(ItemIsFocusScope);
    }

Q_SIGNALS:
    void indexChanged();
    void shownChanged();

private:
    int index_ = -1;
    TableLine shown_;
};

} // namespace kesto
