#pragma once

#include <QFont>
#include <memory>

#include <orvanta/platform/Font.h>
#include <orvanta/text/String.h>

namespace orvanta::qt {

/// A font of Qt's behind the library's interface.
class QtFont : public platform::Font {
 public:
  /// `name`: the PostScript name; absent, the one that Qt's family and style make.
  explicit QtFont(const QFont& font, String name = {});
  ~QtFont() override;
  QtFont(const QtFont&) = delete;
  QtFont& operator=(const QtFont&) = delete;

  [[nodiscard]] virtual QFont font() const { return font_; }

  [[nodiscard]] String fontName() const override;
  /// A font that was sized in pixels has the size in points that it comes to on the screen.
  [[nodiscard]] double pointSize() const override;
  [[nodiscard]] platform::SymbolicTraits symbolicTraits() const override;
  [[nodiscard]] std::shared_ptr<const platform::Font> fontWithSize(double size) const override;
  [[nodiscard]] std::shared_ptr<const platform::Font> fontWithSymbolicTraits(
      platform::SymbolicTraits traits) const override;

 private:
  QFont font_;
  String name_;
};

/// The name that a face has where no font file says otherwise: its family without blanks and,
/// unless it is the regular one, "-" and its style.
[[nodiscard]] QString postScriptNameOf(const QString& family, const QString& style);

}  // namespace orvanta::qt
