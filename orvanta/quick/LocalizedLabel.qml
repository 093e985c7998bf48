import QtQuick
import QtQuick.Controls
import Orvanta

// A Label that localizes itself: the text typed into it, and its accessibleName and
// accessibleDescription, are keys. Set `key` to change the key, or to bind it.
Label {
    id: item

    property alias key: localization.key
    property alias accessibleName: localization.accessibleName
    property alias accessibleDescription: localization.accessibleDescription

    textFormat: Text.PlainText
    Accessible.name: accessibleName || text
    Accessible.description: accessibleDescription

    LabelLocalization {
        id: localization
        target: item
    }
}
