import QtQuick
import Kesto

/*! The records of a day, as high as they are; what they are in scrolls. */
RowTable {
    required property BalanceRootViewController balance

    controller: balance
    height: visible ? list.contentHeight + topMargin + bottomMargin : 0
    visible: balance.hasRows
    topMargin: 0
    list.interactive: false
}
