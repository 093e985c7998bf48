#include <orvanta/platform/LocaleData.h>

namespace orvanta::platform {

LocaleData::~LocaleData() = default;

std::string LocaleData::localizedNumber(std::string_view plainDigits,
                                        const String& /*locale*/) const {
  return std::string(plainDigits);
}

}  // namespace orvanta::platform
