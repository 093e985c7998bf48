#pragma once

#include <utility>

#include <orvanta/fonts/DerivedFonts.h>
#include <orvanta/fonts/localizationUtilities.h>
#include <orvanta/text/String.h>

namespace orvanta::localizationUtilities {

/// A face whose font file is among the library's resources, remembered once the platform has given
/// a font for it.
///
/// The name to ask for is not derived from the file's: the two may differ. Takes no lock: the first
/// requests must come from one thread at a time.
class ResourceFace {
 public:
  ResourceFace(String fileName, String fontName)
      : fileName_(std::move(fileName)), fontName_(std::move(fontName)) {}

  /// The face at 17 points, the same object from the first success on. Absent, and loaded afresh at
  /// the next request, as long as the platform has no font of the name.
  [[nodiscard]] FontHandle font();

  /// The face at another size; absent while it is.
  [[nodiscard]] FontHandle fontWithSize(double size);

 private:
  String fileName_;
  String fontName_;
  FontHandle font_;
  DerivedFonts derived_;
};

}  // namespace orvanta::localizationUtilities
