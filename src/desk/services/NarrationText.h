#pragma once

#include <string>

namespace quillon {

/// Takes a cheque number, such as "Chq.No. 123456", "Ch No 123456", "Cheque 000123" or "CHQ#4411", out of the
/// narration when `chequeNo` is empty: the digits go there, with their zeros, and the narration closes over
/// the gap. A number that goes on as a date or an amount is none.
void ChqNoFromNarration(std::string& narration, std::string& chequeNo);

/// Line `line`, counted from 1, of the text wrapped at words to `width` UTF-16 units; a word that is longer
/// is cut. Empty past the last line.
std::string WrapLine(const std::string& text, int width, int line);

}  // namespace quillon
