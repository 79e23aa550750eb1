#pragma once

#include <QString>
#include <istream>
#include <vector>

namespace quillon {

/// One line of a tour: a word that says what to do, and the rest of the line.
struct TourAct {
  int Line = 0;
  QString What;
  QString Rest;
};

/// The acts of a tour in their order. Blank lines and lines that begin with # are passed over. Throws
/// HostError for a word that no tour knows.
///
///     open              opens the firm of the tour
///     press KEY ...     presses keys one after the other, as "F6" or "Ctrl+T"
///     type TEXT         types a text
///     see TEXT          the tour fails unless what has the keys is called so
///     ask DIALOG        shows a dialog of the desk that a module may ask for
///     picture NAME      draws the desk to NAME.png
std::vector<TourAct> ReadTour(std::istream& in);

}  // namespace quillon
