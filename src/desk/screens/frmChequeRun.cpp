#include "desk/screens/frmChequeRun.h"

#include <algorithm>
#include <chrono>
#include <thread>

#include "books/SqlText.h"
#include "host/forms/BusyPointer.h"
#include "host/forms/GridFill.h"
#include "host/forms/GridRows.h"
#include "host/forms/Progress.h"
#include "host/services/host_services.h"
#include "host/values/FlagHold.h"
#include "host/values/Text.h"

namespace quillon {

namespace {

constexpr ScreenSpec kScreen = {
    .className = "frmChequeRun",
    .caption = "   Print Cheques",
    .titleSuffix = " -> Print Cheques",
    .rightKey = "",
    .registerTitle = "Print Cheques",
    .iconKey = "Cheque",
    .firstKey = keys::kF2,
    .lastKey = keys::kF9,
    .helpContext = 14,
};

constexpr const char* kMark = "Y";
constexpr auto kLook = std::chrono::milliseconds(200);  // between two questions to a printer's queue

namespace col {

constexpr int kParty = 0;
constexpr int kMarked = 1;
constexpr int kDate = 2;
constexpr int kHead = 3;
constexpr int kStation = 4;
constexpr int kNarration = 5;
constexpr int kAmount = 6;
constexpr int kCount = 7;

}  // namespace col

enum RunButton { kNext, kStop, kSpoilt };

/// A form that is used without being shown, for the length of a block.
class LoadedForm {
 public:
  explicit LoadedForm(FormPtr form) : form_(std::move(form)) { gRuntime->Load(form_); }
  LoadedForm(const LoadedForm&) = delete;
  LoadedForm& operator=(const LoadedForm&) = delete;
  ~LoadedForm() {
    try {
      gRuntime->Unload(*form_);
    } catch (const std::exception&) {
      // What went wrong before it is what is told.
    }
  }

