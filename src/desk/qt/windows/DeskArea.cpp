#include "desk/qt/windows/DeskArea.h"

#include "desk/qt/windows/FormView.h"

namespace quillon {

DeskArea::DeskArea(QWidget* parent) : QScrollArea(parent), ground_(new QWidget) {
  setFrameShape(QFrame::NoFrame);
  setFocusPolicy(Qt::NoFocus);
  setWidget(ground_);
}

void DeskArea::Bring(FormView& view) {
  views_.removeAll(&view);
  views_.append(&view);
  if (view.parentWidget() != ground_) view.setParent(ground_);
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
  const QSize room = viewport()->size();
  ground_->resize(top != nullptr ? top->size().expandedTo(room) : room);
  if (top != nullptr) top->show();
  for (FormView* view : views_) {
    if (view != top) view->hide();
  }
}

void DeskArea::resizeEvent(QResizeEvent* event) {
  QScrollArea::resizeEvent(event);
  Fit();
}

}  // namespace quillon
