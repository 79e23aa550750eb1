#include "desk/qt/windows/DeskArea.h"

#include "desk/qt/windows/FormView.h"

namespace quillon {

DeskArea::DeskArea(QWidget* parent) : QWidget(parent) {}

void DeskArea::Bring(FormView& view) {
  views_.removeAll(&view);
  views_.append(&view);
  if (view.parentWidget() != this) view.setParent(this);
  Fit();
}

void DeskArea::Remove(FormView& view) {
  views_.removeAll(&view);
  view.hide();
  Fit();
}

FormView* DeskArea::Top() const { return views_.isEmpty() ? nullptr : views_.last(); }

void DeskArea::Fit() {
  FormView* const top = Top();
  if (top != nullptr) {
    top->setGeometry(rect());
    top->show();
  }
  for (FormView* view : views_) {
    if (view != top) view->hide();
  }
}

void DeskArea::resizeEvent(QResizeEvent* /*event*/) { Fit(); }

}  // namespace quillon
