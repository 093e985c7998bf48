#pragma once

#include <memory>

#include <orvanta/platform/Controls.h>

#include "ItemAdapter.h"
#include "ItemLocalization.h"

namespace orvanta::quick {

/// Localizes an item with the properties text, font and horizontalAlignment by the rules of
/// `orvanta::UILocalizedLabel`.
class LabelLocalization : public ItemLocalization {
  Q_OBJECT
  QML_ELEMENT

 public:
  using ItemLocalization::ItemLocalization;

 protected:
  [[nodiscard]] std::unique_ptr<LocalizedControl> awaken(QQuickItem& item) override;
  void mirrored() override { adapter_->renewSide(); }

 private:
  std::shared_ptr<TextItem<platform::Label>> adapter_;
};

}  // namespace orvanta::quick
