import QtQuick
import Kesto

/*! Measures and kind of the selected day, and the way to its journal. */
Column {
    id: view

    required property CalFooterView footer

    spacing: Tokens.unit

    Column {
        width: parent.width

        Repeater {
            model: view.footer.fields

            FieldRow {
                id: row

                required property CalFooterField modelData
                required property int index

                width: view.width
                title: modelData.title
                unit: modelData.unit
                placeholder: modelData.placeholder
                keyboard: Keyboard.Decimal
                available: view.footer.enabled
                first: index === 0
                last: false
                text: modelData.text
                onCommitted: text => view.footer.endEditing(modelData.tag, text)
                onFinished: nextItemInFocusChain(true).forceActiveFocus(Qt.TabFocusReason)
                Component.onCompleted: field.activeFocusOnTab = true
            }
        }
        Item {
            width: parent.width
            height: kinds.height + Tokens.unit

            RowSurface {
                anchors.fill: parent
                first: false
            }
            Flow {
                id: kinds

                x: Tokens.unit
                y: Tokens.half
                width: parent.width - 2 * x
                spacing: Tokens.half

                Repeater {
                    model: view.footer.kindButtons

                    KindButton {
                        required property CalKindButton modelData

                        kind: modelData
                        enabled: view.footer.enabled
                        onClicked: view.footer.buttonTouched(modelData.tag)
                    }
                }
            }
        }
    }
    Button {
        width: parent.width
        primary: true
        enabled: view.footer.enabled
        picture: "7.png"
        text: view.footer.jornalTitle
        onClicked: view.footer.openJornal()
    }
}
