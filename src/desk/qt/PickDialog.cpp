#include "desk/qt/PickDialog.h"

#include <QHeaderView>
#include <QTreeWidget>
#include <algorithm>

#include "desk/qt/Scale.h"
#include "host/GridModel.h"

namespace quillon {

PickDialog::PickDialog(const CPickList& list, QWidget* parent)
    : DeskDialog(QString::fromStdString(list.TitleText()), parent), lines_(new QTreeWidget(this)) {
  lines_->setRootIsDecorated(false);
  lines_->setUniformRowHeights(true);
  lines_->setAllColumnsShowFocus(true);
  lines_->setAccessibleName(windowTitle());
  QStringList titles;
  for (const CPickList::ColumnSpec& column : list.Columns()) titles << QString::fromStdString(column.title);
  lines_->setColumnCount(std::max(1, static_cast<int>(titles.size())));
  lines_->setHeaderLabels(titles);
  lines_->setHeaderHidden(titles.isEmpty());
  for (const CPickList::Line& line : list.Lines()) {
    auto* const item = new QTreeWidgetItem(lines_);
    for (std::size_t cell = 0; cell < line.cells.size(); ++cell) {
      const int col = static_cast<int>(cell);
      item->setText(col, QString::fromStdString(line.cells[cell]));
      const bool right = cell < list.Columns().size() && list.Columns()[cell].alignment == kAlignRight;
      if (right) item->setTextAlignment(col, Qt::AlignRight | Qt::AlignVCenter);
    }
  }
  for (std::size_t col = 0; col < list.Columns().size(); ++col) {
    if (list.Columns()[col].alignment == kAlignRight) {
      lines_->headerItem()->setTextAlignment(static_cast<int>(col), Qt::AlignRight | Qt::AlignVCenter);
    }
  }
  SetColumnWidths(list);
  lines_->setMinimumSize(Scale::Px(list.Width), Scale::Px(list.Height));
  if (lines_->topLevelItemCount() > 0) lines_->setCurrentItem(lines_->topLevelItem(0));
  Content().addWidget(lines_);
  AddOkCancel();
  connect(lines_, &QTreeWidget::itemDoubleClicked, this, [this] { accept(); });
  lines_->setFocus();
}

/// Columns that leave room in the list share it, so that dates and texts are not cut beside an empty place;
/// the last one takes what is left.
void PickDialog::SetColumnWidths(const CPickList& list) {
  long wanted = 0;
  for (const CPickList::ColumnSpec& column : list.Columns()) wanted += column.width;
  const bool roomy = wanted <= list.Width;
  const std::size_t sized = list.Columns().size() - (roomy && !list.Columns().empty() ? 1 : 0);
  for (std::size_t col = 0; wanted > 0 && col < sized; ++col) {
    const long width = list.Columns()[col].width;
    lines_->header()->resizeSection(static_cast<int>(col),
                                    Scale::Px(roomy ? width * list.Width / wanted : width));
  }
}

bool PickDialog::Check() { return lines_->currentItem() != nullptr; }

std::size_t PickDialog::Item() const {
  return static_cast<std::size_t>(std::max(0, lines_->indexOfTopLevelItem(lines_->currentItem())));
}

}  // namespace quillon
