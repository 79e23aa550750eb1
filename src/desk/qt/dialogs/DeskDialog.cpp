#include "desk/qt/dialogs/DeskDialog.h"

#include <QApplication>
#include <QKeyEvent>
#include <QLabel>
#include <QLineEdit>
#include <QPainter>
#include <QScreen>
#include <QScrollArea>

#include "desk/qt/adapters/PushButton.h"
#include "desk/qt/adapters/Scale.h"
#include "desk/qt/adapters/Theme.h"

namespace quillon {

namespace {

constexpr long kMargin = 240;
constexpr long kGap = 120;

// What the window manager puts around a dialog.
constexpr long kFrameSides = 150;
constexpr long kFrameTop = 600;

}  // namespace

DeskDialog::DeskDialog(const QString& title, QWidget* parent)
    : QDialog(parent, Qt::Dialog | Qt::CustomizeWindowHint | Qt::WindowTitleHint | Qt::WindowCloseButtonHint),
      all_(new QVBoxLayout(this)),
      content_(new QVBoxLayout),
      buttons_(new QHBoxLayout),
      fault_(new QLabel(this)) {
  setWindowTitle(title);
  const int margin = Scale::Px(kMargin);
  all_->setContentsMargins(margin, margin, margin, margin);
  all_->setSpacing(Scale::Px(kGap));
  content_->setSpacing(Scale::Px(kGap));
  all_->addLayout(content_, 1);
  fault_->setWordWrap(true);
  fault_->setStyleSheet(QStringLiteral("color: #A3261B"));
  fault_->hide();
  all_->addWidget(fault_);
  all_->addSpacing(Scale::Px(kGap));
  all_->addLayout(buttons_);
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

void DeskDialog::setVisible(bool visible) {
  if (visible && !scrolls_) KeepOnScreen();
  QDialog::setVisible(visible);
}

/// The buttons stay in sight below what is scrolled.
void DeskDialog::KeepOnScreen() {
  const QSize room = screen()->availableSize() - QSize(Scale::Px(kFrameSides), Scale::Px(kFrameTop));
  const QSize wanted = sizeHint();
  if (wanted.boundedTo(room) == wanted) return;
  scrolls_ = true;
  QWidget* const focused = focusWidget();
  auto* const area = new QScrollArea(this);
  all_->removeItem(content_);
  content_->setParent(nullptr);
  auto* const ground = new QWidget;
  ground->setLayout(content_);
  area->setWidget(ground);
  area->setWidgetResizable(true);
  area->setFrameShape(QFrame::NoFrame);
  all_->insertWidget(0, area, 1);
  connect(qApp, &QApplication::focusChanged, area, [area](QWidget* /*left*/, QWidget* now) {
    if (now != nullptr && area->isAncestorOf(now)) area->ensureWidgetVisible(now);
  });
  resize(wanted.boundedTo(room));
  if (focused != nullptr) focused->setFocus();
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
