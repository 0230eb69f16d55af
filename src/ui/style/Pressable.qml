import QtQuick
import Kesto

/*! A button without a look; every push button is one. */
PressArea {
    Accessible.role: Accessible.Button
    Accessible.pressed: down
    Accessible.onPressAction: if (enabled) clicked()
}
