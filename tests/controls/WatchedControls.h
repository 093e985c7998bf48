#pragma once

#include <functional>
#include <sstream>
#include <string>

#include <orvanta/platform/Platform.h>
#include <orvanta/platform/standard/MemoryControls.h>

/// In-memory controls that write down, in order, what is read from them and what they are told.
namespace orvanta::test {

class Diary {
 public:
  /// Called after each thing that a control was told, with what was written down of it.
  std::function<void(const std::string& entry)> afterwards;

  void read(const std::string& what) { entries_ += entries_.empty() ? what : " " + what; }

  template <typename Value>
  void told(const std::string& what, const Value& value) {
    if (!platform::Platform::current().mainQueue->isMainThread()) {
      read("OFF-MAIN");
    }
    std::ostringstream entry;
    entry << what << "=" << value;
    read(entry.str());
    if (afterwards) {
      afterwards(entry.str());
    }
  }

  /// What was written down since the last call.
  [[nodiscard]] std::string take() { return std::exchange(entries_, {}); }
  void forget() { entries_.clear(); }

 private:
  std::string entries_;
};

inline std::string described(const std::shared_ptr<const platform::Font>& font) {
  return font == nullptr ? "none" : font->fontName().str();
}

template <typename Base>
class WatchedAccessible : public Base {
 public:
  using Base::Base;
  std::shared_ptr<Diary> diary = std::make_shared<Diary>();

  [[nodiscard]] String accessibilityLabel() const override {
    diary->read("spoken");
    return spoken_;  // Absent when untouched.
  }
  void setAccessibilityLabel(const String& label) override {
    spoken_ = label;
    diary->told("spoken", label);
  }
  [[nodiscard]] String accessibilityHint() const override {
    diary->read("hint");
    return Base::accessibilityHint();
  }
  void setAccessibilityHint(const String& hint) override {
    Base::setAccessibilityHint(hint);
    diary->told("hint", hint);
  }

 private:
  String spoken_;
};

template <typename Base>
class WatchedStyle : public Base {
 public:
  using Base::Base;

  [[nodiscard]] std::shared_ptr<const platform::Font> font() const override {
    ownDiary().read("font");
    return Base::font();
  }
  void setFont(const std::shared_ptr<const platform::Font>& font) override {
    Base::setFont(font);
    ownDiary().told("font", described(font));
  }
  [[nodiscard]] platform::TextAlignment textAlignment() const override {
    ownDiary().read("alignment");
    return Base::textAlignment();
  }
  void setTextAlignment(platform::TextAlignment alignment) override {
    Base::setTextAlignment(alignment);
    ownDiary().told("alignment", static_cast<int>(alignment));
  }

 protected:
  [[nodiscard]] virtual Diary& ownDiary() const = 0;
};

template <typename Base>
class WatchedText : public WatchedStyle<WatchedAccessible<Base>> {
 public:
  using WatchedStyle<WatchedAccessible<Base>>::WatchedStyle;

  [[nodiscard]] String text() const override {
    ownDiary().read("text");
    return Base::text();
  }
  void setText(const String& text) override {
    Base::setText(text);
    ownDiary().told("text", text);
  }

 protected:
  [[nodiscard]] Diary& ownDiary() const override { return *WatchedAccessible<Base>::diary; }
};

using WatchedLabel = WatchedText<platform::standard::MemoryLabel>;

class WatchedTextField : public WatchedText<platform::standard::MemoryTextField> {
 public:
  [[nodiscard]] String placeholder() const override {
    ownDiary().read("placeholder");
    return MemoryTextField::placeholder();
  }
  void setPlaceholder(const String& placeholder) override {
    MemoryTextField::setPlaceholder(placeholder);
    ownDiary().told("placeholder", placeholder);
  }
};

class WatchedButton : public WatchedAccessible<platform::standard::MemoryButton> {
 public:
  [[nodiscard]] String titleForState(platform::ControlState state) const override {
    diary->read("title" + std::to_string(state));
    return MemoryButton::titleForState(state);
  }
  void setTitle(const String& title, platform::ControlState state) override {
    MemoryButton::setTitle(title, state);
    diary->told("title" + std::to_string(state), title);
  }
  [[nodiscard]] platform::TextStyle& titleLabel() override { return titleLabel_; }

 private:
  class TitleLabel final
      : public WatchedStyle<platform::standard::MemoryStyled<platform::TextStyle>> {
   public:
    explicit TitleLabel(std::shared_ptr<Diary> diary) : diary_(std::move(diary)) {}

   private:
    [[nodiscard]] Diary& ownDiary() const override { return *diary_; }
    std::shared_ptr<Diary> diary_;
  };
  TitleLabel titleLabel_{diary};
};

}  // namespace orvanta::test
