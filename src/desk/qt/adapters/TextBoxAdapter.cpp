#include "desk/qt/adapters/TextBoxAdapter.h"

#include "desk/qt/adapters/BoxEdit.h"

namespace quillon {

TextBoxAdapter::TextBoxAdapter(TextBox& model, QWidget* parent)
    : Adapter(model, new BoxEdit(model, model, parent)) {}

void TextBoxAdapter::Draw() { static_cast<BoxEdit&>(Widget()).ShowBox(); }

}  // namespace quillon
