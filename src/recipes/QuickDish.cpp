#include "recipes/QuickDish.h"

#include "components/AlertCenter.h"
#include "model/Dish.h"
#include "platform/StringTables.h"
#include "store/CoreDataManager.h"

namespace kesto
{

namespace
{

enum Button { CancelButton, AddButton, AddToCartButton };

} // namespace

void askForQuickDish(QObject *context, const std::function<void(Dish &)> &add)
{
    Alert alert;
    alert.title = localized(QStringLiteral("Добавить быстрое блюдо"));
    alert.textField = Alert::TextField{.placeholder = localized(QStringLiteral("Название блюда"))};
    alert.buttons = {{localized(QStringLiteral("Отменить")), Alert::Role::Cancel},
                     {localized(QStringLiteral("Добавить"))},
                     {localized(QStringLiteral("Добавить, и внести в корзину"))}};
    alert.context = context;
    alert.answered = [add](const AlertAnswer &answer) {
        if (answer.buttonIndex == CancelButton || answer.text.isEmpty())
            return;
        CoreDataManager &manager = CoreDataManager::sharedManager();
        auto &dish = manager.managedObjectContext()->insert<Dish>();
        dish.setNameENG(answer.text);
        dish.setNameRU(answer.text);
        add(dish);
        if (answer.buttonIndex == AddToCartButton)
            manager.addIngredientToCard(dish.nameENG());
    };
    AlertCenter::sharedCenter().show(std::move(alert));
}

} // namespace kesto
