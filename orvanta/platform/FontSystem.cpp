#include <orvanta/platform/FontSystem.h>

namespace orvanta::platform {

Font::~Font() = default;
FontSystem::~FontSystem() = default;

}  // namespace orvanta::platform
