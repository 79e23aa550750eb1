#pragma once

#include <string>
#include <vector>

namespace quillon {

/// What brings one kind of database from one version of the schema to the next. Several steps may begin at
/// one version, and each subsystem keeps its own in a file NAME.schema.cpp beside this one, as a function
/// NAMESteps that answers them.
struct SchemaStep {
  enum class Database { kCommon, kYear };

  Database Kind;
  int From;
  std::vector<std::string> Statements;  ///< each commits by itself
};

/// All steps that there are.
const std::vector<SchemaStep>& AllSchemaSteps();

/// The version that the last step leads to; 1 without steps.
int VersionAfter(const std::vector<SchemaStep>& steps);

}  // namespace quillon
