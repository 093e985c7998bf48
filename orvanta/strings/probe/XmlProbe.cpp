#include <vector>

#include <orvanta/strings/probe/PrefixPlaces.h>
#include <orvanta/strings/probe/TextUnits.h>
#include <orvanta/strings/probe/XmlProbe.h>

namespace orvanta::strings {

namespace {

class XmlProbe final : public FileProbe {
 public:
  explicit XmlProbe(const PrefixSearches& searches) noexcept : searches_(searches) {}

  void look(const FilePiece& piece) override {
    using Text = TextUnits<TextEncoding::kUtf8>;
    const Text text(piece.bytes);
    std::vector<std::size_t> places;
    PrefixPlaces<Text>(text, searches_.inUtf8, searches_.escapes)
        .collect(0, text.size(), 1, places);
    mayHaveEntries_ = mayHaveEntries_ || !places.empty() || maySpellPrefix(piece.bytes);
  }

  bool addEntries(const FilePiece& /*head*/, StringTableBuilder& /*table*/) override {
    return !mayHaveEntries_;
  }

 private:
  // Whether the XML may spell the prefix in another way than as itself.
  [[nodiscard]] bool maySpellPrefix(std::string_view xml) const noexcept {
    if (xml.find("&#") != std::string_view::npos) {
      return true;
    }
    std::size_t at = xml.find('<', 1);
    while (at != std::string_view::npos) {
      if (searches_.prefix.find(xml[at - 1]) != std::string::npos &&
          !xml.substr(at).starts_with("</")) {
        return true;
      }
      at = xml.find('<', at + 1);
    }
    return false;
  }

  const PrefixSearches& searches_;
  bool mayHaveEntries_ = false;
};

}  // namespace

std::unique_ptr<FileProbe> makeXmlProbe(const PrefixSearches& searches) {
  return std::make_unique<XmlProbe>(searches);
}

}  // namespace orvanta::strings
