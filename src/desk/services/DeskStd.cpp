#include "desk/services/DeskStd.h"

#include <filesystem>

#include "books/SqlText.h"
#include "desk/services/AmountFormat.h"
#include "desk/services/AmountWords.h"
#include "desk/services/MessageLog.h"
#include "desk/services/NameText.h"
#include "desk/services/NarrationText.h"
#include "host/controls/GridModel.h"
#include "host/forms/Runtime.h"
#include "host/services/ISession.h"

namespace quillon {

namespace {

constexpr int kMoreRows = 50;
constexpr const char* kProduct = "Quillon";

class DeskFiles : public IFiles {
 public:
  std::string Combine(const std::string& folder, const std::string& name) override {
    return (std::filesystem::path(folder) / name).string();
  }
  bool FolderExists(const std::string& path) override { return std::filesystem::is_directory(path); }
  void CreateFolder(const std::string& path) override {
    std::error_code error;
    std::filesystem::create_directories(path, error);
    if (error) throw HostError("The folder " + path + " cannot be made: " + error.message());
  }
  void CopyFile(const std::string& from, const std::string& to, int /*reserved*/) override {
    std::error_code error;
    std::filesystem::copy_file(from, to, std::filesystem::copy_options::overwrite_existing, error);
    if (error) throw HostError("The file cannot be copied to " + to + ": " + error.message());
  }
};

}  // namespace

DateFrame OpenDateFrame() {
  const FinYear& year = gSession->Year();
  return {year.StartDate(), year.EndDate(), Date::Today()};
}

int DeskStd::MsgBox(const std::string& text, const std::string& buttons, const std::string& icon,
                    const std::string& title, int defaultButton, int /*style*/) {
  MessageRequest request;
  request.Text = text;
  request.Icon = icon;
  request.Title = title.empty() ? kProduct : title;
  request.Buttons = buttons == "2" ? std::vector<std::string>{"Yes", "No"} : std::vector<std::string>{"OK"};
  request.Default = defaultButton == 2 && buttons == "2" ? 2 : 1;
  const int button = gRuntime->AskMessage(request);
  const bool isButton = button >= 1 && button <= static_cast<int>(request.Buttons.size());
  MessageLog::Note(text, isButton ? request.Buttons[static_cast<std::size_t>(button) - 1] : "closed");
  return button;
}

void DeskStd::SendKeys(const std::string& keys) { gRuntime->SendKeys(keys); }

Amount DeskStd::ParseAmount(std::string_view text) { return quillon::ParseAmount(text); }

Amount DeskStd::RoundAmount(Amount amount, const std::string& decimals) {
  return quillon::RoundAmount(amount, decimals);
}

std::string DeskStd::FormatValue(const Variant& value, const std::string& key) {
  return quillon::FormatValue(value, key);
}

std::string DeskStd::FormatAmount(Amount amount, const std::string& key) {
  return quillon::FormatAmount(amount, key);
}

std::string DeskStd::FormatRate(Amount rate) { return quillon::FormatRate(rate); }

std::string DeskStd::AmountInWords(Amount amount, const std::string& style) {
  return quillon::AmountInWords(amount, style);
}

std::string DeskStd::ParseDateText(const std::string& text, const std::string& reference) {
  return quillon::ParseDateText(text, reference, OpenDateFrame());
}

std::string DeskStd::SqlDate(Date date) { return books::SqlDate(date); }

std::string DeskStd::SqlDate(Date first, Date second) { return books::SqlDate(first, second); }

std::string DeskStd::SqlString(const std::string& text) { return books::SqlString(text); }

void DeskStd::SetupGrid(GridModel& grid) {
  grid.RowHeightMin = 330;
  grid.SetRowHeight(0, 390);
}

void DeskStd::SetGridColumn(GridModel& grid, int column, const std::string& title, double width,
                            int alignment, int headingAlignment) {
  const double twips = width <= 1 ? width * static_cast<double>(grid.Width()) : width;
  grid.SetColWidth(column, static_cast<long>(twips));
  if (alignment >= 0) grid.SetColAlignment(column, alignment);
  grid.SetHeadingAlignment(column, headingAlignment);
  if (grid.Rows > 0) grid.SetTextMatrix(0, column, title);
}

void DeskStd::SetRowColors(GridModel& grid, int row, int firstColumn, int lastColumn, long backColor,
                           long foreColor) {
  grid.PaintRow(row, {firstColumn, lastColumn, backColor, foreColor});
}

void DeskStd::NextGridRow(int& row, GridModel& grid) {
  ++row;
  if (row >= grid.Rows) grid.Rows = row + kMoreRows;
}

void DeskStd::ShowDialog(const std::shared_ptr<Form>& form, const std::shared_ptr<Form>& owner) {
  gRuntime->Show(form, true, owner);
}

std::string DeskStd::PressHead(const std::string& text) { return quillon::PressHead(text); }

std::string DeskStd::TidyName(const std::string& text) { return quillon::TidyName(text); }

void DeskStd::ChqNoFromNarration(std::string& narration, std::string& chequeNo) {
  quillon::ChqNoFromNarration(narration, chequeNo);
}

std::string DeskStd::WrapLine(const std::string& text, int width, int line) {
  return quillon::WrapLine(text, width, line);
}

void DeskStd::AddTo(std::int64_t& counter, std::int64_t step) { counter += step; }

IFiles& DeskStd::Files() {
  static DeskFiles files;
  return files;
}

void DeskStd::ShowHelp(int context) {
  if (const FormPtr form = gRuntime->ActiveForm()) gRuntime->ShowHelp(*form, context);
}

}  // namespace quillon
