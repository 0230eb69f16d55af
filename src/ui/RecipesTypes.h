#pragma once

#include "recipes/CartViewController.h"
#include "recipes/DishDetailViewController.h"
#include "recipes/DishTiles.h"
#include "recipes/DishesViewController.h"
#include "recipes/FavoritesViewController.h"
#include "recipes/ImageViewController.h"

#include <QtQml/qqmlregistration.h>

/// The classes of the recipes as QML knows them. They are made in C++ only.
namespace kesto::qml
{

struct CartViewControllerType
{
    Q_GADGET
    QML_FOREIGN(kesto::CartViewController)
    QML_NAMED_ELEMENT(CartViewController)
    QML_UNCREATABLE("made in C++")
};

struct DishDetailViewControllerType
{
    Q_GADGET
    QML_FOREIGN(kesto::DishDetailViewController)
    QML_NAMED_ELEMENT(DishDetailViewController)
    QML_UNCREATABLE("made in C++")
};

struct ImageViewControllerType
{
    Q_GADGET
    QML_FOREIGN(kesto::ImageViewController)
    QML_NAMED_ELEMENT(ImageViewController)
    QML_UNCREATABLE("made in C++")
};

struct DishTilesType
{
    Q_GADGET
    QML_FOREIGN(kesto::DishTiles)
    QML_NAMED_ELEMENT(DishTiles)
    QML_UNCREATABLE("made in C++")
};

struct DishesViewControllerType
{
    Q_GADGET
    QML_FOREIGN(kesto::DishesViewController)
    QML_NAMED_ELEMENT(DishesViewController)
    QML_UNCREATABLE("made in C++")
};

struct FavoritesViewControllerType
{
    Q_GADGET
    QML_FOREIGN(kesto::FavoritesViewController)
    QML_NAMED_ELEMENT(FavoritesViewController)
    QML_UNCREATABLE("made in C++")
};

} // namespace kesto::qml
