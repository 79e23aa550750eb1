#include "tests/support/DeskFixture.h"

namespace quillon {
namespace {

/// The list of the firm's standard narrations.
class Narrations : public DeskTest {
 protected:
  void SetUp() override {
    OpenNewFirm();
    gSession->CommonDb().Execute("delete from Narrations");
    for (const char* row : {"'CR','Being cash received'", "'CP','Being cash paid'", "'OLD',null"}) {
      gSession->CommonDb().Execute("insert into Narrations values (" + std::string(row) + ")");
    }
    Open();
  }

  void Open() {
    form_ = gSession->Modules().Item("DutyworksModule")->GetForm("narrations");
    Do([&] { gApp->ShowForm(form_); });
    Statements();
  }
  CEditGrid& Grid() { return At<CEditGrid>(form_, "Grid"); }
  Texts Rows() { return RowTexts(Grid(), {0, 1}); }
  Texts Stored() {
    Texts stored;
    CDataSet rows;
    for (rows.Open("select NarrationCode,Narration from Narrations order by 1", gSession->CommonDb());
         !rows.Eof(); rows.MoveNext()) {
      stored.push_back(rows.Field("NarrationCode").ToText() + "|" + rows.Field("Narration").ToText());
    }
    return stored;
  }

  FormPtr form_;
};

TEST_F(Narrations, TheWholeListIsReplacedByWhatIsComplete) {
  EXPECT_EQ(Rows(), (Texts{"CP|Being cash paid", "CR|Being cash received"}));
  EXPECT_EQ(At<Label>(form_, "lblTitle").Caption(), "Master Updation -> Standard Narrations");
  Key(*form_, keys::kF2);
  EXPECT_TRUE(Grid().EditMode());
  EXPECT_EQ(Grid().EditRow(), 3);
  TypeKeys(*form_, " cp ");
  AnswerMessage();
  Key(*form_, keys::kEnter);
  EXPECT_TRUE(Grid().EditMode()) << "the user stays in the field";
  Grid().UserType(".cp");
  Key(*form_, keys::kEnter);
  EXPECT_EQ(Grid().TextMatrix(3, 0), "cp") << "a dotted code passes the look for a double";
  TypeKeys(*form_, "Ravi's");
  Key(*form_, keys::kEnter);
  EXPECT_EQ(Grid().Rows(), 4) << "Enter past the last row adds nothing";
  EXPECT_FALSE(Grid().EditMode());
  Key(*form_, keys::kF2);
  TypeKeys(*form_, "NONE");
  Key(*form_, keys::kF7);
  EXPECT_EQ(Changes(),
            (Texts{"Delete from Narrations",
                   "Insert into Narrations (NarrationCode,Narration) values ('CP','Being cash paid')",
                   "Insert into Narrations (NarrationCode,Narration) values ('CR','Being cash received')",
                   "Insert into Narrations (NarrationCode,Narration) values ('cp','Ravi''s')"}));
  EXPECT_FALSE(form_->IsLoaded());
  EXPECT_EQ(Stored(), (Texts{"CP|Being cash paid", "CR|Being cash received", "cp|Ravi's"}));
  EXPECT_EQ(Told(), Texts{"W: This code already exists"});
}

TEST_F(Narrations, RowsAreDeletedAndTheOnlyOneIsEmptied) {
  AnswerMessage(2);
  Key(*form_, keys::kF3);
  EXPECT_EQ(Rows().size(), 2U);
  EXPECT_TRUE(Grid().Paints(1).empty() || Grid().Paints(1).back().backColor == Control::kDefaultColor);
  AnswerMessage(1);
  Key(*form_, keys::kF3);
  EXPECT_EQ(Rows(), Texts{"CR|Being cash received"});
  EXPECT_TRUE(Grid().EditMode());
  AnswerMessage(1);
  Key(*form_, keys::kF3);
  EXPECT_EQ(Rows(), Texts{"|"});
  Key(*form_, keys::kF3);
  EXPECT_EQ(Told(), Texts(3, "Q: Are you sure to delete selected row?")) << "an empty row goes unasked";
  Key(*form_, keys::kF8);
  EXPECT_EQ(One("report")["title"], "Standard Narrations");
  Key(*form_, keys::kF7);
  EXPECT_TRUE(Stored().empty());
  Open();
  EXPECT_EQ(Grid().Rows(), 1);
  Key(*form_, keys::kF3);
  Key(*form_, keys::kF2);
  EXPECT_EQ(Grid().EditRow(), 1);
}

TEST_F(Narrations, WhatIsNotStoredIsAskedAboutAndAFailureKeepsTheListAsItWas) {
  EditCell(Grid(), 1, 1, std::string(300, 'x'));
  const Texts before = Stored();
  Key(*form_, keys::kF7);
  EXPECT_EQ(One("error")["routine"], "SaveNarration");
  EXPECT_TRUE(form_->IsLoaded());
  EXPECT_EQ(Stored(), before);
  EXPECT_FALSE(gSession->CommonDb().InTransaction());
  AnswerMessage(2);
  Key(*form_, keys::kEscape);
  EXPECT_TRUE(form_->IsLoaded());
  AnswerMessage(1);
  Key(*form_, keys::kEscape);
  EXPECT_FALSE(form_->IsLoaded());
  EXPECT_EQ(Told(), Texts(2, "Q: Do you want to exit without saving?"));
}

}  // namespace
}  // namespace quillon
