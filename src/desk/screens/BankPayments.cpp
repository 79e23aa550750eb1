#include "desk/screens/BankPayments.h"

#include "books/SqlText.h"
#include "host/services/host_services.h"
#include "host/values/Text.h"

namespace quillon {

namespace {

constexpr const char* kLastBank = "ChqPrinting.LastBankCode";

/// The lines by which vouchers pay from an account.
std::string PaymentsOf(std::int64_t bank) {
  return "dcd=" + books::SqlNumber(bank) + " and dAmt<0 and " + books::InLists();
}

}  // namespace

std::int64_t BankPayments::BankOf(CDbLink& db, std::int64_t voucher, std::int64_t preferred) {
  CDataSet banks;
  banks.Open("Select a.dcd from FAData a inner join FAMaster b on a.dcd=b.mcd where a.VoucherID=" +
                 books::SqlNumber(voucher) + " and b.mbshno=47 and a.dAmt<0 order by a.dVchSubNo",
             db);
  const std::int64_t first = banks.Eof() ? 0 : banks.Field("dcd").ToInteger();
  for (; !banks.Eof(); banks.MoveNext()) {
    if (banks.Field("dcd").ToInteger() == preferred) return preferred;
  }
  return first;
}

void BankPayments::Fill(Form& cheque) const {
  CDbLink& db = year_->Db();
  CDataSet payment;
  payment.Open(
      "Select First 1 a.dVchDate,a.dAmt,n.Narration from FAData a left join FANar n on "
      "a.NarrationID=n.NarrationID where a.VoucherID=" +
          books::SqlNumber(voucher_) + " and " + PaymentsOf(bank_) + " order by a.dVchSubNo",
      db);
  if (payment.Eof()) return;
  const Amount amount = payment.Field("dAmt").ToAmount();
  std::int64_t party = 0;
  std::string head;
  gApp->VoucherCrossRef(db, voucher_, amount, party, head);
  cheque.Set("PartyCode", party);
  cheque.Set("PayTo", head);
  cheque.Set("Station", db.Lookup("FAMaster", "mst", "mcd=" + books::SqlNumber(party)).ToText());
  cheque.Set("Amount", -amount);
  cheque.Set("vDate", payment.Field("dVchDate").ToDate().Text());
  cheque.Set("Narration", payment.Field("Narration").ToText());
  cheque.Set("ChqNo",
             db.Lookup("ChqLeaves", "ChqNo",
                       "VoucherID=" + books::SqlNumber(voucher_) + " and BankCode=" + books::SqlNumber(bank_))
                 .ToText());
}

void BankPayments::NextCheque(Form& cheque, int direction) {
  CDbLink& db = year_->Db();
  const std::string date =
      books::SqlDate(db.Lookup("FAData", "dVchDate", "VoucherID=" + books::SqlNumber(voucher_)).ToDate());
  if (date.empty()) return;
  const std::string beyond = direction > 0 ? ">" : "<";
  const std::string order = direction > 0 ? "" : " desc";
  CDataSet next;
  next.Open("Select First 1 VoucherID from FAData where " + PaymentsOf(bank_) + " and (dVchDate" + beyond +
                date + " or (dVchDate=" + date + " and VoucherID" + beyond + books::SqlNumber(voucher_) +
                ")) order by dVchDate" + order + ",VoucherID" + order,
            db);
  if (next.Eof()) {
    gRuntime->Beep();
    return;
  }
  voucher_ = next.Field("VoucherID").ToInteger();
  Fill(cheque);
  cheque.Call("UpdateLabels", {});
}

Variant BankPayments::Call(const std::string& method, const Array& arguments) {
  if (!text::EqualNoCase(method, "NextCheque") || arguments.size() < 2)
    return Object::Call(method, arguments);
  const auto cheque = std::dynamic_pointer_cast<Form>(arguments[0].ToObject());
  if (cheque) NextCheque(*cheque, static_cast<int>(arguments[1].ToInteger()));
  return {};
}

FormPtr NewChequeForm(const FormPtr& caller, std::int64_t bank) {
  IModule* const module = gSession->Modules().Item("DutyworksModule");
  FormPtr cheque = module != nullptr ? module->GetForm("chqprint") : nullptr;
  if (!cheque) {
    gStd->MsgBox("The cheque form is not loaded.", "", "W");
    return nullptr;
  }
  cheque->CallingForm = caller;
  cheque->Set("BankCode", bank);
  return cheque;
}

void OpenCheque(const FormPtr& caller, const std::shared_ptr<FinYear>& year, std::int64_t bank,
                std::int64_t voucher) {
  const FormPtr cheque = NewChequeForm(caller, bank);
  if (!cheque) return;
  if (voucher != 0) {
    const auto payments = std::make_shared<BankPayments>(year, bank, voucher);
    payments->Fill(*cheque);
    cheque->Set("fDataForm", std::static_pointer_cast<Object>(payments));
  }
  gApp->PutUserSetting(kLastBank, std::to_string(bank));
  gApp->ShowForm(cheque);
}

}  // namespace quillon
