#include <algorithm>
#include <cmath>
#include <fstream>
#include <gtest/gtest.h>
#include <map>
#include <memory>
#include <sstream>

#include "desk/driver/DriverRuntime.h"
#include "desk/firebird/FirebirdLink.h"
#include "desk/print/CsvFile.h"
#include "desk/print/DeskReports.h"
#include "desk/print/PlainReport.h"
#include "desk/print/ReportLayout.h"
#include "desk/print/TextMeasure.h"
#include "host/values/Errors.h"
#include "host/values/Text.h"
#include "tests/print/ReportForm.h"
#include "tests/support/PdfReader.h"
#include "tests/support/TempFolder.h"

namespace quillon {
namespace {

constexpr double kTolerance = 0.2 * PdfReader::kTwipsPerMillimetre;

/// Keeps the last report as a desk would for its preview.
class Preview : public ReportObserver {
 public:
  void OnReport(const ReportShown& report) override {
    file = report.File;
    pages = report.Pages;
    sheets = report.Sheets;
  }

  std::string file;
  int pages = 0;
  ReportPages sheets;
};

class ReportTest : public testing::Test {
 protected:
  void SetUp() override {
    if (!PdfReader::IsInstalled()) GTEST_SKIP() << "pdftotext and pdftoppm are not installed";
    runtime.Show(form);
  }
  void TearDown() override { runtime.Unload(*form); }

  PdfReader Show(GridModel& grid, CReportOptions& given, const std::string& title,
                 const std::string& subtitle = "", int ruling = -1, const std::string& optionText = "") {
    reports.ShowGrid(grid, &given, title, subtitle, ruling, false, "", optionText);
    return PdfReader(preview.file);
  }

  std::string ShowPlain(GridModel& grid, CReportOptions& given, const std::string& optionText = "") {
    mode = 2;
    reports.ShowGrid(grid, &given, "Pass Book", "Period: 01/04/2024 to 30/04/2024", 3, false, "", optionText);
    mode = 0;
    std::ostringstream text;
    text << std::ifstream(preview.file).rdbuf();
    return text.str();
  }

  /// Two labels in a row, in columns of which the first is wider, at a pitch of 1.88 inches.
  void FillLabels(int rows, const std::string& first, const std::string& more) {
    MSHFlexGrid& grid = form->Labels;
    grid.Cols = 7;
    grid.HideAllColumns();
    grid.SetColWidth(0, 9500);
    grid.SetColWidth(1, 8000);
    grid.Rows = rows + 1;
    grid.SetRowHeight(0, 0);
    for (int row = 1; row <= rows; ++row) {
      for (int col = 0; col < 2; ++col)
        grid.SetTextMatrix(row, col,
                           "Party" + std::to_string(row) + "x" + std::to_string(col) + first + "\r\n  Road" +
                               more + "\r\n  Pune");
      grid.SetTextMatrix(row, 6, "*midchk-08*");
    }
    for (const int column : {1, 2}) options.SetColumnOption(column, "Wrap", "True");
    options.Settings.LineHeight = 1.88 * 1440;
    options.Settings.LineTopMargin = 300;
  }
  static constexpr const char* kNoHeads =
      "MainHeadForm1=,MainHeadForm2=,Heading=False,RulingChr1=,HeadingHorizontalLine1=,HeadingHorizontalLine2=";

