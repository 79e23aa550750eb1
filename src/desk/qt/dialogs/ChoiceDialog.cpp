#include "desk/qt/dialogs/ChoiceDialog.h"

#include <QListWidget>

#include "desk/qt/adapters/Scale.h"

namespace quillon {

ChoiceDialog::ChoiceDialog(const QString& title, const QStringList& lines, int chosen, QWidget* parent)
    : DeskDialog(title, parent), list_(new QListWidget(this)) {
  list_->addItems(lines);
  list_->setCurrentRow(chosen);
  list_->setAccessibleName(title);
  list_->setMinimumSize(Scale::Px(4500), Scale::Px(2400));
  Content().addWidget(list_);
  AddOkCancel();
  connect(list_, &QListWidget::itemActivated, this, [this] { accept(); });
  list_->setFocus();
}

int ChoiceDialog::Line() const { return std::max(0, list_->currentRow()); }

}  // namespace quillon
