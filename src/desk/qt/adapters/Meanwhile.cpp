#include "desk/qt/adapters/Meanwhile.h"

#include <QApplication>
#include <QWidget>
#include <QWindow>

namespace quillon {

Meanwhile::Meanwhile() : QObject(qApp) { qApp->installEventFilter(this); }

Meanwhile& Meanwhile::Get() {
  static auto* const meanwhile = new Meanwhile;
  return *meanwhile;
}

Meanwhile::Block::Block(bool hearsEscape) {
  Meanwhile& meanwhile = Get();
  ++meanwhile.blocks_;
  meanwhile.hearsEscape_ = hearsEscape;
  meanwhile.isEscaped_ = false;
}

Meanwhile::Block::~Block() {
  Meanwhile& meanwhile = Get();
  meanwhile.hearsEscape_ = false;
  if (--meanwhile.blocks_ == 0) meanwhile.Release();
}

bool Meanwhile::Block::IsEscaped() const { return Get().isEscaped_; }

bool Meanwhile::IsOn() { return Get().blocks_ > 0; }

bool Meanwhile::eventFilter(QObject* /*watched*/, QEvent* event) {
  if (blocks_ == 0) return false;
  switch (event->type()) {
    case QEvent::ShortcutOverride:
      // A key that nobody wants becomes a menu's.
      event->accept();
      return true;
    case QEvent::KeyPress: {
      const auto& key = static_cast<const QKeyEvent&>(*event);
      if (hearsEscape_ && key.key() == Qt::Key_Escape) {
        isEscaped_ = true;
      } else {
        typed_.emplace_back(key.clone());
      }
      return true;
    }
    case QEvent::KeyRelease:
    case QEvent::Shortcut:
    case QEvent::MouseButtonPress:
    case QEvent::MouseButtonRelease:
    case QEvent::MouseButtonDblClick:
    case QEvent::MouseMove:
    case QEvent::Wheel:
    case QEvent::ContextMenu:
      return true;
    default:
      return false;
  }
}

/// What paints next keeps them again, until somebody hears them.
void Meanwhile::Release() {
  QObject* target = QGuiApplication::focusWindow();
  if (target == nullptr) target = QApplication::focusWidget();
  for (std::unique_ptr<QKeyEvent>& key : typed_) {
    if (target != nullptr) QCoreApplication::postEvent(target, key.release());
  }
  typed_.clear();
}

}  // namespace quillon
