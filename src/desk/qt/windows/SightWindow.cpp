#include "desk/qt/windows/SightWindow.h"

#include <QHBoxLayout>
#include <QKeyEvent>
#include <algorithm>

#include "desk/qt/adapters/ElidedLabel.h"
#include "desk/qt/windows/PageView.h"
#include "host/services/Calibration.h"

namespace quillon {

namespace {

constexpr int kZoomStep = 25;
constexpr int kSmallest = 50;
constexpr int kLargest = 300;

QString Words(const ReportPages& pages, const std::string& printer) {
  const auto count = static_cast<int>(pages.Pages.size());
  QString words = count == 1
                      ? QStringLiteral("  1 page for %1").arg(QString::fromStdString(printer))
                      : QStringLiteral("  %1 pages for %2").arg(count).arg(QString::fromStdString(printer));
  const Calibration calibration = Calibration::Of(printer);
  if (!calibration.IsNone()) {
    words += QStringLiteral(", corrected by %1 for %2")
                 .arg(QString::fromStdString(calibration.Words()), QString::fromStdString(printer));
  }
  return words;
}

}  // namespace

SightWindow::SightWindow(const ReportPages& pages, const std::string& printer, QWidget* parent)
    : PagesWindow(QStringLiteral("Before it is printed"), parent) {
  ShowPages(pages);
  AddTool(QStringLiteral("F9: Print"), QStringLiteral("print"), [this] { accept(); });
  AddTool(QStringLiteral("Esc: Discard"), QStringLiteral("delete"), [this] { reject(); });
  auto* const state = new ElidedLabel(this);
  state->setText(Words(pages, printer));
  state->setToolTip(state->text());
  state->setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Preferred);
  Tools().addWidget(state, 1);
  AddTool(QStringLiteral("F7: Smaller"), QString(), [this] { Zoom(-kZoomStep); });
  AddTool(QStringLiteral("F8: Larger"), QString(), [this] { Zoom(kZoomStep); });
}

void SightWindow::Zoom(int step) {
  pages_->SetPercent(std::clamp(pages_->Percent() + step, kSmallest, kLargest));
}

void SightWindow::keyPressEvent(QKeyEvent* event) {
  switch (event->key()) {
    case Qt::Key_F9:
      accept();
      break;
    case Qt::Key_F7:
      Zoom(-kZoomStep);
      break;
    case Qt::Key_F8:
      Zoom(kZoomStep);
      break;
    default:
      QDialog::keyPressEvent(event);
  }
}

}  // namespace quillon
