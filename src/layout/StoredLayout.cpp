#include "layout/StoredLayout.h"

#include <algorithm>

#include "host/services/IApp.h"
#include "host/services/IStd.h"
#include "host/values/Text.h"

namespace quillon {

namespace {

constexpr double kSmallestFont = 1;
constexpr double kLargestFont = 1000;
constexpr long long kFarthest = 1'000'000;

}  // namespace

StoredLayout::StoredLayout(Form& form, std::string routine, std::string icon)
    : form_(form), routine_(std::move(routine)), icon_(std::move(icon)) {}

void StoredLayout::Step(const std::function<void()>& step) {
  try {
    step();
  } catch (const std::exception& error) {
    gApp->ReportError(error, &form_, routine_);
  }
}

void StoredLayout::TakeFont(Label& object, const Font& wanted) {
  Font font = wanted;
  if (font.Size < kSmallestFont || font.Size > kLargestFont) font.Size = object.Font().Size;
  try {
    object.Font = font;
  } catch (const MissingFontError& missing) {
    if (told_.insert(missing.FontName()).second) gStd->MsgBox(missing.what(), "", icon_);
    font.Name = object.Font().Name;
    object.Font = font;
  }
}

long StoredLayout::Twips(const std::string& text) {
  return static_cast<long>(std::clamp(ValInteger(text), -kFarthest, kFarthest));
}

}  // namespace quillon
