#include "desk/qt/windows/FormView.h"

#include <QApplication>
#include <QCloseEvent>
#include <QKeyEvent>
#include <QPainter>
#include <QScreen>
#include <QStyle>
#include <algorithm>
#include <utility>

#include "desk/qt/adapters/Acts.h"
#include "desk/qt/adapters/Adapter.h"
#include "desk/qt/adapters/AdapterFactory.h"
#include "desk/qt/adapters/GridAdapter.h"
#include "desk/qt/adapters/GridWidget.h"
#include "desk/qt/adapters/Scale.h"
#include "desk/qt/adapters/SurfaceAdapter.h"
#include "desk/qt/adapters/Theme.h"
#include "desk/qt/windows/FormKeys.h"
#include "host/controls/CSelGrid.h"
#include "host/controls/EditableGrid.h"
#include "host/forms/Runtime.h"

namespace quillon {

namespace {

// What the window manager puts around a dialog, in twips.
constexpr long kFrameSides = 150;
constexpr long kFrameTop = 600;

/// Where a field, or the cell under edit, stands on the form that nobody has laid out anew.
QPoint LoadedPlace(const Control& field) {
  const Control::Corner corner = field.CornerOnForm();
  QPoint place(Scale::Px(corner.left), Scale::Px(corner.top));
  const auto* const grid = dynamic_cast<const EditableGrid*>(&field);
  if (grid != nullptr && grid->EditMode()) {
    const GridModel::Place cell = grid->CellPlace(grid->EditRow(), grid->EditCol());
    place += QPoint(Scale::Px(cell.left), Scale::Px(cell.top));
  }
  return place;
}

}  // namespace

class FormView::Ground : public QWidget {
 public:
  Ground(const Form& form, bool hasEdge) : form_(form), hasEdge_(hasEdge) {}

 protected:
  void paintEvent(QPaintEvent* /*event*/) override {
    QPainter painter(this);
    SurfaceAdapter::DrawLines(painter, form_);
    if (!hasEdge_) return;
    painter.setPen(Theme::Border());
    painter.drawRect(rect().adjusted(0, 0, -1, -1));
  }

