#include "desk/qt/dialogs/DeskDialog.h"

#include <QKeyEvent>
#include <QLabel>
#include <QLineEdit>
#include <QPainter>

#include "desk/qt/adapters/PushButton.h"
#include "desk/qt/adapters/Scale.h"
#include "desk/qt/adapters/Theme.h"

namespace quillon {

namespace {

constexpr long kMargin = 240;
constexpr long kGap = 120;

}  // namespace

DeskDialog::DeskDialog(const QString& title, QWidget* parent)
    : QDialog(parent, Qt::Dialog | Qt::CustomizeWindowHint | Qt::WindowTitleHint | Qt::WindowCloseButtonHint),
      content_(new QVBoxLayout),
      buttons_(new QHBoxLayout),
      fault_(new QLabel(this)) {
  setWindowTitle(title);
  const int margin = Scale::Px(kMargin);
  auto* const all = new QVBoxLayout(this);
  all->setContentsMargins(margin, margin, margin, margin);
  all->setSpacing(Scale::Px(kGap));
  content_->setSpacing(Scale::Px(kGap));
  all->addLayout(content_, 1);
  fault_->setWordWrap(true);
  fault_->setStyleSheet(QStringLiteral("color: #A3261B"));
  fault_->hide();
  all->addWidget(fault_);
  all->addSpacing(Scale::Px(kGap));
  all->addLayout(buttons_);
  buttons_->setSpacing(Scale::Px(kGap));
  buttons_->addStretch(1);
}

PushButton& DeskDialog::AddButton(const QString& caption, const std::function<void()>& pressed) {
  auto* const button = new PushButton(this);
  button->SetCaption(caption);
  button->setAutoDefault(true);
  connect(button, &QPushButton::clicked, this, pressed);
  buttons_->addWidget(button);
  return *button;
}

void DeskDialog::AddOkCancel() {
  hasOk_ = true;
  AddButton(QStringLiteral("F7: OK"), [this] { Confirm(); }).setDefault(true);
  AddButton(QStringLiteral("Esc: Cancel"), [this] { reject(); });
}

void DeskDialog::ShowFault(const QString& text) {
  fault_->setText(text);
  fault_->setVisible(!text.isEmpty());
}

void DeskDialog::Confirm() {
  if (Check()) accept();
}

/// From a field of text to the next one below it; false when there is none.
bool DeskDialog::MoveOn() {
  const auto* const field = qobject_cast<QLineEdit*>(focusWidget());
  if (field == nullptr) return false;
  const QList<QLineEdit*> fields = findChildren<QLineEdit*>();
  const auto next = fields.indexOf(field) + 1;
  if (next >= fields.size()) return false;
  fields.at(next)->setFocus(Qt::TabFocusReason);
  fields.at(next)->selectAll();
  return true;
}

void DeskDialog::keyPressEvent(QKeyEvent* event) {
  const bool plain = (event->modifiers() & ~Qt::KeypadModifier) == Qt::NoModifier;
  const bool enter = event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter;
  if (hasOk_ && plain && event->key() == Qt::Key_F7) {
    Confirm();
  } else if (!(plain && enter && MoveOn())) {
    QDialog::keyPressEvent(event);
  }
}

void DeskDialog::showEvent(QShowEvent* event) {
  QDialog::showEvent(event);
  activateWindow();
}

void DeskDialog::done(int result) {
  QDialog::done(result);
  // Where no window manager does it, the window below would stay without the keys.
  if (parentWidget() != nullptr) parentWidget()->activateWindow();
}

void DeskDialog::paintEvent(QPaintEvent* event) {
  QDialog::paintEvent(event);
  QPainter painter(this);
  painter.setPen(Theme::Border());
  painter.drawRect(rect().adjusted(0, 0, -1, -1));
}

}  // namespace quillon
