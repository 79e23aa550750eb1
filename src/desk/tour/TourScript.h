#pragma once

#include <QString>
#include <filesystem>
#include <istream>
#include <string>
#include <vector>

namespace quillon {

/// One line of a tour: a word that says what to do, and the rest of the line.
struct TourAct {
  QString File;
  int Line = 0;
  QString What;
  QString Rest;
};

/// The acts of a tour in their order. Blank lines and lines that begin with # are passed over. Throws
/// HostError for a word that no tour knows, with the name of what is read.
///
///     open              opens the firm of the tour
///     press KEY ...     presses keys one after the other, as "F6" or "Ctrl+T"
///     type TEXT         types a text
///     see TEXT          the tour fails unless what has the keys is called so
///     ask DIALOG        shows a dialog of the desk that a module may ask for
///     window W H        gives the desk's window that many pixels at 100 %
///     picture NAME      draws the desk to NAME.png
std::vector<TourAct> ReadTour(std::istream& in, const std::string& name = "the tour");

/// Those of a file, or of all files NAME.txt of a folder in the order of their names. Throws HostError for a
/// file that cannot be read, too.
std::vector<TourAct> ReadTourFiles(const std::filesystem::path& script);

}  // namespace quillon
