import QtQuick
import Kesto

/*!
    Draws a view controller with the file of its viewName. A table that has no file of its own is drawn row by row; any
    other screen without one is an empty page under its title.
*/
FocusScope {
    id: view

    required property ViewController controller
    readonly property alias item: loader.item

    function fallback(): string {
        if ((controller as NavigationController) !== null)
            return "NavigationView";
        if ((controller as SideMenuContainer) !== null)
            return "SideMenuView";
        if ((controller as SplitViewController) !== null)
            return "SplitView";
        if ((controller as TabBarController) !== null)
            return "TabBarView";
        if ((controller as BKPasscodeViewController) !== null)
            return "BKPasscodeView";
        if ((controller as SearchBarDietTableViewController) !== null)
            return "SearchListView";
        return (controller as TableViewController) !== null ? "TableControllerView" : "PlainView";
    }

    Loader {
        id: loader

        anchors.fill: parent
        focus: true
        onLoaded: (item as Item).focus = true
    }
    Component.onCompleted: {
        controller.attachView();
        const own = ViewLocator.file(controller.viewName);
        loader.setSource(own.length > 0 ? own : ViewLocator.file(fallback()), { controller: controller });
    }
    Component.onDestruction: if (controller) controller.detachView()
}
