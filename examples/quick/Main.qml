import QtQuick
import QtQuick.Controls
import QtQuick.Layouts
import Orvanta

ApplicationWindow {
    visible: true
    width: 360
    height: 280
    title: Orvanta.text("tickets.title")
    font: Orvanta.font(Qt.font({family: Application.font.family, pointSize: 11}))

    LayoutMirroring.enabled: Orvanta.rightToLeft
    LayoutMirroring.childrenInherit: true

    ColumnLayout {
        anchors.fill: parent
        anchors.margins: 20

        LocalizedLabel {
            text: "tickets.title"
            font.pointSize: 16
            font.bold: true
            Layout.fillWidth: true
        }
        TextField {
            placeholderText: Orvanta.text("tickets.name")
            Layout.fillWidth: true
        }
        SpinBox {
            id: count
            value: 2
        }
        Label {
            text: Orvanta.message("tickets.count", {count: count.value})
            Layout.fillWidth: true
        }
        LocalizedButton {
            text: "tickets.buy"
            accessibleDescription: "tickets.buy.hint"
        }
        ComboBox {
            model: Orvanta.languages
            textRole: "name"
            valueRole: "identifier"
            onActivated: Orvanta.setLanguage(currentValue)
            Component.onCompleted: currentIndex = indexOfValue(Orvanta.locales[0])
        }
    }
}
