#pragma once

#include <string>
#include <string_view>

#include "host/controls/Label.h"
#include "host/controls/MSHFlexGrid.h"
#include "host/controls/TextBox.h"

namespace quillon {

class CDbLink;

/// Whether a typed text finds a line of a list, case ignored: the line begins with it.
bool Finds(std::string_view typed, std::string_view line);

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

  /// The text box that the list serves; nothing unties it.
  void SetBoundText(TextBox* box);
  TextBox* BoundText() const { return bound_; }

  /// Rows count from 1, columns from 0.
  std::string Cell(int row, int col) const { return Grid.TextMatrix(row, col); }
  bool IsEmpty() const { return !loaded_ || Grid.Rows < 2; }
  bool IsLoaded() const { return loaded_; }

  /// A row was picked: its first column stands in the bound box.
  Event<> Selected;

  /// Moves to the first row that the text finds; false, and the row stays, when it finds none.
  bool Search(const std::string& text);
  void Pick(int row);

  /// Picks what the person means: the row that he moved to, or the first one that the typed text finds. False
  /// when the text finds nothing, or when he neither typed nor moved.
  bool PickMeant();

  /// Enter, with a text that finds no line.
  Event<const std::string&> NotFound;

  void UserPick(int row);
  void UserPick(const std::string& text);
  State Describe() const override;

 private:
  bool CompanionKey(const KeyEvent& key) override;
  void CompanionTyped(const std::string& text) override;

  TextBox* bound_ = nullptr;
  bool loaded_ = false;
  bool meant_ = false;  // the person moved to the row, or typed what finds it
};

}  // namespace quillon
