#pragma once

#include <QScrollArea>
#include <functional>

namespace quillon {

class FormView;

/// The part of the main window in which the full screens lie, one above the other; the top one shows.
class DeskArea : public QScrollArea {
 public:
  explicit DeskArea(QWidget* parent = nullptr);

  void Bring(FormView& view);
  void Remove(FormView& view);

  /// The screen that shows, or nothing.
  FormView* Top() const;

  /// Called when the room for screens has changed.
  std::function<void()> OnResized;

 protected:
  void resizeEvent(QResizeEvent* event) override;

 private:
  void ShowTop();

  QWidget* ground_;
  QList<FormView*> views_;
};

}  // namespace quillon
