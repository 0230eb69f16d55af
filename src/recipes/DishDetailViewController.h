#pragma once

#include "components/ViewController.h"
#include "recipes/DishDelegates.h"
#include "recipes/FavoritesManager.h"

#include <QStringList>
#include <QVariantList>

namespace kesto
{

class Dish;

/// One dish: picture, name, phases, ingredients and recipe. Shows the dish as it was when it was set. A dish that is
/// deleted meanwhile can still be read, but its buttons do nothing.
class DishDetailViewController : public ViewController, public FavoriteTarget
{
    Q_OBJECT
    Q_PROPERTY(QString picture READ picture NOTIFY contentChanged)
    Q_PROPERTY(QString categoryPicture READ categoryPicture NOTIFY contentChanged)
    Q_PROPERTY(QString name READ name NOTIFY contentChanged)
    Q_PROPERTY(QVariantList badges READ badges NOTIFY contentChanged)
    Q_PROPERTY(QStringList ingredients READ ingredients NOTIFY contentChanged)
    Q_PROPERTY(QString recipe READ recipe NOTIFY contentChanged)
    Q_PROPERTY(QString deleteTitle READ deleteTitle NOTIFY contentChanged)
public:
    DishDetailViewController();

    [[nodiscard]] Dish *dish() const { return dish_; }
    void setDish(Dish *dish);
    void setAlreadySelectedInDietDay(bool selected);
    void setAddDishMode(bool addDishMode);
    /// Both outlive this or are null.
    void setDelegate(AddDishDelegate *delegate) { delegate_ = delegate; }
    void setDeleteDishDelegate(DeleteDishDelegate *delegate) { deleteDishDelegate_ = delegate; }

    /// The photo; null where the dish has none.
    [[nodiscard]] QString picture() const { return picture_; }
    /// The icon of the dish's category; null without one.
    [[nodiscard]] QString categoryPicture() const { return categoryPicture_; }
    [[nodiscard]] QString name() const { return name_; }
    /// {text, color} for each phase of the dish; a number that is no phase has neither.
    [[nodiscard]] const QVariantList &badges() const { return badges_; }
    /// One ingredient per line.
    [[nodiscard]] const QStringList &ingredients() const { return ingredients_; }
    /// One paragraph per sentence.
    [[nodiscard]] QString recipe() const { return recipe_; }
    /// The title of the button that deletes a dish; null unless the user made the dish.
    [[nodiscard]] QString deleteTitle() const { return deleteTitle_; }

    /// Offers the dish to the delegate.
    void buttonTouched();
    void updateFavoriteBBI();
    void addToFavorite() override;
    void removeFromFavorite() override;
    /// Adds every ingredient to the shopping list.
    void addToCart();
    /// Deletes the dish after a confirmation.
    Q_INVOKABLE void deleteDishIntro();
    void deleteDish();
    /// Opens the photo at full size. Does nothing without a photo.
    Q_INVOKABLE void showImage();
    /// Opens a picture at full size.
    void showImageNamed(const QString &imageName);

Q_SIGNALS:
    void contentChanged();

protected:
    void viewWillAppear() override;

private:
    void buildUI();
    void showCheckmark();
    /// Whether there is a dish that was not deleted.
    [[nodiscard]] bool hasDish() const;

    Dish *dish_ = nullptr;
    AddDishDelegate *delegate_ = nullptr;
    DeleteDishDelegate *deleteDishDelegate_ = nullptr;
    bool addDishMode_ = false;
    bool alreadySelectedInDietDay_ = false;
    QString picture_;
    QString categoryPicture_;
    QString name_;
    QVariantList badges_;
    QStringList ingredients_;
    QString recipe_;
    QString deleteTitle_;
};

} // namespace kesto
