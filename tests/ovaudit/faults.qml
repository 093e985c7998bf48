import QtQuick
import QtQuick.Controls
import Orvanta

Item {
  width: 400; height: 240
  LocalizedLabel { objectName: "cutLabel"; key: "cut"; x: 10; y: 10; width: 70 }
  LocalizedLabel { objectName: "elidedLabel"; key: "cut"; x: 10; y: 40; width: 70; elide: Text.ElideRight }
  LocalizedLabel { objectName: "wrappedLabel"; key: "wrapped"; x: 10; y: 70; width: 90; height: 54; wrapMode: Text.Wrap }
  Text { objectName: "leftLabel"; text: Orvanta.text("left"); x: 150; y: 10; width: 200; horizontalAlignment: Text.AlignLeft }
  LocalizedLabel { objectName: "firstLabel"; key: "first"; x: 150; y: 40 }
  LocalizedLabel { objectName: "secondLabel"; key: "second"; x: 190; y: 44 }
  LocalizedTextField { objectName: "field"; text: "field"; x: 150; y: 80; width: 90 }
  LocalizedButton { objectName: "button"; text: "button"; x: 260; y: 80; width: 100 }
  LocalizedLabel { objectName: "glyphLabel"; key: "glyph"; x: 150; y: 130 }
  Item { x: 330; y: 160; width: 50; height: 30; clip: true
         LocalizedLabel { objectName: "outsideLabel"; key: "outside" } }
}
