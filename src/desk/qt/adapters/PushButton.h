#pragma once

#include <QPushButton>

namespace quillon {

/// A button in the desk's look: the key that presses it ("F6", "Esc"), an icon where it has one, and what it
/// does. One that is off has no edge and a pale text.
class PushButton : public QPushButton {
 public:
  explicit PushButton(QWidget* parent);

  /// "F6 : Statement"; what stands before the colon is the key.
  void SetCaption(const QString& caption);
  void SetIconKey(const QString& iconKey);

  /// Draws the mark of the focus, which the model tells.
  void SetFocused(bool focused);

  QSize sizeHint() const override;

 protected:
  void paintEvent(QPaintEvent* event) override;

 private:
  QColor Face() const;

  QString key_;
  QString words_;
  QString icon_;
  bool focused_ = false;
};

}  // namespace quillon
