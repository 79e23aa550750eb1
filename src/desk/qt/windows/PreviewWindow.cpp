#include "desk/qt/windows/PreviewWindow.h"

#include <QDesktopServices>
#include <QFile>
#include <QFileInfo>
#include <QHBoxLayout>
#include <QKeyEvent>
#include <QLineEdit>
#include <QSaveFile>
#include <QScrollArea>
#include <QScrollBar>
#include <QUrl>
#include <QWheelEvent>
#include <algorithm>
#include <array>
#include <filesystem>

#include "desk/print/PageSender.h"
#include "desk/print/ReportPainter.h"
#include "desk/print/Spooler.h"
#include "desk/qt/adapters/ElidedLabel.h"
#include "desk/qt/adapters/Scale.h"
#include "desk/qt/adapters/Theme.h"
#include "desk/qt/dialogs/InputDialog.h"
#include "desk/qt/dialogs/MessageDialog.h"
#include "desk/qt/dialogs/PrintDialog.h"
#include "desk/qt/dialogs/ToolkitDialogs.h"
#include "desk/qt/windows/PageView.h"
#include "host/services/Calibration.h"
#include "host/values/Errors.h"

namespace quillon {

namespace {

constexpr std::array kZooms = {50, 75, 100, 125, 150, 200, 300};

}  // namespace

PreviewWindow::PreviewWindow(ReportCopy report, QWidget* parent)
    : PagesWindow(
          QString::fromStdString(report.Sheets.Title.empty() ? "Preview" : "Preview: " + report.Sheets.Title),
          parent),
      report_(std::move(report)),
      search_(new QLineEdit(this)),
      state_(new ElidedLabel(this)) {
  ShowPages(report_.Sheets);
  AddTool(QStringLiteral("F9: Print"), QStringLiteral("print"), [this] { Print(); });
  AddTool(QStringLiteral("F5: Save as PDF"), QStringLiteral("save"), [this] { SavePdf(); });
  AddTool(QStringLiteral("F6: Save as CSV"), QStringLiteral("acstatement"), [this] { SaveCsv(); });
  search_->setPlaceholderText(QStringLiteral("Ctrl+F: Search, F3: next"));
  search_->setAccessibleName(QStringLiteral("Search"));
  search_->setMaximumWidth(Scale::Px(3300));
  area_->viewport()->installEventFilter(this);
  // It has a line of its own, for a long path must neither widen the window nor take the room of the search.
  state_->setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Preferred);
  search_->setMinimumWidth(Scale::Px(2700));
  Tools().addWidget(search_);
  Tools().addStretch(1);
  layout()->addWidget(state_);
  AddTool(QStringLiteral("F2: Width"), QString(), [this] { FitWidth(); });
  AddTool(QStringLiteral("F7: Smaller"), QString(), [this] { Zoom(-1); });
  AddTool(QStringLiteral("F8: Larger"), QString(), [this] { Zoom(1); });
  AddTool(QStringLiteral("Esc: Close"), QStringLiteral("close"), [this] { reject(); });
  connect(search_, &QLineEdit::returnPressed, this, [this] { Find(); });
  connect(area_->verticalScrollBar(), &QScrollBar::valueChanged, this, [this] { ShowState(); });
  ShowState();
}

void PreviewWindow::ShowState() {
  const std::size_t page = pages_->PageAt(area_->verticalScrollBar()->value() + area_->height() / 2);
  state_->setText(
      QStringLiteral("  Page %1 of %2    %3 %").arg(page + 1).arg(pages_->Pages()).arg(pages_->Percent()) +
      Corrected());
  state_->setToolTip(QString());
}

/// What the printer at hand will do to these pages.
QString PreviewWindow::Corrected() {
  const std::string printer = gRuntime->Printer().DeviceName;
  const Calibration calibration = Calibration::Of(printer);
  if (calibration.IsNone()) return {};
  return QString::fromStdString("    corrected by " + calibration.Words() + " for " + printer);
}

void PreviewWindow::Tell(const QString& text) {
  state_->setText(QStringLiteral("  ") + text);
  state_->setToolTip(text);
}

void PreviewWindow::TellFailure(const QString& text) {
  MessageRequest request;
  request.Text = text.toStdString();
  request.Icon = "E";
  request.Buttons = {"OK"};
  request.Title = windowTitle().toStdString();
  MessageDialog(request, this).exec();
}

void PreviewWindow::FitWidth() {
  const int room = area_->viewport()->width();
  pages_->SetPercent(
      std::clamp(pages_->Percent() * room / std::max(pages_->width(), 1), kZooms.front(), kZooms.back()));
  ShowState();
}

