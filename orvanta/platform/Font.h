#pragma once

#include <cstdint>
#include <memory>

#include <orvanta/Export.h>
#include <orvanta/text/String.h>

namespace orvanta::platform {

/// The style bits of a font. Bits without a constant here are kept and mean nothing.
using SymbolicTraits = std::uint32_t;
/// Slanted.
inline constexpr SymbolicTraits kItalicTrait = 1U << 0;
/// Heavier than the regular face.
inline constexpr SymbolicTraits kBoldTrait = 1U << 1;

/// A face at a size. Immutable, shared, with identity; an absent font is a null pointer. Made by a
/// `FontSystem`; used on the main thread. The font that a control of a toolkit gives may also stand
/// for whatever font the control has at the time.
class ORVANTA_EXPORT Font {
 public:
  virtual ~Font();
  Font(const Font&) = delete;
  Font& operator=(const Font&) = delete;

  /// The face's PostScript name. Never absent.
  [[nodiscard]] virtual String fontName() const = 0;

  /// The size in points.
  [[nodiscard]] virtual double pointSize() const = 0;

  /// The traits that the font has.
  [[nodiscard]] virtual SymbolicTraits symbolicTraits() const = 0;

  /// The same face at another size, in points. Never null.
  [[nodiscard]] virtual std::shared_ptr<const Font> fontWithSize(double size) const = 0;

  /// The same family at the same size with exactly these traits, which replace those that the font
  /// has. Where the family has no face of these traits, the toolkit renders this one with them.
  /// Never null.
  [[nodiscard]] virtual std::shared_ptr<const Font> fontWithSymbolicTraits(
      SymbolicTraits traits) const = 0;

 protected:
  Font() = default;
};

}  // namespace orvanta::platform
