#pragma once

#include <stdexcept>
#include <string>

namespace quillon {

/// A failure of a host operation, told in the user's words.
class HostError : public std::runtime_error {
 public:
  using std::runtime_error::runtime_error;
};

/// An amount or a 16-bit or 32-bit number left its range.
class OverflowError : public HostError {
 public:
  OverflowError() : HostError("Overflow") {}
};

/// A row, column or item number outside its bounds, or a name that nothing carries.
class SubscriptError : public HostError {
 public:
  explicit SubscriptError(const std::string& what) : HostError("Subscript out of range: " + what) {}
};

/// A font that the machine lacks and that no other stands in for.
class MissingFontError : public HostError {
 public:
  /// The number under which error traps know it.
  static constexpr int kNumber = 380;

  explicit MissingFontError(std::string fontName)
      : HostError("Missing Font: " + fontName), fontName_(std::move(fontName)) {}

  const std::string& FontName() const { return fontName_; }

 private:
  std::string fontName_;
};

/// The database refused a statement or the connection is gone. what() tells it in the user's words, Details
/// in the engine's.
class DbError : public HostError {
 public:
  /// What went wrong, for those who act on it.
  enum class Reason {
    kOther,
    kConflict,  ///< Another one holds or has changed the record; the statement was undone whole.
    kLost,      ///< The connection is gone, or the file cannot be read or written.
    kDiskFull,
    kDamaged,
  };

  DbError(const std::string& message, std::string sqlState, std::string statement,
          std::string engineText = {}, Reason reason = Reason::kOther)
      : HostError(message),
        sqlState_(std::move(sqlState)),
        statement_(std::move(statement)),
        engineText_(std::move(engineText)),
        reason_(reason) {}

  /// Five characters of the SQL standard, e.g. "40001" for a lock conflict, "08006" for a lost connection.
  const std::string& SqlState() const { return sqlState_; }

  /// The statement as it was sent; empty where the failure belongs to none.
  const std::string& Statement() const { return statement_; }

  /// What the engine said; empty where the desk found the fault itself.
  const std::string& EngineText() const { return engineText_; }
  Reason Why() const { return reason_; }

  /// The engine's text and the statement, for whoever has to find the cause.
  std::string Details() const {
    const bool both = !engineText_.empty() && !statement_.empty();
    return engineText_ + (both ? "\n" : "") + (statement_.empty() ? "" : "Statement: " + statement_);
  }

 private:
  std::string sqlState_;
  std::string statement_;
  std::string engineText_;
  Reason reason_;
};

}  // namespace quillon
