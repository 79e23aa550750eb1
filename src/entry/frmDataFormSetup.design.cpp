#include "entry/frmDataFormSetup.h"

#include "host/forms/Runtime.h"

namespace quillon {

namespace {

constexpr long kEdge = 150;
constexpr long kLine = 360;
constexpr long kLabel = 1440;
constexpr long kArrow = 480;
constexpr long kButtonHeight = 420;

}  // namespace

void frmDataFormSetup::DesignControls() {
  Caption = "Data Form Properties";
  HelpContext = 16;
  Width = 10200;
  Height = 7200;
  Left = (gRuntime->ScreenWidth() - Width) / 2;
  Top = (gRuntime->ScreenHeight() - Height) / 2;
  long top = kEdge;
  const auto field = [&](Label& label, const char* caption, Control& box, long width) {
    label.Caption = caption;
    label.Move(kEdge, top, kLabel, kLine);
    box.Move(kEdge + kLabel, top, width, kLine);
    top += kLine + 90;
  };
  field(lblFormType, "Form Type", cmbFormType, 3000);
  field(lblForm, "Form", cmbForm, 3000);
  field(lblFormTitle, "Form Title", txtFormTitle, 6000);
  txtFormTitle.MaxLength = 60;
  lblGrid.Caption = "Column A/c Details";
  lblGrid.Move(kEdge, top + 30, 4000, kLine);
  top += kLine + 60;
  Grid.Move(kEdge, top, Width - 3 * kEdge - kArrow, Height - top - kButtonHeight - 2 * kEdge);
  SelGrid1.Move(kEdge, top, 4800, 2700);
  SelGrid1.Visible = false;
  PlaceButtons();
}

void frmDataFormSetup::PlaceButtons() {
  const char* const arrows[] = {"\u2191", "\u2193"};
  const char* const tips[] = {"The row up", "The row down"};
  for (auto& [index, arrow] : Command2) {
    arrow->Caption = arrows[index];
    arrow->ToolTipText = tips[index];
    arrow->Move(Width - kEdge - kArrow, Grid.Top + index * (kArrow + 90), kArrow, kArrow);
  }
  const long top = Height - kButtonHeight - kEdge;
  long right = Width - kEdge;
  const auto button = [&](int index, const char* caption, long width) {
    Command1(index).Caption = caption;
    Command1(index).Move(right - width, top, width, kButtonHeight);
    right -= width + 90;
  };
  button(1, "Cancel", 1500);
  button(0, "F7: Save", 1500);
  button(3, "Delete Data Form", 2100);
  button(2, "F3: Delete Row", 1800);
}

}  // namespace quillon
