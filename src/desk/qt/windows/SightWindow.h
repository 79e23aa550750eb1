#pragma once

#include <string>

#include "desk/qt/windows/PagesWindow.h"

class QLabel;

namespace quillon {

/// The pages of a finished job, which its user wanted to see before they are printed: accepted, they are
/// printed, otherwise discarded.
class SightWindow : public PagesWindow {
 public:
  /// The pages must live as long as the window. `printer` is where they go.
  SightWindow(const ReportPages& pages, const std::string& printer, QWidget* parent);

 protected:
  void keyPressEvent(QKeyEvent* event) override;

 private:
  void Zoom(int step);
};

}  // namespace quillon
