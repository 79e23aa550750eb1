#include "host/controls/CPeriod.h"

#include "host/forms/Form.h"
#include "host/services/IApp.h"
#include "host/services/IStd.h"
#include "host/values/Text.h"

namespace quillon {

CPeriod::CPeriod(Control& parent, std::string name, int index)
    : Control(parent, std::move(name), index), Date1(*this, "Date1"), Date2(*this, "Date2") {
  for (CTextPlus* field : {&Date1, &Date2}) {
    field->DateMode = true;
    field->Validate = [field](bool& cancel) {
      bool valid = false;
      gApp->ValidDate(field->Text(), valid);
      cancel = !valid;
      if (valid) field->Text = gStd->ParseDateText(field->Text, "");
    };
  }
}

bool CPeriod::ValidatePeriod() {
  for (CTextPlus* field : {&Date1, &Date2}) {
    // A key may have come before the field was left, and what stands there is still as it was typed.
    if (!field->MayLeave()) {
      field->SetFocus();
      return false;
    }
    if (Date::Parse(field->Text()).IsEmpty()) {
      gStd->MsgBox(field == &Date1 ? "Specify From Date" : "Specify To Date", "", "W");
      field->SetFocus();
      return false;
    }
  }
  if (Date::Parse(Date1.Text()) <= Date::Parse(Date2.Text())) return true;
  gStd->MsgBox("To Date can't be less than From Date", "", "W");
  Date2.SetFocus();
  return false;
}

CTextPlus& CPeriod::Part(const std::string& name) {
  if (text::EqualNoCase(name, "Date1")) return Date1;
  if (text::EqualNoCase(name, "Date2")) return Date2;
  throw SubscriptError(FullName() + " part " + name);
}

Control::State CPeriod::Describe() const {
  State state = Control::Describe();
  state.emplace_back("date1", Date1.Text());
  state.emplace_back("date2", Date2.Text());
  return state;
}

}  // namespace quillon
