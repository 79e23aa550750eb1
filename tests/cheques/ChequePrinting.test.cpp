#include "cheques/ChequeWords.h"
#include "tests/cheques/ChequeFixture.h"

namespace quillon {
namespace {

/// A text measure in which every character is one wide.
double Characters(const std::string& text) { return static_cast<double>(text.size()); }

TEST(ChequeWordsRules, WordsAreSplitAtTheLastBlankInside) {
  const struct {
    const char* words;
    double width;
    const char* first;
    const char* rest;
  } cases[] = {
      {"One Two Three", 13, "One Two Three", ""},
      {"One Two Three", 12, "One Two", "Three"},
      {"One Two Three", 7, "One Two", "Three"},
      {"One Two Three", 6, "One", "Two Three"},
      {"One Two Three", 2, "One Two Three", ""},
      {"Onehundredandtwelve", 5, "Onehundredandtwelve", ""},
      {"", 5, "", ""},
  };
  for (const auto& each : cases) {
    const ChequeWords split = SplitWords(each.words, each.width, Characters);
    EXPECT_EQ(split.First + "|" + split.Rest, std::string(each.first) + "|" + each.rest) << each.width;
  }
  const auto measure = [](const std::string& line, double size) { return Characters(line) * size; };
  EXPECT_EQ(ShrunkSize({"aaaaaaaaaa", "aaaaaaaaaa", "a"}, 10, 95, measure), 9) << "it fits after one point";
  EXPECT_EQ(ShrunkSize({"aaaaaaaaaaaaaaaaaaaa"}, 10, 50, measure), 9) << "a line costs one point at most";
}

class ChequePrinting : public ChequeTest {
 protected:
  void KeepOptions(const std::vector<std::pair<const char*, const char*>>& values) {
    CTextTable options;
    options.SetFields(
        "PrintStamp,FontName,FontSize,FontBold,Landscape,PayeesA/c,BankAcNo,AmtWd,TMargin,LMargin,DateStyle,"
        "DateChrGap,PrintStation,Remarks,NotExceeding,BankDetails");
    for (const auto& [name, value] : values) options.SetField(0, name, value);
    gApp->PutFirmSetting("ChqSetting.101.Settings", options.RowText(0));
  }

