#include "desk/qt/dialogs/PickDialog.h"

#include <QApplication>
#include <QHeaderView>
#include <QKeyEvent>
#include <QLineEdit>
#include <QTreeWidget>
#include <algorithm>
#include <cmath>

#include "desk/qt/adapters/Scale.h"
#include "host/controls/GridModel.h"
#include "host/values/Text.h"

namespace quillon {

namespace {

constexpr long kBars = 330;  // the list's edges and scroll bar

}  // namespace

PickDialog::PickDialog(const CPickList& list, QWidget* parent)
    : DeskDialog(QString::fromStdString(list.TitleText()), parent),
      list_(list),
      find_(new QLineEdit(this)),
      lines_(new QTreeWidget(this)) {
  find_->setPlaceholderText(QStringLiteral("Type to find"));
  find_->setAccessibleName(QStringLiteral("Find"));
  find_->installEventFilter(this);
  lines_->setFocusPolicy(Qt::NoFocus);
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
    const std::string beside =
        line.cells.size() > 1 ? text::Join({line.cells.begin() + 1, line.cells.end()}, " ") : "";
    names_.Add(line.cells.front(), beside);
  }
  ShowLines();
  PlaceColumns(list);
  lines_->setMinimumSize(Scale::Px(list.Width), Scale::Px(list.Height));
  Content().addWidget(find_);
  Content().addWidget(lines_);
  AddOkCancel();
  connect(find_, &QLineEdit::textChanged, this, &PickDialog::ShowLines);
  connect(lines_, &QTreeWidget::itemDoubleClicked, this, [this] { accept(); });
  find_->setFocus();
}

/// Those that the typed text finds; each keeps its number in the caller's list.
void PickDialog::ShowLines() {
  lines_->clear();
  for (const int number : names_.Find(find_->text().toStdString())) {
    const CPickList::Line& line = list_.Lines()[static_cast<std::size_t>(number)];
    auto* const item = new QTreeWidgetItem(lines_);
    item->setData(0, Qt::UserRole, number);
    for (std::size_t cell = 0; cell < line.cells.size(); ++cell) {
      const int col = static_cast<int>(cell);
      item->setText(col, QString::fromStdString(line.cells[cell]));
      const bool right = cell < list_.Columns().size() && list_.Columns()[cell].alignment == kAlignRight;
      if (right) item->setTextAlignment(col, Qt::AlignRight | Qt::AlignVCenter);
    }
  }
  const bool any = lines_->topLevelItemCount() > 0;
  if (any) lines_->setCurrentItem(lines_->topLevelItem(0));
  ShowFault(any || find_->text().isEmpty() ? QString() : QStringLiteral("Nothing found"));
}

/// The keys that move in the list are the list's.
bool PickDialog::eventFilter(QObject* watched, QEvent* event) {
  if (watched == find_ && event->type() == QEvent::KeyPress) {
    switch (static_cast<const QKeyEvent*>(event)->key()) {
      case Qt::Key_Up:
      case Qt::Key_Down:
      case Qt::Key_PageUp:
      case Qt::Key_PageDown:
        QApplication::sendEvent(lines_, event);
        return true;
      default:
        break;
    }
  }
  return DeskDialog::eventFilter(watched, event);
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
  const QTreeWidgetItem* const item = lines_->currentItem();
  return item != nullptr ? item->data(0, Qt::UserRole).toULongLong() : 0;
}

}  // namespace quillon
