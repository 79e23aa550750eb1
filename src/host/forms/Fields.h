#pragma once

#include <string>
#include <vector>

#include "host/controls/CTextPlus.h"
#include "host/controls/ListBox.h"

namespace quillon {

/// Makes a field one that only a date, or nothing, leaves; the host tells what is wrong.
void MakeDateField(CTextPlus& field);

/// A list with check boxes, filled and with all items ticked or none.
void FillCheckList(ListBox& list, const std::vector<std::string>& items, bool ticked);
void TickAll(ListBox& list, bool ticked);

/// The texts of the ticked items, from above.
std::vector<std::string> TickedItems(const ListBox& list);

}  // namespace quillon
