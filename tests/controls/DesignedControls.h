#pragma once

#include <memory>

#include <orvanta/controls/UILocalizedButton.h>
#include <orvanta/controls/UILocalizedLabel.h>
#include <orvanta/controls/UILocalizedTextField.h>

#include "../support/LocalizedApplication.h"
#include "WatchedControls.h"

/// The three controls under one face, so that one row can be held against each.
namespace orvanta::test {

struct Design {
  String text;
  String spoken;
  String hint;
  platform::TextAlignment alignment = platform::TextAlignment::left;

  friend bool operator==(const Design&, const Design&) = default;
};

inline std::ostream& operator<<(std::ostream& out, const Design& design) {
  return out << '{' << design.text << ", " << design.spoken << ", " << design.hint << '}';
}

inline Languages languagesToSpeak() {
  return {{"en", {{"title", "Title"}, {"spoken", "Said"}, {"hint", "Hint"}}},
          {"fr",
           {{"title", "titre"},
            {"spoken", "dit"},
            {"hint", "indice"},
            {"Label", "étiquette"},
            {"Button", "bouton"},
            {"same", "same"},
            {"void", ""},
            {"STRING.TUNDEL.NONMEMBER.email.emailTextField.placeholder", "courriel"},
            {"STRING.TUNDEL.NONMEMBER.email.passwordTextField.placeholder", "mot de passe"}}},
          {"de",
           {{"title", "Titel"},
            {"spoken", "gesagt"},
            {"hint", "Hinweis"},
            {"Label", "Etikett"},
            {"Button", "Knopf"}}},
          {"ar", {{"title", "عنوان"}}}};
}

/// A localized control on a watched one, `Localized` on `Watched`.
template <typename Localized, typename Watched>
class DesignedControl {
 public:
  explicit DesignedControl(const Design& design)
      : watched(std::make_shared<Watched>()),
        diary(watched->diary),
        localized(std::make_unique<Localized>(watched)) {
    watched->setText(design.text);
    watched->setAccessibilityLabel(design.spoken);
    watched->setAccessibilityHint(design.hint);
    watched->style().setFont(platform::Platform::current().fonts->systemFontOfSize(12, 0));
    watched->style().setTextAlignment(design.alignment);
    diary->forget();
  }

  [[nodiscard]] Design shown() {
    Design design{watched->text(), watched->accessibilityLabel(), watched->accessibilityHint(),
                  watched->style().textAlignment()};
    diary->forget();
    return design;
  }
  [[nodiscard]] Design remembered() const {
    return {localized->originalKey(), localized->originalAccessibilityLabel(),
            localized->originalAccessibilityHint(), localized->originalAlignment()};
  }
  [[nodiscard]] std::string fontName() {
    std::string name = described(watched->style().font());
    diary->forget();
    return name;
  }

  void refreshFor(const String& locale) {
    if constexpr (std::is_same_v<Localized, UILocalizedLabel>) {
      localized->refreshStringsFromLocale(locale);
    } else {
      localized->refreshStringsForLocale(locale);
    }
  }

  std::shared_ptr<Watched> watched;
  std::shared_ptr<Diary> diary;
  std::unique_ptr<Localized> localized;
};

using DesignedLabel = DesignedControl<UILocalizedLabel, WatchedLabel>;
using DesignedTextField = DesignedControl<UILocalizedTextField, WatchedTextField>;
using DesignedButton = DesignedControl<UILocalizedButton, WatchedButton>;

}  // namespace orvanta::test
