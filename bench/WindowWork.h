#pragma once

#include <QEvent>
#include <QPointer>
#include <filesystem>
#include <optional>

#include "desk/qt/adapters/GridWidget.h"
#include "desk/qt/windows/DeskWindow.h"
#include "desk/qt/windows/QtRuntime.h"
#include "tests/support/TempFolder.h"

namespace quillon::bench {

/// The desk with its windows on a firm, and the acts of a person whose time is taken: each ends when all of
/// it has been painted.
class WindowWork {
 public:
  explicit WindowWork(const std::filesystem::path& firm);

  void OpenStatement();

  /// F6 on the statement, and Esc on the workbench.
  void OpenWorkbench();
  void CloseWorkbench();

  /// Moves the workbench's grid on by lines, or by pages, and round again at its end.
  void ScrollLine();
  void ScrollPage();

  /// Moves a column's border, or the window's, to and fro.
  void DragColumn();
  void DragWindow();

 private:
  void Press(Qt::Key key);
  void Paint();
  void ScrollBy(int step);
  void SendMouse(QEvent::Type type, const QPoint& place);

  TempFolder printed_;
  QtRuntime runtime_{printed_.Path().string()};
  DeskWindow window_{runtime_, ""};
  QPointer<GridWidget> grid_;
  int frame_ = 0;
  std::optional<QPoint> dragged_;  // where a column's border was taken
};

}  // namespace quillon::bench