void PreviewWindow::Zoom(int step) {
  // Fitted to the width it may stand between two steps.
  const auto* next = step > 0 ? std::upper_bound(kZooms.begin(), kZooms.end(), pages_->Percent())
                              : std::lower_bound(kZooms.begin(), kZooms.end(), pages_->Percent());
  if (step > 0 ? next == kZooms.end() : next == kZooms.begin()) return;
  pages_->SetPercent(step > 0 ? *next : *std::prev(next));
  ShowState();
}

void PreviewWindow::Find() {
  if (search_->text().isEmpty()) {
    search_->setFocus();
  } else if (pages_->FindNext(search_->text())) {
    const QPoint place = pages_->Mark().center();
    area_->ensureVisible(place.x(), place.y(), 100, 100);
    ShowState();
  } else {
    Tell(QStringLiteral("\"%1\" is not in the report").arg(search_->text()));
  }
}

void PreviewWindow::GoToPage(int step) {
  const auto here = static_cast<int>(pages_->PageAt(area_->verticalScrollBar()->value() + 1));
  ShowPage(here + step);
}

void PreviewWindow::ShowPage(int page) {
  const int shown = std::clamp(page, 0, static_cast<int>(pages_->Pages()) - 1);
  area_->verticalScrollBar()->setValue(pages_->PageTop(static_cast<std::size_t>(shown)));
}

void PreviewWindow::AskPage() {
  InputRequest request;
  request.Prompt = "Page, 1 to " + std::to_string(pages_->Pages());
  request.Title = "Go to Page";
  InputDialog dialog(request, this);
  if (dialog.exec() != QDialog::Accepted) return;
  if (const int page = QString::fromStdString(dialog.Text()).toInt(); page > 0) ShowPage(page - 1);
}

void PreviewWindow::Print() {
  PrintSetup setup;
  setup.MaxPage = setup.PageTo = static_cast<int>(pages_->Pages());
  setup.Copies = 1;
  setup.OffersSight = false;
  setup.OE.clear();
  setup.Orientation = report_.Sheets.Orientation;
  PrintDialog dialog(setup, Spooler::Printers(), this);
  if (dialog.exec() != QDialog::Accepted) return;
  dialog.TakeInto(setup);
  try {
    const std::string file = FileOf(setup);
    const std::string& printer = setup.PrinterObj->DeviceName;
    if (printer == IPrinter::kPdfFile) {
      SavePages(file);
      return;
    }
    PageSender::Send(PagesOf(setup), file,
                     {.Printer = printer,
                      .Copies = setup.Copies,
                      .Monochrome = setup.ColorMode == IPrinter::kMonochrome,
                      .Paper = report_.Sheets.PaperSize});
    const std::string corrected = Calibration::Of(printer).Words();
    Tell(QString::fromStdString(
        "Sent to " + printer + (corrected.empty() ? "" : ", corrected by " + corrected + " for " + printer)));
  } catch (const HostError& error) {
    TellFailure(QString::fromStdString(error.what()));
  }
}

bool PreviewWindow::AreAll(const PrintSetup& setup) const {
  return setup.OE.empty() && setup.PageFrom <= 1 &&
         setup.PageTo >= static_cast<int>(report_.Sheets.Pages.size());
}

ReportPages PreviewWindow::PagesOf(const PrintSetup& setup) const {
  if (AreAll(setup)) return report_.Sheets;
  const auto count = static_cast<int>(report_.Sheets.Pages.size());
  ReportPages part = report_.Sheets;
  part.Pages.clear();
  for (int page = setup.PageFrom; page <= std::min(setup.PageTo, count); ++page) {
    const bool wanted = setup.OE.empty() || (page % 2 == 1) == (setup.OE == "O");
    if (wanted) part.Pages.push_back(report_.Sheets.Pages[static_cast<std::size_t>(page - 1)]);
  }
  if (part.Pages.empty()) throw HostError("There is no such page");
  return part;
}

std::string PreviewWindow::FileOf(const PrintSetup& setup) const {
  if (AreAll(setup)) return report_.File;
  const std::filesystem::path folder = std::filesystem::path(report_.File).parent_path();
  return ReportPainter::WritePdf(PagesOf(setup), folder.string(), "pages");
}

