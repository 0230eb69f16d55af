#pragma once

#include "recipes/DishDelegates.h"

#include <QObject>
#include <QSet>

#include <memory>

namespace kesto
{

class Dish;
class DishDetailViewController;

/// Gives a dish to a delegate, which may close the screens. Whether it took it: the dish then has a place more.
[[nodiscard]] bool handOver(Dish &dish, AddDishDelegate &delegate);

/// What the lists of dishes have in common: they open the screens of their dishes, and in add mode dishes are chosen in
/// the list or in the screens that it opened. Remembers what was taken, for its check mark to tell that the touch was
/// heard.
class DishChoice : public QObject, public AddDishDelegate
{
    Q_OBJECT
public:
    [[nodiscard]] bool isAddMode() const { return addMode_; }
    void setAddMode(bool addMode) { addMode_ = addMode; }
    /// Outlives this.
    void setDelegate(AddDishDelegate *delegate) { delegate_ = delegate; }

    /// Passes the dish on; nothing outside of add mode.
    void addDish(Dish &dish) override;
    /// Whether the delegate has taken this dish.
    [[nodiscard]] bool hasTaken(const Dish &dish) const { return taken_.contains(&dish); }

    /// The screen of a dish of a list. In add mode it starts selected when the dish is in the day or was taken.
    [[nodiscard]] std::unique_ptr<DishDetailViewController> screenOf(Dish &dish, bool inDay, DeleteDishDelegate &list);

Q_SIGNALS:
    /// The delegate has taken the dish, or refused it.
    void answered();

private:
    bool addMode_ = false;
    AddDishDelegate *delegate_ = nullptr;
    QSet<const Dish *> taken_;
};

} // namespace kesto
