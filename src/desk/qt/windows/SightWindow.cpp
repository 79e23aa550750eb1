#include "desk/qt/windows/SightWindow.h"

#include <QKeyEvent>
#include <QScrollArea>
#include <QVBoxLayout>
#include <algorithm>

#include "desk/qt/adapters/ElidedLabel.h"
#include "desk/qt/adapters/PushButton.h"
#include "desk/qt/adapters/Scale.h"
#include "desk/qt/windows/PageView.h"
#include "host/services/Calibration.h"

namespace quillon {

namespace {

constexpr int kWidth = 15000;
constexpr int kHeight = 10500;
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
    : QDialog(parent, Qt::Dialog | Qt::WindowMaximizeButtonHint | Qt::WindowCloseButtonHint),
      pages_(new PageView(pages)),
      area_(new QScrollArea(this)) {
  setWindowTitle(QStringLiteral("Before it is printed"));
  auto* const all = new QVBoxLayout(this);
  auto* const tools = new QHBoxLayout;
  AddTool(*tools, QStringLiteral("F9: Print"), QStringLiteral("print"), [this] { accept(); });
  AddTool(*tools, QStringLiteral("Esc: Discard"), QStringLiteral("delete"), [this] { reject(); });
  auto* const state = new ElidedLabel(this);
  state->setText(Words(pages, printer));
  state->setToolTip(state->text());
  state->setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Preferred);
  tools->addWidget(state, 1);
  AddTool(*tools, QStringLiteral("F7: Smaller"), QString(), [this] { Zoom(-kZoomStep); });
  AddTool(*tools, QStringLiteral("F8: Larger"), QString(), [this] { Zoom(kZoomStep); });
  all->addLayout(tools);
  area_->setWidget(pages_);
  area_->setAlignment(Qt::AlignHCenter);
  area_->setBackgroundRole(QPalette::Mid);
  area_->setFocusPolicy(Qt::StrongFocus);
  all->addWidget(area_, 1);
  resize(Scale::Px(kWidth), Scale::Px(kHeight));
  area_->setFocus();
}

void SightWindow::AddTool(QHBoxLayout& tools, const QString& caption, const QString& icon,
                          const std::function<void()>& pressed) {
  auto* const button = new PushButton(this);
  button->SetCaption(caption);
  button->SetIconKey(icon);
  button->setAutoDefault(false);
  button->setFocusPolicy(Qt::NoFocus);
  connect(button, &QPushButton::clicked, this, pressed);
  tools.addWidget(button);
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
