#include <orvanta/controls/UILocalizedLabel.h>
#include <orvanta/quick/LabelLocalization.h>

namespace orvanta::quick {

std::unique_ptr<LocalizedControl> LabelLocalization::awaken(QQuickItem& item) {
  adapter_ = std::make_shared<TextItem<platform::Label>>(*this, item);
  auto control = std::make_unique<UILocalizedLabel>(adapter_);
  control->awakeFromNib();
  return control;
}

}  // namespace orvanta::quick
