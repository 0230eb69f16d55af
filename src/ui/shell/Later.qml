import QtQuick

/*! What is made when it is first needed, and stays. Its file is not even read before. */
Loader {
    id: later

    required property bool needed
    required property string file
    /*! The properties that it is made with. */
    required property var content

    function make(): void {
        if (needed && status === Loader.Null)
            setSource(file, content);
    }

    onNeededChanged: make()
    onLoaded: (item as Item).focus = true
    Component.onCompleted: make()
}
