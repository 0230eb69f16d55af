import QtQuick
import Kesto

/*! A dish as a page to cook from. */
FocusScope {
    id: view

    required property DishDetailViewController controller

    function scroll(by: real): void {
        page.contentY = Math.max(0, Math.min(Math.max(0, page.contentHeight - page.height), page.contentY + by));
    }

    Background { anchors.fill: parent }
    Flickable {
        id: page

        anchors.fill: parent
        focus: true
        activeFocusOnTab: true
        contentHeight: content.height + 2 * Tokens.margin
        flickableDirection: Flickable.VerticalFlick
        boundsBehavior: Flickable.StopAtBounds
        Accessible.role: Accessible.Document
        Accessible.name: view.controller.name
        Keys.onPressed: event => {
            switch (event.key) {
            case Qt.Key_Up: view.scroll(-Tokens.rowHeight); break;
            case Qt.Key_Down: view.scroll(Tokens.rowHeight); break;
            case Qt.Key_PageUp: view.scroll(-0.9 * page.height); break;
            case Qt.Key_Space:
            case Qt.Key_PageDown: view.scroll(0.9 * page.height); break;
            case Qt.Key_Home: view.scroll(-page.contentHeight); break;
            case Qt.Key_End: view.scroll(page.contentHeight); break;
            default: return;
            }
            event.accepted = true;
        }

        ScrollBar { view: page }
        Column {
            id: content

            x: (page.width - width) / 2
            y: Tokens.margin
            width: Math.min(page.width - 2 * Tokens.margin, Tokens.readableWidth)
            spacing: Tokens.gap

            Rectangle {
                width: parent.width
                height: head.height + Tokens.margin
                radius: Tokens.radius
                color: Tokens.colors.surface

                Column {
                    id: head

                    width: parent.width
                    spacing: Tokens.gap

                    DishPicture {
                        width: parent.width
                        photo: view.controller.picture
                        icon: view.controller.categoryPicture
                        name: Texts.localized("Photo of the dish") + ": " + view.controller.name
                        onTouched: view.controller.showImage()
                    }
                    Label {
                        x: Tokens.margin
                        width: parent.width - 2 * Tokens.margin
                        visible: text.length > 0
                        text: view.controller.name
                        font.pixelSize: Tokens.textLarge
                        font.weight: Font.Medium
                        Accessible.ignored: false
                        Accessible.role: Accessible.Heading
                        Accessible.name: text
                    }
                    Flow {
                        x: Tokens.margin
                        width: parent.width - 2 * Tokens.margin
                        visible: view.controller.badges.length > 0
                        spacing: Tokens.unit

                        Repeater {
                            model: view.controller.badges

                            Badge {
                                required property var modelData

                                text: modelData.text
                                tone: modelData.color ?? Tokens.colors.separator
                            }
                        }
                    }
                    Rectangle {
                        x: Tokens.margin
                        width: parent.width - 2 * Tokens.margin
                        height: Tokens.hairline
                        color: Tokens.colors.separator
                    }
                    Column {
                        x: Tokens.margin
                        width: parent.width - 2 * Tokens.margin
                        visible: view.controller.ingredients.length > 0
                        spacing: Tokens.unit

                        Repeater {
                            model: view.controller.ingredients

                            Item {
                                id: line

                                required property string modelData

                                width: parent ? parent.width : 0
                                height: ingredient.height
                                Accessible.role: Accessible.ListItem
                                Accessible.name: modelData

                                Rectangle {
                                    y: (Tokens.textBody * 1.3 - height) / 2
                                    width: Tokens.bullet
                                    height: Tokens.bullet
                                    radius: width / 2
                                    color: Tokens.colors.accent
                                }
                                Label {
                                    id: ingredient

                                    x: Tokens.margin
                                    width: parent.width - x
                                    text: line.modelData
                                }
                            }
                        }
                    }
                }
            }
            Rectangle {
                width: parent.width
                height: recipe.height + 2 * Tokens.margin
                visible: recipe.text.length > 0
                radius: Tokens.radius
                color: Tokens.colors.surface

                Label {
                    id: recipe

                    x: Tokens.margin
                    y: Tokens.margin
                    width: parent.width - 2 * Tokens.margin
                    text: view.controller.recipe
                    lineHeight: 1.2
                    Accessible.ignored: false
                    Accessible.role: Accessible.Paragraph
                    Accessible.name: text
                }
            }
            Rectangle {
                width: parent.width
                height: remove.height
                visible: view.controller.deleteTitle.length > 0
                radius: Tokens.radius
                color: Tokens.colors.surface

                Button {
                    id: remove

                    objectName: "dish/delete"
                    width: parent.width
                    destructive: true
                    text: view.controller.deleteTitle
                    onClicked: view.controller.deleteDishIntro()
                    onActiveFocusChanged: if (activeFocus) view.scroll(page.contentHeight)
                }
            }
        }
    }
}
