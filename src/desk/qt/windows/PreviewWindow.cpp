#include "desk/qt/windows/PreviewWindow.h"

#include <QFile>
#include <QHBoxLayout>
#include <QKeyEvent>
#include <QLineEdit>
#include <QSaveFile>
#include <QScrollArea>
#include <QScrollBar>
#include <algorithm>
#include <array>
#include <filesystem>

#include "desk/print/PageSender.h"
#include "desk/print/ReportPainter.h"
#include "desk/print/Spooler.h"
#include "desk/qt/adapters/ElidedLabel.h"
#include "desk/qt/adapters/Scale.h"
#include "desk/qt/adapters/Theme.h"
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
  search_->setPlaceholderText(QStringLiteral("Search (F3: next)"));
  search_->setAccessibleName(QStringLiteral("Search"));
  search_->setMaximumWidth(Scale::Px(3300));
  // A long path must neither widen the window nor take the room of the search.
  state_->setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Preferred);
  search_->setMinimumWidth(Scale::Px(1800));
  Tools().addWidget(search_);
  Tools().addWidget(state_, 1);
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
      QStringLiteral("  Page %1 of %2    %3 %").arg(page + 1).arg(pages_->Pages()).arg(pages_->Percent()));
  state_->setToolTip(QString());
}

void PreviewWindow::Tell(const QString& text) {
  state_->setText(QStringLiteral("  ") + text);
  state_->setToolTip(text);
}

void PreviewWindow::Zoom(int step) {
  const auto here = std::find(kZooms.begin(), kZooms.end(), pages_->Percent());
  const auto at = std::clamp<std::ptrdiff_t>(here - kZooms.begin() + step, 0, std::ssize(kZooms) - 1);
  pages_->SetPercent(kZooms[static_cast<std::size_t>(at)]);
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
  const int page = std::clamp(here + step, 0, static_cast<int>(pages_->Pages()) - 1);
  area_->verticalScrollBar()->setValue(pages_->PageTop(static_cast<std::size_t>(page)));
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
    Tell(QString::fromStdString("Sent to " + printer +
                                (corrected.empty() ? "" : ", corrected by " + corrected)));
  } catch (const HostError& error) {
    Tell(QString::fromStdString(error.what()));
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
  Tell(written ? QStringLiteral("Saved as %1").arg(file)
               : QStringLiteral("%1 cannot be written: %2").arg(file, out.errorString()));
}

void PreviewWindow::SavePdf() { SavePages(report_.File); }

void PreviewWindow::SavePages(const std::string& file) {
  QFile pages(QString::fromStdString(file));
  if (!pages.open(QIODevice::ReadOnly)) {
    Tell(QStringLiteral("The pages cannot be read: %1").arg(pages.errorString()));
    return;
  }
  Write(AskName(QStringLiteral("Save as PDF"), QStringLiteral(".pdf")), pages.readAll());
}

void PreviewWindow::SaveCsv() {
  Write(AskName(QStringLiteral("Save as CSV"), QStringLiteral(".csv")),
        QByteArray::fromStdString(report_.Csv));
}

void PreviewWindow::keyPressEvent(QKeyEvent* event) {
  switch (event->key()) {
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

void PreviewWindow::done(int result) {
  QDialog::done(result);
  // Where no window manager does it, the window below would stay without the keys.
  if (parentWidget() != nullptr) parentWidget()->activateWindow();
}

}  // namespace quillon
