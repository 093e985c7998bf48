import QtQuick
import QtQuick.Controls
import Orvanta

// A TextField that localizes itself: the text typed into it, and its accessibleName and
// accessibleDescription, are keys. Set `key` to "" once the user has typed.
TextField {
    id: item

    property alias key: localization.key
    property alias accessibleName: localization.accessibleName
    property alias accessibleDescription: localization.accessibleDescription

    Accessible.name: accessibleName || placeholderText
    Accessible.description: accessibleDescription

    TextFieldLocalization {
        id: localization
        target: item
    }
}
