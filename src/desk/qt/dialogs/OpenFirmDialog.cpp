#include "desk/qt/dialogs/OpenFirmDialog.h"

#include <QKeyEvent>
#include <QLabel>
#include <QListWidget>

#include "desk/qt/adapters/PushButton.h"
#include "desk/qt/adapters/Scale.h"
#include "desk/qt/dialogs/RecentFirms.h"
#include "desk/qt/dialogs/ToolkitDialogs.h"

namespace quillon {

OpenFirmDialog::OpenFirmDialog(const std::function<QString(const QString& folder)>& open, QWidget* parent)
    : DeskDialog(QStringLiteral("Open a Firm"), parent), open_(open), list_(new QListWidget(this)) {
  auto* const caption = new QLabel(QStringLiteral("Recent firms"), this);
  caption->setBuddy(list_);
  list_->addItems(RecentFirms::Folders());
  list_->setCurrentRow(0);
  list_->setAccessibleName(caption->text());
  list_->setMinimumSize(Scale::Px(8400), Scale::Px(3000));
  Content().addWidget(caption);
  Content().addWidget(list_);
  AddButton(QStringLiteral("F2: Other Folder"), [this] { Browse(); });
  AddOkCancel();
  connect(list_, &QListWidget::itemActivated, this, [this] {
    if (Check()) accept();
  });
  list_->setFocus();
}

bool OpenFirmDialog::Try(const QString& folder) {
  const QString fault = open_(folder);
  ShowFault(fault);
  return fault.isEmpty();
}

bool OpenFirmDialog::Check() {
  if (list_->currentItem() != nullptr) return Try(list_->currentItem()->text());
  Browse();
  return false;
}

void OpenFirmDialog::Browse() {
  const QString folder = ToolkitDialogs::Folder(this, QStringLiteral("The folder of the firm"));
  if (!folder.isEmpty() && Try(folder)) accept();
}

void OpenFirmDialog::keyPressEvent(QKeyEvent* event) {
  if (event->key() == Qt::Key_F2) {
    Browse();
  } else {
    DeskDialog::keyPressEvent(event);
  }
}

}  // namespace quillon
