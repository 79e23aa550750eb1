#pragma once

#include "desk/qt/adapters/Adapter.h"
#include "host/controls/EditableGrid.h"

namespace quillon {

class BoxEdit;
class FindStrip;
class GridWidget;

/// Shows a grid of any kind, with the cell editor of an editable one.
class GridAdapter : public Adapter {
 public:
  GridAdapter(GridModel& model, QWidget* parent);
  ~GridAdapter() override;

  QWidget* FocusWidget() override;
  void Settle() override;

  /// The user may change the columns, and his choices last.
  void KeepColumns();

 protected:
  void Draw() override;
  void Dress() override;
  void Replaced() override {}  // the grid itself sees to it
  std::string SpokenName() const override;

 private:
  void PlaceEditor();
  void ShowFind();
  void ShowMenu(int row, int col, const QPoint& place);
  void ShowColumns(int col, const QPoint& place);
  void DoubleClick(int row, int col);
  void ReadCells(int firstRow, int lastRow);

  GridModel& grid_;
  EditableGrid* editable_;
  GridWidget* shown_;
  BoxEdit* editor_ = nullptr;
  FindStrip* find_ = nullptr;
  bool readingFailed_ = false;
  bool keepsColumns_ = false;
};

}  // namespace quillon
