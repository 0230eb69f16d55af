import QtQuick
import Kesto
import KestoTest

/*! The whole interface in the size of a phone, with ways to look into it. */
AppShell {
    id: stage

    width: 390
    height: 844
    appWindow: Samples.appWindow
    alertCenter: Samples.alertCenter
    progress: Samples.progress

    /*! The items below one that a test wants. */
    function all(item, wanted) {
        let found = wanted(item) ? [item] : [];
        for (let i = 0; i < item.children.length; ++i)
            found = found.concat(all(item.children[i], wanted));
        return found;
    }
    /*! Tables that can be seen and touched. */
    function tables() {
        return all(stage, item => item.objectName === "list" && item.visible && item.enabled);
    }
}