QString PreviewWindow::AskName(const QString& title, const QString& suffix) {
  QString name = QString::fromStdString(report_.Sheets.Title).simplified();
  for (const char c : {'/', '\\', ':'}) name.replace(QLatin1Char(c), QLatin1Char(' '));
  QString file =
      ToolkitDialogs::SaveFile(this, title, name + suffix, QStringLiteral("Files (*%1)").arg(suffix));
  if (!file.isEmpty() && !file.endsWith(suffix, Qt::CaseInsensitive)) file += suffix;
  return file;
}

void PreviewWindow::Write(const QString& file, const QByteArray& bytes) {
  if (file.isEmpty()) return;
  QSaveFile out(file);
  const bool written =
      out.open(QIODevice::WriteOnly) && out.write(bytes) == bytes.size() && out.flush() && out.commit();
  if (!written) {
    TellFailure(QStringLiteral("%1 cannot be written: %2").arg(file, out.errorString()));
    return;
  }
  saved_ = file;
  Tell(QStringLiteral("Saved as %1   (F4: its folder)").arg(file));
}

void PreviewWindow::OpenFolder() {
  if (saved_.isEmpty()) {
    Tell(QStringLiteral("Nothing is saved yet."));
  } else if (!QDesktopServices::openUrl(QUrl::fromLocalFile(QFileInfo(saved_).absolutePath()))) {
    TellFailure(QStringLiteral("No program shows folders here. The file is %1").arg(saved_));
  }
}

void PreviewWindow::SavePdf() { SavePages(report_.File); }

void PreviewWindow::SavePages(const std::string& file) {
  QFile pages(QString::fromStdString(file));
  if (!pages.open(QIODevice::ReadOnly)) {
    TellFailure(QStringLiteral("The pages cannot be read: %1").arg(pages.errorString()));
    return;
  }
  Write(AskName(QStringLiteral("Save as PDF"), QStringLiteral(".pdf")), pages.readAll());
}

void PreviewWindow::SaveCsv() {
  Write(AskName(QStringLiteral("Save as CSV"), QStringLiteral(".csv")),
        QByteArray::fromStdString(report_.Csv));
}

bool PreviewWindow::GoByKey(const QKeyEvent& event) {
  const bool held = event.modifiers() == Qt::ControlModifier;
  if (held && event.key() == Qt::Key_F) {
    search_->setFocus();
    search_->selectAll();
  } else if (held && event.key() == Qt::Key_G) {
    AskPage();
  } else if (event.key() == Qt::Key_Home) {
    ShowPage(0);
  } else if (event.key() == Qt::Key_End) {
    ShowPage(static_cast<int>(pages_->Pages()) - 1);
  } else {
    return false;
  }
  return true;
}

void PreviewWindow::keyPressEvent(QKeyEvent* event) {
  if (GoByKey(*event)) return;
  switch (event->key()) {
    case Qt::Key_F2:
      FitWidth();
      break;
    case Qt::Key_F4:
      OpenFolder();
      break;
    case Qt::Key_F3:
      Find();
      break;
    case Qt::Key_F5:
      SavePdf();
      break;
    case Qt::Key_F6:
      SaveCsv();
      break;
    case Qt::Key_F7:
      Zoom(-1);
      break;
    case Qt::Key_F8:
      Zoom(1);
      break;
    case Qt::Key_F9:
      Print();
      break;
    case Qt::Key_PageUp:
      GoToPage(-1);
      break;
    case Qt::Key_PageDown:
      GoToPage(1);
      break;
    case Qt::Key_Return:
    case Qt::Key_Enter:
      break;  // Enter in the search must not press a button
    default:
      QDialog::keyPressEvent(event);
  }
}

void PreviewWindow::wheelEvent(QWheelEvent* event) {
  if (event->modifiers() != Qt::ControlModifier || event->angleDelta().y() == 0) {
    QDialog::wheelEvent(event);
  } else {
    Zoom(event->angleDelta().y() > 0 ? 1 : -1);
  }
}

/// With Ctrl the wheel is not the scroll bar's.
bool PreviewWindow::eventFilter(QObject* watched, QEvent* event) {
  if (event->type() == QEvent::Wheel) {
    auto* const wheel = static_cast<QWheelEvent*>(event);
    if (wheel->modifiers() == Qt::ControlModifier) {
      wheelEvent(wheel);
      return true;
    }
  }
  return PagesWindow::eventFilter(watched, event);
}

void PreviewWindow::done(int result) {
  QDialog::done(result);
  // Where no window manager does it, the window below would stay without the keys.
  if (parentWidget() != nullptr) parentWidget()->activateWindow();
}

}  // namespace quillon
