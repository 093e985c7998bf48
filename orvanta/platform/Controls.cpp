#include <orvanta/platform/Controls.h>

namespace orvanta::platform {

Accessible::~Accessible() = default;
TextStyle::~TextStyle() = default;

}  // namespace orvanta::platform
