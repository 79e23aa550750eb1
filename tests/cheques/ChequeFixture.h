#pragma once

#include <fstream>
#include <iterator>

#include "host/data/CTextTable.h"
#include "tests/support/DeskFixture.h"
#include "tests/support/PdfReader.h"

namespace quillon {

/// A firm with two banks and a party whose bank is known, and a cheque to it.
class ChequeTest : public DeskTest {
 protected:
  using Texts = std::vector<std::string>;

  void SetUp() override {
    OpenNewFirm();
    AddAccount(101, "SAHYADRI BANK", 47, "PUNE");
    AddAccount(102, "Deccan Bank", 47, "Nashik");
    AddAccount(201, "Asha Traders", 140, "Surat");
    Db().Execute(
        "update FAMaster set mBankName='Konkan Bank',mBankBranch='Camp',mBankStn='Surat',"
        "mIFSCCode='KONK0001',mBankAcNo='5010' where mcd=201");
    for (const int code : {101, 102, 201}) {
      Db().Execute(
          "insert into FAHeads (Code,SubCode,Head,PressHead) select mcd,0,mhd,upper(mhd) from "
          "FAMaster where mcd=" +
          std::to_string(code));
    }
  }

  /// The form with a cheque of the bank, as a voucher's screen sets it, not shown yet.
  FormPtr NewCheque(long bank = 101, const std::string& amount = "1250.75") {
    FormPtr form = desk_.Module().GetForm("chqprint");
    form->Set("BankCode", bank);
    form->Set("PartyCode", 201);
    form->Set("PayTo", "Asha Traders");
    form->Set("Station", "Surat");
    form->Set("Amount", amount);
    form->Set("vDate", "05-Apr-2024");
    return form;
  }

  FormPtr ShowCheque(long bank = 101, const std::string& amount = "1250.75") {
    FormPtr form = NewCheque(bank, amount);
    Do([&] { gApp->ShowForm(form); });
    return form;
  }

  /// The cheque with its layout before the user.
  FormPtr ShowLayout(long bank = 101, const std::string& amount = "1250.75") {
    FormPtr form = ShowCheque(bank, amount);
    Key(*form, keys::kF6);
    return form;
  }

  static Label& Object(const FormPtr& form, int index) { return At<Label>(form, "Lbl", index); }

  void Click(Control& control) {
    Do([&] { control.UserClick(); });
  }
  void Type(const FormPtr& form, const std::string& field, const std::string& text) {
    Do([&] { At<CTextPlus>(form, field).UserType(text); });
  }
  void AnswerInput(const std::string& text) { runtime_.Laid.Add({{"to", "input"}, {"text", text}}); }
  void AnswerFile(const std::string& path) { runtime_.Laid.Add({{"to", "file"}, {"path", path}}); }
  void AnswerPrint() { runtime_.Laid.Add({{"to", "printdialog"}}); }

  /// Prints through the bar's or the panel's key, and answers what came onto paper: "x,y text" in twips.
  Texts Printed(const FormPtr& form) {
    log_.TracePrint = true;
    AnswerPrint();
    Key(*form, keys::kF9);
    Texts lines;
    for (const Json& event : Events("print")) {
      lines.push_back(std::to_string(static_cast<long>(event.at("x").get<double>())) + "," +
                      std::to_string(static_cast<long>(event.at("y").get<double>())) + " " +
                      event.at("text").get<std::string>());
    }
    return lines;
  }

  static std::string FileText(const std::string& file) {
    std::ifstream in(file, std::ios::binary);
    return {std::istreambuf_iterator<char>(in), {}};
  }
};

}  // namespace quillon
