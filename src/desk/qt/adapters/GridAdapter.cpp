#include "desk/qt/adapters/GridAdapter.h"

#include <QApplication>
#include <QMenu>
#include <QScrollBar>
#include <exception>
#include <utility>

#include "desk/qt/adapters/Acts.h"
#include "desk/qt/adapters/BoxEdit.h"
#include "desk/qt/adapters/ColumnMenu.h"
#include "desk/qt/adapters/FindStrip.h"
#include "desk/qt/adapters/GridWidget.h"
#include "desk/qt/adapters/KeyMenu.h"
#include "host/forms/Form.h"
#include "host/forms/Runtime.h"

namespace quillon {

GridAdapter::GridAdapter(GridModel& model, QWidget* parent)
    : Adapter(model, new GridWidget(model, parent)),
      grid_(model),
      editable_(dynamic_cast<EditableGrid*>(&model)),
      shown_(static_cast<GridWidget*>(&Widget())) {
  shown_->OnPress = [this](int row, int col) { Acts::Run([&] { grid_.UserMoveTo(row, col); }); };
  shown_->OnExtend = [this](int row, int col) { Acts::Run([&] { grid_.UserExtendTo(row, col); }); };
  shown_->OnHeading = [this](int col) {
    if (grid_.Look.IsAllowed) Acts::Run([&] { grid_.Look.UserSort(col); });
  };
  shown_->OnMenu = [this](int row, int col, const QPoint& place) { ShowMenu(row, col, place); };
  shown_->OnHeadingMenu = [this](int col, const QPoint& place) { ShowColumns(col, place); };
  shown_->OnDrag = [this](int row, int col, int toRow, int toCol) {
    Acts::Run([&] { grid_.UserSelect(row, col, toRow, toCol); });
  };
  shown_->OnDoubleClick = [this](int row, int col) { DoubleClick(row, col); };
  shown_->OnLook = [this](int firstRow, int lastRow) { ReadCells(firstRow, lastRow); };
  shown_->OnMoved = [this] { PlaceEditor(); };
  if (editable_ == nullptr) return;
  editor_ = new BoxEdit(editable_->EditBox, grid_, shown_->viewport());
  editor_->hide();
  editable_->EditBox.AddListener(*this);
}

GridAdapter::~GridAdapter() {
  if (editable_ != nullptr) editable_->EditBox.RemoveListener(*this);
}

void GridAdapter::DoubleClick(int row, int col) {
  Acts::Run([&] {
    const FormPtr form = grid_.OwnerForm().Self();
    grid_.UserMoveTo(row, col);
    grid_.UserDoubleClickRow(row);
    const bool stays = gRuntime->ActiveForm() == form && row < grid_.Rows && col < grid_.Cols;
    if (editable_ != nullptr && editable_->BeforeEdit && stays) editable_->UserEnterCell(row, col);
  });
}

/// On a cell outside the selection the cursor goes there first.
void GridAdapter::ShowMenu(int row, int col, const QPoint& place) {
  if (row >= 0 && col >= 0 && !(grid_.HasFocus() && grid_.IsSelected(row, col))) {
    Acts::Run([&] { grid_.UserMoveTo(row, col); });
  }
  if (!grid_.HasFocus()) return;
  KeyMenu::Show(*shown_, place, grid_, grid_.KeyChoices(), [this](QMenu& menu) {
    if (!keepsColumns_) return;
    menu.addSeparator();
    ColumnMenu::Fill(*menu.addMenu(QStringLiteral("Co&lumns")), *shown_, grid_.UserCol());
  });
}

void GridAdapter::ShowColumns(int col, const QPoint& place) {
  if (!keepsColumns_) return;
  QMenu menu(shown_);
  ColumnMenu::Fill(menu, *shown_, col);
  menu.exec(place);
}

void GridAdapter::KeepColumns() {
  keepsColumns_ = true;
  shown_->KeepColumnsAs(QString::fromStdString(grid_.OwnerForm().Name() + "." + grid_.Name()));
}

/// In the midst of an act nothing is read; its end settles the grid once more.
void GridAdapter::ReadCells(int firstRow, int lastRow) {
  if (Acts::IsPainting()) return;
  try {
    grid_.ReadCells(firstRow, lastRow);
    readingFailed_ = false;
  } catch (const std::exception&) {
    // It is told once, when the hand is free; until it succeeds the cells show that they were not read.
    if (std::exchange(readingFailed_, true)) return;
    QMetaObject::invokeMethod(
        shown_, [failure = std::current_exception()] { Acts::Run([&] { std::rethrow_exception(failure); }); },
        Qt::QueuedConnection);
  }
}

std::string GridAdapter::SpokenName() const { return grid_.Title().empty() ? grid_.Name() : grid_.Title(); }

QWidget* GridAdapter::FocusWidget() {
  if (find_ != nullptr && find_->Edit() != nullptr) return find_->Edit();
  return editable_ != nullptr && editable_->EditMode() ? static_cast<QWidget*>(editor_) : shown_;
}

void GridAdapter::Dress() {
  Adapter::Dress();
  Widget().setAutoFillBackground(false);
  // The form's colours are the cells'; the bars keep the desk's.
  shown_->verticalScrollBar()->setPalette(QApplication::palette());
  shown_->horizontalScrollBar()->setPalette(QApplication::palette());
}

void GridAdapter::Draw() { shown_->Touch(); }

void GridAdapter::Settle() {
  ShowFind();
  shown_->Settle();
}

void GridAdapter::ShowFind() {
  const bool open = grid_.Finder.IsOpen() || grid_.Look.IsFilterOpen();
  if (open && find_ == nullptr) find_ = new FindStrip(grid_, shown_);
  if (open) find_->ShowBoxes();
  shown_->ShowStrip(open ? find_ : nullptr);
}

void GridAdapter::PlaceEditor() {
  if (editor_ == nullptr) return;
  const QRect cell =
      editable_->EditMode() ? shown_->CellRect(editable_->EditRow(), editable_->EditCol()) : QRect();
  const bool inSight = !cell.isEmpty() && shown_->Body().contains(cell.center());
  if (inSight) {
    editor_->setFont(Widget().font());
    editor_->setAlignment(grid_.ColAlignment(editable_->EditCol()) == kAlignRight ? Qt::AlignRight
                                                                                  : Qt::AlignLeft);
    editor_->setGeometry(cell);
    const bool titled = grid_.FixedRows > 0;
    editor_->setAccessibleName(titled ? QString::fromStdString(grid_.TextMatrix(0, editable_->EditCol()))
                                      : QString());
    editor_->ShowBox();
  }
  editor_->setVisible(inSight);
}

}  // namespace quillon
