#include "host/controls/EditableGrid.h"

#include <algorithm>

#include "host/forms/Form.h"
#include "host/forms/Runtime.h"
#include "host/values/FlagHold.h"

namespace quillon {

EditableGrid::EditableGrid(Control& parent, std::string name, int index, bool listed)
    : GridModel(parent, std::move(name), index, listed), EditBox(*this, "EditBox", kNoIndex, false) {
  EditBox.Visible = false;
  EditBox.Change = [this] {
    if (editing_) Changed.Raise();
  };
}

void EditableGrid::SetColEditable(int col, bool editable) {
  RequireCol(col);
  editable_.resize(static_cast<std::size_t>(Cols()));
  editable_[static_cast<std::size_t>(col)] = editable;
}

bool EditableGrid::IsCandidate(int col) const {
  if (!IsColVisible(col)) return false;
  const bool marked = std::find(editable_.begin(), editable_.end(), true) != editable_.end();
  const auto at = static_cast<std::size_t>(col);
  return !marked || (at < editable_.size() && editable_[at]);
}

EditableGrid::Answer EditableGrid::Ask(int row, int col) {
  bool cancel = false;
  std::string action;
  BeforeEdit.Raise(row, col, cancel, action);
  if (action == "Stop") return Answer::Stop;
  return cancel ? Answer::Refused : Answer::Open;
}

void EditableGrid::Open(int row, int col) {
  if (row == Rows) {
    Rows = row + 1;
    RowAdded.Raise(row);
  }
  Finder.Close();
  Row = row;
  Col = col;
  editing_ = false;
  EditBox.Text = TextMatrix(row, col);
  EditBox.SelectAll();
  editRow_ = row;
  editCol_ = col;
  editing_ = true;
  EditBox.Visible = true;
  CellGotFocus.Raise(row, col);
  CellEnter.Raise(row, col);
}

void EditableGrid::HideEditor() {
  editing_ = false;
  EditBox.Visible = false;
}

void EditableGrid::Close() {
  HideEditor();
  CellLostFocus.Raise(editRow_, editCol_);
  AfterEdit.Raise(editRow_, editCol_);
}

bool EditableGrid::SetCell(int row, int col) {
  RequireRow(row);
  RequireCol(col);
  if (editing_ && editRow_ == row && editCol_ == col) return true;
  if (editing_ && !EndEdit()) return false;
  if (Ask(row, col) != Answer::Open) return false;
  Open(row, col);
  return editing_;
}

bool EditableGrid::EndEdit() {
  if (!editing_) return true;
  if (validating_) {
    HideEditor();
    return true;
  }
  const std::string typed = EditBox.Text;
  std::string text = typed;
  bool cancel = false;
  try {
    const FlagHold validating(validating_);
    ValidateCell.Raise(editRow_, editCol_, text, cancel);
  } catch (...) {
    if (!editing_) Close();
    throw;
  }
  if (editing_ && cancel) return false;
  // A handler that ended the edit itself has dealt with the text; the leaving is still told.
  if (!editing_) {
    Close();
    return true;
  }
  SetTextMatrix(editRow_, editCol_, text != typed ? text : EditBox.Text());
  Close();
  return true;
}

void EditableGrid::CancelEdit() {
  if (!editing_) return;
  if (validating_) {
    HideEditor();  // the end of the edit at hand tells the leaving
  } else {
    Close();
  }
}

bool EditableGrid::UserEnterCell(int row, int col) {
  RequireUserCell(row, col);
  if (!BeforeEdit) return false;  // nobody edits this grid
  if (!OwnerForm().UserFocus(*this)) return false;
  return SetCell(row, col);
}

void EditableGrid::UserType(const std::string& text) {
  if (!editing_) throw Refused(FullName() + " has no cell under edit");
  EditBox.UserType(text);
}

void EditableGrid::UserMoveTo(int row, int col) {
  RequireReachable();
  if (!EndEdit()) throw Refused("The cell under edit was refused");
  GridModel::UserMoveTo(row, col);
}

bool EditableGrid::MayLeave() { return EndEdit() && GridModel::MayLeave(); }

void EditableGrid::LeaveFocus() {
  // Nobody is asked when code moves the focus, but what was typed is not lost while it is valid.
  if (!EndEdit()) CancelEdit();
  GridModel::LeaveFocus();
}

bool EditableGrid::TakeEscape() {
  if (GridModel::TakeEscape()) return true;
  if (!editing_) return false;
  CancelEdit();
  return true;
}

bool EditableGrid::OpenFrom(int row, int col) {
  for (; row <= Rows; ++row, col = 0) {
    if (row < Rows && !IsRowVisible(row)) continue;
    for (; col < Cols; ++col) {
      if (!IsCandidate(col)) continue;
      const Answer answer = Ask(row, col);
      if (answer == Answer::Stop) return false;
      if (answer == Answer::Open) {
        Open(row, col);
        return true;
      }
    }
  }
  return false;
}

void EditableGrid::MoveOn() {
  const int row = editRow_;
  const int col = editCol_;
  if (EndEdit() && OwnerForm().IsShownToUser()) OpenFrom(row, col + 1);
}

void EditableGrid::OfferKey(KeyEvent& key) {
  if (editing_) {
    EditKeyDown.Raise(editRow_, editCol_, key);
  } else {
    GridModel::OfferKey(key);
  }
}

bool EditableGrid::HandleEditKey(const KeyEvent& key) {
  // A list that is open on the cell takes the keys that move in it, and Enter as its pick.
  if (EditBox.Companion != nullptr && EditBox.Companion->CompanionKey(key)) return true;
  switch (key.KeyCode) {
    case keys::kEnter:
    case keys::kTab:
      if (key.Shift != 0) return false;
      if (!SuppressEnter) MoveOn();
      return true;
    case keys::kUp:
    case keys::kDown: {
      const int direction = key.KeyCode == keys::kUp ? -1 : 1;
      const int row = RowBeside(editRow_, direction);
      if (row >= 0 && EndEdit()) KeyMoveTo(row, Col);
      return true;
    }
    default:
      return EditBox.HandleKey(key);
  }
}

/// As if the person had opened the cell, deleted its text and left it.
void EditableGrid::EmptyCell() {
  if (!Selection().IsOneCell()) {
    gRuntime->Say("Del empties one cell at a time.");
  } else if (SetCell(Row, Col)) {
    EditBox.UserType("");
    EndEdit();
  }
}

bool EditableGrid::HandleKey(const KeyEvent& key) {
  if (editing_ && key.KeyCode == 'F' && key.Shift == keys::kCtrl)
    return !EndEdit() || GridModel::HandleKey(key);
  if (editing_) return HandleEditKey(key);
  if (GridModel::TypedBox() != nullptr) return GridModel::HandleKey(key);
  if (key.KeyCode == keys::kDelete && key.Shift == 0 && BeforeEdit) {
    EmptyCell();
    return true;
  }
  const bool opens = key.KeyCode == keys::kEnter || key.KeyCode == keys::kF2;
  if (opens && key.Shift == 0 && BeforeEdit) {
    OpenFrom(Row, Col);
    return true;
  }
  if (key.KeyCode == 'V' && key.Shift == keys::kCtrl && BeforeEdit) {
    OwnerForm().UserPaste(gRuntime->ClipboardText());
    return true;
  }
  return GridModel::HandleKey(key);
}

void EditableGrid::HandleChar(int character) {
  if (!editing_ && GridModel::TypedBox() != nullptr) {
    GridModel::HandleChar(character);
    return;
  }
  if (!editing_) {
    if (!BeforeEdit || !OpenFrom(Row, Col)) return;
    EditBox.SelectAll();
  }
  EditBox.HandleChar(character);
}

void EditableGrid::RowsShifted(int row, int by) {
  if (!editing_ || row > editRow_) return;
  // The text under edit belongs to its row; with the row it goes.
  if (by < 0 && row == editRow_) {
    HideEditor();
  } else {
    editRow_ += by;
  }
}

void EditableGrid::PropertyChanged(const PropertyBase& property) {
  if (&property == &Cols && !editable_.empty())
    editable_.resize(static_cast<std::size_t>(std::max(Cols(), 0)));
  GridModel::PropertyChanged(property);
}

}  // namespace quillon
