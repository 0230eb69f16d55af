#include "recipes/DishDetailViewController.h"

#include "components/AlertCenter.h"
#include "components/NavigationController.h"
#include "components/PopoverController.h"
#include "components/Window.h"
#include "model/Dish.h"
#include "model/DishesCategory.h"
#include "model/Ingredient.h"
#include "platform/StringTables.h"
#include "recipes/DishChoice.h"
#include "recipes/ImageViewController.h"
#include "store/CoreDataManager.h"
#include "util/ImageFiles.h"
#include "util/TypedNumber.h"

#include <QPointer>
#include <QVariantMap>

namespace kesto
{

namespace
{

constexpr QSizeF imageSize(640, 560);
constexpr quint32 categories = 9; // only these have icons

QVariantList badgesOf(const QString &dietPeriod)
{
    QVariantList badges;
    if (dietPeriod.isNull())
        return badges;
    for (const QString &piece : dietPeriod.split(QStringLiteral(", "))) {
        const int period = integerValue(piece);
        const std::optional<QColor> color = CoreDataManager::colorForPeriod(period);
        badges.append(QVariantMap{{QStringLiteral("text"), CoreDataManager::periodNameForDietPeriod(period)},
                                  {QStringLiteral("color"), color ? QVariant(*color) : QVariant()}});
    }
    return badges;
}

} // namespace

DishDetailViewController::DishDetailViewController() { setTitle(localized(QStringLiteral("Рецепт"))); }

void DishDetailViewController::setDish(Dish *dish)
{
    if (dish_ == dish)
        return;
    dish_ = dish;
    if (hasDish())
        buildUI();
}

bool DishDetailViewController::hasDish() const { return dish_ != nullptr && !dish_->isDeleted(); }

void DishDetailViewController::buildUI()
{
    picture_ = photoNamed(dish_->dishID());
    const DishesCategory *category = dish_->dishCategory();
    categoryPicture_ = category != nullptr && category->displayOrder().value_or(categories) < categories
                           ? QStringLiteral("%1_recipes_icon").arg(*category->displayOrder())
                           : QString();
    name_ = dish_->displayName();
    badges_ = badgesOf(dish_->dietPeriod());
    ingredients_.clear();
    for (const Ingredient *line : dish_->ingredients())
        ingredients_.append(line->name());
    recipe_ = dish_->valueForKey(localized(QStringLiteral("recipeKey"))).toString();
    recipe_.replace(QStringLiteral(". "), QStringLiteral(".\n\n"));
    deleteTitle_ = dish_->userCreated() ? localized(QStringLiteral("Удалить блюдо")) : QString();
    if (!addDishMode_)
        updateFavoriteBBI();
    Q_EMIT contentChanged();
}

void DishDetailViewController::viewWillAppear()
{
    ViewController::viewWillAppear();
    if (!dish_ || addDishMode_)
        return;
    if (hasDish())
        updateFavoriteBBI();
    else
        setRightBarButtonItems({});
}

void DishDetailViewController::setAddDishMode(bool addDishMode)
{
    addDishMode_ = addDishMode;
    if (addDishMode)
        showCheckmark();
    else if (hasDish())
        updateFavoriteBBI();
}

void DishDetailViewController::setAlreadySelectedInDietDay(bool selected)
{
    alreadySelectedInDietDay_ = selected;
    if (addDishMode_)
        showCheckmark();
}

void DishDetailViewController::showCheckmark()
{
    auto button = BarButtonItem::withImage(alreadySelectedInDietDay_ ? QStringLiteral("checkmarkButton_selected.png")
                                                                     : QStringLiteral("checkmarkButton.png"),
                                           [this] { buttonTouched(); });
    button->setHighlightedImage(QStringLiteral("checkmarkButton_higlihted.png"));
    button->setAccessibleName(localized(QStringLiteral("checkmarkButton")));
    setRightBarButtonItem(std::move(button));
}

void DishDetailViewController::buttonTouched()
{
    if (delegate_ == nullptr || !hasDish())
        return;
    const QPointer<DishDetailViewController> alive(this); // the delegate may close the screens
    if (handOver(*dish_, *delegate_) && alive)
        setAlreadySelectedInDietDay(true);
}

void DishDetailViewController::updateFavoriteBBI()
{
    BarButtonItems items;
    items.push_back(FavoritesManager::sharedManager().favoriteBarButtonItemForItem(*dish_, this));
    items.push_back(BarButtonItem::withImage(QStringLiteral("cartBBI.png"), [this] { addToCart(); }));
    setRightBarButtonItems(std::move(items));
}

void DishDetailViewController::addToFavorite()
{
    if (!hasDish())
        return;
    FavoritesManager::sharedManager().addDishToFavorite(*dish_);
    updateFavoriteBBI();
}

void DishDetailViewController::removeFromFavorite()
{
    if (!hasDish())
        return;
    FavoritesManager::sharedManager().removeDishFromFavorite(*dish_);
    updateFavoriteBBI();
}

void DishDetailViewController::addToCart()
{
    if (!hasDish())
        return;
    for (const Ingredient *line : dish_->ingredients()) {
        if (!line->name().isEmpty())
            CoreDataManager::sharedManager().addIngredientToCard(line->name());
    }
    showAlert(localized(QStringLiteral("Блюдо было успешно добавлено в корзину")), {});
}

void DishDetailViewController::deleteDishIntro()
{
    AlertCenter::sharedCenter().show(
        {.style = Alert::Style::ActionSheet,
         .title = localized(QStringLiteral("Вы действительно хотите удалить ваше блюдо?")),
         .buttons = {{localized(QStringLiteral("Отменить")), Alert::Role::Cancel},
                     {localized(QStringLiteral("Удалить блюдо")), Alert::Role::Destructive}},
         .anchor = QStringLiteral("dish/delete"),
         .context = this,
         .answered = [this](const AlertAnswer &answer) {
             if (!answer.isCancel)
                 deleteDish();
         }});
}

void DishDetailViewController::deleteDish()
{
    if (hasDish()) {
        CoreDataManager::sharedManager().deleteDish(*dish_);
        if (deleteDishDelegate_ != nullptr)
            deleteDishDelegate_->dishDeleted();
    }
    close();
}

void DishDetailViewController::showImage()
{
    if (!picture_.isEmpty())
        showImageNamed(picture_.section(u'.', 0, -2));
}

void DishDetailViewController::showImageNamed(const QString &imageName)
{
    auto image = std::make_unique<ImageViewController>(imageName, name_);
    if (Window::sharedWindow().isTablet())
        presentPopover(std::move(image), QStringLiteral("dish/image"))->setSizeHint(imageSize);
    else if (NavigationController *navigation = navigationController())
        navigation->pushViewController(std::move(image), true);
}

} // namespace kesto
