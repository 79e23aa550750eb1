#pragma once

#include <string>

namespace quillon {

class Form;

/// What a person has filled in in a dialog.
class DialogChoices {
 public:
  /// As people read it, a line for each field.
  static std::string Words(const Form& form);

  /// As a text from which Put fills the fields of such a dialog in again; lists that are ticked, grids row by
  /// row.
  static std::string Text(const Form& form);
  static void Put(Form& form, const std::string& text);
};

}  // namespace quillon
