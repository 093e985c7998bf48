import QtQuick
import QtQuick.Controls
import Orvanta

ApplicationWindow {
  width: 400; height: 240
  Column {
    LocalizedLabel { key: "cut"; width: 300 }
    LocalizedLabel { key: "wrapped"; width: 300; wrapMode: Text.Wrap }
    LocalizedTextField { text: "field"; width: 300 }
    LocalizedButton { text: "button" }
    Text { text: Orvanta.text("left") }
  }
}
