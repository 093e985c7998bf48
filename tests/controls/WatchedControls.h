#pragma once

#include <functional>
#include <sstream>
#include <string>

#include <orvanta/platform/Platform.h>
#include <orvanta/standard/MemoryControls.h>

/// In-memory controls that write down, in order, what is read from them and what they are told.
namespace orvanta::test {

class Diary {
 public:
  /// Called after each thing that a control was told, with what was written down of it.
  std::function<void(const std::string& entry)> afterwards;

  template <typename Value>
  Value read(const std::string& what, const Value& value) {
    write(what);
    return value;
  }

  template <typename Value>
  void told(const std::string& what, const Value& value) {
    if (!platform::Platform::current().mainQueue->isMainThread()) {
      write("OFF-MAIN");
    }
    std::ostringstream entry;
    entry << what << "=" << value;
    write(entry.str());
    if (afterwards) {
      afterwards(entry.str());
    }
  }

  /// What was written down since the last call.
  [[nodiscard]] std::string take() { return std::exchange(entries_, {}); }
  void forget() { entries_.clear(); }

 private:
  void write(const std::string& entry) { entries_ += entries_.empty() ? entry : " " + entry; }

  std::string entries_;
};

inline std::string described(const std::shared_ptr<const platform::Font>& font) {
  return font == nullptr ? "none" : font->fontName().str();
}

template <typename Base>
class Watched : public Base {
 public:
  std::shared_ptr<Diary> diary = std::make_shared<Diary>();
};

template <typename Base>
class WatchedAccessible : public Base {
 public:
  [[nodiscard]] String accessibilityLabel() const override {
    return this->diary->read("spoken", spoken_);  // Absent when untouched.
  }
  void setAccessibilityLabel(const String& label) override {
    spoken_ = label;
    this->diary->told("spoken", label);
  }
  [[nodiscard]] String accessibilityHint() const override {
    return this->diary->read("hint", Base::accessibilityHint());
  }
  void setAccessibilityHint(const String& hint) override {
    Base::setAccessibilityHint(hint);
    this->diary->told("hint", hint);
  }

 private:
  String spoken_;
};

template <typename Base>
class WatchedStyle : public Base {
 public:
  [[nodiscard]] std::shared_ptr<const platform::Font> font() const override {
    return this->diary->read("font", Base::font());
  }
  void setFont(const std::shared_ptr<const platform::Font>& font) override {
    Base::setFont(font);
    this->diary->told("font", described(font));
  }
  [[nodiscard]] platform::TextAlignment textAlignment() const override {
    return this->diary->read("alignment", Base::textAlignment());
  }
  void setTextAlignment(platform::TextAlignment alignment) override {
    Base::setTextAlignment(alignment);
    this->diary->told("alignment", static_cast<int>(alignment));
  }
};

template <typename Base>
class WatchedText : public WatchedStyle<WatchedAccessible<Watched<Base>>> {
 public:
  platform::TextStyle& style() { return *this; }

  [[nodiscard]] String text() const override { return this->diary->read("text", Base::text()); }
  void setText(const String& text) override {
    Base::setText(text);
    this->diary->told("text", text);
  }
};

using WatchedLabel = WatchedText<standard::MemoryLabel>;

class WatchedTextField : public WatchedText<standard::MemoryTextField> {
 public:
  [[nodiscard]] String placeholder() const override {
    return diary->read("placeholder", MemoryTextField::placeholder());
  }
  void setPlaceholder(const String& placeholder) override {
    MemoryTextField::setPlaceholder(placeholder);
    diary->told("placeholder", placeholder);
  }
};

class WatchedButton : public WatchedAccessible<Watched<standard::MemoryButton>> {
 public:
  WatchedButton() { titleLabel_.diary = diary; }

  // Under the names that the others have.
  platform::TextStyle& style() { return titleLabel_; }
  String text() const { return titleForState(platform::kControlStateNormal); }
  void setText(const String& text) { setTitle(text, platform::kControlStateNormal); }

  [[nodiscard]] String titleForState(platform::ControlState state) const override {
    return diary->read("title" + std::to_string(state), MemoryButton::titleForState(state));
  }
  void setTitle(const String& title, platform::ControlState state) override {
    MemoryButton::setTitle(title, state);
    diary->told("title" + std::to_string(state), title);
  }
  [[nodiscard]] platform::TextStyle& titleLabel() override { return titleLabel_; }

 private:
  WatchedStyle<Watched<standard::MemoryStyled<platform::TextStyle>>> titleLabel_;
};

}  // namespace orvanta::test
