#pragma once

#include <cstddef>
#include <memory>
#include <span>

#include <orvanta/Export.h>
#include <orvanta/platform/Font.h>
#include <orvanta/text/String.h>

namespace orvanta::platform {

/// How heavy a face of the system font is, on the device's scale from -1 to 1.
using FontWeight = double;
inline constexpr FontWeight kFontWeightRegular = 0.0;
inline constexpr FontWeight kFontWeightBold = 0.4;

/// The platform's fonts. Used from the user-interface thread.
class ORVANTA_EXPORT FontSystem {
 public:
  virtual ~FontSystem();
  FontSystem(const FontSystem&) = delete;
  FontSystem& operator=(const FontSystem&) = delete;

  /// The face of a PostScript name at a size; absent for a name that is not known, never a
  /// substitute.
  [[nodiscard]] virtual std::shared_ptr<const Font> fontWithName(const String& name,
                                                                 double size) = 0;

  /// The face that the system's own texts are in.
  [[nodiscard]] virtual std::shared_ptr<const Font> systemFontOfSize(double size,
                                                                     FontWeight weight) = 0;

  /// Makes the font in a font file's bytes known to this process, under the PostScript name written
  /// in it. False, with nothing changed, when the bytes are no font or its name is known already.
  /// The bytes are not needed after the call.
  virtual bool registerFontData(std::span<const std::byte> data) = 0;

 protected:
  FontSystem() = default;
};

}  // namespace orvanta::platform
