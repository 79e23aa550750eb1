#pragma once

#include <QDialog>
#include <QVBoxLayout>
#include <functional>

class QLabel;

namespace quillon {

class PushButton;

/// A dialog of the desk: its content above a row of buttons. F7 is OK, Esc is Cancel; Enter moves on from
/// field to field and is OK in the last one. A content that is too large for the screen can be scrolled.
class DeskDialog : public QDialog {
 public:
  DeskDialog(const QString& title, QWidget* parent);

 protected:
  /// Where the content goes.
  QVBoxLayout& Content() { return *content_; }

  /// A button of the row, from the left; the first is the one that Enter presses unless another is made so.
  PushButton& AddButton(const QString& caption, const std::function<void()>& pressed);

  /// "F7: OK" and "Esc: Cancel".
  void AddOkCancel();

  /// What keeps the dialog open, in words below the content; empty when all is well.
  void ShowFault(const QString& text);

  /// OK was pressed: true when the dialog may close.
  virtual bool Check() { return true; }

  void keyPressEvent(QKeyEvent* event) override;
  void done(int result) override;
  void setVisible(bool visible) override;
  void showEvent(QShowEvent* event) override;
  void paintEvent(QPaintEvent* event) override;

 private:
  void Confirm();
  bool MoveOn();
  void KeepOnScreen();

  QVBoxLayout* all_;
  QVBoxLayout* content_;
  QHBoxLayout* buttons_;
  QLabel* fault_;
  bool hasOk_ = false;
  bool scrolls_ = false;
};

}  // namespace quillon
