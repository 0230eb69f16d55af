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

/// A table as one list: of each section its header, its rows and its footer. Every change is told as small as it is,
/// so that views can animate it. Paths that do not exist are a programmer's error.
class TableModel : public QAbstractListModel
{
    Q_OBJECT
public:
    enum Role {
        TableModelRole =
            Qt::UserRole ///< tableModel: this one; views read what lineAt() says, as a role each costs more
    };
    enum class LineType { Header, Row, Footer };
    Q_ENUM(LineType)

    /// One line of the list.
    struct Line
    {
        LineType type = LineType::Row;
        IndexPath path{.section = 0, .row = -1}; ///< no row for headers and footers
        bool last = false;                       ///< the last row of its section
        bool followsRow = false;                 ///< the line before is a row, too, be it of another section
        TableRow shown{};                        ///< of headers and footers the title alone

        bool operator==(const Line &) const = default;
    };

    using QAbstractListModel::QAbstractListModel;

    [[nodiscard]] int rowCount(const QModelIndex &parent = {}) const override;
    [[nodiscard]] QVariant data(const QModelIndex &index, int role) const override;
    [[nodiscard]] QHash<int, QByteArray> roleNames() const override;

    [[nodiscard]] int numberOfSections() const { return static_cast<int>(sections_.size()); }
    [[nodiscard]] int numberOfRowsInSection(int section) const;
    [[nodiscard]] bool contains(const IndexPath &path) const;
    [[nodiscard]] const TableRow &rowAt(const IndexPath &path) const;
    [[nodiscard]] const TableSection &section(int section) const { return sections_.at(section); }
    /// One that exists.
    [[nodiscard]] Line lineAt(int line) const;
    /// The line of this list that a row is in, and back; nothing for headers and footers.
    [[nodiscard]] int line(const IndexPath &path) const;
    [[nodiscard]] std::optional<IndexPath> indexPath(int line) const;

    /// Another number of sections is a reset, otherwise each is replaced.
    void setSections(const QList<TableSection> &sections);
    void insertSection(int at, const TableSection &section);
    void removeSection(int at);
    /// Equal lines at the beginning and at the end stay; between them lines change in place as long as there are any,
    /// and the rest come or go.
    void replaceSection(int at, const TableSection &section);
    void setRow(const IndexPath &path, const TableRow &row);
    void insertRow(const IndexPath &path, const TableRow &row);
    void removeRow(const IndexPath &path);
    /// To the place that the row has when it was taken out.
    void moveRow(const IndexPath &from, const IndexPath &to);

private:
    [[nodiscard]] int firstLine(int section) const { return firstLines_.at(section); }
    [[nodiscard]] int sectionOf(int line) const;
    void countLines();
    /// With the role named, only places changed, not what is shown.
    void linesChanged(int first, int last, const QList<int> &roles = {});
    void renumbered(int section);
    void renumberedFrom(int section);

    QList<TableSection> sections_;
    QList<int> firstLines_{0}; // of each section, and of one behind the last
};

} // namespace kesto
