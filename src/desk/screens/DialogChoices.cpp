#include "desk/screens/DialogChoices.h"

#include "host/controls/host_controls.h"
#include "host/forms/Fields.h"
#include "host/forms/Form.h"
#include "host/values/Text.h"

namespace quillon {

namespace {

// Signs that nobody types.
constexpr const char* kNextControl = "\x1d";
constexpr const char* kNextRow = "\x1e";
constexpr const char* kNext = "\x1f";

std::string ShownRows(const GridModel& grid) {
  std::vector<std::string> lines;
  for (int row = grid.FixedRows; row < grid.Rows; ++row) {
    std::vector<std::string> cells;
    for (int col = 0; col < grid.Cols; ++col) {
      if (grid.ColWidth(col) > 0 && !grid.Cell(row, col).empty()) cells.emplace_back(grid.Cell(row, col));
    }
    lines.push_back(text::Join(cells, " | "));
  }
  return text::Join(lines, "\n");
}

std::string AllRows(const GridModel& grid) {
  std::vector<std::string> rows;
  for (int row = grid.FixedRows; row < grid.Rows; ++row) {
    std::vector<std::string> cells;
    cells.reserve(static_cast<std::size_t>(grid.Cols));
    for (int col = 0; col < grid.Cols; ++col) cells.emplace_back(grid.Cell(row, col));
    rows.push_back(text::Join(cells, kNext));
  }
  return text::Join(rows, kNextRow);
}

void PutRows(GridModel& grid, const std::string& text) {
  const std::vector<std::string> rows = text::Split(text, kNextRow);
  grid.Rows = grid.FixedRows + static_cast<int>(rows.size());
  int row = grid.FixedRows;
  for (const std::string& cells : rows) {
    int col = 0;
    for (const std::string& cell : text::Split(cells, kNext)) grid.SetTextMatrix(row, col++, cell);
    ++row;
  }
}

/// Grids that are lists to pick from are no choices.
const GridModel* FilledGrid(const Control& control) {
  const auto* grid = dynamic_cast<const EditableGrid*>(&control);
  return grid != nullptr && grid->Visible ? grid : nullptr;
}

std::string WordsOf(const Control& control) {
  if (const GridModel* grid = FilledGrid(control)) return ShownRows(*grid);
  if (const auto* field = dynamic_cast<const CTextPlus*>(&control)) {
    return field->Text->empty() ? "" : field->Caption() + " " + field->Text();
  }
  if (const auto* box = dynamic_cast<const TextBox*>(&control)) return box->Text();
  if (const auto* list = dynamic_cast<const ListBox*>(&control)) return text::Join(TickedItems(*list), ", ");
  if (const auto* mark = dynamic_cast<const CheckBox*>(&control)) {
    return mark->CheckValue == 1 ? mark->Caption() : "";
  }
  const auto* option = dynamic_cast<const OptionButton*>(&control);
  return option != nullptr && option->Chosen ? option->Caption() : "";
}

std::string TextOf(const Control& control) {
  if (const GridModel* grid = FilledGrid(control)) return AllRows(*grid);
  if (const auto* field = dynamic_cast<const CTextPlus*>(&control)) return field->Text();
  if (const auto* box = dynamic_cast<const TextBox*>(&control)) return box->Text() + kNext + box->Tag();
  if (const auto* mark = dynamic_cast<const CheckBox*>(&control)) return std::to_string(mark->CheckValue);
  if (const auto* option = dynamic_cast<const OptionButton*>(&control)) return option->Chosen ? "1" : "0";
  std::string ticks;
  if (const auto* list = dynamic_cast<const ListBox*>(&control)) {
    for (int item = 0; item < list->ListCount(); ++item) ticks += list->Selected(item) ? '1' : '0';
  }
  return ticks;
}

void PutText(Control* control, const std::string& text) {
  if (auto* grid = dynamic_cast<EditableGrid*>(control)) {
    PutRows(*grid, text);
  } else if (auto* field = dynamic_cast<CTextPlus*>(control)) {
    field->Text = text;
  } else if (auto* box = dynamic_cast<TextBox*>(control)) {
    // A text that changes may clear the mark beside it, so the mark comes last.
    const std::vector<std::string> parts = text::Split(text, kNext);
    box->Text = parts.front();
    box->Tag = parts.back();
  } else if (auto* mark = dynamic_cast<CheckBox*>(control)) {
    mark->CheckValue = static_cast<int>(ValInteger(text));
  } else if (auto* option = dynamic_cast<OptionButton*>(control)) {
    option->Chosen = text == "1";
  } else if (auto* list = dynamic_cast<ListBox*>(control)) {
    const int count = std::min(list->ListCount(), static_cast<int>(text.size()));
    for (int item = 0; item < count; ++item)
      list->SetSelected(item, text[static_cast<std::size_t>(item)] == '1');
  }
}

}  // namespace

std::string DialogChoices::Words(const Form& form) {
  std::vector<std::string> lines;
  for (const Control* control : form.Controls()) {
    const std::string words = text::Trim(WordsOf(*control));
    if (!words.empty()) lines.push_back(words);
  }
  return text::Join(lines, "\n");
}

std::string DialogChoices::Text(const Form& form) {
  std::vector<std::string> texts;
  for (const Control* control : form.Controls()) texts.push_back(TextOf(*control));
  return text::Join(texts, kNextControl);
}

/// A mark that ticks a whole list comes before its list, so that single ticks stand.
void DialogChoices::Put(Form& form, const std::string& text) {
  const std::vector<std::string> texts = text::Split(text, kNextControl);
  if (texts.size() != form.Controls().size()) return;
  for (const bool lists : {false, true}) {
    std::size_t at = 0;
    for (Control* control : form.Controls()) {
      const std::string& value = texts[at++];
      const bool isList = dynamic_cast<ListBox*>(control) != nullptr;
      if (isList == lists && !value.empty()) PutText(control, value);
    }
  }
}

}  // namespace quillon