  TempFolder folder;
  int mode = 0;
  Preview preview;
  std::ostringstream events;
  EventLog log{events};
  DriverRuntime runtime{log, folder.Path().string()};
  DeskReports reports{{folder.Path().string(),
                       [] {
                         return ReportFirm{"Saraswati Traders", {"Plot 14, Bhosari", "Pune - 411026"}};
                       },
                       {},
                       [this] { return mode; },
                       &preview}};
  std::shared_ptr<ReportForm> form = std::make_shared<ReportForm>();
  CReportOptions options;
};

/// No text leaves its page's margins or runs into another one on its line.
void ExpectNoOverlaps(const ReportPages& sheets) {
  for (std::size_t number = 0; number < sheets.Pages.size(); ++number) {
    std::map<long, std::map<double, const ReportText*>> lines;
    for (const ReportText& text : sheets.Pages[number].Texts)
      lines[std::lround(text.Baseline)][text.X] = &text;
    for (const auto& [baseline, texts] : lines) {
      EXPECT_LT(static_cast<double>(baseline), sheets.Height - 100);
      double end = 0;
      for (const auto& [x, text] : texts) {
        EXPECT_GE(x, end) << "page " << number + 1 << ": " << text->Text;
        end = x + TextMeasure::Width(sheets.Fonts[text->Font], text::Trim(text->Text));
      }
      EXPECT_LE(end, sheets.Width - 600);
    }
  }
}

TEST_F(ReportTest, AStatementOfThreePagesAlignsItsFiguresAndWrapsItsNarrations) {
  form->FillStatement(95);
  const FirebirdAddress books{folder.File("books.fdb"), "", ""};
  FirebirdAttachment::Create(books);
  const auto master = FirebirdLink::Open(books, "");
  master->Execute("create table famaster (mhd varchar(40), mst varchar(20), mhda1 varchar(40))");
  master->Execute("insert into famaster values ('State Bank of India','Nigdi','Pradhikaran')");
  options.DataRS.Open("select * from famaster", *master);
  for (const char* name : {"MainHeadForm1=AcMain1", "MainHeadForm2=AcMain2", "SubHeadForm1=AcSubHead1",
                           "SubHeadForm2=AcSubHead2", "BalColID=6"})
    options.AddOptionText(name);
  const PdfReader pdf = Show(form->Statement, options, "   Pass Book", "Period: 01/04/2024 to 30/04/2024", 3);

  ASSERT_EQ(preview.pages, 3);
  ASSERT_EQ(pdf.Pages().size(), 3u);
  EXPECT_LT(pdf.Pages()[0].width, pdf.Pages()[0].height);
  for (int page = 1; page <= 3; ++page) {
    const std::string text = pdf.Text(page);
    EXPECT_NE(text.find("Page " + std::to_string(page) + " of 3"), std::string::npos);
    EXPECT_NE(text.find("Saraswati Traders"), std::string::npos);
    EXPECT_NE(text.find("State Bank of India, Nigdi"), std::string::npos);
    EXPECT_NE(text.find("Dr.(Withdrawls)"), std::string::npos);
    EXPECT_EQ(text.find('*'), std::string::npos) << "a command was printed";
  }
  EXPECT_NE(pdf.Text(1).find("Pune - 411026"), std::string::npos);
  EXPECT_NE(pdf.Text(1).find("Pradhikaran"), std::string::npos);
  EXPECT_EQ(pdf.Text(2).find("Pune - 411026"), std::string::npos);

  const double debits = pdf.Find("9,87,65,432.10", 3).right;
  const double credits = pdf.Find("12,345.67", 3).right;
  const double narrations = pdf.Find("Narration", 1).left;
  for (const char* amount : {"101.50", "102.50", "194.50"})
    EXPECT_NEAR(pdf.Find(amount).right, debits, kTolerance);
  for (const char* amount : {"103.50", "166.50"}) EXPECT_NEAR(pdf.Find(amount).right, credits, kTolerance);
  EXPECT_NEAR(pdf.Find("Dr.(Withdrawls)", 1).right, debits, kTolerance);
  EXPECT_NEAR(pdf.Find("Cr.(Deposits)", 3).right, credits, kTolerance);
  EXPECT_NEAR(pdf.Find("Totals", 3).left, narrations, kTolerance);
  ASSERT_EQ(pdf.FindAll("godown").size(), 19u) << "each long narration is printed to its end";
  for (const PdfReader::Word& word : pdf.FindAll("godown")) {
    EXPECT_GE(word.left, narrations - kTolerance);
    EXPECT_LT(word.right, pdf.Find("12,34,567.00", 1).left);
  }
  ExpectNoOverlaps(preview.sheets);
}

TEST_F(ReportTest, PaintedRowsKeepTheirColourAndHLineRulesBelowItsRow) {
  form->FillStatement(3);
  Show(form->Statement, options, "Statement");
  const ReportPage& page = preview.sheets.Pages.at(0);
  ASSERT_EQ(page.Fills.size(), 1u);
  EXPECT_EQ(page.Fills[0].Color, 0xC0FFFF);
  const auto baseline = [&](const std::string& text) {
    const auto found = std::find_if(page.Texts.begin(), page.Texts.end(),
                                    [&](const ReportText& each) { return each.Text == text; });
    return found == page.Texts.end() ? -1.0 : found->Baseline;
  };
  const double painted = baseline("Amounts Debited by us only:-");
  EXPECT_LT(page.Fills[0].Y, painted);
  EXPECT_GT(page.Fills[0].Y + page.Fills[0].Height, painted);
  const auto rules = [&](double from, double to) {
    return std::count_if(page.Lines.begin(), page.Lines.end(),
                         [=](const ReportLine& line) { return line.Y1 > from && line.Y1 < to; });
  };
  EXPECT_EQ(rules(baseline("103.50") - 300, baseline("103.50")), 0);
  form->Statement.SetTextMatrix(3, 7, "*hline1*");
  Show(form->Statement, options, "Statement");
  EXPECT_EQ(rules(baseline("103.50") - 300, baseline("103.50")), 1) << "row 3 is ruled off from row 4";
}

TEST_F(ReportTest, HiddenColumnsAndRowsAreLeftOutAndAPageBreakBreaks) {
  form->FillStatement(6);
  CGridPlus& grid = form->Statement;
  grid.SetColWidth(1, 0);
  grid.SetRowHeight(3, 0);
  grid.SetTextMatrix(4, 7, "*pagebreak**hline1*");
  grid.SetTextMatrix(7, 7, "*pagebreak*");  // nothing follows, so no empty page
  grid.SetTextMatrix(5, 6, "voucher 4711");
  const PdfReader pdf = Show(grid, options, "Statement");
  ASSERT_EQ(preview.pages, 2);
  for (const char* hidden : {"Book", "B1", "102.50", "4711"})
    EXPECT_TRUE(pdf.FindAll(hidden).empty()) << hidden;
  EXPECT_EQ(pdf.Find("103.50").page, 1);
  EXPECT_EQ(pdf.Find("104.50").page, 2);
  EXPECT_EQ(pdf.Find("Totals").page, 2);
}

TEST_F(ReportTest, TotalsThatTheScreenPutIntoTheLastRowAreNotSaidTwice) {
  form->FillStatement(2);
  for (int col = 0; col < 8; ++col) {
    form->Statement.Rows = 5;
    form->Statement.SetTextMatrix(4, col, form->Statement.Footer.TextMatrix(0, col));
  }
  EXPECT_EQ(Show(form->Statement, options, "Statement").FindAll("9,87,65,432.10").size(), 1u);
}

TEST_F(ReportTest, ManyAmountsTurnThePaperAndAreNeverCut) {
  CGridPlus& grid = form->Statement;
  grid.Cols = 12;
  grid.Rows = 4;
  for (int col = 0; col < 12; ++col) {
    ReportForm::SetColumn(grid, col, "Month " + std::to_string(col + 1), 960, kAlignRight);
    for (int row = 1; row < 4; ++row)
      grid.SetTextMatrix(row, col, "12,34,56,7" + std::to_string(10 + col) + ".00");
  }
  const PdfReader wide = Show(grid, options, "Balances");
  EXPECT_GT(wide.Pages()[0].width, wide.Pages()[0].height);
  EXPECT_EQ(wide.FindAll("12,34,56,721.00").size(), 3u);
  ExpectNoOverlaps(preview.sheets);
  for (const Font& font : preview.sheets.Fonts) EXPECT_GE(font.Size, 7);

  grid.Cols = 26;
  for (int col = 12; col < 26; ++col) ReportForm::SetColumn(grid, col, "M", 960, kAlignRight);
  for (int col = 12; col < 26; ++col) grid.SetTextMatrix(1, col, "12,34,567.00");
  Show(grid, options, "Balances");
  ExpectNoOverlaps(preview.sheets);

  form->FillStatement(5);
  Show(grid, options, "Pass Book");
  EXPECT_LT(preview.sheets.Width, preview.sheets.Height) << "a statement stands upright";
}

TEST_F(ReportTest, BalancesAreCarriedForwardWhenAskedFor) {
  form->FillStatement(60);
  options.SetOption("BalColID", "6");
  EXPECT_EQ(Show(form->Statement, options, "Pass Book").Text().find("forward"), std::string::npos);
  const PdfReader pdf = Show(form->Statement, options, "Pass Book", "", -1, "CFLines=1");
  ASSERT_EQ(preview.pages, 2);
  const PdfReader::Word& carried = pdf.Find("Carried");
  const PdfReader::Word& brought = pdf.Find("Brought");
  EXPECT_EQ(carried.page, 1);
  EXPECT_EQ(brought.page, 2);
  const auto balanceAt = [&](const PdfReader::Word& line) {
    std::string text;
    for (const PdfReader::Word& word : pdf.Words()) {
      if (word.page == line.page && std::abs(word.top - line.top) < 20 && word.left > line.right)
        text += word.text + " ";
    }
    return text;
  };
  EXPECT_EQ(balanceAt(carried), balanceAt(brought));
  EXPECT_NE(balanceAt(carried).find(",567.00"), std::string::npos);
  EXPECT_EQ(Show(form->Statement, options, "Pass Book", "", -1, "CFLines=0").Text().find("forward"),
            std::string::npos);
}

TEST_F(ReportTest, ALongRowIsDividedUnlessItIsToStayWhole) {
  form->FillStatement(30);
  std::string narration = "begin";
  for (int i = 0; i < 220; ++i) narration += " being word " + std::to_string(i);
  form->Statement.SetTextMatrix(31, 2, narration + " end");
  PdfReader pdf = Show(form->Statement, options, "Pass Book");
  EXPECT_EQ(pdf.Find("begin").page, 1);
  EXPECT_EQ(pdf.Find("end").page, 2);
  ExpectNoOverlaps(preview.sheets);
  form->Statement.SetTextMatrix(31, 7, "*midchk-08*");
  pdf = Show(form->Statement, options, "Pass Book");
  EXPECT_EQ(pdf.Find("begin").page, 2);
  EXPECT_EQ(pdf.Find("end").page, 2);
  for (int i = 0; i < 2000; ++i) narration += " more";
  form->Statement.SetTextMatrix(31, 2, narration + " end");
  pdf = Show(form->Statement, options, "Pass Book");
  EXPECT_GT(pdf.Find("end").page, 2) << "longer than a page it is divided all the same";
}

class LetterTest : public ReportTest {
 protected:
  void Fill() {
    MSHFlexGrid& grid = form->Letter;
    grid.Cols = 2;
    grid.SetColWidth(0, 9000);
    grid.SetColWidth(1, 0);
    ReportForm::SetRow(grid, 0, {"Particulars"});
    int row = 1;
    for (const std::string party : {"Harbour", "Konkan"}) {
      ReportForm::SetRow(grid, row++, {party + " Mills", "*headingfonts*"});
      ReportForm::SetRow(grid, row++, {"Kandla"});
      grid.SetCellFontUnderline(row - 1, 0, true);
      ReportForm::SetRow(grid, row++, {""});
      ReportForm::SetRow(grid, row++, {kParagraph});
      ReportForm::SetRow(grid, row++, {"Partner", "*pagebreak**headingfonts*"});
    }
    options.Settings.ChkUnderline = true;
    options.SetOption("Heading", false);
    options.SetOption("RulingChr1", "");
    options.SetVar("RefNo", "17/A");
    options.SetVar("Dated", "30/04/2024");
    options.SetColumnOption(1, "ColAlign", "J");
  }

