#include "host/controls/FindPattern.h"

#include <algorithm>

#include "host/services/ISession.h"
#include "host/services/IStd.h"
#include "host/values/Text.h"

namespace quillon {

namespace {

bool IsDigit(char c) { return c >= '0' && c <= '9'; }
bool IsAscii(char c) { return static_cast<unsigned char>(c) < 0x80; }
char Small(char c) { return static_cast<char>(c >= 'A' && c <= 'Z' ? c + 32 : c); }

bool IsFigure(char c) { return IsDigit(c) || c == ',' || c == '.'; }

/// In the open year, where one is open.
std::string DateOf(const std::string& typed) {
  const bool begins = !typed.empty() && IsDigit(typed.front());
  const bool hasMonth =
      typed.find_first_not_of("0123456789") != std::string::npos || typed.size() == 4 || typed.size() > 5;
  return begins && hasMonth && gSession != nullptr ? gStd->ParseDateText(typed, "") : std::string();
}

}  // namespace

FindPattern::FindPattern(const std::string& typed) {
  const std::string wanted = text::Trim(typed);
  text_ = text::Lower(wanted);
  isAscii_ = std::all_of(text_.begin(), text_.end(), IsAscii);
  const bool hasDigit = std::any_of(wanted.begin(), wanted.end(), IsDigit);
  if (hasDigit && std::all_of(wanted.begin(), wanted.end(), IsFigure)) {
    figure_ = text::ReplaceAll(wanted, ",", "");
  }
  date_ = DateOf(wanted);
}

bool FindPattern::Matches(std::string_view cell) const {
  if (IsEmpty() || cell.empty()) return false;
  return HasText(cell) || (!date_.empty() && cell == date_) || (!figure_.empty() && HasFigure(cell));
}

bool FindPattern::HasText(std::string_view cell) const {
  if (!isAscii_) return text::Lower(cell).find(text_) != std::string::npos;
  const auto alike = [](char of, char small) { return Small(of) == small; };
  return std::search(cell.begin(), cell.end(), text_.begin(), text_.end(), alike) != cell.end();
}

bool FindPattern::HasFigure(std::string_view cell) const {
  if (cell.find(',') == std::string_view::npos) return cell.find(figure_) != std::string_view::npos;
  std::string plain(cell);
  std::erase(plain, ',');
  return plain.find(figure_) != std::string::npos;
}

}  // namespace quillon
