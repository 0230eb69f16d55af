#pragma once

#include "recipes/DishDelegates.h"

#include <QObject>
#include <QSet>

#include <memory>

namespace kesto
{

class Dish;
class DishDetailViewController;

/// Offers a dish to a delegate, which may close the screens. True when the delegate has added it.
[[nodiscard]] bool handOver(Dish &dish, AddDishDelegate &delegate);

/// The part that all lists of dishes share: opening a dish and, in add mode, choosing dishes in the list or in the
/// screens that it opened. Remembers the dishes that were added, so that their check marks are set.
class DishChoice : public QObject, public AddDishDelegate
{
    Q_OBJECT
public:
    [[nodiscard]] bool isAddMode() const { return addMode_; }
    void setAddMode(bool addMode) { addMode_ = addMode; }
    /// The delegate outlives this.
    void setDelegate(AddDishDelegate *delegate) { delegate_ = delegate; }

    /// Offers the dish to the delegate. Does nothing outside add mode.
    void addDish(Dish &dish) override;
    /// Whether the delegate has added this dish.
    [[nodiscard]] bool hasTaken(const Dish &dish) const { return taken_.contains(&dish); }

    /// The screen of a dish. In add mode it is selected at first if the dish is in the day or was added.
    [[nodiscard]] std::unique_ptr<DishDetailViewController> screenOf(Dish &dish, bool inDay, DeleteDishDelegate &list);

Q_SIGNALS:
    /// The delegate has added the dish, or refused it.
    void answered();

private:
    bool addMode_ = false;
    AddDishDelegate *delegate_ = nullptr;
    QSet<const Dish *> taken_;
};

} // namespace kesto
