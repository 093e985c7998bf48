#pragma once

#include <cstddef>
#include <optional>
#include <string>
#include <string_view>

namespace orvanta::strings {

/// The text of one element, joined from its pieces. A single piece that needs no change is not
/// copied.
class XmlText {
 public:
  void clear() noexcept;

  /// Offsets of the first bad references in character data.
  struct BadReferences {
    std::optional<std::size_t> unknown;        ///< An entity that is not known.
    std::optional<std::size_t> toNoCharacter;  ///< U+FFFD stands for it.
  };

  /// Appends character data with its references resolved. Stops at the first unknown one.
  BadReferences appendData(std::string_view raw);

  /// Appends the inside of a CDATA section, without resolving references.
  void appendLiteral(std::string_view raw);

  /// Valid until the next change, and as long as the pieces.
  [[nodiscard]] std::string_view view() const noexcept;

 private:
  bool takeWhole(std::string_view raw, std::string_view special) noexcept;
  void makeOwn();

  std::string_view borrowed_;
  std::string own_;
  bool isOwn_ = false;
};

}  // namespace orvanta::strings
