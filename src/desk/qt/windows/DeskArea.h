#pragma once

#include <QWidget>

namespace quillon {

class FormView;

/// The part of the main window in which the full screens lie, one above the other; the top one shows and
/// fills it.
class DeskArea : public QWidget {
 public:
  explicit DeskArea(QWidget* parent = nullptr);

  void Bring(FormView& view);
  void Remove(FormView& view);

  /// The screen that shows, or nothing.
  FormView* Top() const;

 protected:
  void resizeEvent(QResizeEvent* event) override;

 private:
  void Fit();

  QList<FormView*> views_;
};

}  // namespace quillon
