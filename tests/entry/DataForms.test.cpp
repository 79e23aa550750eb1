#include "host/values/Text.h"
#include "tests/support/DeskFixture.h"

namespace quillon {
namespace {

/// The definitions of data forms and their options.
class DataForms : public DeskTest {
 protected:
  void SetUp() override {
    OpenNewFirm();
    AddAccount(1, "Cash", 46);
    AddAccount(301, "Freight", 60);
    AddAccount(302, "Packing", 60);
    AddAccount(201, "Asha Traders", 140);
    Db().Execute(
        "insert into FAHeads (Code,SubCode,Head,PressHead) select mcd,0,mhd,upper(mhd) from FAMaster order by mcd");
  }

  /// What a person does in the setup of a form.
  void InSetup(const std::string& type, const std::string& name, const std::function<void()>& act) {
    form_ = gSession->Modules().Item("DutyworksModule")->GetForm("dataformsetup");
    During([&] { gStd->ShowDialog(form_, nullptr); }, {[&] {
             At<ComboBox>(form_, "cmbFormType").UserChoose(type);
             At<ComboBox>(form_, "cmbForm").UserChoose(name);
             Statements();
             act();
             if (form_->IsLoaded()) Key(*form_, keys::kEscape);
           }});
  }
  CEditGrid& Grid() { return At<CEditGrid>(form_, "Grid"); }
  void PickHead(int row, const std::string& typed) {
    EXPECT_TRUE(Grid().UserEnterCell(row, 1));
    Grid().UserType(typed);
    Key(*form_, keys::kEnter);
    Key(*form_, keys::kEnter);
  }
  Texts Columns(const std::string& form) {
    Texts columns;
    CDataSet rows;
    for (rows.Open(
             "select ColName,ColTitle,ColNumeric,ColDrCr,ColPosition,ColWidthChar,ColDecimals,ColTotalRqr,"
             "ColPostingCode,ColAutoIncrement from EntryFormDetails where FormName='" +
                 form + "' order by ColPosition",
             Db());
         !rows.Eof(); rows.MoveNext()) {
      Texts fields;
      for (std::size_t field = 0; field < 10; ++field) fields.push_back(rows.Field(field).ToText());
      columns.push_back(text::Join(fields, "|"));
    }
    return columns;
  }

