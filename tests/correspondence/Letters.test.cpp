#include "tests/correspondence/LabelsFixture.h"

namespace quillon {
namespace {

class Letters : public PartiesTest {
 protected:
  FormPtr Open(const std::string& condition = "") {
    form_ = desk_.Module().GetForm("MailMerge");
    form_->Set("FilterCnd", condition);
    Do([&] { gApp->ShowForm(form_); });
    return form_;
  }
  bool IsOn(const char* button) const { return At<CButtonBar>(form_, "BtnBar1").Buttons(button).Enabled(); }
  std::string Letter() const { return At<TextBox>(form_, "txtLetter").Text(); }
  CTextPlus& Name() const { return At<CTextPlus>(form_, "txpReportName"); }
  void TypeLetter(const std::string& text) {
    auto& letter = At<TextBox>(form_, "txtLetter");
    Do([&] {
      form_->UserFocus(letter);
      letter.SelectAll();
      form_->UserPaste(text);
    });
  }
  void TypeName(const std::string& name, bool enter = true) {
    Do([&] { form_->UserFocus(Name()); });
    TypeKeys(*form_, name);
    if (enter) Key(*form_, keys::kEnter);
  }
  void Save(const std::string& name, int overwrite = 0) {
    TypeName(name);
    if (overwrite != 0) AnswerMessage(overwrite);
    if (overwrite != 2) AnswerMessage();
    Key(*form_, keys::kF7);
  }
  std::string Stored(const std::string& id) {
    return gSession->CommonDb().Lookup("MLetters", "LetterName||':'||LetterText", "ID=" + id).ToText();
  }
};

TEST_F(Letters, ALetterIsWrittenKeptFoundAndDeleted) {
  Open();
  EXPECT_EQ(Letter(),
            "Dear Sir,\r\n\r\n<B>Subject: \r\n\r\n   Type your letter here\r\n\r\nSincerely yours,\r\n\r\n"
            "<B>For Sharda Trading Co.\r\n\r\n\r\n<B>");
  EXPECT_FALSE(IsOn("Delete"));
  AnswerMessage();
  Key(*form_, keys::kF7);
  EXPECT_EQ(Messages(), Texts{"Enter Letter Name"});
  EXPECT_TRUE(Name().HasFocus());
  TypeLetter("Dear all,\n<B>Rates\n\nrise");
  EXPECT_EQ(Letter(), "Dear all,\r\n<B>Rates\r\n\r\nrise") << "a pasted letter keeps its lines";
  Save("Rates");
  EXPECT_EQ(Stored("1"), "Rates:Dear all,\r\n<B>Rates\r\n\r\nrise");
  Key(*form_, keys::kF2);
  EXPECT_EQ(form_->Get("LetterID").ToInteger(), 0);
  EXPECT_TRUE(At<CTextPlus>(form_, "txpRefNo").HasFocus());
  TypeName("Ra");
  EXPECT_EQ(Letter().substr(0, 9), "Dear all,");
  TypeLetter("Other");
  AnswerMessage();
  Key(*form_, keys::kF7);
  EXPECT_EQ(Stored("1"), "Rates:Other") << "Enter takes the letter that begins so";
  EXPECT_EQ(Messages().back(), "Letter has been saved.");
  EXPECT_EQ(gSession->CommonDb().Lookup("MLetters", "count(*)", "").ToInteger(), 1);

  Key(*form_, keys::kF2);
  Save("Holiday");
  EXPECT_EQ(Stored("2").substr(0, 18), "Holiday:Dear Sir,\r");
  Key(*form_, keys::kF2);
  TypeName("Rates", false);
  Key(*form_, keys::kTab);
  AnswerMessage(2);
  Key(*form_, keys::kF7);
  EXPECT_EQ(Messages().back(), "This letter already exists do you want to Overwrite?");
  EXPECT_EQ(Stored("1"), "Rates:Other");
  Do([&] { form_->UserFocus(Name()); });
  Key(*form_, keys::kEscape);
  EXPECT_TRUE(form_->IsLoaded()) << "Esc leaves the list first";
  EXPECT_FALSE(At<CSelGrid>(form_, "SelGrid1").Visible);
  Do([&] { form_->UserFocus(At<CTextPlus>(form_, "txpRefNo")); });
  Do([&] { form_->UserFocus(Name()); });
  Do([&] { At<CSelGrid>(form_, "SelGrid1").UserPick("Holiday"); });
  EXPECT_EQ(Letter().substr(0, 9), "Dear Sir,");
  AnswerMessage(1);
  Key(*form_, keys::kF3);
  EXPECT_EQ(Stored("2"), "");
  EXPECT_FALSE(IsOn("Delete"));

  Do([&] { form_->UserFocus(Name()); });
  Do([&] { Name().UserType("It's"); });
  Key(*form_, keys::kTab);
  Key(*form_, keys::kF7);
  EXPECT_EQ(Errors().size(), 1U) << "a name with an apostrophe breaks the statement";
  EXPECT_TRUE(form_->IsLoaded());
}

TEST_F(Letters, ALetterGoesToEachOfTheChosenParties) {
  Open("b.mcd in (202,201,203)");
  EXPECT_TRUE(IsOn("Next"));
  const auto code = [&] { return form_->Get("PartyCode").ToInteger(); };
  const std::int64_t first = code();
  AnswerParties("b.mcd<204");
  Key(*form_, keys::kF4);
  EXPECT_EQ(code(), 201);
  Key(*form_, keys::kF5);
  EXPECT_EQ(code(), 201) << first;
  for (int i = 0; i < 4; ++i) Key(*form_, keys::kF6);
  EXPECT_EQ(code(), 203);
  Key(*form_, keys::kF5);
  EXPECT_EQ(At<CMStrip>(form_, "MStrip1").Code(), 202);
  TypeLetter("<B>Rates\n<B>\nplain <B> text");
  Do([&] { At<CTextPlus>(form_, "txpRefNo").UserType("R/7"); });
  Do([&] { At<CTextPlus>(form_, "txpDate").UserType("5/4"); });
  Key(*form_, keys::kF9);
  const Json report = Events("report").at(0);
  EXPECT_EQ(report.at("pages"), 3);
  Texts rows;
  for (const Json& row : report.at("grid")) {
    rows.push_back(row.at(0).get<std::string>() + "|" + row.at(1).get<std::string>());
  }
  const Texts one{"Asha|*headingfonts*",  "Surat|",          "|",
                  "Rates|*headingfonts*", "|*headingfonts*", "plain <B> text|*pagebreak*"};
  ASSERT_EQ(rows.size(), 1 + 3 * one.size());
  EXPECT_EQ(Texts(rows.begin() + 1, rows.begin() + 7), one);
  const PdfReader pdf(folder_.File("report-1.pdf"));
  EXPECT_EQ(pdf.Find("Chetan").page, 3);
  EXPECT_NE(pdf.Text(2).find("R/7"), std::string::npos);
  EXPECT_NE(pdf.Text(2).find("05/04/2024"), std::string::npos);
  Key(*form_, keys::kF6);
  EXPECT_EQ(code(), 203) << "printing left the set where it stood";

  AnswerParties("b.mcd=204");
  Key(*form_, keys::kF4);
  EXPECT_FALSE(IsOn("Next"));
  AnswerParties("b.mcd=999");
  Key(*form_, keys::kF4);
  EXPECT_EQ(code() + At<CMStrip>(form_, "MStrip1").Code(), 0);
  AnswerMessage(2);
  Key(*form_, keys::kF8);
  AnswerMessage(1);
  Click(At<CheckBox>(form_, "chkLHead"));
  Key(*form_, keys::kF8);
  EXPECT_EQ(Messages(), Texts(2, "Print without party address?"));
  const std::vector<Json> alone = Events("report");
  ASSERT_EQ(alone.size(), 1U);
  EXPECT_EQ(alone[0].at("grid").size(), 4U);
}

}  // namespace
}  // namespace quillon
