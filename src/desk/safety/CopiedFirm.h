#pragma once

#include <filesystem>
#include <string>
#include <vector>

#include "desk/safety/BookCopies.h"

namespace quillon {

/// A firm of its own, made of the copies of a run and of a copy of the common database: what is done there
/// changes nothing in the firm itself.
class CopiedFirm {
 public:
  enum class Use {
    kTrial,  ///< work is tried in it
    kLook    ///< it is looked at: its years take no change
  };

  /// Makes it in a folder beside the copies. Throws HostError in plain words, and nothing is left; so it does
  /// while another looks at the same copy.
  CopiedFirm(Firm& firm, int run, Use use);

  const std::filesystem::path& Folder() const { return folder_; }
  const std::vector<BookCopy>& Copies() const { return copies_; }

  /// Where one of its databases lies, "2024.fdb", for the engine of this process.
  FirebirdAddress Place(const std::string& name) const;

  /// Removes those of a firm that were left by programs which were killed. Nobody may be making one.
  static void RemoveLeft(const Firm& firm);

  /// Holds a copied firm while somebody looks at it. Its folder goes with the object.
  class Visit {
   public:
    explicit Visit(std::filesystem::path folder);
    Visit(const Visit&) = delete;
    Visit& operator=(const Visit&) = delete;
    ~Visit();

   private:
    std::filesystem::path folder_;
    int mark_;
  };

 private:
  void Make(int run, Use use);
  void CopyCommon(const FirebirdAddress& into, const std::string& name) const;

  Firm& firm_;
  std::filesystem::path folder_;
  std::vector<BookCopy> copies_;
};

}  // namespace quillon
