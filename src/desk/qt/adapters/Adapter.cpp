#include "desk/qt/adapters/Adapter.h"

#include <QApplication>
#include <QMouseEvent>
#include <QWidget>

#include "desk/qt/adapters/Acts.h"
#include "desk/qt/adapters/FormRoom.h"
#include "desk/qt/adapters/Scale.h"
#include "desk/qt/adapters/Theme.h"
#include "host/controls/Label.h"

namespace quillon {

namespace {

constexpr long kNear = 300;

/// Whether the label stands close on the left of the control.
bool Names(const Control& label, const Control& named) {
  const long gap = named.Left - (label.Left + label.Width);
  const bool onLine = label.Top < named.Top + named.Height && named.Top < label.Top + label.Height;
  return onLine && gap >= 0 && gap <= kNear;
}

Qt::CursorShape ShapeOf(int pointer) {
  switch (pointer) {
    case kPointerHand:
      return Qt::PointingHandCursor;
    case kPointerBusy:
      return Qt::WaitCursor;
    default:
      return Qt::ArrowCursor;
  }
}

}  // namespace

Adapter::Adapter(Control& model, QWidget* widget) : QObject(widget), model_(model), widget_(widget) {
  widget_->setObjectName(QString::fromStdString(model.Name()));
  // Tab moves by the model alone; the policy only lets the widget take the focus that it is given.
  widget_->setFocusPolicy(model.CanTakeFocus() ? Qt::TabFocus : Qt::NoFocus);
  model_.AddListener(*this);
}

Adapter::~Adapter() { model_.RemoveListener(*this); }

QRect Adapter::PlaceOf(const Control& child) const { return room_->PlaceOf(child); }

void Adapter::Refresh() {
  Dress();
  Draw();
}

void Adapter::Settle() {}

std::string Adapter::SpokenName() const {
  for (const Control* sibling : model_.Parent()->Children()) {
    const auto* label = dynamic_cast<const Label*>(sibling);
    if (label != nullptr && label->Visible.Own() && Names(*label, model_)) return label->Caption;
  }
  return model_.ToolTipText().empty() ? model_.Name() : model_.ToolTipText();
}

void Adapter::ControlChanged(Control& /*control*/, const PropertyBase* property) {
  if (property != nullptr) Dress();
  Draw();
}

QRect Adapter::Place() const {
  return holder_ != nullptr ? holder_->PlaceOf(model_) : room_->PlaceOf(model_);
}

void Adapter::TakePlace() {
  const QRect place = Place();
  if (place == widget_->geometry()) return;
  widget_->setGeometry(place);
  Replaced();
}

void Adapter::Dress() {
  widget_->setGeometry(Place());
  widget_->setEnabled(model_.Enabled());
  widget_->setFont(Scale::FontOf(model_.Font));
  Color();
  widget_->setToolTip(QString::fromStdString(model_.ToolTipText()));
  widget_->setAccessibleName(QString::fromStdString(SpokenName()));
  if (model_.MousePointer == kPointerDefault) {
    widget_->unsetCursor();
  } else {
    widget_->setCursor(ShapeOf(model_.MousePointer));
  }
  widget_->setVisible(model_.Visible.Own());
}

void Adapter::Color() {
  QPalette palette = QApplication::palette();
  if (model_.BackColor != Control::kDefaultColor) {
    const QColor back = Theme::ColorOf(model_.BackColor);
    palette.setColor(QPalette::Window, back);
    palette.setColor(QPalette::Base, back);
    palette.setColor(QPalette::Button, back);
  }
  if (model_.ForeColor != Control::kDefaultColor) {
    const QColor fore = Theme::ColorOf(model_.ForeColor);
    for (const QPalette::ColorRole role : {QPalette::WindowText, QPalette::Text, QPalette::ButtonText}) {
      palette.setColor(QPalette::Active, role, fore);
      palette.setColor(QPalette::Inactive, role, fore);
    }
  }
  widget_->setPalette(palette);
  widget_->setAutoFillBackground(model_.BackColor != Control::kDefaultColor);
}

void Adapter::TakeClicks() { widget_->installEventFilter(this); }

void Adapter::Clicked() {
  Acts::Run([this] { model_.UserClick(); });
}

bool Adapter::eventFilter(QObject* watched, QEvent* event) {
  if (watched != widget_) return false;
  switch (event->type()) {
    case QEvent::MouseButtonPress:
    case QEvent::MouseButtonDblClick: {
      if (static_cast<QMouseEvent*>(event)->button() != Qt::LeftButton) return true;
      down_ = true;
      Pressed(true);
      // The release that follows a double click is no click of its own, and may go to another window.
      if (event->type() == QEvent::MouseButtonDblClick && DoubleClicked()) down_ = false;
      return true;
    }
    case QEvent::MouseButtonRelease: {
      const auto* mouse = static_cast<QMouseEvent*>(event);
      if (mouse->button() != Qt::LeftButton || !down_) return true;
      down_ = false;
      Pressed(false);
      if (widget_->rect().contains(mouse->position().toPoint())) Clicked();
      return true;
    }
    default:
      return false;
  }
}

}  // namespace quillon
