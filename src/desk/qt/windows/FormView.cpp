#include "desk/qt/windows/FormView.h"

#include <QApplication>
#include <QCloseEvent>
#include <QKeyEvent>
#include <QPainter>

#include "desk/qt/adapters/Acts.h"
#include "desk/qt/adapters/Adapter.h"
#include "desk/qt/adapters/AdapterFactory.h"
#include "desk/qt/adapters/Scale.h"
#include "desk/qt/adapters/SurfaceAdapter.h"
#include "desk/qt/adapters/Theme.h"
#include "desk/qt/windows/FormKeys.h"
#include "host/forms/Runtime.h"

namespace quillon {

FormView::FormView(const FormPtr& form, QWidget* parent, Qt::WindowFlags flags)
    : QWidget(parent, flags), form_(form) {
  setObjectName(QString::fromStdString(form->Name()));
  setFocusPolicy(Qt::StrongFocus);
  FormKeys::Listen();
  Build(*form_, this, nullptr);
  form_->AddListener(*this);
  Dress();
}

FormView::~FormView() {
  form_->RemoveListener(*this);
  // The adapters leave their models, which go with the form.
  const QList<QWidget*> shown = findChildren<QWidget*>(QString(), Qt::FindDirectChildrenOnly);
  for (QWidget* widget : shown) delete widget;
}

void FormView::Build(Control& parent, QWidget* container, Adapter* holder) {
  for (Control* child : parent.Children()) {
    Adapter* const adapter = AdapterFactory::Make(*child, container);
    if (adapter == nullptr) continue;
    adapter->SetHolder(holder);
    adapter->Refresh();
    adapters_.push_back(adapter);
    byControl_[child] = adapter;
    if (QWidget* inside = adapter->Container()) Build(*child, inside, adapter);
  }
}

Adapter* FormView::AdapterOf(const Control& control) const {
  const auto known = byControl_.find(&control);
  return known == byControl_.end() ? nullptr : known->second;
}

void FormView::Dress() {
  setWindowTitle(QString::fromStdString(form_->Caption));
  setAccessibleName(windowTitle());
  const QSize size = Scale::Rect(*form_).size();
  if (isWindow()) {
    setFixedSize(size);
  } else {
    resize(size);
  }
  QPalette palette = QApplication::palette();
  if (form_->BackColor != Control::kDefaultColor) {
    palette.setColor(QPalette::Window, Theme::ColorOf(form_->BackColor));
  }
  setPalette(palette);
  setAutoFillBackground(true);
}

void FormView::Replace() {
  Dress();
  for (Adapter* adapter : adapters_) adapter->Refresh();
  Settle();
}

void FormView::Settle() {
  for (Adapter* adapter : adapters_) {
    if (adapter->Model().Visible) adapter->Settle();
  }
  Control* const focused = form_->ActiveControl();
  Adapter* const adapter = focused != nullptr ? AdapterOf(*focused) : nullptr;
  QWidget* const wanted = adapter != nullptr ? adapter->FocusWidget() : this;
  if (!wanted->hasFocus() && QApplication::activePopupWidget() == nullptr)
    wanted->setFocus(Qt::OtherFocusReason);
  update();
}

void FormView::ControlChanged(Control& /*control*/, const PropertyBase* property) {
  if (property != nullptr) Dress();
  update();
}

bool FormView::TakeKey(const QKeyEvent& key) {
  // A modal screen in the area keeps its keys from the other windows too.
  if (gRuntime->IsCovered(*form_)) return true;
  const PressedKey pressed = FormKeys::Of(key);
  if (pressed.KeyCode == 0 && pressed.Character == 0) return false;
  const FormPtr form = form_;
  Acts::Run([&] { form->UserKey(pressed.KeyCode, pressed.Shift, pressed.Character); });
  return true;
}

void FormView::TypeText(const QString& text) {
  const FormPtr form = form_;
  for (const char32_t character : text.toUcs4()) {
    if (character < U' ' || gRuntime->ActiveForm() != form) break;
    const int code = static_cast<int>(character);
    Acts::Run([&] { form->UserKey(CodeOfCharacter(code), 0, code); });
  }
}

void FormView::closeEvent(QCloseEvent* event) {
  // The form decides; its window goes when it has unloaded.
  event->ignore();
  const FormPtr form = form_;
  if (gRuntime->IsCovered(*form)) return;
  Acts::Run([&] { gRuntime->Unload(*form, UnloadMode::CloseBox); });
}

bool FormView::event(QEvent* event) {
  if (event->type() == QEvent::WindowActivate && isWindow() && form_->IsShownToUser() &&
      gRuntime->ActiveForm() != form_) {
    const FormPtr form = form_;
    Acts::Run([&] { gRuntime->BringToFront(*form); });
  }
  return QWidget::event(event);
}

void FormView::paintEvent(QPaintEvent* event) {
  QWidget::paintEvent(event);
  QPainter painter(this);
  SurfaceAdapter::DrawLines(painter, *form_);
  if (!isWindow()) return;
  painter.setPen(Theme::Border());
  painter.drawRect(rect().adjusted(0, 0, -1, -1));
}

}  // namespace quillon