  static bool Has(const Texts& lines, const std::string& line) {
    return std::find(lines.begin(), lines.end(), line) != lines.end();
  }
};

TEST_F(ChequePrinting, EachItemLandsAtItsPlacePlusTheMargins) {
  KeepOptions({{"TMargin", "0.5"},
               {"LMargin", "0.25"},
               {"AmtWd", "2.2"},
               {"NotExceeding", "1"},
               {"BankAcNo", "77"},
               {"Remarks", "Bill 12"}});
  Db().Execute("update FAMaster set mhd='Sahyadri' where mcd=101");
  const FormPtr form = ShowCheque(101, "1250");
  const Texts lines = Printed(form);
  EXPECT_EQ(lines.size(), 10U);
  for (const char* line :
       {"1230,1440 Asha Traders", "9150,990 05-Apr-2024", "1230,1860 One Thousand Two Hundred",
        "8820,2280 **1,250.00", "600,840 Payee's A/c Only", "1230,3420 77", "1230,2220 Fifty Only",
        "1230,3900 Bill 12", "1230,4380 NOT EXCEEDING Rs. 1,251/-"}) {
    EXPECT_TRUE(Has(lines, line)) << line;
  }
  EXPECT_TRUE(form->IsLoaded()) << "the bar's Print leaves the form open";
  const PdfReader pdf(folder_.File("print-1.pdf"));
  const double tolerance = 0.2 * PdfReader::kTwipsPerMillimetre;
  EXPECT_NEAR(pdf.Find("Asha").left, 1230, tolerance);
  EXPECT_NEAR(pdf.Find("**1,250.00").left, 8820, tolerance);
  EXPECT_NEAR(pdf.Find("Co.").right, 4980 + 4065 + 360, tolerance) << "aligned to its right edge";
  EXPECT_NEAR(pdf.Find("Bill").top - pdf.Find("77").top, 480, tolerance);

  // A second print begins without the first one's leftover.
  form->Set("Amount", "5");
  EXPECT_FALSE(Has(Printed(form), "1230,2220 Fifty Only"));
}

TEST_F(ChequePrinting, LongWordsShrinkABoxDateIsSpacedAndLandscapeTurnsThePaper) {
  KeepOptions({{"DateStyle", "2"},
               {"DateChrGap", "100"},
               {"Landscape", "1"},
               {"AmtWd", "1.5"},
               {"FontName", "Tahoma"},
               {"FontSize", "10"},
               {"FontBold", "True"}});
  const FormPtr form = ShowCheque(101, "77777777.77");
  log_.TracePrint = true;
  const Texts lines = Printed(form);
  const double digit = static_cast<double>(runtime_.TextWidth(Font{"Tahoma", 10, true, false, false}, "0"));
  std::vector<long> places;
  for (const std::string& line : lines) {
    if (line.size() == line.find(' ') + 2) places.push_back(std::stol(line));
  }
  ASSERT_EQ(places.size(), 8U);
  for (std::size_t i = 0; i < places.size(); ++i) {
    EXPECT_NEAR(static_cast<double>(places[i]), 8790 + static_cast<double>(i) * (digit + 100), 8);
  }
  const PdfReader pdf(folder_.File("print-1.pdf"));
  EXPECT_GT(pdf.Pages()[0].width, pdf.Pages()[0].height);
  const auto height = [&](const char* word) { return pdf.Find(word).bottom - pdf.Find(word).top; };
  EXPECT_LT(height("Crore"), height("Asha")) << "the words are one point smaller";
  Click(At<Label>(form, "lblDate2"));
  EXPECT_EQ(Printed(form).size(), lines.size() - 8);
}

TEST_F(ChequePrinting, ThePartysBankDetailsStandUnderThePayee) {
  KeepOptions({{"BankDetails", "1"}, {"PrintStation", "1"}});
  const FormPtr form = ShowCheque();
  const Texts lines = Printed(form);
  EXPECT_EQ(lines[0], "870,720 Asha Traders - Surat");
  EXPECT_EQ(lines[1].substr(lines[1].find(' ')), " A/c No: 5010,  IFSC: KONK0001");
  EXPECT_EQ(lines[2].substr(lines[2].find(' ')), " Bank: Konkan Bank, Camp, Surat");
  const auto refuses = [&](const std::string& change) {
    Db().Execute(change);
    AnswerMessage();
    Key(*form, keys::kF9);
  };
  refuses("update FAMaster set mBankAcNo='' where mcd=201");
  refuses("update FAMaster set mBankBranch=null where mcd=201");
  refuses("delete from FAMaster where mcd=201");
  EXPECT_EQ(Messages(),
            (Texts{"Party's Bank Account No. / IFSC Code not specified. Can't Print Bank Details.",
                   "Party's Bank Name / Branch not specified. Can't Print Bank Details.",
                   "Party Code missing. Can't Print Bank Details."}));
  EXPECT_TRUE(Events("printdialog").size() == 1) << "nobody is asked for a printer in vain";
  form->Set("PayTo", "SELF");
  form->Call("UpdateLabels", {});
  Statements();
  EXPECT_EQ(Printed(form)[0], "870,720 SELF - Surat");
  for (const std::string& sql : Statements()) EXPECT_EQ(sql.find("MBANKNAME"), std::string::npos);
}

TEST_F(ChequePrinting, TheLargestAmountsArePrintedOrToldNeverPrintedWrong) {
  KeepOptions({{"NotExceeding", "1"}, {"AmtWd", "4"}});
  FormPtr form = ShowCheque(101, "922337203685476.99");
  const Texts lines = Printed(form);
  EXPECT_TRUE(Has(lines, "870,3660 NOT EXCEEDING Rs. 92,23,37,20,36,85,477/-"));
  EXPECT_TRUE(Has(lines, "8460,1560 **92,23,37,20,36,85,476.99"));
  Key(*form, keys::kEscape);
  form = ShowCheque(101, "922337203685477.00");
  EXPECT_EQ(Errors(), Texts{"Overflow"});
  EXPECT_FALSE(form->IsLoaded());
}

TEST_F(ChequePrinting, AJobThatCannotBeDoneIsToldAndLeavesNoPage) {
  const FormPtr form = ShowCheque();
  std::filesystem::create_directory(folder_.File("kept"));
  runtime_.Laid.Add({{"to", "printdialog"}, {"cancel", true}});
  Key(*form, keys::kF9);
  EXPECT_TRUE(Events("printed").empty());
  form->Set("Amount", "922337203685477.58");
  AnswerPrint();
  Key(*form, keys::kF6);
  Click(At<CheckBox>(form, "chkNotExceeding"));
  Key(*form, keys::kF9);
  EXPECT_EQ(Events("error").at(0).at("routine"), "PrintChq");
  EXPECT_TRUE(Events("printed").empty());
  EXPECT_FALSE(form->IsLoaded()) << "the panel's Print closes the form";
  const FormPtr next = ShowCheque();
  Printed(next);
  EXPECT_EQ(Events("printed").at(0).at("pages"), 1) << "the job that broke off left nothing";
}

}  // namespace
}  // namespace quillon
