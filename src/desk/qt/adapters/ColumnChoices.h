#pragma once

#include <QString>
#include <map>
#include <vector>

#include "host/controls/GridModel.h"

namespace quillon {

/// What a person has made of the columns of a grid in the window: widths, and columns that are put aside.
/// They are known by their headings, so that each view of a grid has its own. The grid hears nothing of them.
class ColumnChoices {
 public:
  struct Choice {
    long width = 0;  ///< twips; 0 as the screen states it
    bool isAside = false;
  };

  /// From now on they are kept under this name, "frmAccount.Grid", and those that are kept hold.
  void KeepAs(const QString& name);

  /// Of all columns.
  std::vector<Choice> Of(const GridModel& grid) const;
  bool IsEmpty() const { return choices_.empty(); }

  void SetWidth(const GridModel& grid, int col, long width);
  void PutAside(const GridModel& grid, int col, bool aside);
  void Reset();

  /// Writes down what was chosen since.
  void Keep() const;

  /// Whether a person may put the column aside: one that the screen shows, and that nobody types into.
  static bool MayPutAside(const GridModel& grid, int col);

  /// In one line, as a menu tells it.
  static QString HeadingOf(const GridModel& grid, int col);

 private:
  /// By column; empty for one that the screen hides.
  static std::vector<QString> KeysOf(const GridModel& grid);
  Choice& At(const GridModel& grid, int col);

  QString name_;
  std::map<QString, Choice> choices_;
};

}  // namespace quillon
