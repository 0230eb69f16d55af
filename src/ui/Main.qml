import QtQuick
import Kesto

Window {
    id: root

    required property AppWindow appWindow
    required property AlertCenter alertCenter
    required property ProgressIndicator progress

    width: 390
    height: 844
    minimumWidth: 320
    minimumHeight: 480
    visible: true
    color: Tokens.colors.page
    title: Qt.application.name

    AppShell {
        id: shell

        anchors.fill: parent
        focus: true
        appWindow: root.appWindow
        alertCenter: root.alertCenter
        progress: root.progress
    }
}
