#pragma once

#include <functional>
#include <set>
#include <string>

#include "host/controls/Label.h"
#include "host/forms/Form.h"

namespace quillon {

/// The reading of a stored layout, step by step: a step that fails is told, and the next ones still come.
class StoredLayout {
 public:
  /// `routine` names the reading in reports of errors, `icon` is that of the message on a missing font.
  StoredLayout(Form& form, std::string routine, std::string icon);
  StoredLayout(const StoredLayout&) = delete;
  StoredLayout& operator=(const StoredLayout&) = delete;

  void Step(const std::function<void()>& step);

  /// Gives the object the font. One that the machine lacks is told once, and the rest of it still applies.
  void TakeFont(Label& object, const Font& wanted);

  /// The number at the head of a stored text in whole twips.
  static long Twips(const std::string& text);

 private:
  Form& form_;
  std::string routine_;
  std::string icon_;
  std::set<std::string> told_;
};

}  // namespace quillon
