#pragma once

#include <QPushButton>
#include <memory>

#include <orvanta/controls/UILocalizedButton.h>
#include <orvanta/qt/Export.h>
#include <orvanta/qt/LocalizedWidget.h>

namespace orvanta::qt {

class ButtonAdapter;

/// A QPushButton that localizes itself: the text typed into it in a layout is a key, and its
/// accessible name and description are keys too.
///
/// It has a title for each state. A button that is in several at once shows the title of the first
/// of: disabled, highlighted (held down), selected (checked), focused. `text` is the normal title;
/// setting it sets the titles of all states. The button is wide enough for every title.
///
/// Nothing happens before `awakeFromNib`, which form loaders call, or `configure`, for a button
/// made in code.
class ORVANTA_QT_EXPORT UILocalizedButton : public QPushButton, public LocalizedWidget {
  Q_OBJECT
  /// Where the title stands; in the centre unless a layout says otherwise.
  Q_PROPERTY(Qt::Alignment titleAlignment READ titleAlignment WRITE setTitleAlignment)
  /// Whether "&" in a title marks a mnemonic. Else every "&" stands for itself. Counts for titles
  /// that are set later, so also for the next translation.
  Q_PROPERTY(bool mnemonics READ mnemonics WRITE setMnemonics)

 public:
  /// Not localized before its layout awakens it or `configure` is called.
  explicit UILocalizedButton(QWidget* parent = nullptr);
  ~UILocalizedButton() override;

  /// For a button made in code, once it has its title.
  void configure();

  /// The title of a state: its own, else that of the normal state; null without one.
  [[nodiscard]] QString titleForState(platform::ControlState state) const;
  /// A null title takes the state's own away: it has the normal one again.
  void setTitle(const QString& title, platform::ControlState state);

  /// Where the title stands.
  [[nodiscard]] Qt::Alignment titleAlignment() const { return titleAlignment_; }
  /// Takes effect at once.
  void setTitleAlignment(Qt::Alignment alignment);

  /// Whether "&" marks a mnemonic.
  [[nodiscard]] bool mnemonics() const { return mnemonics_; }
  /// Counts for titles that are set later.
  void setMnemonics(bool mnemonics) { mnemonics_ = mnemonics; }

  /// The button's rules and remembered state. Lives as long as the button.
  [[nodiscard]] orvanta::UILocalizedButton& control() const override { return *control_; }

  /// Room for the largest of the titles.
  [[nodiscard]] QSize sizeHint() const override;

 protected:
  /// As of the base class.
  void awake() override;
  /// As of the base class.
  bool event(QEvent* event) override;
  /// As of the base class.
  void paintEvent(QPaintEvent* event) override;
  /// As of the base class.
  void initStyleOption(QStyleOptionButton* option) const override;

 private:
  [[nodiscard]] platform::ControlState shownState() const;

  Qt::Alignment titleAlignment_ = Qt::AlignCenter;
  bool mnemonics_ = false;
  std::shared_ptr<ButtonAdapter> adapter_;
  std::unique_ptr<orvanta::UILocalizedButton> control_;
};

}  // namespace orvanta::qt
