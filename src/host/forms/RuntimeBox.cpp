#include "host/forms/RuntimeBox.h"

#include "host/forms/Runtime.h"

namespace quillon {

void TellInBox(const Form& form, const std::string& text, const std::string& icon) {
  gRuntime->AskMessage({.Text = text, .Icon = icon, .Buttons = {"OK"}, .Title = form.Caption()});
}

bool AskInBox(const Form& form, const std::string& text, const std::string& icon) {
  return gRuntime->AskMessage(
             {.Text = text, .Icon = icon, .Buttons = {"Yes", "No"}, .Title = form.Caption()}) == 1;
}

}  // namespace quillon
