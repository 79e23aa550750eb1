#include "correspondence/LabelConfig.h"
#include "correspondence/LabelText.h"
#include "tests/correspondence/LabelsFixture.h"

namespace quillon {
namespace {

TEST(LabelRules, ALineThatRepeatsTheOneBeforeItIsLeftOut) {
  EXPECT_EQ(LabelText({" Asha ", "Ring Road", "SURAT", " Surat ", "Asha"}),
            "Asha  \r\n  Ring Road\r\n  SURAT\r\n  Asha");
  EXPECT_EQ(LabelText({}), "");
}

TEST(LabelRules, AStoredSetupIsTakenAsFarAsItGoes) {
  CNameValues values = LabelConfig::Defaults(false);
  values.SetItem("PrintAadhar", "Y");
  LabelConfig::Read("0,200,9,-5,500", values);
  const LabelConfig config(values, false);
  EXPECT_EQ(config.Height(), 1.88);
  EXPECT_EQ(config.Columns(), 6);
  EXPECT_EQ(config.ColumnGap(), 0);
  EXPECT_EQ(config.Copies(), 100);
  EXPECT_EQ(values.Item("PrintPhone"), "N") << "a shorter text leaves the later defaults";
  EXPECT_EQ(LabelConfig::Stored(values), "0,200,9,-5,500,N,");
  LabelConfig::Read("1,1,0,1,x", values);
  EXPECT_EQ(LabelConfig(values, false).Columns(), 1);
  EXPECT_EQ(LabelConfig(values, false).Copies(), 1);
}

class Labels : public PartiesTest {
 protected:
  FormPtr Open(const std::string& clause = "b.mst='Surat'") {
    AnswerParties(clause);
    Do([&] {
      bool cancel = false;
      gApp->MainWindow().MainMenuClick.Raise("AddLabels", cancel);
    });
    form_ = runtime_.ActiveForm();
    return form_;
  }
  MSHFlexGrid& Grid() const { return At<MSHFlexGrid>(form_, "Grid"); }

