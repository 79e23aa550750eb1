#pragma once

#include <string>
#include <vector>

namespace quillon {

/// What brings one kind of database from one version of the schema to the next. Several steps may begin at
/// one version; all of them are carried out together, so what fills a table that a step makes begins at the
/// next version. Each subsystem keeps its own in a file NAME.schema.cpp beside this one, as a function
/// NAMESteps that answers them.
struct SchemaStep {
  enum class Database { kCommon, kYear };

  Database Kind;
  int From;
  std::vector<std::string> Statements;
};

/// All steps that there are.
const std::vector<SchemaStep>& AllSchemaSteps();

/// The version that the last step leads to; 1 without steps.
int VersionAfter(const std::vector<SchemaStep>& steps);

}  // namespace quillon
