#pragma once

#include <string>
#include <vector>

#include "host/controls/GridModel.h"
#include "host/controls/TextBox.h"

namespace quillon {

/// A grid whose cells are edited in place: the one edit model of CEditGrid and CGridPlus.
///
/// The cycle of an edit: the form is asked (BeforeEdit), the editor opens (CellGotFocus, CellEnter), each
/// change is told (Changed), on leaving the form validates (ValidateCell), the text goes into the cell, the
/// leaving is told (CellLostFocus, AfterEdit). With Enter and Tab the grid then moves by itself to the next
/// cell that it may enter, adding a row past the last one when the form lets it.
class EditableGrid : public GridModel {
 public:
  EditableGrid(Control& parent, std::string name, int index = kNoIndex, bool listed = true);

  /// Cancel refuses the cell, and the grid looks for the next one; the action "Stop" ends that search. Past
  /// the last row it asks with Row = Rows.
  Event<int, int, bool&, std::string&> BeforeEdit;
  Event<int, int> CellGotFocus;
  Event<int, int> CellEnter;
  Event<> Changed;

  /// The text may be changed; cancel keeps the editor open.
  Event<int, int, std::string&, bool&> ValidateCell;
  Event<int, int> CellLostFocus;
  Event<int, int> AfterEdit;
  Event<int> RowAdded;
  Event<int, int, KeyEvent&> EditKeyDown;

  /// True before the first of several pasted lines, false behind the last: what is stored between them is one
  /// act of the person.
  Event<bool> Pasting;

  /// The cell editor.
  TextBox EditBox;

  /// Set by a form while it needs Enter for itself.
  Property<bool> SuppressEnter{*this, "SuppressEnter"};

  /// Once a column is marked, only marked columns are entered by the automatic move.
  void SetColEditable(int col, bool editable);

  /// Whether the form lets a person type into the column.
  bool IsTypedIn(int col) const { return BeforeEdit && IsCandidate(col); }

  bool EditMode() const { return editing_; }
  int EditRow() const { return editRow_; }
  int EditCol() const { return editCol_; }

  /// Moves to a cell and opens the editor on it, if the form lets it; true when it opened.
  bool SetCell(int row, int col);

  /// Commits the cell under edit; false when the form refused and the editor stays. Called from ValidateCell
  /// itself it closes the editor without storing its text.
  bool EndEdit();

  /// Closes the editor without storing.
  void CancelEdit();

  /// One cell as a person edits it. False when the form did not let him in.
  bool UserEnterCell(int row, int col);
  void UserType(const std::string& text);
  bool UserLeaveCell() { return EndEdit(); }

  void UserMoveTo(int row, int col) override;
  TextBox* TypedBox() override { return editing_ ? &EditBox : GridModel::TypedBox(); }
  bool MayLeave() override;
  bool IsInEdit() const override { return editing_; }

  /// Several lines go down the column from the cursor on, each by the whole cycle of an edit, to the shown
  /// rows. An empty line passes its row by; a line that is refused ends it, and so does a row that may not be
  /// edited. How many were stored is told.
  bool TakePaste(const std::string& text) override;
  bool IsPasting() const { return pasting_; }
  std::vector<KeyChoice> KeyChoices() const override;
  void DropEdit() override { CancelEdit(); }
  bool TakeEscape() override;
  void LeaveFocus() override;
  void OfferKey(KeyEvent& key) override;
  bool HandleKey(const KeyEvent& key) override;
  void HandleChar(int character) override;

 protected:
  void PropertyChanged(const PropertyBase& property) override;
  void RowsShifted(int row, int by) override;

 private:
  enum class Answer { Open, Refused, Stop };

  Answer Ask(int row, int col);
  void Open(int row, int col);
  void HideEditor();
  void Close();
  bool OpenFrom(int row, int col);
  void MoveOn();
  void EmptyCell();
  bool HandleEditKey(const KeyEvent& key);
  bool IsCandidate(int col) const;

  /// Where the pasting of lines stands, and why it ended early.
  struct Paste {
    int row = 0;
    int col = 0;
    std::size_t given = 0;
    std::size_t stored = 0;
    std::string ended{};
  };
  void PasteLines(const std::vector<std::string>& lines, Paste& paste);
  std::string PasteLine(const std::string& line, const Paste& paste);

  std::vector<bool> editable_;
  bool editing_ = false;
  bool validating_ = false;
  bool pasting_ = false;
  int editRow_ = 0;
  int editCol_ = 0;
};

}  // namespace quillon
