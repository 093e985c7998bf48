#pragma once

#include <cstdint>
#include <memory>

#include <orvanta/Export.h>
#include <orvanta/text/String.h>

namespace orvanta::platform {

/// The style bits of a font, numbered as the device numbers them; bits that have no constant here
/// are kept but mean nothing.
using SymbolicTraits = std::uint32_t;
inline constexpr SymbolicTraits kItalicTrait = 1U << 0;
inline constexpr SymbolicTraits kBoldTrait = 1U << 1;

/// A face at a size. Immutable, shared, with identity; an absent font is a null pointer. Made by a
/// `FontSystem` and usable on the user-interface thread. The font that a toolkit's control gives of
/// itself may also stand for whatever font the control has at the time.
class ORVANTA_EXPORT Font {
 public:
  virtual ~Font();
  Font(const Font&) = delete;
  Font& operator=(const Font&) = delete;

  /// The face's PostScript name.
  [[nodiscard]] virtual String fontName() const = 0;

  [[nodiscard]] virtual double pointSize() const = 0;

  [[nodiscard]] virtual SymbolicTraits symbolicTraits() const = 0;

  /// The same face at another size.
  [[nodiscard]] virtual std::shared_ptr<const Font> fontWithSize(double size) const = 0;

  /// The same family at the same size with exactly these traits: those that it has are replaced,
  /// not added to. A rendition of the same face where the family has none of its own for them.
  [[nodiscard]] virtual std::shared_ptr<const Font> fontWithSymbolicTraits(
      SymbolicTraits traits) const = 0;

 protected:
  Font() = default;
};

}  // namespace orvanta::platform
