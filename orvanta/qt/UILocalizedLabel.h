#pragma once

#include <QLabel>
#include <QRect>
#include <memory>

#include <orvanta/controls/UILocalizedLabel.h>
#include <orvanta/qt/Export.h>
#include <orvanta/qt/LocalizedWidget.h>
#include <orvanta/qt/PlainTextSize.h>

namespace orvanta::qt {

class LabelAdapter;

/// A QLabel that localizes itself: the text typed into it in a layout is a key, and its accessible
/// name and description are keys too.
///
/// It shows plain text unless the layout says otherwise. Nothing happens before `awakeFromNib`,
/// which form loaders call.
class ORVANTA_QT_EXPORT UILocalizedLabel : public QLabel, public LocalizedWidget {
  Q_OBJECT
  /// Whether "&" in a translation marks a mnemonic, where the label has a buddy. Else every "&"
  /// stands for itself.
  Q_PROPERTY(bool mnemonics READ mnemonics WRITE setMnemonics)

 public:
  /// Not localized before its layout awakens it; see `initLocalizedWithFrame`.
  explicit UILocalizedLabel(QWidget* parent = nullptr);
  ~UILocalizedLabel() override;

  /// A label made in code, awake already; `key` may be null.
  [[nodiscard]] static UILocalizedLabel* initLocalizedWithFrame(const QRect& frame,
                                                                QWidget* parent = nullptr,
                                                                const QString& key = {});

  /// The label's rules and remembered state. Lives as long as the label.
  [[nodiscard]] orvanta::UILocalizedLabel& control() const override { return *control_; }

  /// As QLabel's. A "&" in the text means the same before and after.
  void setBuddy(QWidget* buddy);

  /// Whether "&" marks a mnemonic.
  [[nodiscard]] bool mnemonics() const;
  /// Counts for texts that are set later.
  void setMnemonics(bool mnemonics);

  /// As of the base class.
  [[nodiscard]] QSize sizeHint() const override;
  /// As of the base class.
  [[nodiscard]] QSize minimumSizeHint() const override;

 protected:
  /// As of the base class.
  void awake() override;
  /// As of the base class.
  bool event(QEvent* event) override;

 private:
  std::shared_ptr<LabelAdapter> adapter_;
  std::unique_ptr<orvanta::UILocalizedLabel> control_;
  mutable PlainTextSize plainTextSize_;
};

}  // namespace orvanta::qt