  /// The first letters of the labels and their codes, a row after the other.
  std::string Sheet() const {
    std::string sheet;
    const int columns = static_cast<int>(form_->Get("ColCount").ToInteger());
    for (int row = 0; row < Grid().Rows(); ++row) {
      for (int col = 0; col < columns; ++col) {
        const std::string code = Grid().TextMatrix(row, columns + col);
        sheet += Grid().TextMatrix(row, col).substr(0, 1) + (code.empty() ? "-" : code.substr(2));
      }
      sheet += "/";
    }
    return sheet;
  }
  long Code() const { return static_cast<long>(form_->Get("CurCode").ToInteger()); }
  void Select(int row, int col, int rowSel, int colSel) {
    Do([&] { Grid().UserSelect(row, col, rowSel, colSel); });
  }
  void Configure(const std::vector<std::pair<int, std::string>>& values) {
    runtime_.NextCommand = [this, values] {
      const FormPtr setup = runtime_.ActiveForm();
      EXPECT_EQ(setup->Name(), "frmAddLabelSetup");
      EXPECT_TRUE(At<CTextPlus>(setup, "txp1", 0).HasFocus());
      for (const auto& [index, text] : values) {
        auto& field = At<CTextPlus>(setup, "txp1", index);
        Do([&] { setup->UserFocus(field); });
        TypeKeys(*setup, text);
      }
      Key(*setup, keys::kF7);
      if (setup->IsLoaded()) Key(*setup, keys::kEscape);
      return true;
    };
    Do([&] { At<CStdButtons>(form_, "QuillonStdButtons1").UserPress(CStdButtons::kConfigure); });
  }
};

TEST_F(Labels, TheSheetShowsTheChosenPartiesInReadingOrder) {
  Open();
  EXPECT_EQ(Sheet(), "A1B2/C3D4/E5F6/G7-/");
  EXPECT_EQ(Grid().Cols(), 7);
  EXPECT_EQ(Grid().TextMatrix(0, 6), "*midchk-08*");
  EXPECT_EQ(Grid().ColWidth(0) - Grid().ColWidth(1), 1500);
  EXPECT_EQ(Grid().Paints(0).at(0).backColor, 16750230);
  EXPECT_TRUE(Grid().Paints(1).empty());
  EXPECT_TRUE(Grid().IsRowVisible(0));
  EXPECT_EQ(At<Label>(form_, "lblGridTitle").Caption(), "Filter - Words");
  EXPECT_EQ(At<Label>(form_, "lblTitle").Caption(), "   Quillon -> Address Labels");
  EXPECT_EQ(Code(), 201);
  Do([&] { Grid().UserMoveTo(3, 1); });
  EXPECT_EQ(Code(), 0);
  Key(*form_, keys::kEnter);
  EXPECT_EQ(runtime_.ActiveForm(), form_) << "there is no label";
  EXPECT_EQ(form_->Call("NextCode", {}).ToInteger(), 0);
  EXPECT_EQ(form_->Call("PreviousCode", {}).ToInteger(), 207);
  EXPECT_EQ(form_->Call("NextCode", {}).ToInteger(), 0);
  EXPECT_EQ(Code(), 207) << "the cursor stays";
  // What is changed where the details are shown is on the label afterwards.
  Db().Execute("update FAMaster set mst='Baroda',mhda1='BARODA' where mcd=207");
  runtime_.NextCommand = [&] {
    Key(*runtime_.ActiveForm(), keys::kEscape);
    return true;
  };
  Key(*form_, keys::kEnter);
  EXPECT_EQ(Grid().TextMatrix(3, 0), "Gita  \r\n  BARODA");
  Key(*form_, keys::kEscape);
  runtime_.Laid.Add({{"to", "parties"}, {"clause", ""}, {"caption", ""}});
  form_ = desk_.Module().GetForm("AddressLabels");
  Do([&] { gApp->ShowForm(form_); });
  EXPECT_EQ(Sheet(), "A1B2/C3D4/E5F6/G7-/") << "who has no address is no label";
  Key(*form_, keys::kEscape);
  runtime_.Laid.Add({{"to", "parties"}, {"cancel", true}});
  form_ = desk_.Module().GetForm("addresslabels");
  Do([&] { gApp->ShowForm(form_); });
  EXPECT_FALSE(form_->IsLoaded());
}

TEST_F(Labels, LabelsAreTakenOutAndTheRestClosesUp) {
  Open();
  Select(0, 1, 1, 1);
  Key(*form_, keys::kF3);
  EXPECT_EQ(Sheet(), "A1C3/E5F6/G7-/");
  EXPECT_EQ(Code(), 203) << "the cursor stands where the selection began";
  EXPECT_EQ(Grid().RowSel(), 0) << "the same key does not take out more";
  EXPECT_EQ(Grid().ColSel(), 1);
  Select(2, 0, 2, 1);
  Key(*form_, keys::kF3);
  EXPECT_EQ(Sheet(), "A1C3/E5F6/");
  Select(0, 0, 1, 1);
  Key(*form_, keys::kF3);
  EXPECT_EQ(Sheet(), "--/");
  EXPECT_EQ(Code(), 0);
  Key(*form_, keys::kF3);
  AnswerParties("b.mhd in ('Asha','Ekta')");
  Key(*form_, keys::kF4);
  EXPECT_EQ(Sheet(), "A1E5/");
}

TEST_F(Labels, TheSetupIsKeptAndPrintedInThreeColumns) {
  Db().Execute("update FAMaster set mPhoneOff='0261-22',mCellNo='98220',mAadharNo='1234' where mcd=201");
  Open("b.mcd<204");
  AnswerMessage();
  Configure({{2, "7"}});
  EXPECT_EQ(Messages(), Texts{"Enter value between 1-6"});
  EXPECT_EQ(gApp->GetUserSetting("AddLabelConfig"), "");
  Configure({{2, "3"}, {0, "1.5"}, {3, "300"}, {4, "2"}, {5, "xy"}, {6, "y"}, {7, "Yn"}});
  EXPECT_EQ(Sheet(), "A1A1B2/B2C3C3/");
  EXPECT_EQ(Grid().TextMatrix(0, 0), "Asha  \r\n  Surat\r\n  Phone: 0261-22\r\n  Mobile: 98220");
  EXPECT_EQ(gApp->GetUserSetting("AddLabelConfig"), "1.5,300,3,300,2,Y,Y");
  Key(*form_, keys::kF9);
  EXPECT_EQ(Events("report").at(0).at("print"), true);
  const PdfReader pdf(folder_.File("report-1.pdf"));
  const double tolerance = 0.2 * PdfReader::kTwipsPerMillimetre;
  const auto asha = pdf.FindAll("Asha");
  const auto bharat = pdf.FindAll("Bharat");
  ASSERT_EQ(asha.size() + bharat.size(), 4U);
  EXPECT_NEAR(bharat[1].top - bharat[0].top, 1.5 * 1440, tolerance) << "a label is as high as it was set";
  EXPECT_NEAR(asha[0].left, bharat[1].left, tolerance);
  EXPECT_EQ(pdf.Pages().size(), 1U);
  Key(*form_, keys::kEscape);
  gApp->PutUserSetting("PrinterMode", "2");
  Open("b.mcd=201");
  EXPECT_EQ(form_->Get("ColCount").ToInteger(), 2) << "a text-mode printer has a setup of its own";
}

TEST_F(Labels, TheSheetWalksItsEnvelopes) {
  gApp->PutUserSetting("AddLabelConfig", "1.88,300,3,100,1,N,N");
  Open("b.mcd<206");
  Do([&] { Grid().UserMoveTo(0, 1); });
  Texts names;
  runtime_.NextCommand = [&] {
    const FormPtr envelopes = runtime_.ActiveForm();
    if (envelopes->Name() != "frmEnvelopePrint") return false;
    EXPECT_TRUE(envelopes->IsModal());
    const auto name = [&] { names.push_back(At<Label>(envelopes, "Lbl", 1).Caption()); };
    name();
    for (const int key : {keys::kF5, keys::kF4, keys::kF4, keys::kF4}) {
      Key(*envelopes, key);
      name();
    }
    runtime_.Laid.Add({{"to", "printdialog"}});
    Key(*envelopes, keys::kF6);
    name();
    runtime_.Laid.Add({{"to", "printdialog"}, {"pagefrom", 2}, {"pageto", 3}, {"copies", 2}});
    Key(*envelopes, keys::kF6);
    Db().Execute("delete from FAMaster where mcd=202");
    runtime_.Laid.Add({{"to", "printdialog"}, {"pagefrom", 2}, {"pageto", 2}});
    Key(*envelopes, keys::kF6);
    Key(*envelopes, keys::kEscape);
    return true;
  };
  Key(*form_, keys::kF5);
  EXPECT_EQ(names, (Texts{"Bharat", "Chetan", "Bharat", "Asha", "Asha", "Asha"}));
  EXPECT_EQ(runtime_.ActiveForm(), form_);
  const PdfReader all(folder_.File("print-1.pdf"));
  ASSERT_EQ(all.Pages().size(), 5U);
  EXPECT_EQ(all.Find("Ekta").page, 5);
  const PdfReader some(folder_.File("print-2.pdf"));
  EXPECT_EQ(some.Pages().size(), 6U) << "leaves that are left out, and the one behind the last, go through";
  EXPECT_EQ(some.Find("Bharat").page * 10 + some.Find("Chetan").page, 24);
  EXPECT_THROW(some.Find("Asha"), std::runtime_error);
  const PdfReader gone(folder_.File("print-3.pdf"));
  EXPECT_EQ(gone.Text(2).find("Bharat"), std::string::npos);
}

}  // namespace
}  // namespace quillon
