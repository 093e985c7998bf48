#pragma once

#include <cstddef>
#include <memory>
#include <span>

#include <orvanta/Export.h>
#include <orvanta/platform/Font.h>
#include <orvanta/text/String.h>

namespace orvanta::platform {

/// How heavy a face of the system font is, on a scale from -1 to 1.
using FontWeight = double;
/// The weight of running text.
inline constexpr FontWeight kFontWeightRegular = 0.0;
/// The weight of bold text.
inline constexpr FontWeight kFontWeightBold = 0.4;

/// The platform's fonts. Used on the main thread. Sizes are in points.
class ORVANTA_EXPORT FontSystem {
 public:
  virtual ~FontSystem();
  FontSystem(const FontSystem&) = delete;
  FontSystem& operator=(const FontSystem&) = delete;

  /// The face of a PostScript name at a size. Null for a name that is absent or not known, never a
  /// substitute.
  [[nodiscard]] virtual std::shared_ptr<const Font> fontWithName(const String& name,
                                                                 double size) const = 0;

  /// The face of the system's own texts. Null while the toolkit cannot provide fonts.
  [[nodiscard]] virtual std::shared_ptr<const Font> systemFontOfSize(double size,
                                                                     FontWeight weight) const = 0;

  /// Makes the font in the bytes of a font file known to this process, under the PostScript name
  /// written in it. False, with nothing changed, when the bytes are no font or its name is known
  /// already. The bytes are not needed after the call.
  virtual bool registerFontData(std::span<const std::byte> data) = 0;

 protected:
  FontSystem() = default;
};

}  // namespace orvanta::platform
