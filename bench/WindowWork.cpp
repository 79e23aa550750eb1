#include "bench/WindowWork.h"

#include <QApplication>
#include <QKeyEvent>
#include <QMouseEvent>
#include <QScrollBar>

#include "bench/BenchFirm.h"
#include "desk/qt/adapters/Acts.h"
#include "desk/qt/adapters/Adapter.h"
#include "desk/qt/windows/FormView.h"
#include "host/forms/Form.h"
#include "host/services/IApp.h"
#include "host/values/Errors.h"

namespace quillon::bench {

namespace {

constexpr int kWidth = 1366;
constexpr int kHeight = 768;
constexpr int kDragged = 40;

/// Whether a widget was painted while one of these lived.
class Painted : public QObject {
 public:
  explicit Painted(QWidget& widget) { widget.installEventFilter(this); }
  bool Was() const { return was_; }

  bool eventFilter(QObject* /*watched*/, QEvent* event) override {
    was_ = was_ || event->type() == QEvent::Paint;
    return false;
  }

 private:
  bool was_ = false;
};

}  // namespace

WindowWork::WindowWork(const std::filesystem::path& firm) {
  window_.resize(kWidth, kHeight);
  window_.show();
  window_.activateWindow();
  const QString fault = window_.OpenFirm(QString::fromStdString(firm.string()));
  if (!fault.isEmpty()) throw HostError(fault.toStdString());
  OpenStatement();
}

void WindowWork::OpenStatement() {
  Acts::Run([] {
    const FormPtr statement = gApp->GetForm("Account");
    statement->Set("AccountCode", kBank);
    gApp->ShowForm(statement);
  });
  Paint();
}

void WindowWork::Press(Qt::Key key) {
  QWidget* const focused = QApplication::focusWidget();
  QKeyEvent down(QEvent::KeyPress, key, Qt::NoModifier);
  QApplication::sendEvent(focused != nullptr ? focused : runtime_.TopView(), &down);
}

void WindowWork::Paint() {
  FormView& view = *runtime_.TopView();
  grid_ = dynamic_cast<GridWidget*>(&view.AdapterOf(view.Model().ControlAt("Grid"))->Widget());
  const Painted painted(*grid_->viewport());
  QApplication::processEvents();
  if (!painted.Was()) throw HostError("The grid was not painted");
}

void WindowWork::OpenWorkbench() {
  Press(Qt::Key_F6);
  Paint();
}

void WindowWork::CloseWorkbench() {
  if (dragged_) SendMouse(QEvent::MouseButtonRelease, *dragged_);
  dragged_.reset();
  Press(Qt::Key_Escape);
  Paint();
}

void WindowWork::ScrollBy(int step) {
  QScrollBar& bar = *grid_->verticalScrollBar();
  bar.setValue(bar.value() + step > bar.maximum() ? 0 : bar.value() + step);
  const Painted painted(*grid_->viewport());
  QApplication::processEvents();
  if (!painted.Was()) throw HostError("The grid was not painted");
}

void WindowWork::ScrollLine() { ScrollBy(grid_->verticalScrollBar()->singleStep()); }

void WindowWork::ScrollPage() { ScrollBy(grid_->verticalScrollBar()->pageStep()); }

void WindowWork::SendMouse(QEvent::Type type, const QPoint& place) {
  const bool isUp = type == QEvent::MouseButtonRelease;
  QMouseEvent event(type, place, place, type == QEvent::MouseMove ? Qt::NoButton : Qt::LeftButton,
                    isUp ? Qt::NoButton : Qt::LeftButton, {});
  QApplication::sendEvent(grid_->viewport(), &event);
}

void WindowWork::DragColumn() {
  const Painted painted(*grid_->viewport());
  if (!dragged_) {
    int col = 0;
    while (grid_->ColWidth(col) == 0) ++col;
    dragged_ = QPoint(grid_->CellRect(grid_->Model().Row, col).right() + 1, grid_->Body().top() - 2);
    SendMouse(QEvent::MouseButtonPress, *dragged_);
  }
  SendMouse(QEvent::MouseMove, *dragged_ + QPoint(++frame_ % kDragged, 0));
  QApplication::processEvents();
  if (!painted.Was()) throw HostError("The grid was not painted");
}

void WindowWork::DragWindow() {
  const Painted painted(*grid_->viewport());
  const int by = ++frame_ % kDragged;
  window_.resize(kWidth + by, kHeight - by);
  QApplication::processEvents();
  if (!painted.Was()) throw HostError("The grid was not painted");
}

}  // namespace quillon::bench
