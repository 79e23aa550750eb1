#pragma once

#include <string>
#include <string_view>

#include "host/controls/Label.h"
#include "host/controls/MSHFlexGrid.h"
#include "host/controls/PickOrder.h"
#include "host/controls/TextBox.h"

namespace quillon {

class CDbLink;

/// A drop-down selection grid attached to a field: the first column is what the user sees and searches by.
class CSelGrid : public Control, private ITextCompanion {
 public:
  CSelGrid(Control& parent, std::string name, int index = kNoIndex);
  ~CSelGrid() override;

  const char* Kind() const override { return "CSelGrid"; }

  /// The inner grid and the label above it.
  MSHFlexGrid Grid;
  Label Title;
  Label& TitleLabel = Title;

  /// Fills the list by a query; `width` is that of the first column in characters, 0 for the whole width.
  /// With `captionFlag` the columns' names stand above them.
  void Load(const std::string& sql, CDbLink& db, bool captionFlag, int width);

  /// Opens the list under a field, or under the cell that a grid has in edit, and ties it to what is typed
  /// there. It stays on the form: it moves to the left, becomes lower, or stands above where there is more
  /// room. Throws HostError for a control that is not typed into.
  void OpenUnder(Control& field);

  /// The same with a place that differs: so far to the right of the field, so wide (0: as the screen made the
  /// list), down to so far above the form's bottom (below 0: as high as the screen made the list). Twips.
  struct Room {
    long indent = 0;
    long width = 0;
    long aboveBottom = -1;
  };
  void OpenUnder(Control& field, const Room& room);

  /// Hides the list, unties it and gives it back the size that the screen made.
  void Close();

  /// The field takes names that the list has not: Enter takes only a line that begins with what was typed, or
  /// one that the person went to.
  bool TakesNewNames = false;

  /// Whether the person went to a line, or what he typed found one: what Enter takes.
  bool HasChoice() const { return hasChoice_ && !IsEmpty(); }

  /// The text box that the list serves; nothing unties it.
  void SetBoundText(TextBox* box);
  TextBox* BoundText() const { return bound_; }

  /// Rows count from 1, columns from 0.
  std::string Cell(int row, int col) const { return Grid.TextMatrix(row, col); }
  bool IsEmpty() const { return !loaded_ || Grid.Rows < 2; }
  bool IsLoaded() const { return loaded_; }

  /// A row was picked: its first column stands in the bound box.
  Event<> Selected;

  /// Shows only the rows that the text finds, the best first, and moves to that; false, and the row stays,
  /// when it finds none. An empty text shows all again. Row numbers stay those of the list.
  bool Search(const std::string& text);
  void Pick(int row);

  /// Picks the line that the person typed or went to; false when there is none such.
  bool PickChoice();

  /// Enter without a line that was typed or gone to. A list that has no handler leaves the key to its field.
  Event<const std::string&> NotFound;

  void UserPick(int row);
  void UserPick(const std::string& text);
  void ReleaseHeavy() override;
  State Describe() const override;
  Variant Get(const std::string& member) override;

 private:
  bool CompanionKey(const KeyEvent& key) override;
  void CompanionTyped(const std::string& text) override;
  bool CompanionEscape() override;
  bool TakesEnter() const override { return Visible && (HasChoice() || NotFound); }
  void PlaceInside();
  void ReadNames();

  TextBox* bound_ = nullptr;
  bool open_ = false;
  bool hasChoice_ = false;
  long designedWidth_ = 0;
  long designedHeight_ = 0;
  bool loaded_ = false;
  PickOrder names_;
};

}  // namespace quillon
