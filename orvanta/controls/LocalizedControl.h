#pragma once

#include <functional>
#include <memory>
#include <utility>

#include <orvanta/Export.h>
#include <orvanta/controls/MainThreadAnchor.h>
#include <orvanta/platform/Controls.h>
#include <orvanta/platform/Font.h>
#include <orvanta/platform/NotificationCenter.h>
#include <orvanta/platform/TextAlignment.h>
#include <orvanta/text/LifetimeBound.h>
#include <orvanta/text/String.h>

namespace orvanta {

/// The pattern that the localized controls share.
///
/// A control remembers its designed state: its text as a key, if the text has a translation, and
/// its font and alignment in any case. It refreshes itself at once and after each change of
/// language: strings from the remembered keys, font and alignment from the remembered ones.
///
///     designed ──configure──▶ remembers ──▶ refreshes ──▶ observes
///                                              ▲             │ language changed
///                                              └─────────────┘
///
/// Made, used and destroyed on the main thread. A notification may be posted, and a refresh be
/// called, on any thread: it runs on the main thread, and the caller waits. A control that was
/// destroyed before that is not touched. One that is destroyed in the middle of a refresh, by the
/// application that a toolkit's control has called, is not touched any more.
class ORVANTA_EXPORT LocalizedControl {
 public:
  LocalizedControl(const LocalizedControl&) = delete;
  LocalizedControl& operator=(const LocalizedControl&) = delete;
  /// Stops observing.
  virtual ~LocalizedControl();

  /// The key of the text; absent until the designed text proves to be a key.
  [[nodiscard]] const String& originalKey() const noexcept ORVANTA_LIFETIME_BOUND {
    return originalKey_;
  }
  /// Shown from the next refresh on; absent leaves the text alone.
  void setOriginalKey(String key) noexcept { originalKey_ = std::move(key); }

  /// The key of the spoken label; remembered with `originalKey`, possibly as absent.
  [[nodiscard]] const String& originalAccessibilityLabel() const noexcept ORVANTA_LIFETIME_BOUND {
    return originalAccessibilityLabel_;
  }
  /// Used from the next refresh on.
  void setOriginalAccessibilityLabel(String key) noexcept {
    originalAccessibilityLabel_ = std::move(key);
  }

  /// The key of the spoken hint; remembered with `originalKey`, possibly as absent.
  [[nodiscard]] const String& originalAccessibilityHint() const noexcept ORVANTA_LIFETIME_BOUND {
    return originalAccessibilityHint_;
  }
  /// Used from the next refresh on.
  void setOriginalAccessibilityHint(String key) noexcept {
    originalAccessibilityHint_ = std::move(key);
  }

  /// The font that every refresh starts from.
  [[nodiscard]] const std::shared_ptr<const platform::Font>& originalFont() const noexcept {
    return originalFont_;
  }
  /// Used from the next refresh on.
  void setOriginalFont(std::shared_ptr<const platform::Font> font) noexcept {
    originalFont_ = std::move(font);
  }

  /// The alignment that every refresh starts from.
  [[nodiscard]] platform::TextAlignment originalAlignment() const noexcept {
    return originalAlignment_;
  }
  /// Used from the next refresh on.
  void setOriginalAlignment(platform::TextAlignment alignment) noexcept {
    originalAlignment_ = alignment;
  }

  /// Refreshes for the first of the current locales; does nothing when there is none. The
  /// notification is not read and may be null.
  void handleOVPreferredLocaleDidChangeNotification(const platform::Notification* notification);

 protected:
  /// Whether a refresh that is called off the main thread keeps its locale on the main thread.
  enum class CarriedLocale { kept, dropped };

  /// `driven` is the toolkit's control. It is released after everything else.
  LocalizedControl(std::shared_ptr<void> driven, CarriedLocale carriedLocale);

  class Hold;

  /// The refresh itself, on the main thread. Its steps are taken with `hold`.
  virtual void refresh(const String& locale, const Hold& hold) = 0;

  /// Refreshes on the main thread and returns when that is done.
  void refreshOnMainThread(const String& locale);

  /// Refreshes once, and registers with the notification centre; once more at every call.
  void followLanguage();

  /// Keeps the toolkit's control alive while it is being called, and knows whether the localized
  /// control is still alive afterwards. One serves a whole refresh.
  class Hold {
   public:
    /// Takes handles of its own.
    explicit Hold(const LocalizedControl& control)
        : driven_(control.driven_), anchor_(control.anchor_) {}
    /// Whether the localized control has not been destroyed.
    [[nodiscard]] bool controlLives() const noexcept { return anchor_->control() != nullptr; }

    /// Takes the steps in their order, as long as the localized control is alive.
    template <typename... Steps>
    void takeSteps(const Steps&... steps) const {
      static_cast<void>(((steps(), controlLives()) && ...));
    }

   private:
    std::shared_ptr<void> driven_;
    std::shared_ptr<const MainThreadAnchor> anchor_;
  };

  /// Runs `step` at a later turn of the main thread, unless the control was destroyed before.
  void later(std::function<void()> step) const;

  /// Runs `step` on the main thread, unless the control was destroyed before, and waits for it.
  void onMainThread(const std::function<void()>& step) const;

  /// Whether a designed text is a key: it has a translation that is not empty and not itself.
  [[nodiscard]] static bool isKey(const String& text);

  /// The text of a key in the current language.
  [[nodiscard]] static String localized(const String& key);

  /// Sets the texts of the remembered keys of spoken label and hint, where those are not empty.
  void refreshAccessibility(platform::Accessible& control, const Hold& hold) const;

  /// Sets font and alignment: what the locale makes of the remembered ones.
  void refreshStyle(platform::TextStyle& style, const String& locale, const Hold& hold) const;

  /// Takes the font and the alignment as the designed ones.
  void rememberStyle(const platform::TextStyle& style);

 private:
  // The one way to the main thread.
  ORVANTA_HIDDEN static void onMainThread(const std::shared_ptr<MainThreadAnchor>& anchor,
                                          const std::function<void(LocalizedControl&)>& step);
  ORVANTA_HIDDEN static void refreshForCurrentLocale(
      const std::shared_ptr<MainThreadAnchor>& anchor, CarriedLocale carriedLocale);
  ORVANTA_HIDDEN void observeLanguageChanges();

  std::shared_ptr<void> driven_;
  std::shared_ptr<MainThreadAnchor> anchor_;
  platform::NotificationCenter* observed_ = nullptr;
  CarriedLocale carriedLocale_;
  String originalKey_;
  String originalAccessibilityLabel_;
  String originalAccessibilityHint_;
  std::shared_ptr<const platform::Font> originalFont_;
  platform::TextAlignment originalAlignment_ = platform::TextAlignment::left;
};

}  // namespace orvanta