  FormPtr form_;
};

TEST_F(DataForms, AFormIsDefinedChangedAndDeleted) {
  InSetup("Sale", "SL2", [&] {
    At<TextBox>(form_, "txtFormTitle").UserType("Counter");
    EXPECT_FALSE(Grid().UserEnterCell(1, 0));
    EXPECT_FALSE(Grid().UserEnterCell(2, 1)) << "rows are filled one after the other";
    const auto& list = At<CSelGrid>(form_, "SelGrid1");
    EXPECT_EQ(RowTexts(list.Grid, {0, 1}), (Texts{"Cash|1", "Freight|301", "Packing|302"})) << "no parties";
    PickHead(1, "Frei");
    EXPECT_FALSE(list.Visible);
    TypeKeys(*form_, "Freight out");
    Key(*form_, keys::kEnter);
    EXPECT_EQ(Grid().EditBox.Text(), "10");
    Key(*form_, keys::kEnter);
    PickHead(2, "Pack");
    EditCell(Grid(), 2, 2, "Box");
    EditCell(Grid(), 2, 3, "");
    EXPECT_TRUE(Grid().UserEnterCell(1, 1));
    Grid().UserType("Nobody");
    Key(*form_, keys::kF7);
  });
  EXPECT_EQ(Take("said", "text"), Texts{"No account of the list is \"Nobody\"."});
  EXPECT_FALSE(form_->IsLoaded());
  const Texts sent = Changes();
  EXPECT_EQ(Texts(sent.begin(), sent.begin() + 4),
            (Texts{"Delete from EntryFormDetails Where FormName='SL2'",
                   "Delete from EntryForms Where FormName='SL2'",
                   "Insert Into EntryForms (FormName,FormTitle,BookCode) values ('SL2','Counter','JS')",
                   "Insert into EntryFormDetails (FormName,ColName,ColTitle,ColNumeric,ColDrCr,ColPosition,"
                   "ColWidthChar,ColDecimals,ColTotalRqr) values ('SL2','DATE','Date',0,'',1,10,0,0)"}));
  EXPECT_EQ(Columns("SL2"),
            (Texts{"DATE|Date|0||1|10|0|0||", "PARTY|Party|0||2|25|0|0||", "NAR1|Narration|0||3|20|0|0||",
                   "AMOUNT|Amount|-1|D|4|10|2|-1||", "COL-1|Freight out|-1|C|5|10|2|-1|301|"}))
      << "an account without a width is left out";
  InSetup("Sale", "SL2", [&] {
    EXPECT_EQ(At<TextBox>(form_, "txtFormTitle").Text(), "Counter");
    EXPECT_EQ(RowText(Grid(), 1, {0, 1, 2, 3, 4}), "COL-1|Freight|Freight out|10|301");
    PickHead(2, "Cash");
    EditCell(Grid(), 2, 3, "8");
    Grid().UserMoveTo(2, 1);
    At<CommandButton>(form_, "Command2", 0).UserClick();
    EXPECT_EQ(RowTexts(Grid(), {0, 1})[0] + " " + RowTexts(Grid(), {0, 1})[9], "Col-1|Cash Col-10|");
    EXPECT_EQ(Grid().Row(), 1);
    Key(*form_, keys::kF7);
  });
  EXPECT_EQ(Columns("SL2").back(), "Col-2|Freight out|-1|C|6|10|2|-1|301|");
  Db().Execute("insert into FAData (VoucherID,dVchSubNo,dTrnType) values (1,1,'SL2')");
  AnswerMessage();
  AnswerMessage(2);
  AnswerMessage();
  const auto deleted = [&] { At<CButton>(form_, "Command1", 3).UserClick(); };
  InSetup("Sale", "SL2", deleted);
  Db().Execute("delete from FAData");
  InSetup("Sale", "SL2", deleted);
  EXPECT_EQ(Columns("SL2").size(), 6U);
  InSetup("Sale", "SL2", [&] {
    Grid().UserMoveTo(1, 1);
    Key(*form_, keys::kF3);
    EXPECT_EQ(RowTexts(Grid(), {0, 1})[0] + " " + RowTexts(Grid(), {0, 1})[9], "COL-1|Freight COL-10|");
    deleted();
  });
  EXPECT_TRUE(Columns("SL2").empty());
  EXPECT_EQ(
      Told(),
      (Texts{"E: Can't delete this data form, because transactions relating to this data form found in "
             "file : FAData",
             "W: Are you sure to delete this data form.", "W: Are you sure to delete this data form."}));
}

TEST_F(DataForms, EachKindStoresItsFixedColumns) {
  AnswerMessage();
  InSetup("Cash Payments", "PC1", [&] { Key(*form_, keys::kF7); });
  EXPECT_EQ(Told(), Texts{"W: Cash Column not specified, can't save Form without Cash Column"});
  EXPECT_TRUE(Changes().empty());
  InSetup("Cash Purchase", "CP9", [&] { Key(*form_, keys::kF7); });
  EXPECT_EQ(Columns("CP9"), (Texts{"DATE|Date|0||1|10|0|0||", "NAR1|Narration|0||3|20|0|0||-1",
                                   "AMOUNT|Amount|-1|C|4|10|2|-1|1|"}));
  EXPECT_EQ(Db().Lookup("EntryForms", "BookCode", "FormName='CP9'").ToText(), "C");
  InSetup("Journal (Cr.)", "JC1", [&] {
    PickHead(1, "Cash");
    EditCell(Grid(), 1, 3, "9");
    Key(*form_, keys::kF7);
  });
  EXPECT_EQ(Columns("JC1").back(), "COL-1||-1|D|5|9|2|-1|1|");
  InSetup("Journal (Cr.)", "JC1", [&] {
    At<TextBox>(form_, "txtFormTitle").UserType("Ravi's");
    Key(*form_, keys::kF7);
    EXPECT_TRUE(form_->IsLoaded());
  });
  EXPECT_EQ(Errors().size(), 1U);
  EXPECT_TRUE(Columns("JC1").empty()) << "the old definition is gone by then";
}

TEST_F(DataForms, TheOptionsAreThoseOfTheKindOfForm) {
  const auto config = [&](const std::function<void(const FormPtr&)>& act) {
    const FormPtr form = gSession->Modules().Item("DutyworksModule")->GetForm("dataformconfig");
    for (const char* option : {"BankCol", "ApplyTCS"}) form->Set(option, -1);
    form->Set("AutoIncNar", 1);
    During([&] { gStd->ShowDialog(form, nullptr); }, {[&] { act(form); }});
    return std::to_string(form->Get("DateCol").ToInteger()) + form->Get("AutoIncNar").ToText() +
           form->Get("BankCol").ToText() + form->Get("ApplyTCS").ToText() + form->Get("ApplyTDS").ToText() +
           form->Get("MemoEntry").ToText();
  };
  const auto choose = [](const FormPtr& form) {
    EXPECT_FALSE(form->ControlAt("Combo1", 2).Visible || form->ControlAt("Label1", 2).Visible);
    EXPECT_EQ(At<Label>(form, "Label1", 6).Caption(), "Apply TDS required");
    EXPECT_EQ(At<ComboBox>(form, "Combo1", 1).Text(), "Yes");
    At<ComboBox>(form, "Combo1", 0).UserChoose("With Every Entry");
    At<ComboBox>(form, "Combo1", 1).UserChoose("No");
    At<ComboBox>(form, "Combo1", 6).UserChoose("Yes");
  };
  EXPECT_EQ(config([&](const FormPtr& form) {
              choose(form);
              Key(*form, keys::kF7);
            }),
            "10-1-110");
  EXPECT_EQ(config([&](const FormPtr& form) {
              choose(form);
              Key(*form, keys::kEscape);
            }),
            "01-1-100");
}

}  // namespace
}  // namespace quillon
