#include "desk/qt/windows/PagesWindow.h"

#include <QScreen>
#include <QScrollArea>
#include <QVBoxLayout>

#include "desk/qt/adapters/PushButton.h"
#include "desk/qt/adapters/Scale.h"
#include "desk/qt/windows/PageView.h"

namespace quillon {

namespace {

constexpr int kWidth = 15000;
constexpr int kHeight = 10500;

}  // namespace

PagesWindow::PagesWindow(const QString& title, QWidget* parent)
    : QDialog(parent, Qt::Dialog | Qt::WindowMaximizeButtonHint | Qt::WindowCloseButtonHint),
      area_(new QScrollArea(this)),
      tools_(new QHBoxLayout) {
  setWindowTitle(title);
  auto* const all = new QVBoxLayout(this);
  all->addLayout(tools_);
  area_->setAlignment(Qt::AlignHCenter);
  area_->setBackgroundRole(QPalette::Mid);
  area_->setFocusPolicy(Qt::StrongFocus);
  all->addWidget(area_, 1);
  resize(QSize(Scale::Px(kWidth), Scale::Px(kHeight)).boundedTo(screen()->availableSize()));
}

void PagesWindow::ShowPages(const ReportPages& pages) {
  pages_ = new PageView(pages);
  area_->setWidget(pages_);
  area_->setFocus();
}

void PagesWindow::AddTool(const QString& caption, const QString& icon, const std::function<void()>& pressed) {
  auto* const button = new PushButton(this);
  button->SetCaption(caption);
  button->SetIconKey(icon);
  button->setAutoDefault(false);
  button->setFocusPolicy(Qt::NoFocus);
  connect(button, &QPushButton::clicked, this, pressed);
  tools_->addWidget(button);
}

}  // namespace quillon
