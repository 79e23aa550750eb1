#pragma once

#include <string>
#include <vector>

#include "host/controls/CTextPlus.h"
#include "host/controls/ListBox.h"
#include "host/values/Date.h"

namespace quillon {

/// Makes a field one that only a date, or nothing, leaves; the host tells what is wrong.
void MakeDateField(CTextPlus& field);

/// The date of a field as a person writes it; empty for none.
Date DateOf(const CTextPlus& field);

/// Tells what is wrong and puts the user into the field; false.
bool RefuseAt(Control& field, const std::string& why, const std::string& icon = "");

/// A list with check boxes, filled and with all items ticked or none.
void FillCheckList(ListBox& list, const std::vector<std::string>& items, bool ticked);
void TickAll(ListBox& list, bool ticked);

/// The texts of the ticked items, from above.
std::vector<std::string> TickedItems(const ListBox& list);

}  // namespace quillon
