#pragma once

#include <string>
#include <string_view>

#include "host/controls/FindPattern.h"
#include "host/controls/TextBox.h"

namespace quillon {

class GridModel;

/// The box in which a person looks for something in a grid. The cursor goes to what is found as he types,
/// from where it stood when the box opened; at the end of the rows the search goes on from their beginning.
class GridFind {
 public:
  explicit GridFind(GridModel& grid);

  TextBox Box;

  bool IsOpen() const { return open_; }

  /// What was looked for last stands in the box, to be typed over.
  void Open();
  void Close();

  /// The next cell that has it, or the one before; also while the box is closed.
  void Again(bool back);

  /// A key while the box is open.
  bool HandleKey(const KeyEvent& key);

  /// Whether a cell of this text is marked as found.
  bool Marks(std::string_view cell) const { return open_ && pattern_.Matches(cell); }

  /// Whether there is something to look for again.
  bool IsAgain() const { return !pattern_.IsEmpty(); }

  /// Whether the last search came upon something.
  bool HasFound() const { return found_; }

  /// What the box says beside the text: that nothing was found, or that the search has gone round.
  const std::string& Note() const { return note_; }

 private:
  struct Place {
    int row = 0;
    int col = 0;
  };

  void Typed();
  Place Cursor() const;
  void Search(Place from, int step, bool withStart);
  int FindIn(int row, int beyond, int step) const;

  GridModel& grid_;
  FindPattern pattern_;
  Place origin_;
  bool open_ = false;
  bool found_ = false;
  std::string note_;
};

}  // namespace quillon
