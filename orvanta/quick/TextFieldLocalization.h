#pragma once

#include <memory>

#include "ItemLocalization.h"

namespace orvanta::quick {

class TextFieldItem;

/// Localizes an item with the properties text, placeholderText, font and horizontalAlignment by the
/// rules of `orvanta::UILocalizedTextField`.
class TextFieldLocalization : public ItemLocalization {
  Q_OBJECT
  QML_ELEMENT

 public:
  using ItemLocalization::ItemLocalization;

 protected:
  [[nodiscard]] std::unique_ptr<LocalizedControl> awaken(QQuickItem& item) override;
  void mirrored() override;

 private:
  std::shared_ptr<TextFieldItem> adapter_;
};

}  // namespace orvanta::quick
