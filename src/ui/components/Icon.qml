import QtQuick
import Kesto

/*! One of the program's pictures, in one colour. Photos and the program's own icon keep their colours. */
Image {
    property string name
    property color color: Tokens.colors.icon
    property int size: Tokens.icon

    width: size
    height: size
    sourceSize.width: size
    sourceSize.height: size
    source: name.length > 0 ? "image://kesto/" + encodeURIComponent(name) + "?color=" + color.toString().slice(1) : ""
    fillMode: Image.PreserveAspectFit
    Accessible.ignored: true
}
