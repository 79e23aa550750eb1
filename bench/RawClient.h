#pragma once

#include <cstdint>
#include <firebird/Interface.h>
#include <map>
#include <memory>
#include <string>
#include <vector>

namespace quillon::bench {

/// The floor: statements sent straight through the client library, with every field of every row read.
class RawClient {
 public:
  /// A database file.
  explicit RawClient(const std::string& database);
  RawClient(const RawClient&) = delete;
  RawClient& operator=(const RawClient&) = delete;
  ~RawClient();

  /// Prepares the text as it stands and carries it out.
  void Run(const std::string& sql);

  /// The same with the whole numbers and dates after equals signs as parameters, and prepared only once.
  void RunPrepared(const std::string& sql);

  /// What follows is one transaction, until Commit.
  void Begin();
  void Commit();

  /// The numbers in the first row of a query that gives whole numbers only, read in a transaction of its own.
  std::vector<std::int64_t> Numbers(const std::string& sql);

  /// How many statements this process has prepared through the client library, by whomever.
  static std::int64_t StatementsPrepared();

 private:
  struct Field;
  struct Statement;

  Firebird::ITransaction* Start(bool write);
  std::unique_ptr<Statement> Prepare(Firebird::ITransaction* transaction, const std::string& sql);
  void CarryOut(Statement& statement);
  void Read(const Statement& statement, const unsigned char* row);

  Firebird::ThrowStatusWrapper status_;
  Firebird::IAttachment* attachment_ = nullptr;
  Firebird::ITransaction* read_ = nullptr;
  Firebird::ITransaction* write_ = nullptr;
  Firebird::ITransaction* whole_ = nullptr;  ///< while one is begun
  std::map<std::string, std::unique_ptr<Statement>> prepared_;
  std::uint64_t sum_ = 0;
  std::string text_;
};

}  // namespace quillon::bench
