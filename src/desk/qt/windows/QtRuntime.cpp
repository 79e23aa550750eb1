#include "desk/qt/windows/QtRuntime.h"

#include <QApplication>
#include <QClipboard>
#include <QEventLoop>
#include <QLocale>
#include <QScreen>
#include <QTextDocument>
#include <QThread>
#include <QToolTip>
#include <algorithm>
#include <cmath>

#include "desk/firebird/EngineThread.h"
#include "desk/print/Spooler.h"
#include "desk/print/TextMeasure.h"
#include "desk/qt/adapters/Acts.h"
#include "desk/qt/adapters/Adapter.h"
#include "desk/qt/adapters/GridWidget.h"
#include "desk/qt/adapters/Scale.h"
#include "desk/qt/windows/DeskArea.h"
#include "desk/qt/windows/FormPicture.h"
#include "desk/qt/windows/FormView.h"
#include "host/controls/GridModel.h"
#include "host/forms/ScreenForm.h"
#include "host/services/ISession.h"
#include "host/values/FlagHold.h"

namespace quillon {

namespace {

constexpr int kRests = 60;  // milliseconds
constexpr int kCellShownFor = 60'000;

}  // namespace

/// What fills the main window's area, rather than standing before it. A modal window keeps the area from the
/// user, so what it opens is a window too.
bool QtRuntime::IsScreen(const Form& form) const {
  if (area_ == nullptr || (form.IsModal() && QApplication::activeModalWidget() != nullptr)) return false;
  if (dynamic_cast<const ScreenForm*>(&form) != nullptr) return true;
  return gSession != nullptr && form.Width >= gSession->FormWidth() && form.Height >= gSession->FormHeight();
}

QtRuntime::QtRuntime(std::string outputFolder) : printer_(std::move(outputFolder), this) {
  printer_.AskSight = [this](const ReportPages& pages) { return AskSight(pages); };
  Acts::SetAfterwards([this] { Settle(); });
  selected_.setSingleShot(true);
  selected_.setInterval(kRests);
  QObject::connect(&selected_, &QTimer::timeout, [this] { TellSelected(); });
  EngineThread::Start([](bool mayBreak) { return Acts::PaintAndListen(mayBreak); });
}

QtRuntime::~QtRuntime() {
  EngineThread::Stop();
  Acts::SetAfterwards({});
  for (const auto& [form, view] : views_) delete view;
}

FormView* QtRuntime::ViewOf(const Form& form) const {
  const auto known = views_.find(&form);
  return known == views_.end() ? nullptr : known->second;
}

FormView* QtRuntime::TopView() const {
  const FormPtr top = ActiveForm();
  return top ? ViewOf(*top) : nullptr;
}

QWidget* QtRuntime::TopWindow() const {
  if (QWidget* dialog = QApplication::activeModalWidget()) return dialog;
  if (FormView* view = TopView()) return view->window();
  return area_ ? area_->window() : nullptr;
}

void QtRuntime::Replace() {
  for (const auto& [form, view] : views_) view->Replace();
}

long QtRuntime::ScreenWidth() const {
  return Scale::Twips(QApplication::primaryScreen()->availableSize().width());
}

long QtRuntime::ScreenHeight() const {
  return Scale::Twips(QApplication::primaryScreen()->availableSize().height());
}

void QtRuntime::Beep() { QApplication::beep(); }

void QtRuntime::ShowBusy(bool on, const std::string& text) {
  if (OnBusy) OnBusy(on, text);
}

void QtRuntime::ShowProgress(const std::string& text, std::int64_t done, std::int64_t whole) {
  const QLocale locale(QLocale::English, QLocale::India);
  QString words =
      QString::fromStdString(text) + QLatin1Char(' ') + locale.toString(static_cast<qlonglong>(done));
  if (whole > 0) words += QStringLiteral(" of ") + locale.toString(static_cast<qlonglong>(whole));
  if (OnProgress) OnProgress(words.toStdString());
  Acts::LetPaint();
}

void QtRuntime::HideProgress() {
  if (OnProgress) OnProgress("");
}

void QtRuntime::Say(const std::string& text) {
  if (OnSaid) OnSaid(text);
}

void QtRuntime::ShowCell(GridModel& grid, const std::string& text) {
  FormView* const view = ViewOf(grid.OwnerForm());
  Adapter* const adapter = view != nullptr ? view->AdapterOf(grid) : nullptr;
  auto* const shown = adapter != nullptr ? dynamic_cast<GridWidget*>(&adapter->Widget()) : nullptr;
  if (shown == nullptr) return;
  // As rich text its lines are broken.
  const QPoint below = shown->viewport()->mapToGlobal(shown->CellRect(grid.Row, grid.Col).bottomLeft());
  QToolTip::showText(below, Qt::convertFromPlainText(QString::fromStdString(text)), shown->viewport(), {},
                     kCellShownFor);
}

void QtRuntime::ShowWaiting(bool on) {
  if (QThread::currentThread() != qApp->thread()) {
    const auto show = [on] {
      if (gRuntime != nullptr) gRuntime->ShowWaiting(on);
    };
    QMetaObject::invokeMethod(qApp, show, Qt::QueuedConnection);
    return;
  }
  if (on) {
    QApplication::setOverrideCursor(Qt::WaitCursor);
  } else {
    QApplication::restoreOverrideCursor();
  }
  if (OnWaiting) OnWaiting(on);
  Acts::LetPaint();
}

long QtRuntime::TextWidth(const Font& font, const std::string& text) const {
  return std::lround(TextMeasure::Width(font, text));
}

std::string QtRuntime::ClipboardText() const { return QApplication::clipboard()->text().toStdString(); }

void QtRuntime::SetClipboardText(const std::string& text) {
  QApplication::clipboard()->setText(QString::fromStdString(text));
}

std::vector<PrinterDevice> QtRuntime::Printers() const { return Spooler::Printers(); }

void QtRuntime::PrintForm(Form& form) { FormPicture::Print(form.Self(), printer_); }

void QtRuntime::ShowView(Form& form) {
  FormView*& view = views_[&form];
  const bool screen = IsScreen(form);
  if (view != nullptr && view->isWindow() == screen) {
    HideView(form);
    view->deleteLater();
    view = nullptr;
  }
  if (view == nullptr) {
    const Qt::WindowFlags window =
        Qt::Dialog | Qt::CustomizeWindowHint | Qt::WindowTitleHint | Qt::WindowCloseButtonHint;
    view = screen ? new FormView(form.Self(), area_)
                  : new FormView(form.Self(), area_ ? area_->window() : nullptr, window);
    view->Serve();
    // The desk's title names the screen.
    QObject::connect(view, &QWidget::windowTitleChanged, view, [this] {
      if (OnTopChanged) OnTopChanged();
    });
  }
  if (screen) {
    area_->Bring(*view);
  } else {
    view->setWindowModality(form.IsModal() ? Qt::ApplicationModal : Qt::NonModal);
    const QRect room = view->screen()->availableGeometry();
    const QPoint last = room.bottomRight() - QPoint(view->width(), view->height());
    view->move(std::max(room.left(), std::min(Scale::Px(form.Left), last.x())),
               std::max(room.top(), std::min(Scale::Px(form.Top), last.y())));
    view->show();
  }
  Settle();
}

void QtRuntime::HideView(Form& form) {
  FormView* const view = ViewOf(form);
  if (view == nullptr) return;
  if (area_ && !view->isWindow()) {
    area_->Remove(*view);
  } else {
    view->hide();
  }
}

void QtRuntime::FormHappened(Happening what, Form& form) {
  switch (what) {
    case Happening::Load:
      break;
    case Happening::Show:
      ShowView(form);
      break;
    case Happening::Hide:
      HideView(form);
      break;
    case Happening::Unload:
      HideView(form);
      // The act that closed the form may have come from its own window.
      if (FormView* view = ViewOf(form)) view->deleteLater();
      views_.erase(&form);
      break;
  }
}

void QtRuntime::Settle() {
  const FormPtr top = ActiveForm();
  FormView* const view = top ? ViewOf(*top) : nullptr;
  if (top_.lock() != top) {
    top_ = top;
    if (view != nullptr && !view->isWindow() && area_) area_->Bring(*view);
    QWidget* const window = view != nullptr ? view->window() : area_ ? area_->window() : nullptr;
    if (window != nullptr && window->isVisible()) {
      window->raise();
      window->activateWindow();
    }
    if (OnTopChanged) OnTopChanged();
  }
  if (view != nullptr) view->Settle();
  if (!selected_.isActive()) selected_.start();
}

void QtRuntime::TellSelected() {
  const FormPtr top = ActiveForm();
  const auto* const grid = top ? dynamic_cast<const GridModel*>(top->ActiveControl()) : nullptr;
  const bool isReady = grid != nullptr && grid->Redraw && !Acts::IsPainting();
  if (OnSelected) OnSelected(isReady ? grid->SelectedFiguresText() : std::string());
}

void QtRuntime::PointerChanged(int pointer) {
  if (pointer == kPointerDefault) {
    QApplication::restoreOverrideCursor();
  } else if (QApplication::overrideCursor() == nullptr) {
    QApplication::setOverrideCursor(Qt::WaitCursor);
  }
}

void QtRuntime::Repaint() {
  Settle();
  Acts::LetPaint();
}

void QtRuntime::Wait(const std::function<bool()>& done) {
  const FlagHold waits(waits_);
  const PointerRest rest(*this);
  QEventLoop loop;
  Settle();
  while (!done()) loop.processEvents(QEventLoop::WaitForMoreEvents);
}

}  // namespace quillon
