#pragma once

#include <QAbstractScrollArea>
#include <functional>

#include "desk/qt/adapters/GridLayout.h"

namespace quillon {

/// Draws a grid: a title line, frozen titles, the rows that scroll, the footer of a CGridPlus, the cursor and
/// the selected rectangle. Only what is on the screen is drawn, so any number of rows will do.
class GridWidget : public QAbstractScrollArea {
 public:
  GridWidget(GridModel& model, QWidget* parent);

  /// The mouse on a cell: pressed, dragged on to another one (the cell pressed comes first), clicked twice.
  std::function<void(int row, int col)> OnPress;

  /// Pressed on a heading.
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

  /// The model changed; it is measured and drawn when the hand is free.
  void Touch();

  /// Shows a strip below the cells, or none; it stays the caller's.
  void ShowStrip(QWidget* strip);

  /// Measures what changed and brings a cursor that moved into sight.
  void Settle();
  void ScrollTo(int row, int col);

  /// In the viewport; also of a cell that is scrolled out of sight. Empty for a hidden one.
  QRect CellRect(int row, int col) const;

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
  struct CellPlace {
    int row = -1;
    int col = -1;
    bool operator==(const CellPlace&) const = default;
  };

  void Measure();
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
  CellPlace cursor_;
  CellPlace pressed_;
  CellPlace dragged_;
  QWidget* strip_ = nullptr;
  bool leads_ = false;
  bool stale_ = true;
  bool waiting_ = false;
};

}  // namespace quillon
