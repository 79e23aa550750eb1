#pragma once

#include <QWidget>

#include "host/controls/GridModel.h"

class QLabel;

namespace quillon {

class BoxEdit;

/// The strip below a grid with the boxes that are open: the quick filter, and the one that finds with what
/// came of it.
class FindStrip : public QWidget {
 public:
  FindStrip(GridModel& grid, QWidget* parent);

  /// The box that is typed into, or nothing.
  QWidget* Edit() const;

  void ShowBoxes();

 private:
  struct Line {
    QWidget* whole;
    BoxEdit* edit;
    QLabel* note;
  };
  Line AddLine(const char* caption, TextBox& box);
  QString FilterNote() const;

  GridModel& grid_;
  Line filter_;
  Line find_;
};

}  // namespace quillon
