import QtQuick
import Kesto

/*! The screens of a tab container, of which the selected one shows, over its tabs. */
FocusScope {
    id: view

    required property TabBarController controller

    TabPages {
        anchors.top: parent.top
        anchors.bottom: bar.top
        width: parent.width
        focus: true
        screens: view.controller.viewControllers
        selected: view.controller.selectedIndex
    }
    TabBar {
        id: bar

        anchors.bottom: parent.bottom
        width: parent.width
        title: view.controller.title
        screens: view.controller.viewControllers
        selected: view.controller.selectedIndex
        onChosen: index => view.controller.selectedIndex = index
    }
}
