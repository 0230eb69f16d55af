import QtQuick
import Kesto

/*! Measures and kind of the selected day, and the way to its journal. */
Column {
    id: view

    required property CalFooterView footer

    /*! The keys are free: the last field is filled, or the user left one by Escape. */
    signal finished

    function next(index: int): void {
        const row = fields.itemAt(index + 1) as FieldRow;
        if (row)
            row.field.forceActiveFocus(Qt.TabFocusReason);
        else
            finished();
    }

    spacing: Tokens.unit

    Column {
        width: parent.width

        Repeater {
            id: fields

            readonly property real unitWidth: {
                let widest = 0;
                for (let i = 0; i < count; ++i)
                    widest = Math.max(widest, (itemAt(i) as FieldRow)?.naturalUnitWidth ?? 0);
                return widest;
            }

            model: view.footer.fields

            FieldRow {
                required property CalFooterField modelData
                required property int index

                width: view.width
                title: modelData.title
                unit: modelData.unit
                unitWidth: fields.unitWidth
                placeholder: modelData.placeholder
                keyboard: Keyboard.Decimal
                available: view.footer.enabled
                first: index === 0
                last: false
                text: modelData.text
                onCommitted: (subject, text) => view.footer.endEditing(modelData.tag, text)
                onFinished: entered => entered ? view.next(index) : view.finished()
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

                        width: Math.min(implicitWidth, kinds.width)
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
