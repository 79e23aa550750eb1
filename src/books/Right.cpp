#include "books/Right.h"

namespace quillon {

std::string RightCaption(const std::string& key) {
  for (const Right& right : Rights()) {
    if (key == right.Key) return right.Caption;
  }
  return key;
}

}  // namespace quillon
