#pragma once

#include <memory>

#include "ItemLocalization.h"

namespace orvanta::quick {

class ButtonItem;

/// Localizes an item with the properties text and font by the rules of
/// `orvanta::UILocalizedButton`. The item shows the title of the normal state in all states.
class ButtonLocalization : public ItemLocalization {
  Q_OBJECT
  QML_ELEMENT
  /// Whether "&" in a translation marks a mnemonic. Else it stands for itself.
  Q_PROPERTY(bool mnemonics READ mnemonics WRITE setMnemonics)

 public:
  using ItemLocalization::ItemLocalization;

  [[nodiscard]] bool mnemonics() const { return mnemonics_; }
  void setMnemonics(bool mnemonics);

 protected:
  [[nodiscard]] std::unique_ptr<LocalizedControl> awaken(QQuickItem& item) override;

 private:
  std::shared_ptr<ButtonItem> adapter_;
  bool mnemonics_ = false;
};

}  // namespace orvanta::quick
