#include "host/controls/CEditGrid.h"

#include "host/forms/Form.h"
#include "host/values/Text.h"

namespace quillon {

Variant CEditGrid::Get(const std::string& member) {
  if (text::EqualNoCase(member, "FlexGrid")) return std::shared_ptr<Object>(OwnerForm().Self(), this);
  return EditableGrid::Get(member);
}

}  // namespace quillon
