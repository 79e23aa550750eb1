#pragma once

#include <QAbstractScrollArea>
#include <functional>
#include <optional>

#include "desk/qt/adapters/GridLayout.h"

namespace quillon {

/// Draws a grid: a title line, frozen titles, the rows that scroll, the footer of a CGridPlus, the cursor and
/// the selected rectangle. Only what is on the screen is drawn, so any number of rows will do.
class GridWidget : public QAbstractScrollArea {
 public:
  GridWidget(GridModel& model, QWidget* parent);

  const GridModel& Model() const { return model_; }

  /// The mouse on a cell: pressed, dragged on to another one (the cell pressed comes first), clicked twice.
  std::function<void(int row, int col)> OnPress;

  /// The menu is asked for on a heading; -1 where no column is.
  std::function<void(int col, const QPoint& place)> OnHeadingMenu;

  /// Clicked on a heading.
  std::function<void(int col)> OnHeading;

  /// Pressed with Shift held.
  std::function<void(int row, int col)> OnExtend;
  std::function<void(int row, int col, int toRow, int toCol)> OnDrag;
  std::function<void(int row, int col)> OnDoubleClick;

  /// The menu is asked for, by the mouse on a cell or by the key: then without one.
  std::function<void(int row, int col, const QPoint& place)> OnMenu;

  /// The keys move in the grid although it has not the focus: the list of a field.
  void LeadKeys() { leads_ = true; }

  /// Reads the texts of these rows that are read when somebody looks at them; called before they are painted.
  std::function<void(int firstRow, int lastRow)> OnLook;

  /// Called when cells have moved on the screen.
  std::function<void()> OnMoved;

  /// What a person has made of the columns, which he may once they are kept under a name.
  const ColumnChoices& Columns() const { return columns_; }
  void KeepColumnsAs(const QString& name);

  /// As wide as its widest text.
  void FitColumn(int col);

  /// In twips; no column becomes too narrow to be seen.
  void WidenColumn(int col, long by);
  void PutAside(int col, bool aside);
  void ResetColumns();

  /// In pixels; 0 for one that is not shown.
  int ColWidth(int col) const { return layout_.ColWidth(col); }

  /// The model changed; it is measured and drawn when the hand is free.
  void Touch();

  /// Shows a strip below the cells, or none; it stays the caller's.
  void ShowStrip(QWidget* strip);

  /// Measures what changed and brings a cursor that moved into sight.
  void Settle();
  void ScrollTo(int row, int col);

  /// In the viewport; also of a cell that is scrolled out of sight. Empty for a hidden one.
  QRect CellRect(int row, int col) const;

  /// That of the cursor, as much of it as is in sight.
  QRect CursorRect() const;

  /// The cursor's row and cell in words: "Row 3, Cleared On: 05-Apr-2024".
  QString CursorText() const;

  /// The part of the viewport in which rows scroll.
  QRect Body() const;

 protected:
  void paintEvent(QPaintEvent* event) override;
  void resizeEvent(QResizeEvent* event) override;
  void scrollContentsBy(int dx, int dy) override;
  void mousePressEvent(QMouseEvent* event) override;
  void mouseMoveEvent(QMouseEvent* event) override;
  void mouseReleaseEvent(QMouseEvent* event) override;
  void mouseDoubleClickEvent(QMouseEvent* event) override;
  bool viewportEvent(QEvent* event) override;
  void contextMenuEvent(QContextMenuEvent* event) override;

 private:
  static int Padding();

  struct CellPlace {
    int row = -1;
    int col = -1;
    bool operator==(const CellPlace&) const = default;
  };

  /// A border between two columns that the mouse drags.
  struct Drag {
    int col;
    int beside;  // the shown column behind it, or -1
    int from;
    long width;
    long besideWidth;
  };

  void SettleSoon();
  void Measure();
  void MeasureColumns();
  int BorderAt(const QPoint& point) const;
  bool IsOnHeadings(const QPoint& point) const;
  void StartDrag(int col, int x);
  void DragTo(int x);
  void SetColumn(int col, long width);
  int TextWidth(std::string_view text) const;
  template <class Take>
  void EachOuterText(int col, const Take& take) const;

  /// The widths in which headings, dates and amounts can be read, in twips.
  std::vector<long> Needs() const;
  void UpdateBars();
  void Look();
  std::string_view Known(int row, int col) const;
  bool IsShownWhole(std::size_t place) const;
  int Scrolled() const;
  int WholeFrom(int scrolling) const;
  void TellSight();
  void PlaceStrip();
  int TitleLine() const;
  int FooterHeight() const;
  int FooterLine() const;
  int X(int col) const;
  CellPlace CellAt(const QPoint& point) const;
  int ColAt(int x) const;
  template <class DrawCell>
  void EachCol(QPainter& painter, const QRect& band, const DrawCell& draw) const;
  void PaintTitles(QPainter& painter) const;
  void PaintRows(QPainter& painter) const;
  void PaintRow(QPainter& painter, int row, const QRect& band) const;
  void PaintCursor(QPainter& painter) const;
  void PaintFooter(QPainter& painter) const;
  void DrawText(QPainter& painter, QRect cell, std::string_view text, int alignment) const;
  bool DrawLines(QPainter& painter, const QRect& cell, const QString& text, int alignment) const;
  QColor Back() const;
  bool HasKeys() const;

  GridModel& model_;
  GridLayout layout_;
  ColumnChoices columns_;
  std::vector<long> needs_;
  std::optional<Drag> drag_;
  bool keepsColumns_ = false;
  CellPlace cursor_;
  CellPlace pressed_;
  CellPlace dragged_;
  QWidget* strip_ = nullptr;
  bool leads_ = false;
  bool stale_ = true;
  bool waiting_ = false;
};

}  // namespace quillon