 private:
  FormPtr form_;
};

}  // namespace

frmChequeRun::frmChequeRun()
    : ListScreen(kScreen, Origin::Desk),
      lblTitle2(*this, "lblTitle2"),
      picInputs(*this, "picInputs"),
      txpFirst(picInputs, "txpFirst"),
      txpEvery(picInputs, "txpEvery"),
      lblEvery(picInputs, "lblEvery"),
      picRun(*this, "picRun"),
      lblRun(picRun, "lblRun"),
      lstPrinted(picRun, "lstPrinted"),
      btnRun(picRun, "btnRun", {kNext, kStop, kSpoilt}) {
  MemberPeriod(*this);
  Member("Patience", Patience);
  Routine("FillGrid", &frmChequeRun::FillGrid);
  Connect();
}

void frmChequeRun::Connect() {
  txpFirst.Validate = [this](bool& cancel) {
    const std::int64_t number = ValInteger(txpFirst.Text());
    cancel = !txpFirst.Text->empty() && !RequireLeaf(number);
  };
  Grid.KeyPress = [this](int& character) {
    if (character == keys::kSlash) MStrip1.OpenMaster();
    if (character == keys::kSpace) OpenRow(Grid.Row);
  };
  btnRun(kNext).Click = [this] { Guarded(&frmChequeRun::Next); };
  btnRun(kStop).Click = [this] { EndRun(); };
  btnRun(kSpoilt).Click = [this] { Guarded(&frmChequeRun::Spoilt); };
}

void frmChequeRun::LoadScreen() { DesignControls(); }

OutgoingLeaves frmChequeRun::Leaves() const { return OutgoingLeaves(gSession->MainDb()); }

void frmChequeRun::FirstShow() {
  lblTitle2.Caption =
      "Bank: " +
      gSession->MainDb().Lookup("FAMaster", "mhd", "mcd=" + books::SqlNumber(AccountCode)).ToText() + "   " +
      PeriodText();
  Leaves().AskAll();
  FillGrid();
}

/// Other screens may have changed the books meanwhile.
void frmChequeRun::ShownAgain() {
  if (run_.Whole == 0) FillGrid();
}

void frmChequeRun::FillGrid() {
  const BusyPointer pointer;
  GridFill fill(Grid, "");
  const int stood = Grid.Row;
  Grid.Clear();
  Grid.Cols = col::kCount;
  gStd->SetupGrid(Grid);
  SetColumnsInTwips(Grid, {{col::kParty, "", 0},
                           {col::kMarked, "Print", 0.05},
                           {col::kDate, "Date", 0.1},
                           {col::kHead, "Pay To", 0.25},
                           {col::kStation, "Station", 0.12},
                           {col::kNarration, "Narration", 0.31},
                           {col::kAmount, "Amount", 0.14, kAlignRight}});
  payments_ = BankPayment::WithoutLeaf(gSession->MainDb(), AccountCode, Date1, Date2);
  Grid.Rows = std::max(static_cast<int>(payments_.size()) + 1, 2);
  std::set<std::int64_t> marked;
  int row = 0;
  for (const BankPayment& payment : payments_) {
    ++row;
    Grid.SetTextMatrix(row, col::kParty, std::to_string(payment.Party));
    Grid.SetTextMatrix(row, col::kDate, payment.Day.Format("dd/MM/yyyy"));
    Grid.SetTextMatrix(row, col::kHead, payment.Head);
    Grid.SetTextMatrix(row, col::kStation, payment.Station);
    Grid.SetTextMatrix(row, col::kNarration, payment.Narration);
    Grid.SetTextMatrix(row, col::kAmount, gStd->FormatAmount(payment.Value, "c2"));
    if (!marked_.contains(payment.Voucher)) continue;
    marked.insert(payment.Voucher);
    Grid.SetTextMatrix(row, col::kMarked, kMark);
  }
  marked_ = marked;
  ShowChosen();
  fill.Done();
  Grid.Row = std::clamp(stood, 1, Grid.Rows - 1);
  ShowAccountOfRow(Grid.Row);
}

void frmChequeRun::ShowChosen() {
  Amount sum;
  for (const BankPayment& payment : payments_) {
    if (marked_.contains(payment.Voucher)) sum += payment.Value;
  }
  ShowTotals(Grid, 0, col::kHead, "Chosen: " + std::to_string(marked_.size()), {{col::kAmount, sum}});
}

void frmChequeRun::Mark(int row, bool marked) {
  const auto at = static_cast<std::size_t>(row) - 1;
  if (row < 1 || at >= payments_.size()) return;
  if (marked) {
    marked_.insert(payments_[at].Voucher);
  } else {
    marked_.erase(payments_[at].Voucher);
  }
  Grid.SetTextMatrix(row, col::kMarked, marked ? kMark : "");
}

/// Marks or unmarks the payment and goes on to the next one.
void frmChequeRun::OpenRow(int row) {
  Mark(row, Grid.TextMatrix(row, col::kMarked).empty());
  ShowChosen();
  if (row + 1 < Grid.Rows) Grid.Row = row + 1;
}

void frmChequeRun::MarkAll() {
  const bool marks = marked_.size() < payments_.size();
  for (int row = 1; row < Grid.Rows; ++row) Mark(row, marks);
  ShowChosen();
}

void frmChequeRun::Pressed(const std::string& key) {
  if (key == "Mark") {
    OpenRow(Grid.Row);
  } else if (key == "All") {
    MarkAll();
  } else if (key == "Voucher" && AccountOfRow(Grid.Row) != 0) {
    gApp->OpenVoucher(*this, payments_.at(static_cast<std::size_t>(Grid.Row) - 1).Voucher,
                      gSession->Year().StartYear(), AccountCode);
  } else if (key == "Leaf") {
    txpFirst.SetFocus();
  }
}

long frmChequeRun::AccountOfRow(int row) const {
  return static_cast<long>(ValInteger(Grid.Cell(row, col::kParty)));
}

void frmChequeRun::OnKeyDown(KeyEvent& key) {
  // While the run waits for a look the bar waits too.
  if (picRun.Visible && key.Shift == 0 && key.KeyCode >= keys::kF2 && key.KeyCode <= keys::kF9) {
    const int pressed = std::exchange(key.KeyCode, 0);
    if (pressed == keys::kF7) btnRun(kNext).Press();
    if (pressed == keys::kF6) btnRun(kSpoilt).Press();
    return;
  }
  ListScreen::OnKeyDown(key);
}

void frmChequeRun::ExitPressed(bool& cancel) {
  cancel = picRun.Visible;
  if (cancel) EndRun();
}

void frmChequeRun::Print(bool /*print*/) { Guarded(&frmChequeRun::StartRun); }

/// A step of the run; one that fails ends it, and the list tells what is still to be printed.
void frmChequeRun::Guarded(void (frmChequeRun::*step)()) {
  try {
    (this->*step)();
  } catch (...) {
    EndRun();
    throw;
  }
}

bool frmChequeRun::RequireLeaf(std::int64_t number) {
  const std::string why = Leaves().WhyNot(AccountCode, number);
  if (!why.empty()) gStd->MsgBox(why, "", "W", "", 0, kFieldMessage);
  return why.empty();
}

void frmChequeRun::StartRun() {
  if (marked_.empty()) {
    gStd->MsgBox("Mark the payments whose cheques shall be printed.", "", "W");
    return;
  }
  if (txpFirst.Text->empty()) {
    gStd->MsgBox("Enter the number of the first leaf in the tray.", "", "W", "", 0, kFieldMessage);
    txpFirst.SetFocus();
    return;
  }
  run_ = Run();
  run_.Leaf = ValInteger(txpFirst.Text());
  run_.Every = static_cast<std::size_t>(std::max(ValInteger(txpEvery.Text()), 1LL));
  for (const BankPayment& payment : payments_) {
    if (marked_.contains(payment.Voucher)) run_.Vouchers.push_back(payment.Voucher);
  }
  run_.Whole = run_.Vouchers.size();
  PrintOn();
}

/// Prints until it is time for a look. What is not printed ends the run.
void frmChequeRun::PrintOn() {
  run_.Seen.clear();
  while (!run_.Vouchers.empty() && run_.Seen.size() < run_.Every) {
    const std::optional<Issue> issue = PrintCheque(run_.Vouchers.front());
    if (!issue) {
      EndRun();
      return;
    }
    run_.Seen.push_back(*issue);
    run_.Vouchers.erase(run_.Vouchers.begin());
  }
  Pause();
}

/// On the leaf on top of the tray. A form of its own for each cheque has the layout as it is kept: what a
/// payee changes on one does not go on to the next.
std::optional<OutgoingLeaves::Issue> frmChequeRun::PrintCheque(std::int64_t voucher) {
  if (!RequireLeaf(run_.Leaf)) {
    txpFirst.SetFocus();
    return std::nullopt;
  }
  const FormPtr cheque = NewChequeForm(Self(), AccountCode);
  if (!cheque) return std::nullopt;
  BankPayments(gSession->CurrentYear(), AccountCode, voucher).Fill(*cheque);
  const LoadedForm loaded(cheque);
  OutgoingLeaf sent = Leaves().Send(AccountCode, run_.Leaf, voucher);
  IPrinter& printer = gRuntime->Printer();
  printer.ForgetJob();
  std::optional<FlagHold> quiet;
  if (!run_.AsksPrinter) quiet.emplace(printer.IsQuiet);
  cheque->Call("PrintChq", {run_.AsksPrinter});
  Leaves().NoteJob(sent, printer.JobName());
  std::optional<Issue> issue = Settle(sent);
  if (issue) {
    run_.AsksPrinter = false;
    ++run_.Leaf;
  }
  return issue;
}

/// What became of the cheque; nothing when it is not printed, or when nobody knows yet.
std::optional<OutgoingLeaves::Issue> frmChequeRun::Settle(const OutgoingLeaf& sent) {
  std::string why;
  switch (AwaitJob(why)) {
    case IPrinter::JobFate::kPrinted:
      return Leaves().Record(sent);
    case IPrinter::JobFate::kNothingSent:
      Leaves().Free(sent);
      return std::nullopt;
    default:
      break;
  }
  if (!why.empty()) gStd->MsgBox(why, "", "W");
  std::optional<Issue> issue;
  Leaves().Ask(sent, issue);
  return issue;
}

IPrinter::JobFate frmChequeRun::AwaitJob(std::string& why) const {
  IPrinter& printer = gRuntime->Printer();
  Progress waiting("Waiting until cheque " + LeafText(run_.Leaf) + " is printed", 0);
  const auto end = std::chrono::steady_clock::now() + std::chrono::seconds(Patience);
  for (;;) {
    const IPrinter::JobFate fate = printer.FateOfJob(why);
    if (fate != IPrinter::JobFate::kUnderWay) return fate;
    if (std::chrono::steady_clock::now() >= end) {
      why = "The printer " + printer.DeviceName + " has not done the cheque within " +
            std::to_string(Patience) + " seconds.";
      return IPrinter::JobFate::kInDoubt;
    }
    std::this_thread::sleep_for(kLook);
    waiting.Step();
  }
}

void frmChequeRun::Pause() {
  lstPrinted.Clear();
  for (const Issue& issue : run_.Seen) {
    const std::optional<BankPayment> payment =
        BankPayment::Of(gSession->MainDb(), AccountCode, issue.Sent.Voucher);
    std::string line = LeafText(issue.Sent.Number);
    if (payment) line += "   " + payment->Head + "   " + gStd->FormatAmount(payment->Value, "c2");
    lstPrinted.AddItem(line);
  }
  const std::size_t done = run_.Whole - run_.Vouchers.size();
  lblRun.Caption = "Printed " + std::to_string(done) + " of " + std::to_string(run_.Whole) +
                   (run_.Vouchers.empty() ? "." : ". The next leaf is " + LeafText(run_.Leaf) + ".");
  ShowPanel(true);
  lstPrinted.SetListIndex(lstPrinted.ListCount() - 1);
  lstPrinted.SetFocus();
}

void frmChequeRun::Next() {
  ShowPanel(false);
  if (run_.Vouchers.empty()) {
    EndRun();
  } else {
    PrintOn();
  }
}

/// The cheque chosen in the panel is printed once more, on the next leaf.
void frmChequeRun::Spoilt() {
  const auto chosen = static_cast<std::size_t>(std::max(lstPrinted.ListIndex(), 0));
  const Issue spoilt = run_.Seen.at(chosen);
  if (!gStd->AskYesNo("Is cheque " + LeafText(spoilt.Sent.Number) +
                          " spoilt? Its leaf is cancelled, and the cheque is printed on leaf " +
                          LeafText(run_.Leaf) + ".",
                      "W", IStd::kNo)) {
    return;
  }
  ShowPanel(false);
  Leaves().Spoil(spoilt);
  run_.Vouchers.insert(run_.Vouchers.begin(), spoilt.Sent.Voucher);
  const std::optional<Issue> issue = PrintCheque(spoilt.Sent.Voucher);
  if (!issue) {
    EndRun();
    return;
  }
  run_.Vouchers.erase(run_.Vouchers.begin());
  run_.Seen[chosen] = *issue;
  Pause();
}

/// Those that are left stay marked, and the field shows the leaf on top of the tray.
void frmChequeRun::EndRun() {
  ShowPanel(false);
  marked_ = std::set<std::int64_t>(run_.Vouchers.begin(), run_.Vouchers.end());
  txpFirst.Text = std::to_string(run_.Leaf);
  run_ = Run();
  FillGrid();
  if (!txpFirst.HasFocus()) Grid.SetFocus();
}

void frmChequeRun::ShowPanel(bool on) {
  picRun.Visible = on;
  for (Control* control : std::initializer_list<Control*>{&Grid, &picInputs, &BtnBar1})
    control->Enabled = !on;
}

}  // namespace quillon
