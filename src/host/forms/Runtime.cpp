#include "host/forms/Runtime.h"

#include <algorithm>
#include <map>

#include "host/services/IPrinter.h"
#include "host/services/PrinterDevice.h"
#include "host/services/host_services.h"
#include "host/values/ErrorText.h"
#include "host/values/Text.h"

namespace quillon {

Runtime* gRuntime = nullptr;

namespace {

const std::map<std::string, int, std::less<>> kNamedKeys = {
    {"BACKSPACE", keys::kBack}, {"TAB", keys::kTab},       {"ENTER", keys::kEnter}, {"ESC", keys::kEscape},
    {"PGUP", keys::kPageUp},    {"PGDN", keys::kPageDown}, {"END", keys::kEnd},     {"HOME", keys::kHome},
    {"LEFT", keys::kLeft},      {"UP", keys::kUp},         {"RIGHT", keys::kRight}, {"DOWN", keys::kDown},
    {"DEL", keys::kDelete}};

}  // namespace

Runtime::Runtime() { gRuntime = this; }

Runtime::~Runtime() {
  if (gRuntime == this) gRuntime = nullptr;
}

void Runtime::Load(const FormPtr& form) {
  if (form->IsLoaded()) return;
  loaded_.push_back(form);
  NoteStep(*form);
  FormHappened(Happening::Load, *form);
  try {
    form->RunLoad();
  } catch (...) {
    // Half a form is none: it lets go of its caller, and the next attempt loads it again.
    try {
      form->RunUnload();
    } catch (const std::exception&) {
      // What failed first is what is told.
    }
    End(*form);
    throw;
  }
}

void Runtime::Show(const FormPtr& form, bool modal, const FormPtr& owner) {
  if (form->AskInstead()) return;
  Load(form);
  if (!form->IsLoaded()) return;  // Load may have unloaded it
  NoteStep(*form);
  form->SetOwner(owner);
  std::erase(shown_, form);
  shown_.push_back(form);
  form->SetShown(true, modal);
  FormHappened(Happening::Show, *form);
  UpdateActive();
  if (form->IsShownToUser()) form->FocusFirst();
  if (modal) RunModal(form);
}

void Runtime::NoteStep(const Form& form) {
  int& known = steps_.try_emplace(&form, step_).first->second;
  known = std::min(known, step_);
}

Runtime::Step::~Step() {
  const int step = runtime_.step_--;
  std::erase_if(runtime_.closed_, [step](const auto& closed) {
    if (closed.second < step) return false;
    const FormPtr form = closed.first.lock();
    if (form && !form->IsLoaded()) form->ReleaseHeavy();
    return true;
  });
}

bool Runtime::UsePrinter(const std::string& deviceName) {
  const std::vector<PrinterDevice> printers = Printers();
  const bool known = std::any_of(printers.begin(), printers.end(),
                                 [&](const PrinterDevice& each) { return each.DeviceName == deviceName; });
  if (known) Printer().DeviceName = deviceName;
  return known;
}

void Runtime::PrintForm(Form& form) { throw HostError("No printer takes the form " + form.Name()); }

void Runtime::RequireFont(const std::string& name) {
  if (!Printer().HasFont(name)) throw MissingFontError(name);
}

void Runtime::RunModal(const FormPtr& form) {
  DeliverKeys();
  Wait([&form] { return !form->IsShownToUser(); });
}

void Runtime::WaitWhileVisible(Form& form) {
  const FormPtr alive = form.Self();
  Wait([&form] { return !form.IsShownToUser(); });
}

void Runtime::Hide(Form& form) {
  if (!form.IsShownToUser()) return;
  const FormPtr alive = form.Self();
  std::erase(shown_, alive);
  form.SetShown(false, false);
  FormHappened(Happening::Hide, form);
  UpdateActive();
}

bool Runtime::LetsGoOfEdit(const Form& form) {
  Control* const edited = form.ActiveControl();
  if (edited == nullptr || !edited->IsInEdit() || edited->MayLeave()) return true;
  if (!gStd->AskYesNo("What is typed in the cell is not valid and was not stored. Close without it?", "Q",
                      IStd::kNo)) {
    return false;
  }
  edited->DropEdit();
  return true;
}

bool Runtime::Unload(Form& form, UnloadMode mode) {
  if (!form.IsLoaded()) return true;
  const FormPtr alive = form.Self();
  const Closing closing(*this, {alive});
  if (!UnloadLastFirst(StandingOn(form), mode)) return false;
  if (mode == UnloadMode::CloseBox && !LetsGoOfEdit(form)) return false;
  if (!form.RunQueryUnload(mode)) return false;
  if (!UnloadLastFirst(OwnedBy(form), mode)) return false;
  if (!form.IsLoaded()) return true;
  try {
    form.RunUnload();
  } catch (...) {
    // A form that fails to clean up goes all the same; the services behind it may be gone next.
    End(form);
    throw;
  }
  End(form);
  return true;
}

Runtime::Closing::Closing(Runtime& runtime, std::vector<FormPtr> forms)
    : runtime_(runtime), before_(runtime.closing_.size()) {
  runtime.closing_.insert(runtime.closing_.end(), forms.begin(), forms.end());
}

Runtime::Closing::~Closing() {
  runtime_.closing_.resize(before_);
  // One that stays after all is up again.
  if (runtime_.ActiveForm() != runtime_.active_.lock()) runtime_.Act([this] { runtime_.UpdateActive(); });
}

bool Runtime::UnloadLastFirst(std::vector<FormPtr> forms, UnloadMode mode) {
  return std::all_of(forms.rbegin(), forms.rend(),
                     [this, mode](const FormPtr& form) { return Unload(*form, mode); });
}

std::vector<FormPtr> Runtime::StandingOn(const Form& form) const {
  std::vector<FormPtr> standing;
  std::copy_if(loaded_.begin(), loaded_.end(), std::back_inserter(standing), [&](const FormPtr& other) {
    return other->CallingForm.get() == &form && other->StandsOnCaller();
  });
  return standing;
}

std::vector<FormPtr> Runtime::OwnedBy(const Form& form) const {
  std::vector<FormPtr> owned;
  std::copy_if(loaded_.begin(), loaded_.end(), std::back_inserter(owned),
               [&](const FormPtr& other) { return other->Owner().get() == &form; });
  return owned;
}

void Runtime::End(Form& form) {
  const FormPtr alive = form.Self();
  form.EndLife();
  std::erase(loaded_, alive);
  std::erase(shown_, alive);
  closed_.emplace_back(alive, steps_[&form]);
  steps_.erase(&form);
  form.SetShown(false, false);
  FormHappened(Happening::Unload, form);
  UpdateActive();
}

std::vector<FormPtr> Runtime::Forms(Form::Origin origin) const {
  std::vector<FormPtr> forms;
  std::copy_if(loaded_.begin(), loaded_.end(), std::back_inserter(forms),
               [origin](const FormPtr& form) { return form->FormOrigin() == origin; });
  return forms;
}

FormPtr Runtime::ActiveForm() const {
  const auto modal =
      std::find_if(shown_.rbegin(), shown_.rend(), [](const FormPtr& form) { return form->IsModal(); });
  if (modal != shown_.rend()) return *modal;
  return shown_.empty() ? nullptr : shown_.back();
}

bool Runtime::IsCovered(const Form& form) const {
  const FormPtr top = ActiveForm();
  return top && top->IsModal() && top.get() != &form;
}

void Runtime::BringToFront(Form& form) {
  const FormPtr alive = form.Self();
  if (std::erase(shown_, alive) > 0) shown_.push_back(alive);
  UpdateActive();
}

void Runtime::UpdateActive() {
  const FormPtr top = ActiveForm();
  if (top == active_.lock()) return;
  if (std::find(closing_.begin(), closing_.end(), top) != closing_.end()) return;
  active_ = top;
  if (top) top->RunActivate();
}

void Runtime::Act(const std::function<void()>& act) {
  const Step step(*this);
  failures_.emplace_back();
  if (watch_ != nullptr) watch_->EventBegins();
  try {
    act();
  } catch (const Refused&) {
    EndEvent();
    throw;
  } catch (const std::exception& error) {
    NoteFailure(ErrorText(error));
    TellError("", ActiveForm().get(), error);
  }
  EndEvent();
}

void Runtime::EndEvent() {
  const std::string failure = failures_.back();
  failures_.pop_back();
  if (watch_ != nullptr) watch_->EventEnds(failure);
}

void Runtime::NoteFailure(const std::string& text) {
  if (!failures_.empty() && failures_.back().empty()) failures_.back() = text;
}

void Runtime::DoEvents() {
  DeliverKeys();
  Repaint();
}

void Runtime::SendKeys(const std::string& keys) {
  for (std::size_t at = 0; at < keys.size();) {
    const std::size_t close = keys[at] == '{' ? keys.find('}', at + 2) : std::string::npos;
    const std::size_t bytes = close != std::string::npos ? close - at + 1 : text::CharBytes(keys, at);
    keys_.push_back(keys.substr(at, bytes));
    at += bytes;
  }
}

void Runtime::DeliverKeys() {
  while (!keys_.empty()) {
    const std::string key = keys_.front();
    keys_.pop_front();
    Press(key);
  }
}

void Runtime::Press(const std::string& key) {
  const FormPtr form = ActiveForm();
  if (!form) return;
  int code = 0;
  int character = 0;
  if (key.size() > 2 && key.front() == '{') {
    const std::string name = text::Upper(key.substr(1, key.size() - 2));
    if (const auto named = kNamedKeys.find(name); named != kNamedKeys.end()) {
      code = named->second;
      if (code == keys::kEnter || code == keys::kTab || code == keys::kBack) character = code;
    } else if (name.front() == 'F' && name.size() > 1) {
      code = keys::kF1 + static_cast<int>(ValInteger(name.substr(1))) - 1;
    } else {
      character = text::CodePoint(name);
    }
  } else {
    character = text::CodePoint(key);
  }
  if (code == 0) code = CodeOfCharacter(character);
  if (character == keys::kTab) character = 0;
  Act([&] { form->UserKey(code, 0, character); });
}

void Runtime::SetMousePointer(int pointer) {
  if (pointer_ == pointer) return;
  pointer_ = pointer;
  PointerChanged(pointer);
}

}  // namespace quillon
