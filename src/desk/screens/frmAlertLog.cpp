#include "desk/screens/frmAlertLog.h"

#include <algorithm>

#include "host/forms/Runtime.h"
#include "host/services/IStd.h"
#include "host/values/Text.h"

namespace quillon {

namespace {

class AlertLog : public CAlertLog {
 public:
  AlertLog() {
    form_->Grid.DblClick = [this] { GridRowDblClick.Raise(form_->Grid.Row); };
  }

  void Heading(const std::string& text) override { form_->lblHeading.Caption = text; }
  void Title(const std::string& text) override {
    form_->Caption = text;
    form_->Grid.Title = text;
  }
  void SetColumns(const std::vector<std::string>& columns) override;
  void AddRow(const std::vector<std::string>& cells) override;
  GridModel& Grid() override { return form_->Grid; }
  std::shared_ptr<quillon::Form> Form() override { return form_; }
  void Show(const std::shared_ptr<quillon::Form>& owner) override;

 private:
  std::shared_ptr<frmAlertLog> form_ = std::make_shared<frmAlertLog>();
};

void AlertLog::SetColumns(const std::vector<std::string>& columns) {
  CGridPlus& grid = form_->Grid;
  const long unit = gRuntime->TextWidth(grid.Font, "9");
  grid.Cols = static_cast<int>(columns.size());
  for (int col = 0; col < grid.Cols; ++col) {
    const std::vector<std::string> parts = text::Split(columns[static_cast<std::size_t>(col)], ",");
    const long width = parts.size() > 1 ? unit * static_cast<long>(ValInteger(parts[1])) : 0;
    const bool figure = parts[0] == "Debit" || parts[0] == "Credit" || parts[0] == "Amount";
    gStd->SetGridColumn(grid, col, parts[0], static_cast<double>(width), figure ? kAlignRight : kAlignLeft);
  }
}

void AlertLog::AddRow(const std::vector<std::string>& cells) {
  CGridPlus& grid = form_->Grid;
  const int row = grid.Rows;
  grid.Rows = row + 1;
  for (int col = 0; col < std::min(grid.Cols(), static_cast<int>(cells.size())); ++col) {
    grid.SetTextMatrix(row, col, cells[static_cast<std::size_t>(col)]);
  }
}

void AlertLog::Show(const std::shared_ptr<quillon::Form>& owner) {
  if (form_->Grid.Rows > 1) form_->Grid.Row = 1;
  gRuntime->Show(form_, false, owner);
}

}  // namespace

std::shared_ptr<CAlertLog> frmAlertLog::New() { return std::make_shared<AlertLog>(); }

frmAlertLog::frmAlertLog()
    : DialogForm({.className = "frmAlertLog",
                  .caption = "",
                  .width = 12000,
                  .height = 6600,
                  .origin = Origin::Desk,
                  .onlyCloses = true}),
      lblHeading(*this, "lblHeading"),
      Grid(*this, "Grid") {
  DesignControls();
}

void frmAlertLog::OnKeyDown(KeyEvent& key) {
  DialogForm::OnKeyDown(key);
  if (key.KeyCode != keys::kEnter || key.Shift != 0 || !Grid.HasFocus() || Grid.Finder.IsOpen()) return;
  key.KeyCode = 0;
  Grid.DblClick.Raise();
}

}  // namespace quillon
