import QtQuick
import QtQuick.Controls
import Orvanta

// A Button that localizes itself: the text typed into it, and its accessibleName and
// accessibleDescription, are keys. "&" in a translation stands for itself unless `mnemonics` is set.
Button {
    id: item

    property alias key: localization.key
    property alias accessibleName: localization.accessibleName
    property alias accessibleDescription: localization.accessibleDescription
    property alias mnemonics: localization.mnemonics

    Accessible.name: accessibleName || text
    Accessible.description: accessibleDescription

    ButtonLocalization {
        id: localization
        target: item
    }
}
