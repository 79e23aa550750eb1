#include "host/services/Calibration.h"

#include <cmath>

#include "host/data/CNameValues.h"
#include "host/services/IApp.h"
#include "host/values/Text.h"

namespace quillon {

namespace {

constexpr double kMostStretch = 0.1;
constexpr double kFarthest = 20;  // millimetres
constexpr double kTelling = 0.05;

std::string KeyOf(const std::string& printer) { return "Calibration." + printer; }

/// As text, cut to so many parts of one.
std::string Rounded(double value, double parts) {
  return Variant(std::round(value * parts) / parts).ToText();
}

bool IsNear(double measured, double drawn) { return std::abs(measured / drawn - 1) <= kMostStretch; }

void AddMove(std::string& words, double millimetres, const char* forwards, const char* backwards) {
  if (std::abs(millimetres) < kTelling) return;
  words += (words.empty() ? "" : ", ") + Rounded(std::abs(millimetres), 100) + " mm " +
           (millimetres > 0 ? forwards : backwards);
}

void AddStretch(std::string& words, double stretch, const char* way) {
  const std::string percent = Rounded(stretch * 100, 10);
  if (percent != "100") words += (words.empty() ? "" : ", ") + percent + " % " + way;
}

}  // namespace

bool Calibration::IsNone() const {
  return measured_.Left == kProof.Left && measured_.Top == kProof.Top && measured_.Across == kProof.Across &&
         measured_.Down == kProof.Down;
}

Calibration Calibration::From(const Measured& measured) {
  if (!IsNear(measured.Across, kProof.Across) || !IsNear(measured.Down, kProof.Down)) {
    throw HostError("A printer's length is never wrong by more than a tenth. Measure from cross to cross.");
  }
  if (std::abs(measured.Left - kProof.Left) > kFarthest || std::abs(measured.Top - kProof.Top) > kFarthest) {
    throw HostError("The crosses lie at most 20 mm beside their place. Measure from the paper's edge.");
  }
  Calibration made;
  made.measured_ = measured;
  return made;
}

Calibration Calibration::Of(const std::string& printer) {
  if (gApp == nullptr) return {};
  try {
    const std::string stored = gApp->GetUserSetting(KeyOf(printer));
    if (stored.empty()) return {};
    CNameValues values;
    values.Load(stored);
    const auto number = [&](const char* name) { return Val(values.Item(name)); };
    return From({number("Left"), number("Top"), number("Across"), number("Down")});
  } catch (const HostError& error) {
    gApp->ReportError(error, nullptr, KeyOf(printer));
    return {};
  }
}

void Calibration::Keep(const std::string& printer) const {
  CNameValues values;
  values.SetItem("Left", Variant(measured_.Left).ToText());
  values.SetItem("Top", Variant(measured_.Top).ToText());
  values.SetItem("Across", Variant(measured_.Across).ToText());
  values.SetItem("Down", Variant(measured_.Down).ToText());
  gApp->PutUserSetting(KeyOf(printer), IsNone() ? std::string() : values.Text());
}

std::string Calibration::Words() const {
  std::string words;
  AddMove(words, ShiftX(), "right", "left");
  AddMove(words, ShiftY(), "down", "up");
  AddStretch(words, ScaleX(), "across");
  AddStretch(words, ScaleY(), "down");
  return words;
}

}  // namespace quillon
