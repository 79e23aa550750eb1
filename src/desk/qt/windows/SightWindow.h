#pragma once

#include <QDialog>
#include <functional>
#include <string>

#include "desk/print/ReportPages.h"

class QHBoxLayout;
class QLabel;
class QScrollArea;

namespace quillon {

class PageView;

/// The pages of a finished job, which its user wanted to see before they are printed: accepted, they are
/// printed, otherwise discarded.
class SightWindow : public QDialog {
 public:
  /// The pages must live as long as the window. `printer` is where they go.
  SightWindow(const ReportPages& pages, const std::string& printer, QWidget* parent);

 protected:
  void keyPressEvent(QKeyEvent* event) override;

 private:
  void AddTool(QHBoxLayout& tools, const QString& caption, const QString& icon,
               const std::function<void()>& pressed);
  void Zoom(int step);

  PageView* pages_;
  QScrollArea* area_;
};

}  // namespace quillon
