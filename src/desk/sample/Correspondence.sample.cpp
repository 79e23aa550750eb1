#include <string>

#include "desk/sample/SamplePiece.h"
#include "host/data/CNameValues.h"
#include "host/data/CTextTable.h"
#include "host/values/Text.h"

namespace quillon {

namespace {

/// Parties as they are met: some without a contact, a phone or a bank, some whose town stands in the address
/// too, and those who bring the goods and the orders with addresses of their own.
void WriteParties(const SampleYearSoFar& year) {
  for (const char* change :
       {"update FAMaster set mName=null where mbshno in (130,140) and mod(mcd,7)=0",
        "update FAMaster set mPhoneOff=null where mbshno in (130,140) and mod(mcd,5)=0",
        "update FAMaster set mCellNo=null where mbshno in (130,140) and mod(mcd,11)=0",
        "update FAMaster set mBankName=null,mBankAcNo=null where mbshno in (130,140) and mod(mcd,6)=0",
        "update FAMaster set mhda2=mst,mPin=null where mbshno in (130,140) and mod(mcd,8)=0",
        "update FAMaster set mhda1=mod(mcd,100)||', Transport Nagar',mPhoneOff='0253-'||mcd where mbshno=150",
        "update FAMaster set mhda1=mod(mcd,100)||', Cloth Market',mPhoneOff='0231-'||mcd where mbshno=160"}) {
    year.Link.Execute(change);
  }
}

void KeepEnvelope(FirebirdLink& common) {
  CNameValues paper;
  paper.SetItem("TopMargin", "0.25");
  paper.SetItem("LeftMargin", "0.5");
  paper.SetItem("Landscape", "1");
  CTextTable objects;
  objects.SetFields("Name,Visible,Value,PosX,PosY,FontName,FontSize,Bold,Italic,Underline");
  const struct {
    const char* Name;
    const char* Value;
    int Left;
    int Top;
    const char* Size;
    const char* Bold;
  } places[] = {{"ModeOfPost", "", 28, 16, "11.25", "1"},
                {"Name", "", 360, 140, "12", "1"},
                {"Address", "", 360, 166, "12", "0"},
                {"Phone", "", 360, 270, "9.75", "0"},
                {"Mobile", "", 360, 290, "9.75", "0"},
                {"From", "", 28, 250, "9", "0"},
                {"Custom1", "Printed matter", 28, 60, "9.75", "0"}};
  std::size_t row = 0;
  for (const auto& place : places) {
    const auto put = [&](const char* column, const std::string& value) {
      objects.SetField(row, column, value);
    };
    put("Name", place.Name);
    put("Visible", "1");
    put("Value", place.Value);
    put("PosX", std::to_string(place.Left));
    put("PosY", std::to_string(place.Top));
    put("FontName", "Tahoma");
    put("FontSize", place.Size);
    put("Bold", place.Bold);
    put("Italic", "0");
    put("Underline", std::string(place.Name) == "ModeOfPost" ? "1" : "0");
    ++row;
  }
  const Variant values[] = {"EnvSettings.Large", paper.Text() + "<|||>" + objects.Text()};
  common.ExecuteWith("insert into FirmSettings (SettingKey,SettingText) values (?,?)", values);
}

void WriteLetters(FirebirdLink& common) {
  common.Execute("Create Table MLetters (ID Int,LetterName Varchar(100),LetterText Blob sub_type text)");
  const std::pair<const char*, const char*> letters[] = {
      {"Confirmation of balance",
       "Dear Sir,\n\n<B>Subject: Confirmation of your balance\n\n"
       "We close our books on 31st March. Kindly send us a statement of our account in your books, signed and "
       "stamped, so that both balances can be compared before the audit begins.\n\n"
       "If we do not hear from you within fifteen days we take the balance in our books as confirmed.\n\n"
       "Sincerely yours,\n\n<B>For Sharda Trading Co.\n\n\n<B>Partner"},
      {"Holiday",
       "Dear Sir,\n\n<B>Subject: Diwali holidays\n\n"
       "Our office and godown stay closed for the five days of Diwali. Please send your orders before.\n\n"
       "A happy Diwali to you and your family.\n\n<B>For Sharda Trading Co.\n\n\n<B>Partner"},
  };
  int id = 0;
  for (const auto& [name, text] : letters) {
    const Variant values[] = {++id, name, text::ReplaceAll(text, "\n", "\r\n")};
    common.ExecuteWith("insert into MLetters (ID,LetterName,LetterText) values (?,?,?)", values);
  }
}

void WriteCommon(FirebirdLink& common) {
  KeepEnvelope(common);
  WriteLetters(common);
}

}  // namespace

SamplePiece CorrespondenceSample() { return {30, WriteParties, WriteCommon}; }

}  // namespace quillon
