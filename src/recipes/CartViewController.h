#pragma once

#include "components/TableViewController.h"

#include <vector>

namespace kesto
{

class PurhaseIngredient;

/// The shopping list: its lines, and outside of editing a row that adds one. A touch ticks a line off.
class CartViewController : public TableViewController
{
    Q_OBJECT
    Q_PROPERTY(qreal headerHeight READ headerHeight NOTIFY contentChanged)
    Q_PROPERTY(QString emptyTitle READ emptyTitle NOTIFY contentChanged)
    Q_PROPERTY(QString emptyMessage READ emptyMessage NOTIFY contentChanged)
public:
    enum Section { LinesSection, AddSection };
    /// Of a height: the table's own.
    static constexpr qreal standard = -1;

    CartViewController();

    [[nodiscard]] int numberOfSections() const override { return isEditing() ? 1 : 2; }
    [[nodiscard]] int numberOfRowsInSection(int section) const override;
    [[nodiscard]] TableRow cellForRow(const IndexPath &path) const override;
    /// In points.
    [[nodiscard]] qreal heightForHeaderInSection(int section) const;
    [[nodiscard]] qreal headerHeight() const { return heightForHeaderInSection(LinesSection); }
    /// What stands in place of the lines; null where there are some.
    [[nodiscard]] QString emptyTitle() const;
    [[nodiscard]] QString emptyMessage() const;

    /// The line of a row; null for other rows and for a line that was deleted elsewhere.
    [[nodiscard]] PurhaseIngredient *pIngAtIndexPath(const IndexPath &path) const;

    void reloadData() override;
    void setEditing(bool editing) override;
    /// Asks, and clears the list.
    void clearCartIntro();
    void clearCart();
    void updateRightBBI();

    /// The user has left the quantity of a line, which its row names by its value: the line may have moved since.
    Q_INVOKABLE void endEditingCount(const QString &line, const QString &text);

Q_SIGNALS:
    void contentChanged();

protected:
    void viewWillAppear() override;
    void didSelectRow(const IndexPath &path) override;
    void textFieldDidEndEditing(const IndexPath &path, int tag, const QString &text) override;
    void commitDelete(const IndexPath &path) override;

private:
    void addProduct();
    void becomeEmpty();

    std::vector<PurhaseIngredient *> content_;
};

} // namespace kesto