  PdfReader ShowLetter(const char* form1) {
    options.SetOption("MainHeadForm1", form1);
    options.SetOption("MainHeadForm2", form1);
    return Show(form->Letter, options, "", "", -1, "BottomLine=False");
  }

  static constexpr const char* kParagraph =
      "   We request you to confirm the balance of your account in our books as on 31st March, "
      "which stands at Rs. 12,34,567.00 to our debit. "
      "Kindly return the enclosed copy of this letter duly signed within fifteen days of receiving it; "
      "failing this we shall take the balance as confirmed by you.";
};

TEST_F(LetterTest, EachPartyGetsAPageWithJustifiedLinesUnderTheLetterHead) {
  Fill();
  const PdfReader pdf = ShowLetter("LetterHead");
  ASSERT_EQ(preview.pages, 2);
  for (int page = 1; page <= 2; ++page) {
    EXPECT_NE(pdf.Text(page).find("Saraswati Traders"), std::string::npos);
    EXPECT_NE(pdf.Text(page).find("Ref. No.: 17/A"), std::string::npos);
    EXPECT_NE(pdf.Text(page).find("Dated: 30/04/2024"), std::string::npos);
    EXPECT_EQ(pdf.Text(page).find("Page"), std::string::npos);
  }
  EXPECT_EQ(pdf.Find("Harbour").page, 1);
  EXPECT_EQ(pdf.Find("Konkan").page, 2);

  std::map<long, double> ends;  // of the lines of the paragraph, by their tops
  double margin = 0;
  for (const PdfReader::Word& word : pdf.Words()) {
    margin = std::max(margin, word.right);
    if (word.page == 1 && word.top > pdf.Find("Kandla").bottom && word.bottom < pdf.Find("Partner").top)
      ends[std::lround(word.top)] = std::max(ends[std::lround(word.top)], word.right);
  }
  ASSERT_GE(ends.size(), 4u);
  for (auto line = ends.begin(); line != std::prev(ends.end()); ++line)
    EXPECT_NEAR(line->second, margin, kTolerance);
  EXPECT_LT(ends.rbegin()->second, margin - 500) << "the last line of a paragraph is not stretched";
  EXPECT_GT(pdf.Find("We").left, pdf.Find("Kandla").left + 50) << "the indent stays";

  const auto fontOf = [&](const std::string& text) -> const Font& {
    for (const ReportText& each : preview.sheets.Pages[0].Texts) {
      if (each.Text == text) return preview.sheets.Fonts[each.Font];
    }
    throw std::runtime_error(text);
  };
  EXPECT_TRUE(fontOf("Harbour Mills").Bold);
  EXPECT_TRUE(fontOf("Kandla").Underline);
  EXPECT_FALSE(fontOf("Kandla").Bold);
  EXPECT_TRUE(fontOf("Partner").Bold);
  EXPECT_TRUE(preview.sheets.Pages[1].Lines.size() == 1) << "only the rule of the letter head";
}

TEST_F(LetterTest, PaperWithAHeadOfItsOwnIsLeftFreeAtTheTop) {
  Fill();
  const PdfReader pdf = ShowLetter("LetterHeadRefDate");
  EXPECT_EQ(pdf.Text().find("Saraswati"), std::string::npos);
  EXPECT_GT(pdf.Find("17/A").top, 1440);
  EXPECT_GT(pdf.Find("Harbour").top, pdf.Find("17/A").bottom);
  EXPECT_TRUE(preview.sheets.Pages[0].Lines.empty());
}

TEST_F(ReportTest, LabelsKeepTheirPitchAndTakeNoColour) {
  FillLabels(8, "", "");
  MSHFlexGrid& grid = form->Labels;
  for (int row = 1; row < 9; ++row) grid.PaintRow(row, {0, 6, 16750230, Control::kDefaultColor});
  options.SetOption("CFLines", "0");
  options.SetOption("BottomMargin", "100");
  const PdfReader pdf = Show(grid, options, "", "", -1, kNoHeads);
  ASSERT_EQ(preview.pages, 2);
  for (int row = 2; row <= 6; ++row) {
    EXPECT_NEAR(pdf.Find("Party" + std::to_string(row) + "x0").top -
                    pdf.Find("Party" + std::to_string(row - 1) + "x0").top,
                1.88 * 1440, kTolerance);
  }
  EXPECT_EQ(pdf.Find("Party7x0").page, 2);
  EXPECT_NEAR(pdf.Find("Party7x0").top, pdf.Find("Party1x0").top, kTolerance);
  EXPECT_NEAR(pdf.Find("Party1x0").top, pdf.Find("Party1x1").top, kTolerance);
  EXPECT_TRUE(preview.sheets.Pages[0].Fills.empty());
  EXPECT_TRUE(preview.sheets.Pages[0].Lines.empty());
}

TEST_F(ReportTest, LabelsOfATextPrinterKeepTheirPitchAndTheGapBetweenThem) {
  FillLabels(5, " of a name that fills its label", " and lane of the very same length");
  const std::vector<std::string> lines = text::Split(ShowPlain(form->Labels, options, kNoHeads), "\n");
  std::size_t gap = 1000;
  std::vector<int> starts;
  for (int i = 0; i < static_cast<int>(lines.size()); ++i) {
    const std::string& line = lines[static_cast<std::size_t>(i)];
    EXPECT_EQ(line.find('*'), std::string::npos) << line;
    if (line.starts_with("Party")) starts.push_back(i);
    const std::size_t second = line.find("Party", 1);
    if (second == std::string::npos) continue;
    gap = std::min(gap, second - line.find_last_not_of(' ', second - 1) - 1);
  }
  EXPECT_EQ(starts, (std::vector<int>{1, 12, 23, 34, 46})) << "the tops of the labels, 11.28 lines apart";
  EXPECT_GE(gap, 6U) << "the wider column keeps it";
}

TEST_F(LetterTest, ATextPrinterLeavesRoomForTheHeadOfTheSheetAndEndsEachLetterOnItsPage) {
  Fill();
  options.SetOption("MainHeadForm1", "LetterHeadRefDate");
  options.SetOption("MainHeadForm2", "LetterHeadRefDate");
  const std::string text = ShowPlain(form->Letter, options, "BottomLine=False");
  EXPECT_EQ(preview.pages, 2);
  const std::vector<std::string> pages = text::Split(text, "\f");
  ASSERT_EQ(pages.size(), 2u);
  for (const std::string& page : pages) {
    EXPECT_EQ(page.substr(0, 12), std::string(12, '\n'));
    EXPECT_EQ(page.find("Ref. No.: 17/A"), 12u);
    EXPECT_EQ(page.find('*'), std::string::npos) << page;
  }
  const std::vector<std::string> lines = text::Split(pages[1], "\n");
  const auto line = std::find(lines.begin(), lines.end(), "Konkan Mills");
  ASSERT_LT(line + 5, lines.end());
  EXPECT_EQ(line[3].size(), line[4].size()) << "justified";
}

TEST_F(ReportTest, ATextPrinterGetsPlainLinesWithColumnsOfCharacters) {
  form->FillStatement(5);
  form->Statement.SetTextMatrix(1, 2, "\u0939\u093F\u0902\u0926\u0940");
  form->Statement.SetTextMatrix(3, 7, "*hline1*");
  const std::string text = ShowPlain(form->Statement, options, "RulingChr1==");
  EXPECT_EQ(preview.file, folder.File("report-1.txt"));
  EXPECT_EQ(preview.pages, 1);
  EXPECT_EQ(text::ReplaceAll(text, Date::Today().Text(), "dd-MMM-yyyy"), &R"(
                                       Saraswati Traders
                                        Plot 14, Bhosari
                                         Pune - 411026
                                           Pass Book
                                Period: 01/04/2024 to 30/04/2024
                                                                             Printed dd-MMM-yyyy
================================================================================================
Date        Book Narration                      Dr.(Withdrawls) Cr.(Deposits)            Balance
================================================================================================
01-Apr-2024      हिंदी                                                                    N I L
02-Apr-2024  B1  By cheque 400001 Harbour Mills          101.50                  1001,567.00 Dr.
                 Limited
03-Apr-2024  B1  By cheque 400002 Harbour Mills          102.50                  1002,567.00 Dr.
                 Limited
================================================================================================
04-Apr-2024  B1  By cheque 400003 Harbour Mills                        103.50    1003,567.00 Dr.
                 Limited
05-Apr-2024  B1  By cheque 400004 Harbour Mills          104.50                  1004,567.00 Dr.
                 Limited
06-Apr-2024  B1  By cheque 400005 Harbour Mills          105.50                  1005,567.00 Dr.
                 Limited, being payment against
                 their bills 1123/24 to 1187/24
                 of the month for yarn and
                 packing material received at
                 the Kandla godown
================================================================================================
                 Totals                          9,87,65,432.10     12,345.67 9,87,53,086.43 Cr.
================================================================================================
)"[1]);
}

TEST_F(ReportTest, ARowOfTheWholeReportGoesIntoASpreadsheetFileExactly) {
  form->FillStatement(2);
  form->Statement.SetTextMatrix(2, 2, "a \"quoted\", word");
  form->Statement.SetTextMatrix(3, 2, "two\r\nlines");
  form->Statement.SetColWidth(5, 0);
  EXPECT_EQ(CsvFile::TextOf(form->Statement),
            "Date,Book,Narration,Dr.(Withdrawls),Cr.(Deposits)\r\n"
            "01-Apr-2024,,Amounts Debited by us only:-,,\r\n"
            "02-Apr-2024,B1,\"a \"\"quoted\"\", word\",101.50,\r\n"
            "03-Apr-2024,B1,\"two\r\nlines\",102.50,\r\n"
            ",,Totals,\"9,87,65,432.10\",\"12,345.67\"\r\n");
}

TEST_F(ReportTest, AFolderThatTakesNoFilesIsToldAndAnEmptyGridStillPrints) {
  DeskReports nowhere({"/proc/none", {}, {}, {}, &preview});
  EXPECT_THROW(nowhere.ShowGrid(form->Statement, nullptr, "x", "", -1, false), HostError);
  EXPECT_EQ(preview.pages, 0);
  form->Statement.HideAllColumns();
  Show(form->Statement, options, "Nothing to show");
  EXPECT_EQ(preview.pages, 1);
}

}  // namespace
}  // namespace quillon
