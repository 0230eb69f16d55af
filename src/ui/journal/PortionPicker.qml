import QtQuick
import Kesto

/*! The portions of drink, in one row or in several. */
TileField {
    id: portions

    required property WaterPicker picker

    buttons: picker.buttons
    inRow: 8
    onTouched: tag => picker.touch(tag)
}
