#include "desk/services/SqlText.h"

#include "host/Text.h"

namespace quillon {

std::string SqlDate(Date date) {
  return date.IsEmpty() ? std::string() : "'" + date.Format("yyyy-MM-dd") + "'";
}

std::string SqlDate(Date first, Date second) {
  if (first.IsEmpty() || second.IsEmpty()) return SqlDate(first);
  return SqlDate(first) + " and " + SqlDate(second);
}

std::string SqlString(std::string_view text) {
  return "'" + text::ReplaceAll(std::string(text), "'", "''") + "'";
}

}  // namespace quillon
