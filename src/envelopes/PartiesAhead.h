#pragma once

#include <memory>
#include <unordered_set>

#include "host/controls/GridModel.h"
#include "host/data/CDataSet.h"

namespace quillon {

/// The parties of a sheet of labels, read a hundred at a time from the label at hand on: read one by one,
/// each costs a statement, and the statements take longer than the pages.
class PartiesAhead {
 public:
  /// The codes stand `columns` behind their labels. The grid must live longer.
  PartiesAhead(const GridModel& grid, int columns) : grid_(grid), columns_(columns) {}

  /// 0 for a place without a label.
  long CodeAt(int row, int place) const;

  /// A set on the party of that label, at its end when the party is gone.
  std::shared_ptr<CDataSet> RecordAt(int row, int place);

 private:
  void ReadFrom(int row, int place);

  const GridModel& grid_;
  int columns_;
  std::shared_ptr<CDataSet> parties_;
  std::unordered_set<long> read_;
};

}  // namespace quillon
