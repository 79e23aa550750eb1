#include "host/controls/EditableGrid.h"

#include "host/controls/SpreadsheetText.h"
#include "host/forms/BusyPointer.h"
#include "host/forms/Form.h"
#include "host/forms/Progress.h"
#include "host/forms/Runtime.h"
#include "host/values/FlagHold.h"

namespace quillon {

std::vector<Control::KeyChoice> EditableGrid::KeyChoices() const {
  std::vector<KeyChoice> choices = GridModel::KeyChoices();
  if (BeforeEdit) choices.insert(choices.begin(), KeyChoice{"Paste", {'V', keys::kCtrl}});
  return choices;
}

bool EditableGrid::TakePaste(const std::string& text) {
  const std::vector<std::string> lines = PastedLines(text);
  if (TypedBox() != nullptr || !BeforeEdit || lines.size() < 2) return false;
  Paste paste{.row = Row, .col = Col};
  const auto tell = [&paste] {
    const std::string stored = std::to_string(paste.stored) + (paste.stored == 1 ? " line" : " lines");
    if (paste.ended.empty()) {
      gRuntime->Say(stored + " stored.");
    } else {
      gRuntime->Say(stored + " of " + std::to_string(paste.given) + " stored: " + paste.ended + ".");
    }
  };
  try {
    const FlagHold pasting(pasting_);
    PasteLines(lines, paste);
  } catch (...) {
    CancelEdit();
    paste.ended = "the next one failed";
    tell();
    throw;
  }
  tell();
  return true;
}

void EditableGrid::PasteLines(const std::vector<std::string>& lines, Paste& paste) {
  struct Act {
    explicit Act(EditableGrid& pasted) : grid(pasted) { grid.Pasting.Raise(true); }
    Act(const Act&) = delete;
    Act& operator=(const Act&) = delete;
    ~Act() { grid.Pasting.Raise(false); }
    EditableGrid& grid;
  };
  const FormPtr alive = OwnerForm().Self();
  const BusyPointer pointer;
  for (const std::string& line : lines) paste.given += line.empty() ? 0 : 1;
  const Act act(*this);
  Progress progress("Pasting", static_cast<std::int64_t>(lines.size()));
  for (std::size_t at = 0; at < lines.size() && paste.ended.empty(); ++at, progress.Step()) {
    const int below = at == 0 ? paste.row : RowBeside(paste.row, 1);
    if (lines[at].empty()) {
      if (below >= 0) paste.row = below;
      continue;
    }
    std::string why = "there is no row for it";
    if (below >= 0) {
      paste.row = below;
      why = PasteLine(lines[at], paste);
    }
    if (why.empty()) {
      ++paste.stored;
    } else {
      paste.ended = "line " + std::to_string(at + 1) + ", \"" + lines[at] + "\": " + why;
    }
  }
}

/// Why the line could not be stored; empty when it was.
std::string EditableGrid::PasteLine(const std::string& line, const Paste& paste) {
  if (!OwnerForm().IsShownToUser() || paste.row < FixedRows || paste.row >= Rows || paste.col >= Cols ||
      !SetCell(paste.row, paste.col)) {
    return "its cell may not be edited";
  }
  EditBox.UserType(line);
  if (EndEdit()) return {};
  CancelEdit();
  return "it was refused";
}

}  // namespace quillon
