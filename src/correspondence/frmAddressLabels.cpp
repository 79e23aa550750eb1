#include "correspondence/frmAddressLabels.h"

#include <algorithm>

#include "books/SqlText.h"
#include "correspondence/LabelConfig.h"
#include "correspondence/LabelSheet.h"
#include "correspondence/LabelText.h"
#include "correspondence/frmAddLabelSetup.h"
#include "correspondence/frmMailMerge.h"
#include "envelopes/frmEnvelopePrint.h"
#include "host/controls/RedrawHold.h"
#include "host/forms/BusyJob.h"
#include "host/forms/Progress.h"
#include "host/services/host_services.h"
#include "host/values/Text.h"

namespace quillon {

namespace {

constexpr ScreenSpec kScreen = {
    .className = "frmAddressLabels",
    .caption = "   Address Labels",
    .titleSuffix = " -> Address Labels",
    .rightKey = "mst.labels",
    .registerTitle = "Address Labels",
    .iconKey = "List",
    .firstKey = keys::kF3,
    .lastKey = keys::kF9,
    .helpContext = 11,
};

constexpr int kTextMode = 2;  // of IReports::PrinterMode, from there on
constexpr int kMoreRows = 50;
constexpr int kFurtherColumns = 3;  // behind the codes; the last holds the row's command
constexpr long kRowHeight = 1650;
constexpr long kBeside = 400;
constexpr long kRowColor = 16750230;
constexpr const char* kKeepLabelWhole = "*midchk-08*";

}  // namespace

frmAddressLabels::frmAddressLabels()
    : ScreenForm(kScreen, Origin::Module), lblGridTitle(*this, "lblGridTitle"), Grid(*this, "Grid") {
  Member("CurCode", CurCode);
  Member("ColCount", ColCount);
  Member("sFilterCnd", sFilterCnd);
  Member("sFilterTxt", sFilterTxt);
  Member("sOrderBy", sOrderBy);
  Member("sJoinCnd", sJoinCnd);
  Member("Config", Config);
  Routine("NextCode", &frmAddressLabels::NextCode);
  Routine("PreviousCode", &frmAddressLabels::PreviousCode);
  Routine("FillLabels", &frmAddressLabels::FillLabels);
  Grid.RowColChange = [this] { ShowCursor(); };
  Grid.DblClick = [this] { ShowDetails(); };
  Grid.KeyDown = [this](KeyEvent& key) {
    if (key.KeyCode != keys::kEnter || key.Shift != 0) return;
    key.KeyCode = 0;
    ShowDetails();
  };
  Grid.KeyPress = [this](int& character) {
    if (character == keys::kSlash) MStrip1.OpenMaster();
  };
  QuillonStdButtons1.HasConfiguration = true;
  QuillonStdButtons1.ButtonClick = [this, standard = QuillonStdButtons1.ButtonClick](int index,
                                                                                     bool& cancel) {
    if (index == CStdButtons::kConfigure) {
      Configure();
      cancel = true;
    } else {
      standard.Raise(index, cancel);
    }
  };
}

void frmAddressLabels::BuildBar() {
  BtnBar1.AddButtons({"Remove,F3: Remove,Delete", "Filter,F4: Filter,Filter", "Envelope,F5: Envelope,Envelop",
                      "Configure,F6: Configure,Config", "MailMerge,F7: Mail Merge,List",
                      "Preview,F8 : Preview", "Print,F9 : Print", "Exit,Esc : Exit"});
  BtnBar1.HideButtons({"F5", "F7"});
}

void frmAddressLabels::LoadScreen() {
  constexpr long kTitleHeight = 345;
  constexpr long kTitleEdge = 90;
  lblGridTitle.Move(kTitleEdge, ContentTop(), Width - kTitleEdge, kTitleHeight);
  const long top = ContentTop() + kTitleHeight;
  Grid.Move(0, top, Width, ContentBottom() - top);
  Grid.Font = quillon::Font{"Tahoma", 9.75, false, false, false};
  Grid.Visible = false;
  Grid.WordWrap = true;
  Grid.FixedRows = 0;
  isTextMode_ = gReports->PrinterMode() >= kTextMode;
  Config = LabelConfig::Defaults(isTextMode_);
  LabelConfig::Read(gApp->GetUserSetting(ConfigKey()), Config);
  detailsOpened_ = false;
}

void frmAddressLabels::FirstShow() {
  if (sFilterCnd.empty() && !SelectParties()) {
    gRuntime->Unload(*this);
    return;
  }
  FillLabels();
  Grid.Visible = true;
}

void frmAddressLabels::ShownAgain() {
  if (detailsOpened_) UpdateLabel();
  detailsOpened_ = false;
  Grid.SetFocus();
}

const char* frmAddressLabels::ConfigKey() const {
  return isTextMode_ ? "AddLabelConfigDOS" : "AddLabelConfig";
}

bool frmAddressLabels::SelectParties() {
  CPartyFilter filter;
  if (!filter.Show()) return false;
  sFilterCnd = filter.Clause();
  sFilterTxt = filter.Caption();
  sOrderBy = filter.OrderBy();
  sJoinCnd = filter.JoinCnd();
  return true;
}

std::string frmAddressLabels::Query() const {
  return "Select * from FAMaster b Left Join CtgMaster c on " +
         (sJoinCnd.empty() ? "b.mbshno=c.ctgno" : sJoinCnd) + " where " +
         (sFilterCnd.empty() ? "(b.mst<>'' or b.mhda1<>'')" : sFilterCnd) + " order by " +
         (sOrderBy.empty() ? "b.mhd" : sOrderBy);
}

void frmAddressLabels::SetColumns() {
  const LabelConfig config(Config, isTextMode_);
  ColCount = config.Columns();
  const long gap = config.ColumnGap();
  const long usable = std::max(Grid.Width - kBeside - (ColCount - 1) * gap, 0L);
  Grid.Cols = ColCount * 2 + kFurtherColumns;
  Grid.Rows = 1;
  Grid.Clear();
  Grid.RowHeightMin = kRowHeight;
  for (int col = 0; col < Grid.Cols; ++col) {
    const long width = usable / ColCount + (col < ColCount - 1 ? gap : 0);
    Grid.SetColWidth(col, col < ColCount ? width : 0);
  }
}

void frmAddressLabels::FillLabels() {
  const BusyJob job;
  const RedrawHold hold(Grid);
  SetColumns();
  CDataSet parties;
  parties.Open(Query(), gSession->MainDb(), 1, 3);
  AddLabels(parties);
  lblGridTitle.Caption = "Filter - " + sFilterTxt;
  Grid.Row = 0;
  Grid.Col = 0;
  ShowCursor();
}

void frmAddressLabels::AddLabels(CDataSet& parties) {
  const int copies = LabelConfig(Config, isTextMode_).Copies();
  LabelSheet sheet(Grid, ColCount);
  LabelSheet::Place place;
  Progress progress("Labels", 0);
  for (; !parties.Eof(); parties.MoveNext(), progress.Step()) {
    const std::string text = TextOf(gApp->GetPartyAddress(parties), parties);
    const auto code = static_cast<long>(parties.Field("mcd").ToInteger());
    for (int copy = 0; copy < copies; ++copy) {
      if (place.Row >= Grid.Rows) Grid.Rows = place.Row + kMoreRows;
      sheet.Put(place, text, code);
      Grid.SetTextMatrix(place.Row, Grid.Cols - 1, kKeepLabelWhole);
      const int row = place.Row;
      place = sheet.After(place);
      // Neighbouring rows differ.
      if (place.Row != row && row % 2 == 0) {
        gStd->SetRowColors(Grid, row, 0, Grid.Cols - 1, kRowColor, Control::kDefaultColor);
      }
    }
  }
  Grid.Rows = std::max(place.Col > 0 ? place.Row + 1 : place.Row, 1);
}

std::string frmAddressLabels::TextOf(std::vector<std::string> lines, const CDataSet& party) const {
  const LabelConfig config(Config, isTextMode_);
  const auto add = [&](const char* name, const char* label, const char* field) {
    const std::string value = config.Prints(name) ? party.Field(field).ToText() : std::string();
    if (!text::Trim(value).empty()) lines.push_back(label + value);
  };
  add("PrintPhone", "Phone: ", "mPhoneOff");
  add("PrintMobile", "Mobile: ", "mCellNo");
  add("PrintAadhar", "Aadhaar No: ", "mAadharNo");
  return LabelText(lines);
}

void frmAddressLabels::ShowCursor() {
  if (Grid.Rows == 0 || Grid.Row < 0) return;
  CurCode = LabelSheet(Grid, ColCount).CodeAt({Grid.Row, Grid.Col});
  MStrip1.Code = CurCode;
}

long frmAddressLabels::GoTo(int row, int col) {
  const long code = LabelSheet(Grid, ColCount).CodeAt({row, col});
  if (code == 0) return 0;
  Grid.Row = row;
  Grid.Col = col;
  ShowCursor();
  return code;
}

long frmAddressLabels::NextCode() {
  const LabelSheet::Place next = LabelSheet(Grid, ColCount).After({Grid.Row, Grid.Col});
  return GoTo(next.Row, next.Col);
}

long frmAddressLabels::PreviousCode() {
  const LabelSheet::Place previous = LabelSheet(Grid, ColCount).Before({Grid.Row, Grid.Col});
  return GoTo(previous.Row, previous.Col);
}

void frmAddressLabels::ShowDetails() {
  if (CurCode == 0) return;
  detailsOpened_ = true;
  MStrip1.ShowDetails();
}

/// The party may have been changed where its details were shown.
void frmAddressLabels::UpdateLabel() {
  if (CurCode == 0) return;
  CDataSet party;
  party.Open("Select * from FAMaster where mcd=" + books::SqlNumber(CurCode), gSession->MainDb());
  if (party.Eof()) return;
  Grid.SetTextMatrix(Grid.Row, Grid.Col, TextOf(gApp->GetPartyLines(CurCode), party));
}

void frmAddressLabels::RemoveLabels() {
  GridModel::Rectangle taken = Grid.Selection();
  if (taken.firstCol >= ColCount) return;
  taken.lastCol = std::min(taken.lastCol, ColCount - 1);
  {
    const RedrawHold hold(Grid);
    LabelSheet(Grid, ColCount).Remove(taken);
  }
  Grid.Row = std::min(taken.firstRow, Grid.Rows - 1);
  Grid.Col = taken.firstCol;
  Grid.RowSel = Grid.Row();
  Grid.ColSel = Grid.Col();
  ShowCursor();
}

void frmAddressLabels::Pressed(const std::string& key) {
  if (key == "Remove") {
    RemoveLabels();
  } else if (key == "Filter") {
    if (SelectParties()) FillLabels();
  } else if (key == "Envelope") {
    OpenEnvelope();
  } else if (key == "Configure") {
    Configure();
  } else if (key == "MailMerge") {
    OpenLetter();
  }
}

void frmAddressLabels::Configure() {
  const auto setup = std::make_shared<frmAddLabelSetup>();
  setup->Config = Config;
  gRuntime->Show(setup, true, Self());
  if (setup->Cancelled) return;
  Config = setup->Config;
  gApp->PutUserSetting(ConfigKey(), LabelConfig::Stored(Config));
  FillLabels();
}

void frmAddressLabels::OpenEnvelope() {
  const auto envelopes = std::make_shared<frmEnvelopePrint>();
  envelopes->CallingForm = Self();
  envelopes->fAdLbl = Self();
  envelopes->AcCode = CurCode;
  gRuntime->Show(envelopes, true, Self());
}

void frmAddressLabels::OpenLetter() {
  const auto letter = std::make_shared<frmMailMerge>();
  letter->CallingForm = Self();
  letter->FilterCnd = sFilterCnd;
  gRuntime->Show(letter, false, Self());
}

void frmAddressLabels::Print(bool print) {
  const LabelConfig config(Config, isTextMode_);
  CReportOptions options;
  for (int col = 0; col < ColCount; ++col) options.SetColumnOption(col + 1, "Wrap", "True");
  options.Settings.LineHeight = config.Height() * 1440;
  options.Settings.LineTopMargin = config.TopMargin();
  options.SetOption("CFLines", "0");
  options.SetOption("BottomMargin", "100");
  gReports->ShowGrid(Grid, &options, "", "", IReports::kHostRuling, print, "",
                     "MainHeadForm1=,MainHeadForm2=,Heading=False,RulingChr1=,HeadingHorizontalLine1=,"
                     "HeadingHorizontalLine2=");
}

}  // namespace quillon
