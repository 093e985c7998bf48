#include "contenders/QtListeners.h"

#include "contenders/QtTranslations.h"

namespace orvanta::bench::qt {

void Listener::refresh() {
  text_ = find(*current_, key_);
}

}  // namespace orvanta::bench::qt
