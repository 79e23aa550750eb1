#include <filesystem>

#include "tests/cheques/ChequeFixture.h"

namespace quillon {
namespace {

class ChequeDefinitionFile : public ChequeTest {
 protected:
  void Save(const FormPtr& form, const std::string& name, bool copies = false) {
    AnswerInput(name);
    AnswerMessage();
    AnswerMessage(copies ? 1 : 2);
    Click(At<CButton>(form, "btnSettings", 3));
  }
  void Import(const FormPtr& form, const std::string& file) {
    AnswerFile(file);
    Click(At<CButton>(form, "btnSettings", 4));
  }
  std::string InFirm(const std::string& name) {
    return desk_.Session().Books().Folder().string() + "/Def/ChqDef/" + name;
  }
};

TEST_F(ChequeDefinitionFile, AFileTakesTheLayoutToAnotherBank) {
  Db().Execute(
      "update FAMaster set mhd='Bank of: the / Western Ghats and Konkan Coast Co-operative Ltd.' "
      "where mcd=101");
  const FormPtr form = ShowLayout();
  Click(Object(form, 4));
  Key(*form, keys::kRight);
  Type(form, "txpLeftMargin", "0.3");
  Do([&] { At<ComboBox>(form, "cmbDateStyle").UserChoose(2); });
  Click(At<CheckBox>(form, "chkBankDetails"));
  AnswerFile(folder_.File("copy.xml"));
  Save(form, "mine", true);
  EXPECT_EQ(Events("input").back().at("text").get<std::string>().size(), 40U);
  EXPECT_EQ(Messages(), (Texts{"Def. File created: " + InFirm("mine.xml"),
                               "Do you want to copy this file to another location ?"}));
  const std::string text = FileText(InFirm("mine.xml"));
  EXPECT_EQ(FileText(folder_.File("copy.xml")), text);
  const std::string head =
      "<?xml version=\"1.0\" ?>\r\n<DataRoot>\r\n<ChqSettings>\r\n<Data>\r\n<PrintStamp>1</PrintStamp>\r\n"
      "<PrintStation>0</PrintStation>\r\n<Landscape>0</Landscape>\r\n<FontName>Tahoma</FontName>\r\n"
      "<FontSize>9.75</FontSize>\r\n<FontBold>True</FontBold>\r\n<PayeesAc>1</PayeesAc>\r\n"
      "<BankAcNo></BankAcNo>\r\n<Remarks></Remarks>\r\n<AmtWd>0</AmtWd>\r\n<TMargin>0</TMargin>\r\n"
      "<LMargin>0.3</LMargin>\r\n<DateStyle>Box Style</DateStyle>\r\n<DateChrGap>225</DateChrGap>\r\n"
      "<NotExceeding>0</NotExceeding>\r\n</Data>\r\n</ChqSettings>\r\n<ChqObjects>\r\n<Data>\r\n"
      "<ObjID>PayTo</ObjID>\r\n<PosX>870</PosX>\r\n<PosY>720</PosY>\r\n</Data>\r\n";
  EXPECT_EQ(text.substr(0, head.size()), head);

  const FormPtr other = ShowLayout(102);
  Click(At<CheckBox>(other, "chkBankDetails"));
  Import(other, folder_.File("copy.xml"));
  EXPECT_EQ(Events("file").back().at("path"), InFirm("").substr(0, InFirm("").size() - 1))
      << "where files are saved they are looked for";
  EXPECT_EQ(Object(other, 4).Left(), 5100);
  EXPECT_EQ(At<CTextPlus>(other, "txpLeftMargin").Text(), "0.3");
  EXPECT_EQ(At<CheckBox>(other, "Check3").CheckValue(), 0) << "the names of this mark differ";
  EXPECT_EQ(At<CheckBox>(other, "chkBankDetails").CheckValue(), 0);
  EXPECT_EQ(Printed(other)[1], "9222,270 05-Apr-2024") << "the style's words count as the first one";
  EXPECT_EQ(gApp->GetFirmSetting("ChqSetting.102.Settings"), "") << "F7 keeps it, the import does not";
}

TEST_F(ChequeDefinitionFile, WhatIsNoDefinitionChangesNothing) {
  const FormPtr form = ShowLayout();
  AnswerInput("A <B> & C");
  Click(At<CommandButton>(form, "btnRemarks"));
  Save(form, "sharp");
  Save(form, "sharp");
  const std::string whole = FileText(InFirm("sharp.xml"));
  std::ofstream(folder_.File("cut.xml"), std::ios::binary) << whole.substr(0, whole.size() / 2);
  std::ofstream(folder_.File("other.xml")) << "<DataRoot><Else><Data/></Else></DataRoot>";
  std::ofstream(folder_.File("settings.xml")) << "<DataRoot><ChqSettings><Data><LMargin>1</LMargin></Data>"
                                                 "</ChqSettings></DataRoot>";
  Messages();
  Texts told;
  for (const std::string& file : {InFirm("sharp.xml"), folder_.File("cut.xml"), folder_.File("other.xml"),
                                  folder_.File("missing.xml")}) {
    AnswerMessage();
    Import(form, file);
    told.push_back("Invalid Cheque Definition file: " + file);
  }
  EXPECT_EQ(Messages(), told);
  EXPECT_EQ(At<CheckBox>(form, "Check3").CheckValue(), 1);
  Import(form, folder_.File("settings.xml"));
  EXPECT_EQ(At<CTextPlus>(form, "txpLeftMargin").Text(), "1");
  EXPECT_EQ(Object(form, 0).Left(), 870) << "without objects the places stay";
  runtime_.Laid.Add({{"to", "file"}, {"cancel", true}});
  Click(At<CButton>(form, "btnSettings", 4));

  std::filesystem::remove_all(desk_.Session().Books().Folder() / "Def");
  std::ofstream(desk_.Session().Books().Folder() / "Def") << "in the way";
  AnswerInput("mine");
  Click(At<CButton>(form, "btnSettings", 3));
  EXPECT_EQ(Errors().size(), 1U) << "a folder that cannot be made is told";
}

TEST_F(ChequeDefinitionFile, ALayoutIsCopiedToAnotherAccountWithoutTheAccountsNumber) {
  const FormPtr form = ShowLayout();
  AnswerInput("50100");
  Click(At<CommandButton>(form, "btnAcNo"));
  const auto exportTo = [&](const std::string& typed) {
    runtime_.NextCommand = [this, typed] {
      const FormPtr picker = runtime_.ActiveForm();
      EXPECT_EQ(At<Label>(picker, "lblTitle").Caption(), "   Export Cheque Settings");
      TypeKeys(*picker, typed);
      Key(*picker, keys::kEnter);
      return true;
    };
    Do([&] { form->Call("ExportChqSettings", {}); });
  };
  AnswerMessage(1);
  AnswerMessage();
  exportTo("Deccan");
  EXPECT_EQ(Messages(), (Texts{"Do you want to export settings to : Deccan Bank", "Settings Saved"}));
  const std::string stored = gApp->GetFirmSetting("ChqSetting.102.Settings");
  EXPECT_EQ(stored.find("50100"), std::string::npos);
  EXPECT_EQ(Object(form, 7).Caption(), "A/c No : 50100");
  Click(At<CheckBox>(form, "Check1"));
  AnswerMessage(1);
  AnswerMessage(2);
  exportTo("Deccan");
  EXPECT_EQ(Messages().back(), "Cheque Settings for this A/c already exists. Do you want to overwrite?");
  EXPECT_EQ(gApp->GetFirmSetting("ChqSetting.102.Settings"), stored);
}

}  // namespace
}  // namespace quillon
