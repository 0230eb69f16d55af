import QtQuick
import Kesto

/*! The tile of a dish: its photo or its category's drawing, its name, the phases that allow it. */
Tile {
    id: cell

    required property int index
    required title
    required picture
    required mark
    required markers
    required property string phases
    required checkable
    required checked
    required property DishesViewController controller
    /*! The grid that the tile is in. */
    required property TileGrid tiles

    width: tiles.cellWidth
    height: tiles.cellHeight
    meaning: phases
    markerColors: controller.markerColors
    lineHeight: tiles.lineHeight
    drawing: controller.categoryIndex >= 0 && controller.categoryIndex < 9 ? controller.categoryIndex + "_recipes_icon" : "3_recipes_icon"
    shade: Tokens.shadeOf(controller.categoryIndex)
    ink: Tokens.inkOf(controller.categoryIndex)
    current: GridView.isCurrentItem && tiles.keyboardShown
    onTouched: tiles.touched(index)
    onActivated: controller.selectItem(index)
    onCheckTouched: controller.selectDishButtonTouchedAtIndexPath(index)
}
