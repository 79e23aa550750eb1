#pragma once

#include <vector>

namespace quillon {

/// How the columns of a grid share its width: dates and amounts have what was stated, the narration or name
/// takes what is left, and gives of its own where there is too little.
class ColumnRoom {
 public:
  struct Column {
    long stated = 0;      ///< width; 0 for one that is not shown
    bool isText = false;  ///< may be the narration or name
    long least = 0;       ///< what a column of figures needs; it gives the rest before any text does
    long kept = 0;        ///< width that a person gave it, which stays; 0 for none

    long Width() const { return kept > 0 && stated > 0 ? kept : stated; }
  };

  /// The widths in a room of that width, in the same units. They are wider than the room where the texts
  /// would become too narrow to read.
  static std::vector<long> Share(const std::vector<Column>& columns, long room);

  /// The columns that take what is left.
  static std::vector<bool> Takers(const std::vector<Column>& columns);
};

}  // namespace quillon
