#include "desk/qt/dialogs/PickDialog.h"

#include <QHeaderView>
#include <QTreeWidget>
#include <algorithm>
#include <cmath>

#include "desk/qt/adapters/Scale.h"
#include "host/controls/GridModel.h"

namespace quillon {

namespace {

constexpr long kBars = 330;  // the list's edges and scroll bar

}  // namespace

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
  PlaceColumns(list);
  lines_->setMinimumSize(Scale::Px(list.Width), Scale::Px(list.Height));
  if (lines_->topLevelItemCount() > 0) lines_->setCurrentItem(lines_->topLevelItem(0));
  Content().addWidget(lines_);
  AddOkCancel();
  connect(lines_, &QTreeWidget::itemDoubleClicked, this, [this] { accept(); });
  lines_->setFocus();
}

/// The widths asked for share what is left over of the list's.
void PickDialog::PlaceColumns(const CPickList& list) {
  long asked = 0;
  for (const CPickList::ColumnSpec& column : list.Columns()) asked += column.width;
  const double stretch =
      asked > 0 ? std::max(1.0, static_cast<double>(list.Width - kBars) / static_cast<double>(asked)) : 1;
  for (std::size_t i = 0; i < list.Columns().size(); ++i) {
    const CPickList::ColumnSpec& column = list.Columns()[i];
    const int col = static_cast<int>(i);
    lines_->header()->resizeSection(col, Scale::Px(std::lround(static_cast<double>(column.width) * stretch)));
    if (column.alignment == kAlignRight)
      lines_->headerItem()->setTextAlignment(col, Qt::AlignRight | Qt::AlignVCenter);
  }
}

bool PickDialog::Check() { return lines_->currentItem() != nullptr; }

std::size_t PickDialog::Item() const {
  return static_cast<std::size_t>(std::max(0, lines_->indexOfTopLevelItem(lines_->currentItem())));
}

}  // namespace quillon
