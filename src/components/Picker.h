#pragma once

#include <QList>
#include <QObject>
#include <QPointer>
#include <QStringList>

#include <memory>
#include <vector>

namespace kesto
{

/// One wheel of a picker.
class PickerComponent : public QObject
{
    Q_OBJECT
    Q_PROPERTY(QStringList titles READ titles NOTIFY titlesChanged)
    Q_PROPERTY(int selectedRow READ selectedRow NOTIFY selectedRowChanged)
public:
    using QObject::QObject;

    [[nodiscard]] const QStringList &titles() const { return titles_; }
    void setTitles(const QStringList &titles);
    /// −1 only while there are no titles.
    [[nodiscard]] int selectedRow() const { return selectedRow_; }
    /// By the program; a row outside becomes the nearest.
    void setSelectedRow(int row);

    /// By the user, who may choose the selected row, too; a row outside changes nothing.
    Q_INVOKABLE void select(int row);

Q_SIGNALS:
    void titlesChanged();
    void selectedRowChanged();
    /// The user chose a row.
    void selected(int row);

private:
    QStringList titles_;
    int selectedRow_ = -1;
};

/// Wheels side by side.
class Picker : public QObject
{
    Q_OBJECT
    Q_PROPERTY(QList<kesto::PickerComponent *> components READ components NOTIFY componentsChanged)
public:
    explicit Picker(QObject *parent = nullptr);
    ~Picker() override;

    [[nodiscard]] QList<PickerComponent *> components() const;
    [[nodiscard]] int selectedRow(int component) const;
    /// As many wheels as lists, each turned to its row; a wheel whose titles stay is kept.
    void setContent(const QList<QStringList> &titles, const QList<int> &selectedRows);
    /// Before it goes out of sight: the user has chosen what a wheel that still turns is at.
    void settle() { Q_EMIT shouldSettle(); }

Q_SIGNALS:
    void componentsChanged();
    /// The user chose a row of a wheel; selectedRow() tells where all stand.
    void selected(int row, int component);
    /// The wheels in sight shall choose what they are at if they are turning.
    void shouldSettle();

private:
    std::vector<std::unique_ptr<PickerComponent>> components_;
};

} // namespace kesto