 private:
  const Form& form_;
  bool hasEdge_;
};

FormView::FormView(const FormPtr& form, QWidget* parent, Qt::WindowFlags flags)
    : QScrollArea(parent), form_(form) {
  setWindowFlags(flags);
  ground_ = new Ground(*form, isWindow());
  setObjectName(QString::fromStdString(form->Name()));
  setFocusPolicy(Qt::StrongFocus);
  setFrameShape(QFrame::NoFrame);
  setWidget(ground_);
  // The surface is the view's own, which paper leaves out.
  ground_->setAutoFillBackground(false);
  viewport()->setAutoFillBackground(false);
  FormKeys::Listen();
  Build(*form_, ground_, nullptr);
  form_->AddListener(*this);
  Dress();
}

FormView::~FormView() {
  form_->RemoveListener(*this);
  delete ground_;  // the adapters leave their models, which go with the form
}

void FormView::Build(Control& parent, QWidget* container, Adapter* holder) {
  for (Control* child : parent.Children()) {
    Adapter* const adapter = AdapterFactory::Make(*child, container);
    if (adapter == nullptr) continue;
    adapter->SetRoom(room_, holder);
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
  if (isWindow()) {
    setFixedSize(WholeSize());
  } else if (!serves_) {
    resize(WholeSize());
  }
  QPalette palette = QApplication::palette();
  if (form_->BackColor != Control::kDefaultColor) {
    palette.setColor(QPalette::Window, Theme::ColorOf(form_->BackColor));
  }
  setPalette(palette);
  setAutoFillBackground(true);
  Arrange();
}

/// With the bars that it needs where the screen has no room for all of it.
QSize FormView::WholeSize() const {
  const QSize whole = Scale::Rect(*form_).size();
  if (!serves_) return whole;
  const QSize room = screen()->availableSize() - QSize(Scale::Px(kFrameSides), Scale::Px(kFrameTop));
  const int bar = style()->pixelMetric(QStyle::PM_ScrollBarExtent);
  const QSize bars(whole.height() > room.height() ? bar : 0, whole.width() > room.width() ? bar : 0);
  return (whole + bars).boundedTo(room);
}

void FormView::Serve() {
  serves_ = true;
  for (Adapter* adapter : adapters_) {
    if (auto* const grid = dynamic_cast<GridAdapter*>(adapter)) grid->KeepColumns();
  }
  Dress();
}

/// The form's own size, or in the user's screens that of the window.
void FormView::Arrange() {
  EdgeLayout::Size size{form_->Width, form_->Height};
  if (serves_ && !isWindow()) {
    const int bar = style()->pixelMetric(QStyle::PM_ScrollBarExtent);
    size = FormRoom::SizeIn(*form_, {Scale::Twips(width()), Scale::Twips(height())});
    // A bar that is needed for the height takes of the width.
    if (Scale::Px(size.height) > height()) {
      size = FormRoom::SizeIn(*form_, {Scale::Twips(width() - bar), Scale::Twips(height())});
    }
  }
  const bool isLaid = room_.Lay(*form_, size);
  ground_->resize(Scale::Px(size.width), Scale::Px(size.height));
  if (!isLaid) return;
  for (Adapter* adapter : adapters_) adapter->TakePlace();
}

void FormView::resizeEvent(QResizeEvent* event) {
  QScrollArea::resizeEvent(event);
  if (!serves_ || isWindow()) return;
  Arrange();
  PlaceLists();
  shownAt_ = {};
  ShowFocus();
}

void FormView::Replace() {
  Dress();
  for (Adapter* adapter : adapters_) adapter->Refresh();
  Settle();
}

void FormView::Settle() {
  Arrange();
  for (Adapter* adapter : adapters_) {
    if (adapter->Model().Visible) adapter->Settle();
  }
  Control* const focused = form_->ActiveControl();
  Adapter* const adapter = focused != nullptr ? AdapterOf(*focused) : nullptr;
  QWidget* const wanted = adapter != nullptr ? adapter->FocusWidget() : this;
  if (!wanted->hasFocus() && QApplication::activePopupWidget() == nullptr)
    wanted->setFocus(Qt::OtherFocusReason);
  PlaceLists();
  ShowFocus();
  ground_->update();
}

/// A list stands at its field as the window shows that.
void FormView::PlaceLists() {
  Control* const typed = form_->ActiveControl();
  Adapter* const field = typed != nullptr && typed->TypedBox() != nullptr ? AdapterOf(*typed) : nullptr;
  if (field == nullptr || !room_.IsLaid()) return;
  for (Adapter* adapter : adapters_) {
    const auto* const list = dynamic_cast<const CSelGrid*>(&adapter->Model());
    if (list == nullptr || !list->Visible || list->BoundText() != typed->TypedBox()) continue;
    const QWidget& edit = *field->FocusWidget();
    QWidget& shown = adapter->Widget();
    const QRect at(edit.mapTo(ground_, QPoint()), edit.size());
    const QPoint loaded = LoadedPlace(*typed);
    const Control::Corner corner = list->CornerOnForm();
    const int indent = std::max(0, Scale::Px(corner.left) - loaded.x());
    const bool isBelow =
        Scale::Px(corner.top) >= loaded.y() && at.bottom() + shown.height() < ground_->height();
    const int left = std::clamp(at.left() + indent, 0, std::max(0, ground_->width() - shown.width()));
    const QPoint place(left, isBelow ? at.bottom() + 1 : std::max(0, at.top() - shown.height()));
    shown.move(shown.parentWidget()->mapFrom(ground_, place));
  }
}

/// What the keys act on comes into sight when it has moved.
void FormView::ShowFocus() {
  const QWidget* const focused = focusWidget();
  if (focused == nullptr || !ground_->isAncestorOf(focused)) return;
  QRect at = focused->rect();
  const auto* const grid = dynamic_cast<const GridWidget*>(focused);
  if (grid != nullptr) at = grid->CursorRect();
  const QRect place(focused->mapTo(ground_, at.topLeft()), at.size());
  if (std::exchange(shownAt_, place) == place || at.isEmpty()) return;
  const QPoint middle = place.center();
  ensureVisible(middle.x(), middle.y(), place.width() / 2 + 1, place.height() / 2 + 1);
}

void FormView::ControlChanged(Control& /*control*/, const PropertyBase* property) {
  if (property != nullptr) Dress();
  ground_->update();
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
  return QScrollArea::event(event);
}

}  // namespace quillon
