#include "desk/services/NameText.h"

#include <unicode/uchar.h>
#include <unicode/utf8.h>

#include "host/values/Text.h"

namespace quillon {

namespace {

/// Hands the characters of a text over one by one, with their code points; what is no UTF-8 as U+FFFD.
template <class Visit>
void ForEachCharacter(std::string_view text, Visit visit) {
  const std::string whole = text::Repaired(text);
  for (std::size_t i = 0; i < whole.size();) {
    UChar32 c = 0;
    U8_GET_UNSAFE(whole.data(), i, c);
    const std::size_t bytes = text::CharBytes(whole, i);
    visit(c, std::string_view(whole).substr(i, bytes));
    i += bytes;
  }
}

/// Letters, digits and the marks that belong to them.
bool IsWord(UChar32 c) { return u_isalnum(c) || (U_GET_GC_MASK(c) & U_GC_M_MASK) != 0; }

std::string FoldBlanks(std::string_view text) {
  std::string folded;
  bool blank = false;
  ForEachCharacter(text, [&](UChar32 c, std::string_view character) {
    if (u_isUWhiteSpace(c)) {
      blank = true;
      return;
    }
    if (blank && !folded.empty()) folded += ' ';
    blank = false;
    folded += character;
  });
  return folded;
}

std::string Capitalised(const std::string& word) {
  if (word != text::Upper(word)) return word;
  const std::string first = word.substr(0, word.empty() ? 0 : text::CharBytes(word, 0));
  return first + text::Lower(std::string_view(word).substr(first.size()));
}

}  // namespace

std::string PressHead(std::string_view text) {
  std::string pressed;
  ForEachCharacter(text::Upper(text), [&](UChar32 c, std::string_view character) {
    if (IsWord(c)) pressed += character;
  });
  return pressed;
}

std::string TidyName(std::string_view text) {
  std::string tidy;
  std::string word;
  ForEachCharacter(FoldBlanks(text), [&](UChar32 c, std::string_view character) {
    if (IsWord(c)) {
      word += character;
      return;
    }
    tidy += Capitalised(word);
    tidy += character;
    word.clear();
  });
  return tidy + Capitalised(word);
}

}  // namespace quillon
