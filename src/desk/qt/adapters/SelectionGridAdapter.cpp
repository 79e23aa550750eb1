#include "desk/qt/adapters/SelectionGridAdapter.h"

#include "desk/qt/adapters/Acts.h"
#include "desk/qt/adapters/ElidedLabel.h"
#include "desk/qt/adapters/GridWidget.h"
#include "desk/qt/adapters/Scale.h"
#include "desk/qt/adapters/Theme.h"

namespace quillon {

namespace {

constexpr int kIndent = 6;

}  // namespace

SelectionGridAdapter::SelectionGridAdapter(CSelGrid& model, QWidget* parent)
    : Adapter(model, new QWidget(parent)),
      list_(model),
      title_(new ElidedLabel(&Widget())),
      grid_(new GridWidget(model.Grid, &Widget())) {
  QPalette palette = title_->palette();
  palette.setColor(QPalette::Window, Theme::Heading());
  title_->setPalette(palette);
  title_->setAutoFillBackground(true);
  title_->setContentsMargins(kIndent, 0, 0, 0);
  grid_->LeadKeys();
  grid_->setFocusPolicy(Qt::NoFocus);
  grid_->OnPress = [this](int row, int) { Acts::Run([&] { list_.UserPick(row); }); };
  list_.Grid.AddListener(*this);
  list_.Title.AddListener(*this);
}

SelectionGridAdapter::~SelectionGridAdapter() {
  list_.Title.RemoveListener(*this);
  list_.Grid.RemoveListener(*this);
}

void SelectionGridAdapter::Draw() {
  static_cast<QLabel*>(title_)->setText(QString::fromStdString(list_.Title.Caption));
  const int title = list_.Title.Caption().empty() ? 0 : Scale::Px(GridModel::kTitleLine);
  title_->setGeometry(0, 0, Widget().width(), title);
  grid_->setGeometry(0, title, Widget().width(), Widget().height() - title);
  grid_->setFont(Scale::FontOf(list_.Grid.Font));
  grid_->Touch();
  // A list that opens on a field stands before what was made after it.
  Widget().raise();
}

void SelectionGridAdapter::Settle() { grid_->Settle(); }

}  // namespace quillon
