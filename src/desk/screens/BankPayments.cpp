#include "desk/screens/BankPayments.h"

#include <unordered_set>

#include "books/BooksNames.h"
#include "books/SqlText.h"
#include "host/services/host_services.h"
#include "host/values/Text.h"

namespace quillon {

namespace {

constexpr const char* kLastBank = "ChqPrinting.LastBankCode";

/// The lines by which vouchers pay from an account, of FAData named a.
std::string PaymentsOf(std::int64_t bank) {
  return "a.dcd=" + books::SqlNumber(bank) + " and a.dAmt<0 and " + books::InLists("a.dBook");
}

constexpr const char* kPaymentFields =
    "Select a.VoucherID,a.dVchDate,a.dAmt,a.NarrationID,n.Narration from FAData a left join FANar n on "
    "a.NarrationID=n.NarrationID where ";

/// The payment of the row at hand, without its party.
BankPayment PaymentAt(const CDataSet& row, std::int64_t bank) {
  BankPayment payment;
  payment.Voucher = row.Field("VoucherID").ToInteger();
  payment.Bank = bank;
  payment.Day = row.Field("dVchDate").ToDate();
  payment.Value = -row.Field("dAmt").ToAmount();
  payment.NarrationID = row.Field("NarrationID");
  payment.Narration = row.Field("Narration").ToText();
  return payment;
}

void FindParty(CDbLink& db, BankPayment& payment) {
  gApp->VoucherCrossRef(db, payment.Voucher, -payment.Value, payment.Party, payment.Head);
  payment.Station = db.Lookup("FAMaster", "mst", "mcd=" + books::SqlNumber(payment.Party)).ToText();
}

/// A leaf that is on its way counts as used.
std::unordered_set<std::int64_t> VouchersWithLeaf(CDbLink& db, std::int64_t bank) {
  const std::string code = books::SqlNumber(bank);
  std::unordered_set<std::int64_t> vouchers;
  CDataSet leaves;
  for (leaves.Open("Select VoucherID from ChqLeaves where BankCode=" + code +
                       " and VoucherID is not null union select g.VoucherID from ChqGoingOut g inner join "
                       "ChqLeaves l on l.ID=g.LeafID where l.BankCode=" +
                       code,
                   db);
       !leaves.Eof(); leaves.MoveNext()) {
    vouchers.insert(leaves.Field("VoucherID").ToInteger());
  }
  return vouchers;
}

}  // namespace

std::optional<BankPayment> BankPayment::Of(CDbLink& db, std::int64_t bank, std::int64_t voucher) {
  CDataSet row;
  row.Open(kPaymentFields + ("a.VoucherID=" + books::SqlNumber(voucher)) + " and " + PaymentsOf(bank) +
               " order by a.dVchSubNo",
           db);
  if (row.Eof()) return std::nullopt;
  BankPayment payment = PaymentAt(row, bank);
  FindParty(db, payment);
  return payment;
}

std::vector<BankPayment> BankPayment::WithoutLeaf(CDbLink& db, std::int64_t bank, Date from, Date to) {
  const std::string condition = PaymentsOf(bank) + " and a.dVchDate between " + books::SqlDate(from, to);
  const std::unordered_set<std::int64_t> taken = VouchersWithLeaf(db, bank);
  std::vector<BankPayment> payments;
  CDataSet rows;
  for (rows.Open(kPaymentFields + condition + " order by a.dVchDate,a.VoucherID,a.dVchSubNo", db);
       !rows.Eof(); rows.MoveNext()) {
    // A cheque shows the first line of a voucher alone.
    const BankPayment payment = PaymentAt(rows, bank);
    const bool isNew = payments.empty() || payments.back().Voucher != payment.Voucher;
    if (isNew && !taken.contains(payment.Voucher)) payments.push_back(payment);
  }
  rows.Close();
  const std::shared_ptr<void> expected = gApp->ExpectCrossRefs(db, condition);
  for (BankPayment& payment : payments) FindParty(db, payment);
  return payments;
}

std::int64_t BankPayments::BankOf(CDbLink& db, std::int64_t voucher, std::int64_t preferred) {
  CDataSet banks;
  banks.Open("Select a.dcd from FAData a inner join FAMaster b on a.dcd=b.mcd where a.VoucherID=" +
                 books::SqlNumber(voucher) + " and b.mbshno=" + books::SqlNumber(books::kBankGroup) +
                 " and a.dAmt<0 order by a.dVchSubNo",
             db);
  const std::int64_t first = banks.Eof() ? 0 : banks.Field("dcd").ToInteger();
  for (; !banks.Eof(); banks.MoveNext()) {
    if (banks.Field("dcd").ToInteger() == preferred) return preferred;
  }
  return first;
}

void BankPayments::Fill(Form& cheque) const {
  CDbLink& db = year_->Db();
  const std::optional<BankPayment> payment = BankPayment::Of(db, bank_, voucher_);
  if (!payment) return;
  cheque.Set("PartyCode", payment->Party);
  cheque.Set("PayTo", payment->Head);
  cheque.Set("Station", payment->Station);
  cheque.Set("Amount", payment->Value);
  cheque.Set("vDate", payment->Day.Text());
  cheque.Set("Narration", payment->Narration);
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
  next.Open("Select First 1 VoucherID from FAData a where " + PaymentsOf(bank_) + " and (dVchDate" + beyond +
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
  gApp->PutUserSetting(kLastBank, std::to_string(bank));
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
  gApp->ShowForm(cheque);
}

}  // namespace quillon
