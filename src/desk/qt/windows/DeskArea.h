#pragma once

#include <QScrollArea>

namespace quillon {

class FormView;

/// The part of the main window in which the full screens lie, one above the other; the top one shows.
class DeskArea : public QScrollArea {
 public:
  explicit DeskArea(QWidget* parent = nullptr);

  void Bring(FormView& view);
  void Remove(FormView& view);

  /// Shows the top screen whole, by scroll bars where the room does not do.
  void Fit();

  /// The screen that shows, or nothing.
  FormView* Top() const;

 protected:
  void resizeEvent(QResizeEvent* event) override;

 private:
  QWidget* ground_;
  QList<FormView*> views_;
};

}  // namespace quillon
