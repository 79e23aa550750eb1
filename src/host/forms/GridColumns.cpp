#include "host/forms/GridColumns.h"

#include "host/forms/Runtime.h"
#include "host/services/IStd.h"

namespace quillon {

namespace {

void SetColumns(GridModel& grid, std::initializer_list<GridColumn> columns, double unit) {
  for (const GridColumn& column : columns) {
    gStd->SetGridColumn(grid, column.Column, column.Title, column.Width * unit, column.Alignment);
  }
}

}  // namespace

void SetColumnsInChars(GridModel& grid, std::initializer_list<GridColumn> columns) {
  SetColumns(grid, columns, static_cast<double>(gRuntime->TextWidth(grid.Font, "9")));
}

void SetColumnsInTwips(GridModel& grid, std::initializer_list<GridColumn> columns) {
  SetColumns(grid, columns, 1);
}

}  // namespace quillon
