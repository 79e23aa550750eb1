#include "host/forms/Fields.h"

#include "host/services/IApp.h"
#include "host/services/IStd.h"

namespace quillon {

void MakeDateField(CTextPlus& field) {
  field.DateMode = true;
  field.Validate = [&field](bool& cancel) {
    bool valid = false;
    gApp->ValidDate(field.Text(), valid);
    cancel = !valid;
  };
}

Date DateOf(const CTextPlus& field) { return Date::Parse(gStd->ParseDateText(field.Text(), "")); }

bool RefuseAt(Control& field, const std::string& why, const std::string& icon) {
  gStd->MsgBox(why, "", icon);
  field.SetFocus();
  return false;
}

void FillCheckList(ListBox& list, const std::vector<std::string>& items, bool ticked) {
  list.CheckBoxes = true;
  list.Clear();
  for (const std::string& item : items) list.AddItem(item);
  TickAll(list, ticked);
}

void TickAll(ListBox& list, bool ticked) {
  for (int item = 0; item < list.ListCount(); ++item) list.SetSelected(item, ticked);
}

std::vector<std::string> TickedItems(const ListBox& list) {
  std::vector<std::string> ticked;
  for (int item = 0; item < list.ListCount(); ++item) {
    if (list.Selected(item)) ticked.push_back(list.List(item));
  }
  return ticked;
}

}  // namespace quillon
