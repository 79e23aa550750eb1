#include "desk/qt/adapters/BoxEdit.h"

#include <QContextMenuEvent>
#include <QMouseEvent>
#include <QPainter>
#include <algorithm>

#include "desk/qt/adapters/Acts.h"
#include "desk/qt/adapters/KeyMenu.h"
#include "desk/qt/adapters/Theme.h"
#include "host/forms/Form.h"

namespace quillon {

namespace {

constexpr int kMargin = 4;

}  // namespace

BoxEdit::BoxEdit(TextBox& box, Control& owner, QWidget* parent)
    : QLineEdit(parent), box_(box), owner_(owner) {
  setFrame(false);
  setTextMargins(kMargin, 0, kMargin, 0);
  setDragEnabled(false);
  setAcceptDrops(false);
  setFocusPolicy(Qt::TabFocus);
}

bool BoxEdit::IsOwned() const { return owner_.OwnerForm().ActiveControl() == &owner_; }

void BoxEdit::ShowBox() {
  const QString wanted = QString::fromStdString(box_.Text);
  if (text() != wanted) setText(wanted);
  const int end = static_cast<int>(wanted.size());
  const int start = std::clamp(box_.SelStart, 0, end);
  const int length = IsOwned() ? std::clamp(box_.SelLength, 0, end - start) : 0;
  if (length > 0) {
    const bool backwards = box_.Caret() == box_.SelStart;
    setSelection(backwards ? start + length : start, backwards ? -length : length);
  } else {
    deselect();
    setCursorPosition(start);
  }
  QPalette shown = palette();
  if (box_.Locked) shown.setColor(QPalette::Base, Theme::Window());
  setPalette(shown);
  update();
}

void BoxEdit::paintEvent(QPaintEvent* event) {
  QLineEdit::paintEvent(event);
  QPainter painter(this);
  Theme::DrawEdge(painter, rect(), IsOwned());
}

void BoxEdit::TellCaret() {
  if (!IsOwned()) return;
  const int caret = cursorPosition();
  const int start = hasSelectedText() ? selectionStart() : caret;
  const int end = start + static_cast<int>(selectedText().size());
  box_.Select(caret == start ? end : start, caret);
}

void BoxEdit::mousePressEvent(QMouseEvent* event) {
  if (event->button() != Qt::LeftButton) return;
  if (!IsOwned()) {
    Acts::Run([this] { owner_.OwnerForm().UserFocus(owner_); });
  }
  if (!IsOwned()) return;
  QLineEdit::mousePressEvent(event);
  TellCaret();
}

void BoxEdit::mouseMoveEvent(QMouseEvent* event) {
  if (!IsOwned() || !(event->buttons() & Qt::LeftButton)) return;
  QLineEdit::mouseMoveEvent(event);
  TellCaret();
}

void BoxEdit::mouseReleaseEvent(QMouseEvent* event) {
  if (event->button() != Qt::LeftButton || !IsOwned()) return;
  QLineEdit::mouseReleaseEvent(event);
  TellCaret();
}

void BoxEdit::mouseDoubleClickEvent(QMouseEvent* event) {
  if (event->button() != Qt::LeftButton || !IsOwned()) return;
  QLineEdit::mouseDoubleClickEvent(event);
  TellCaret();
}

void BoxEdit::contextMenuEvent(QContextMenuEvent* event) {
  if (!IsOwned()) {
    Acts::Run([this] { owner_.OwnerForm().UserFocus(owner_); });
  }
  if (IsOwned()) KeyMenu::Show(*this, event->globalPos(), owner_, box_.KeyChoices());
}

}  // namespace quillon
