#pragma once

#include "components/TableViewController.h"

#include <vector>

namespace kesto
{

class PurhaseIngredient;

/// The shopping list. While it is not being edited, a last row adds a line. A touch ticks a line off.
class CartViewController : public TableViewController
{
    Q_OBJECT
    Q_PROPERTY(qreal headerHeight READ headerHeight NOTIFY contentChanged)
    Q_PROPERTY(QString emptyTitle READ emptyTitle NOTIFY contentChanged)
    Q_PROPERTY(QString emptyMessage READ emptyMessage NOTIFY contentChanged)
public:
    enum Section { LinesSection, AddSection };
    /// As a header's height: the table's default.
    static constexpr qreal standard = -1;

    CartViewController();

    [[nodiscard]] int numberOfSections() const override { return isEditing() ? 1 : 2; }
    [[nodiscard]] int numberOfRowsInSection(int section) const override;
    [[nodiscard]] TableRow cellForRow(const IndexPath &path) const override;
    /// In points, or `standard`.
    [[nodiscard]] qreal heightForHeaderInSection(int section) const;
    [[nodiscard]] qreal headerHeight() const { return heightForHeaderInSection(LinesSection); }
    /// The text shown instead of lines; null when there are lines.
    [[nodiscard]] QString emptyTitle() const;
    [[nodiscard]] QString emptyMessage() const;

    /// The line of a row; null for another kind of row and for a line deleted elsewhere.
    [[nodiscard]] PurhaseIngredient *pIngAtIndexPath(const IndexPath &path) const;

    void reloadData() override;
    void setEditing(bool editing) override;
    /// Clears the list after a confirmation.
    void clearCartIntro();
    void clearCart();
    void updateRightBBI();

Q_SIGNALS:
    void contentChanged();

protected:
    void viewWillAppear() override;
    void didSelectRow(const IndexPath &path, const RowId &id) override;
    void textFieldDidEndEditing(const IndexPath &path, const RowId &id, const QString &text) override;
    void commitDelete(const IndexPath &path, const RowId &id) override;

private:
    void addProduct();
    void becomeEmpty();

    std::vector<PurhaseIngredient *> content_;
};

} // namespace kesto
