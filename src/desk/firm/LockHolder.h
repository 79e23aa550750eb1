#pragma once

#include <string>

namespace quillon {

/// Whose a firm's files are while they are open: what stands in the firm's lock file.
struct LockHolder {
  std::string Machine;  ///< the machine's own number; names and paths may be those of another machine too
  std::string Boot;     ///< the machine's present life, from one start to the next
  std::string User;     ///< by number
  std::string Host;     ///< the machine's name, for people
  std::string Place;    ///< device and number of the folder in which the engine keeps its locks
  std::string Folder;   ///< that folder

  bool operator==(const LockHolder&) const = default;
  bool IsEmpty() const { return Machine.empty(); }

  /// This process, with its engine's locks in a folder of that place.
  static LockHolder Own(const std::string& folder, const std::string& place);

  static LockHolder OfText(const std::string& text);
  std::string Text() const;
};

}  // namespace quillon
