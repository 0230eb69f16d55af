import QtQuick
import Kesto

/*!
    An open journal. On a phone one tab at a time; on a tablet the schedule beside another tab, or beside the editor of one
    of its rows. Page Up and Page Down lead to the day before and to the day after.
*/
FocusScope {
    id: view

    required property JornalTabBarController controller

    /*! What is being typed is stored first: it belongs to the day that is left. */
    function go(by: int): void {
        keys.forceActiveFocus(Qt.OtherFocusReason);
        if (by < 0)
            controller.helper.goToPrevisiousDay();
        else
            controller.helper.goToNextDay();
        loader.forceActiveFocus(Qt.OtherFocusReason);
    }

    Item { id: keys }
    Loader {
        id: loader

        anchors.fill: parent
        focus: true
        sourceComponent: view.controller.sideBySide ? tablet : phone
    }
    Shortcut {
        sequence: "PgUp"
        enabled: view.enabled && view.controller.isVisible
        onActivated: view.go(-1)
    }
    Shortcut {
        sequence: "PgDown"
        enabled: view.enabled && view.controller.isVisible
        onActivated: view.go(1)
    }
    Component {
        id: phone

        TabBarView {
            focus: true
            controller: view.controller
        }
    }
    Component {
        id: tablet

        FocusScope {
            id: sides

            readonly property real middle: Math.round(width * 0.5)

            focus: true

            ControllerView {
                width: sides.middle
                height: parent.height
                focus: true
                controller: view.controller.shedule
            }
            Rectangle {
                x: sides.middle
                z: 1
                width: Tokens.hairline
                height: parent.height
                color: Tokens.colors.separator
            }
            FocusScope {
                x: sides.middle
                width: parent.width - x
                height: parent.height

                TabPages {
                    width: parent.width
                    anchors.top: parent.top
                    anchors.bottom: bar.top
                    focus: !editor.visible
                    visible: !editor.visible
                    screens: view.controller.viewControllers.slice(1)
                    selected: view.controller.besideIndex - 1
                }
                Swap {
                    id: editor

                    width: parent.width
                    anchors.top: parent.top
                    anchors.bottom: bar.top
                    visible: view.controller.editor !== null
                    focus: visible
                    controller: view.controller.editor
                }
                TabBar {
                    id: bar

                    anchors.bottom: parent.bottom
                    width: parent.width
                    title: view.controller.title
                    screens: view.controller.viewControllers.slice(1)
                    selected: editor.visible ? -1 : view.controller.besideIndex - 1
                    onChosen: index => view.controller.showTab(index + 1)
                }
            }
        }
    }
}
