#pragma once

#include "components/IndexPath.h"
#include "components/TableRow.h"

#include <QAbstractListModel>

#include <optional>

namespace kesto
{

/// Rows under one header. A null header or footer is not shown.
struct TableSection
{
    QString header{};
    QString footer{};
    QList<TableRow> rows{};

    bool operator==(const TableSection &) const = default;
};

/// A table as one list: of each section its header, its rows and its footer. Changes are notified line by line, so that
/// views can animate them. A path that does not exist is a programmer's error.
class TableModel : public QAbstractListModel
{
    Q_OBJECT
public:
    enum Role { LineRole = Qt::UserRole }; ///< line: a TableLine, all of it at once because each role costs a delegate

    using QAbstractListModel::QAbstractListModel;

    [[nodiscard]] int rowCount(const QModelIndex &parent = {}) const override;
    [[nodiscard]] QVariant data(const QModelIndex &index, int role) const override;
    [[nodiscard]] QHash<int, QByteArray> roleNames() const override;

    [[nodiscard]] int numberOfSections() const { return static_cast<int>(sections_.size()); }
    [[nodiscard]] int numberOfRowsInSection(int section) const;
    [[nodiscard]] bool contains(const ShownPath &path) const;
    [[nodiscard]] const TableRow &rowAt(const ShownPath &path) const;
    [[nodiscard]] const TableSection &section(int section) const { return sections_.at(section); }
    /// One that exists.
    [[nodiscard]] TableLine lineAt(int line) const;
    /// The line of this list that a row is in.
    [[nodiscard]] int line(const ShownPath &path) const;
    /// The row of a section that stands for something; nothing when there is none (any more).
    [[nodiscard]] std::optional<ShownPath> pathOf(int section, const RowId &id) const;

    /// Another number of sections is a reset, otherwise each is replaced.
    void setSections(const QList<TableSection> &sections);
    void insertSection(int at, const TableSection &section);
    void removeSection(int at);
    /// Equal lines at the beginning and at the end stay; between them lines change in place as long as there are any,
    /// and the rest come or go.
    void replaceSection(int at, const TableSection &section);
    void setRow(const ShownPath &path, const TableRow &row);
    void insertRow(const ShownPath &path, const TableRow &row);
    void removeRow(const ShownPath &path);
    /// \a to is the place after the row was taken out.
    void moveRow(const ShownPath &from, const ShownPath &to);

private:
    [[nodiscard]] int firstLine(int section) const { return firstLines_.at(section); }
    [[nodiscard]] int sectionOf(int line) const;
    [[nodiscard]] bool isRow(int line) const;
    void countLines();
    void linesChanged(int first, int last);
    void renumbered(int section);
    void renumberedFrom(int section);

    QList<TableSection> sections_;
    QList<int> firstLines_{0}; // of each section, and one behind the last
};

} // namespace kesto
