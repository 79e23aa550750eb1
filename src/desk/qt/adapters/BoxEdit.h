#pragma once

#include <QLineEdit>

#include "host/controls/TextBox.h"

namespace quillon {

/// The line of a text box: text, caret and selection are the model's. Keys go to the form; the mouse places
/// the caret.
class BoxEdit : public QLineEdit {
 public:
  /// `owner` is what takes the form's focus: the box itself, or the field or grid that it is a part of.
  BoxEdit(TextBox& box, Control& owner, QWidget* parent);

  /// Draws text, caret and selection anew.
  void ShowBox();

 protected:
  void paintEvent(QPaintEvent* event) override;
  void mousePressEvent(QMouseEvent* event) override;
  void mouseMoveEvent(QMouseEvent* event) override;
  void mouseReleaseEvent(QMouseEvent* event) override;
  void mouseDoubleClickEvent(QMouseEvent* event) override;
  void contextMenuEvent(QContextMenuEvent* event) override;

 private:
  void TellCaret();
  bool IsOwned() const;

  TextBox& box_;
  Control& owner_;
};

}  // namespace quillon
