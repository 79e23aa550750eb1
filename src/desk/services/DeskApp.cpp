#include "desk/services/DeskApp.h"

#include <algorithm>
#include <array>

#include "books/SqlText.h"
#include "desk/services/CrossReference.h"
#include "desk/services/DateText.h"
#include "desk/services/DeskStd.h"
#include "desk/services/PartyAddress.h"
#include "desk/services/VoucherStore.h"
#include "host/controls/CMStrip.h"
#include "host/forms/Runtime.h"
#include "host/forms/WindowHandle.h"
#include "host/values/ErrorText.h"
#include "host/values/Text.h"

namespace quillon {

namespace {

constexpr int kKeyL = 76;
constexpr int kKeyM = 77;
}  // namespace

DeskApp::DeskApp(DeskSession& session, IDeskScreens& screens)
    : session_(session),
      screens_(screens),
      settings_(session.CommonDb(), session.CurrentUser().Name),
      window_(session, screens),
      mainModule_(screens),
      stores_(screens) {
  session_.AddModule(mainModule_.ID(), mainModule_);
  session_.AddModule(stores_.ID(), stores_);
  gApp = this;
}

DeskApp::~DeskApp() { gApp = nullptr; }

CDataSet& DeskApp::Window::FirmRecord() {
  if (firm_.State() != 1) firm_.Open("Select * from Firm", session_.CommonDb());
  return firm_;
}

std::string DeskApp::Window::DataFolder() { return session_.Books().Folder().string(); }

bool DeskApp::CheckRight(const std::string& rightKey, const std::string& action, bool& denied) {
  denied = !MayDo(session_.CommonDb(), session_.CurrentUser(), rightKey, action);
  if (denied) {
    gStd->MsgBox(
        "You have no right to " + std::string(action == "P" ? "print here" : "open this screen") + ".", "",
        "W");
  }
  return denied;
}

bool DeskApp::ValidDate(const Variant& text, bool& valid) {
  valid = quillon::ValidDate(text.ToText(), OpenDateFrame());
  if (!valid) gStd->MsgBox("Invalid Date", "", "E", "", 0, kFieldMessage);
  return valid;
}

void DeskApp::FormKeyDown(int& keyCode, int& shift, Form& form) {
  if (keyCode == keys::kTab && (shift & keys::kCtrl) != 0) {
    NextWindow(form, (shift & keys::kShift) != 0);
    keyCode = 0;
  } else if (keyCode == kKeyL && shift == (keys::kCtrl | keys::kShift) && form.Offers("Filter")) {
    keyCode = 0;
    form.Call("Filter", {});
  } else if (keyCode == kKeyM && shift == keys::kCtrl) {
    for (Control* control : form.Controls()) {
      auto* strip = dynamic_cast<CMStrip*>(control);
      if (strip == nullptr || strip->Code() == 0) continue;
      strip->OpenMaster();
      keyCode = 0;
      return;
    }
  }
}

void DeskApp::NextWindow(Form& form, bool backwards) {
  const auto here = std::find_if(windows_.begin(), windows_.end(),
                                 [&](const OpenWindow& open) { return open.Window == &form; });
  if (windows_.size() < 2 || here == windows_.end()) return;
  const std::size_t count = windows_.size();
  const auto at = static_cast<std::size_t>(here - windows_.begin());
  gRuntime->BringToFront(*windows_[(at + (backwards ? count - 1 : 1)) % count].Window);
}

void DeskApp::ShowForm(const FormPtr& form) { gRuntime->Show(form); }

void DeskApp::RegisterForm(Form& form, const std::string& title, const std::string& iconKey) {
  windows_.push_back({&form, title, iconKey});
  form.QuillonForm = std::make_shared<WindowHandle>(title, iconKey);
}

std::string DeskApp::AccountBeside(Form& form) const {
  constexpr const char* kMember = "AccountCode";
  if (!form.HasMember(kMember)) return {};
  const std::vector<FormPtr> forms = gRuntime->AllForms();
  const auto alike = std::count_if(forms.begin(), forms.end(), [&](const FormPtr& other) {
    return other->IsShownToUser() && other->Name() == form.Name();
  });
  if (alike < 2) return {};
  return gSession->MainDb()
      .Lookup("FAMaster", "mhd", "mcd=" + books::SqlNumber(form.Get(kMember).ToInteger()))
      .ToText();
}

void DeskApp::UnregisterForm(Form& form) {
  std::erase_if(windows_, [&](const OpenWindow& open) { return open.Window == &form; });
  form.QuillonForm.reset();
}

void DeskApp::BeginBusy(const std::string& text) {
  gRuntime->ShowBusy(true, text);
  gRuntime->DoEvents();
}

void DeskApp::EndBusy() { gRuntime->ShowBusy(false, ""); }

void DeskApp::ReportError(const std::exception& error, Form* form, const std::string& routine) {
  gRuntime->NoteFailure(ErrorText(error));
  gRuntime->TellError(routine, form, error);
}

void DeskApp::OpenVoucher(Form& form, std::int64_t voucherId, int startYear, std::int64_t accountCode) {
  if (voucherId == 0) return;
  const FormPtr view = screens_.NewVoucherView(voucherId, startYear, accountCode);
  view->CallingForm = form.Self();
  gRuntime->Show(view, false, form.Self());
}

void DeskApp::VoucherCrossRef(CDbLink& db, std::int64_t voucherId, Amount amount, std::int64_t& code,
                              std::string& text) {
  const std::shared_ptr<ExpectedSides> expected = expected_.lock();
  OtherSide other = expected && expected->IsOf(db) ? expected->Find(voucherId, amount)
                                                   : FindOtherSide(db, voucherId, amount);
  code = other.Code;
  text = std::move(other.Head);
}

std::shared_ptr<void> DeskApp::ExpectCrossRefs(CDbLink& db, const std::string& condition) {
  auto expected = std::make_shared<ExpectedSides>(db, condition);
  expected_ = expected;
  return expected;
}

void DeskApp::PostBalanceEntry(CDataSet& /*entries*/, std::string& voucher, const std::string& book,
                               const std::string& type, int line, Date date, std::int64_t account,
                               const std::string& narration, Amount amount, bool /*first*/, bool /*second*/) {
  NewVoucher part;
  part.Day = date;
  part.Book = book;
  part.Type = type;
  part.Narration = narration;
  part.Lines.push_back({account, amount});
  VoucherStore store(session_.MainDb());
  if (voucher.empty()) {
    voucher = std::to_string(store.Begin(part, line));
  } else {
    store.AddLine(ValInteger(voucher), part, line);
  }
}

void DeskApp::InitForm(Form& form) { form.Font = Font{}; }

std::vector<std::string> DeskApp::GetPartyLines(std::int64_t code) {
  CPartyInfo info;
  info.Code = code;
  return GetPartyAddress(info);
}

std::vector<std::string> DeskApp::GetPartyAddress(CPartyInfo& info) {
  if (info.Code != 0) {
    const bool atHand = info.DataSet && info.DataSet->State() == 1 && !info.DataSet->Eof() &&
                        info.DataSet->Field("mcd").ToInteger() == info.Code;
    if (!atHand) {
      info.DataSet = std::make_shared<CDataSet>();
      info.DataSet->Open("Select * from FAMaster where mcd=" + std::to_string(info.Code), session_.MainDb());
    }
  }
  if (!info.DataSet) throw HostError("No party is given");
  return GetPartyAddress(*info.DataSet);
}

std::vector<std::string> DeskApp::GetPartyAddress(CDataSet& party) {
  return party.Eof() ? std::vector<std::string>() : PartyAddress(party);
}

bool DeskApp::InputBox(std::string& text, const std::string& prompt) {
  InputRequest request{prompt, "", text};
  return gRuntime->AskInput(request, text);
}

std::string DeskApp::AccountDetails(std::int64_t code) {
  const std::array<Variant, 1> values = {Variant(code)};
  const std::vector<Variant> account = session_.MainDb().FirstRowWith(
      "Select a.mhd,a.mst,c.CtgName from FAMaster a left join CtgMaster c on a.mbshno=c.CtgNo where a.mcd=?",
      values);
  if (account.empty()) return {};
  std::string details = account[0].ToText();
  if (const std::string station = account[1].ToText(); !station.empty()) details += ", " + station;
  if (const std::string group = account[2].ToText(); !group.empty()) details += "   (" + group + ")";
  return details;
}

void DeskApp::OpenMaster(Form& form, std::int64_t code) { ShowAccountDetails(form, code); }

void DeskApp::ShowAccountDetails(Form& form, std::int64_t code) {
  if (code == 0) return;
  const FormPtr view = screens_.NewAccountView(code);
  gRuntime->Show(view, true, form.Self());
}

}  // namespace quillon
