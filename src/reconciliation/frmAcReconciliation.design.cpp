#include "reconciliation/frmAcReconciliation.h"

#include "host/forms/Runtime.h"

namespace quillon {

namespace {

constexpr long kRowGap = 30;
constexpr long kTitleBarHeight = 360;
constexpr long kFilterWidth = 2700;
constexpr long kReturnedWidth = 2100;
constexpr long kGridBackColor = 0xC0FFFF;

}  // namespace

void frmAcReconciliation::BuildBar() {
  BtnBar1.AddButtons({"MassMarking,F3: Mass Mark", "",
                      "Interest,F5 : Interest,Interest,View Product Interest of A/c",
                      "Statement,F6 : Statement,Report,View Reconciliation Statement of A/c",
                      "PassBook,F7 : Pass Book,PassBook,View Pass Book of A/c", "Preview,F8 : Preview",
                      "Print,F9 : Print", "Exit,Esc : Exit"});
  mmMarking.Caption = "Marking";
  mmMarking.Items = {"Mass Marking of Entries", "Mass Un-Marking of Entries"};
}

void frmAcReconciliation::DesignControls() {
  const long titles = lblTitle.Top + lblTitle.Height;
  const long third = Width / 3;
  for (const int item : {0, 1, 2}) {
    lblTitle1(item).Move(item * third, titles, third, kTitleBarHeight);
    lblTitle1(item).Font = quillon::Font{"Tahoma", 9.75, true, false, false};
  }
  const long bar = titles + kTitleBarHeight + kRowGap;
  cmbFilter.Move(Width - kFilterWidth, bar, kFilterWidth, kTitleBarHeight);
  cmbFilter.ToolTipText = "Entries to show";
  chkReturned.Caption = "Chq. Returned";
  chkReturned.Move(cmbFilter.Left - kReturnedWidth - kRowGap, bar, kReturnedWidth, kTitleBarHeight);
  const long strip = Width / 2;
  MStrip1.Move(0, bar, strip, kTitleBarHeight);
  lblTitle2.Move(strip, bar, chkReturned.Left - strip - kRowGap, kTitleBarHeight);
  MStrip2.Move(0, BtnBar1.Top - kTitleBarHeight - kRowGap, Width, kTitleBarHeight);

  const long top = bar + kTitleBarHeight + kRowGap;
  Grid.Move(0, top, Width, MStrip2.Top - top - kRowGap);
  Grid.Font = quillon::Font{"Tahoma", 11.25, false, false, false};
  Grid.BackColor = kGridBackColor;
  for (CGridPlus* grid : {&GridStatement, &GridPBook, &GridIntt}) {
    grid->Move(Grid.Left, Grid.Top, Grid.Width, Grid.Height);
    grid->Font = Grid.Font();
    grid->Visible = false;
  }
  Grid.Visible = false;
  cmbFilter.Visible = false;
  chkReturned.Visible = false;
}

}  // namespace quillon
