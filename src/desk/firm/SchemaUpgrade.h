#pragma once

#include <filesystem>
#include <vector>

#include "desk/firm/FirmFile.h"
#include "desk/firm/SchemaSteps.h"

namespace quillon {

/// Brings the databases of an older firm up, version by version, each by one transaction over all of them.
/// Those that are files are copied first, and the copies come back when a version fails, or when the program
/// ended in the middle. Databases on a server have no copies: they stay together at the last version that all
/// of them took.
class SchemaUpgrade {
 public:
  SchemaUpgrade(const std::filesystem::path& folder, const FirmFile& file,
                const std::vector<SchemaStep>& steps)
      : folder_(folder), file_(file), steps_(steps) {}

  /// Puts back what an upgrade that was broken off has left. Nobody else may have the firm open.
  void Recover() const;

  /// Throws HostError in plain words; the firm is then as it was. Nobody else may have it open.
  void Run() const;

  /// Carries the steps out in every database of a firm that is being made.
  void RaiseAll() const;

 private:
  struct Database {
    SchemaStep::Database Kind;
    FirebirdAddress Address;
  };

  std::vector<Database> Databases() const;
  struct Raised;
  void RaiseFrom(int version, std::vector<Raised>& databases) const;
  bool IsOnServer() const;
  void Copy() const;
  void DropCopies() const;

  std::filesystem::path folder_;
  const FirmFile& file_;
  const std::vector<SchemaStep>& steps_;
};

}  // namespace quillon
